#pragma once

#include "controls/views/TabStyles.h"

#include <QColor>
#include <QPalette>

namespace korvane {

/// The colours of a tab strip in one style with one palette.
struct TabColours {
    QColor strip;
    /// The edge of the tabs that aren't active.
    QColor edge;
    /// The line around the strip.
    QColor frame;
    QColor rest;
    QColor restText;
    QColor hover;
    QColor active;
    QColor activeText;
    QColor mark;
};

TabColours ColoursOf(const TabStyle& style, const QPalette& palette);

} // namespace korvane
