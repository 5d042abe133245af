#pragma once

#include "table/TabContext.h"

#include <variant>

namespace korvane {

struct MainParts;

/// A routine of the main window.
using MainRoutine = void (*)(const MainParts&);

/// What a command calls: a routine of the main window, or one of the tab that is active at the time of the
/// call. It is empty for a command that only opens a menu, and for one whose window isn't there yet.
using CommandCall = std::variant<std::monostate, MainRoutine, TabRoutine>;

} // namespace korvane
