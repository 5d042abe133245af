#pragma once

#include "common/number/Units.h"

#include <cstdint>
#include <span>

namespace korvane {

/// The two colours of a tab strip.
struct TabStyleColours {
    /// The colour of the strip, and of the surfaces of the window that go with it.
    Colour strip;
    /// The colour of the mark of the active tab, and of the line round the strip.
    Colour second;

    bool operator==(const TabStyleColours&) const = default;
};

/// How the active tab is marked.
enum class TabMark : std::uint8_t {
    /// A bar of the second colour along its lower edge.
    Below,
    /// The same along its upper edge.
    Above,
    /// A line of the second colour round it.
    Outlined,
    /// All of it in the second colour.
    Filled,
};

/// The look of a style number.
struct TabStyle {
    int number;
    TabStyleColours light;
    /// The same on a desktop whose text is light on dark.
    TabStyleColours dark;
    /// The radius of the corners of a tab, in pixels at 96 dpi; 0 is square.
    int cornerRadius;
    /// How much of the strip's colour is in the tabs that aren't active, in percent.
    int tint;
    TabMark mark;

    bool Rounded() const { return cornerRadius > 0; }
    const TabStyleColours& Colours(bool onDark) const { return onDark ? dark : light; }
};

/// All styles in the order in which they are stepped through.
std::span<const TabStyle> TabStyles();

/// The style of a number; the first one when the number has no style.
const TabStyle& TabStyleOf(int number);

enum class StyleStep : std::uint8_t { Back, Forward };

/// The number of the next or previous style. After the last comes the first. A number without a style stays.
int SteppedTabStyle(int number, StyleStep step);

} // namespace korvane
