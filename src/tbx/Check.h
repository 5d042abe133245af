#pragma once

#include "grid/Grid.h"

#include <cstddef>
#include <string>
#include <vector>

namespace korvane {

/// One place of a table or its file that a load or a save would lose or change.
struct Finding {
    /// The cell; column 0 when it is the whole row, row 0 when it is no row.
    CellPosition cell;
    /// The line of the file, counted from 1; 0 when there is none.
    std::size_t line = 0;
    std::string what;

    bool operator==(const Finding&) const = default;
};

/// "3:2: line 27: what" without the numbers that aren't known, and without a line break.
std::string FindingText(const Finding& finding);

} // namespace korvane
