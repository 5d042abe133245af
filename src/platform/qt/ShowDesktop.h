#pragma once

namespace korvane {

/// Asks the window manager to show the bare desktop, or its windows again. Nothing happens where it doesn't
/// offer that.
void ToggleShowingDesktop();

} // namespace korvane
