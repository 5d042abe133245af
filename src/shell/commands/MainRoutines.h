#pragma once

#include <string_view>

namespace korvane {

struct MainParts;

/// Runs a routine of the main window by its name; nothing happens when there is none.
void RunMainRoutine(const MainParts& main, std::string_view name);

} // namespace korvane
