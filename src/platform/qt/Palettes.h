#pragma once

#include <QPalette>

namespace korvane {

QPalette DarkPalette();

/// Goes dark where the desktop prefers that and the toolkit didn't notice.
void FollowDesktopPalette();

} // namespace korvane
