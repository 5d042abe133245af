#pragma once

#include <QTabBar>

namespace korvane {

/// Draws the tabs in the look of a style number; an unknown one takes the look of 0.
void ApplyTabLook(QTabBar& tabs, int style);

} // namespace korvane
