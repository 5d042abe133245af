#pragma once

#include "grid/Grid.h"
#include "tbx/Check.h"

#include <vector>

namespace korvane {

/// Finds what the table would lose if it were saved and loaded again.
std::vector<Finding> CheckTable(const Grid& grid);

} // namespace korvane
