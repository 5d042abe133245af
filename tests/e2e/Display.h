#pragma once

#include "e2e/Events.h"

#include <xcb/xcb.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace korvane::e2e {

/// A connection to a display, which tells when a window comes, goes, changes its title or its place among the
/// others, and when the keyboard moves. Windows go by their number in decimal, as xdotool has them.
class Display final : public EventSource {
public:
    /// `name` is ":1" or the like.
    explicit Display(const std::string& name);

    bool Works() const { return root_ != 0; }
    int Descriptor() const override;
    void Drain() override;

    /// The window that lies above all others; empty when none is seen.
    std::string Topmost() const;
    /// Lays a window without a title over the whole screen.
    void Cover();

private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    void Watch(xcb_window_t window, std::uint32_t events);
    bool IsSeen(xcb_window_t window) const;
    /// From the lowest to the topmost.
    std::vector<xcb_window_t> TopLevels() const;

    std::unique_ptr<xcb_connection_t, Disconnect> connection_;
    xcb_window_t root_ = 0;
};

} // namespace korvane::e2e
