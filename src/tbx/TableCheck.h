#pragma once

#include "grid/Grid.h"
#include "tbx/Check.h"

#include <vector>

namespace korvane {

/// What of the table in memory won't be in it any more after it was saved and loaded.
std::vector<Finding> CheckTable(const Grid& grid);

} // namespace korvane
