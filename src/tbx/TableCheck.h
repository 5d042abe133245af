#pragma once

#include "grid/Grid.h"
#include "tbx/Check.h"

namespace korvane {

/// Finds what the table would lose if it were saved and loaded again.
void CheckTable(const Grid& grid, FindingStream& findings);

} // namespace korvane
