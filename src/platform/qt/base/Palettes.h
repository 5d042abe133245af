#pragma once

#include <QPalette>

namespace korvane {

QPalette DarkPalette();

/// Whether windows of the palette have light text on dark.
bool IsDark(const QPalette& palette);

/// Goes dark where the desktop prefers that and the toolkit didn't notice.
void FollowDesktopPalette();

} // namespace korvane
