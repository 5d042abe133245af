#include "platform/qt/ShowDesktop.h"

#include <xcb/xcb.h>

#include <QGuiApplication>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace korvane {

namespace {

template <class T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;

xcb_atom_t Atom(xcb_connection_t* connection, const char* name) {
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, cookie, nullptr),
                                               &std::free);
    return reply == nullptr ? xcb_atom_t{XCB_ATOM_NONE} : reply->atom;
}

bool IsShowing(xcb_connection_t* connection, xcb_window_t root, xcb_atom_t property) {
    const auto cookie = xcb_get_property(connection, 0, root, property, XCB_ATOM_CARDINAL, 0, 1);
    const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection, cookie, nullptr),
                                                &std::free);
    if (reply == nullptr || xcb_get_property_value_length(reply.get()) < 4) return false;
    return *static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get())) != 0;
}

} // namespace

void ToggleShowingDesktop() {
    auto* native = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (native == nullptr) return;
    xcb_connection_t* connection = native->connection();
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const xcb_atom_t property = Atom(connection, "_NET_SHOWING_DESKTOP");

    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = root;
    message.type = property;
    message.data.data32[0] = IsShowing(connection, root, property) ? 0 : 1;
    xcb_send_event(connection, 0, root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&message));
    xcb_flush(connection);
}

} // namespace korvane
