#pragma once

#include "controls/KeyEvent.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace korvane {

/// A key of the table's grid that no menu entry binds.
struct GridKey {
    static constexpr int kAnyMask = -1;

    enum class Target : std::uint8_t {
        /// A routine of the tab.
        Tab,
        /// A routine of the tab, after which the grid gets the focus.
        TabThenFocus,
        /// A command of the main window.
        Main,
    };

    int code;
    int mask;
    Target target;
    std::string_view routine;
    /// Whether the key is kept from the grid.
    bool swallowed = true;

    bool Matches(const KeyEvent& key) const {
        return key.code == code && (mask == kAnyMask || key.mask == mask);
    }
};

/// The keys in the order in which they are tested: the first match wins.
std::span<const GridKey> GridKeys();
/// nullptr for a key that isn't in the list.
const GridKey* FindGridKey(const KeyEvent& key);

} // namespace korvane
