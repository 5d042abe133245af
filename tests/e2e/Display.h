#pragma once

#include "e2e/Events.h"

#include <xcb/xcb.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace korvane::e2e {

/// A connection to a display. It reports when a window appears, disappears, changes its title, or moves above
/// or below another one, and when another window gets the keyboard. Windows are identified by decimal
/// numbers, as in xdotool.
class Display final : public EventSource {
public:
    /// `name` is a name like ":1".
    explicit Display(const std::string& name);

    bool Works() const { return root_ != 0; }
    int Descriptor() const override;
    void Drain() override;

    /// The window above all others, or an empty text when no window is visible.
    std::string Topmost() const;
    /// Covers the whole screen with a window without a title.
    void Cover();

private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    void Watch(xcb_window_t window, std::uint32_t events);
    bool IsSeen(xcb_window_t window) const;
    /// The top-level windows, the lowest first.
    std::vector<xcb_window_t> TopLevels() const;

    std::unique_ptr<xcb_connection_t, Disconnect> connection_;
    xcb_window_t root_ = 0;
};

} // namespace korvane::e2e
