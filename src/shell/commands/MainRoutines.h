#pragma once

#include <string_view>

namespace korvane {

class frmMDIParent;

/// Runs a routine of the main window by its name; nothing happens when there is none.
void RunMainRoutine(frmMDIParent& main, std::string_view name);

} // namespace korvane
