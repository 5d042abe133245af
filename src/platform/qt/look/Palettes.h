#pragma once

#include <QPalette>

namespace korvane {

QPalette DarkPalette();

/// Whether windows with this palette have light text on a dark ground.
bool IsDark(const QPalette& palette);

/// Takes a dark palette where the desktop prefers one and Qt didn't notice, and gives it up where the desktop
/// no longer prefers it.
void FollowDesktopPalette();

} // namespace korvane
