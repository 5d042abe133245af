#include "platform/qt/desktop/ShowingDesktop.h"

#include <xcb/xcb.h>

#include <QGuiApplication>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace korvane {

namespace {

struct Free {
    void operator()(void* reply) const { std::free(reply); }
};
template <class Reply>
using Owned = std::unique_ptr<Reply, Free>;

constexpr std::uint32_t kFormat = 32;

xcb_atom_t ShowingDesktopAtom(xcb_connection_t* display) {
    constexpr std::string_view kName = "_NET_SHOWING_DESKTOP";
    const auto request = xcb_intern_atom(display, 0, kName.size(), kName.data());
    const Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(display, request, nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

bool IsShowing(xcb_connection_t* display, xcb_window_t root, xcb_atom_t property) {
    const auto request = xcb_get_property(display, 0, root, property, XCB_ATOM_CARDINAL, 0, 1);
    const Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(display, request, nullptr));
    if (!reply || reply->format != kFormat || reply->value_len == 0) return false;
    return *static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get())) != 0;
}

void AskWindowManager(xcb_connection_t* display, xcb_window_t root, xcb_atom_t property, bool showing) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = kFormat;
    message.window = root;
    message.type = property;
    message.data.data32[0] = showing ? 1 : 0;
    xcb_send_event(display, 0, root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&message));
    xcb_flush(display);
}

} // namespace

void ToggleShowingDesktop() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 == nullptr) return;
    xcb_connection_t* display = x11->connection();
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(display)).data->root;
    const xcb_atom_t property = ShowingDesktopAtom(display);
    AskWindowManager(display, root, property, !IsShowing(display, root, property));
}

} // namespace korvane
