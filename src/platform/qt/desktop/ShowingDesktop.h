#pragma once

namespace korvane {

/// Asks the window manager to hide all windows, or to show them again. Nothing happens if it doesn't offer
/// this.
void ToggleShowingDesktop();

} // namespace korvane
