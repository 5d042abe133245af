#include "e2e/Display.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace korvane::e2e {

namespace {

constexpr std::uint16_t kFarEdge = 4096;

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};
template <class Type>
using Owned = std::unique_ptr<Type, Free>;

} // namespace

Display::Display(const std::string& name) : connection_(xcb_connect(name.c_str(), nullptr)) {
    if (xcb_connection_has_error(connection_.get()) != 0) return;
    root_ = xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data->root;
    Watch(root_, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY);
}

void Display::Watch(xcb_window_t window, std::uint32_t events) {
    xcb_change_window_attributes(connection_.get(), window, XCB_CW_EVENT_MASK, &events);
    xcb_flush(connection_.get());
}

int Display::Descriptor() const {
    return Works() ? xcb_get_file_descriptor(connection_.get()) : -1;
}

void Display::Drain() {
    constexpr std::uint8_t kSentByAnother = 0x80;
    while (const Owned<xcb_generic_event_t> event{xcb_poll_for_event(connection_.get())}) {
        if ((event->response_type & ~kSentByAnother) != XCB_CREATE_NOTIFY) continue;
        const auto* created = reinterpret_cast<const xcb_create_notify_event_t*>(event.get());
        Watch(created->window, XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_FOCUS_CHANGE);
    }
}

std::string Display::Topmost() const {
    const auto windows = TopLevels();
    const auto topmost = std::find_if(windows.rbegin(), windows.rend(),
                                      [this](xcb_window_t window) { return IsSeen(window); });
    return topmost == windows.rend() ? "" : std::to_string(*topmost);
}

bool Display::IsSeen(xcb_window_t window) const {
    const auto asked = xcb_get_window_attributes(connection_.get(), window);
    const Owned<xcb_get_window_attributes_reply_t> told{
        xcb_get_window_attributes_reply(connection_.get(), asked, nullptr)};
    return told && told->_class == XCB_WINDOW_CLASS_INPUT_OUTPUT && told->map_state == XCB_MAP_STATE_VIEWABLE;
}

std::vector<xcb_window_t> Display::TopLevels() const {
    const auto asked = xcb_query_tree(connection_.get(), root_);
    const Owned<xcb_query_tree_reply_t> tree{xcb_query_tree_reply(connection_.get(), asked, nullptr)};
    if (!tree) return {};
    const xcb_window_t* first = xcb_query_tree_children(tree.get());
    return {first, first + xcb_query_tree_children_length(tree.get())};
}

void Display::Cover() {
    const xcb_window_t window = xcb_generate_id(connection_.get());
    xcb_create_window(connection_.get(), XCB_COPY_FROM_PARENT, window, root_, 0, 0, kFarEdge, kFarEdge, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_map_window(connection_.get(), window);
    xcb_flush(connection_.get());
}

} // namespace korvane::e2e
