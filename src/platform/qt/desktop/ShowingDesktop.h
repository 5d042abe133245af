#pragma once

namespace korvane {

/// Asks the window manager to hide all windows, or to show them again. Where it offers no such thing, nothing
/// happens.
void ToggleShowingDesktop();

} // namespace korvane
