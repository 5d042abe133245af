#pragma once

#include "grid/Grid.h"

#include <cstdint>

namespace korvane {

/// What `frmRowColour` keeps as long as the program runs.
struct RowColourMemory {
    /// The index in its list.
    std::int16_t RowColourIndex = 0;
    /// Its check box, 1 or 0.
    std::int16_t RemoveChecksAtStart = 0;
    /// Its option.
    CellFlag RowAttribute = CellFlag::Italic;
};

} // namespace korvane
