#pragma once

namespace korvane {

/// Whether Windows draws the controls of programs in its present look, and not in that of its first versions.
bool IsThemeOn();

} // namespace korvane
