#pragma once

namespace korvane {

/// Whether the user has asked the desktop for dark windows. Each system has a way of its own to ask.
bool DesktopPrefersDark();

} // namespace korvane
