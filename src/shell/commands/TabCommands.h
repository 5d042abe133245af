#pragma once

#include <string_view>

namespace korvane {

struct TabContext;

using TabCommand = void (*)(const TabContext&);

/// The routine of a tab by its name; nullptr when there is none of this name.
TabCommand FindTabCommand(std::string_view name);

} // namespace korvane
