#pragma once

#include "common/number/Units.h"
#include "document/model/FormatPool.h"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace korvane::doc {

enum class Side : std::uint8_t { Left, Right, Top, Bottom };

/// How a cell of a table looks. Lengths are in twips.
struct CellFormat {
    /// Where the cell begins. In a file only that of a row's first cell counts.
    std::optional<std::int32_t> left{};
    std::int32_t width = 1800;
    std::int32_t gapLeft = 0;
    std::int32_t gapRight = 0;
    /// The widths of the lines, in the order of `Side`. 0 is no line.
    std::array<std::int32_t, 4> border{};
    Colour back = kNoColour;

    bool operator==(const CellFormat&) const = default;
};

struct TableRow {
    std::vector<CellFormat> cells;

    bool operator==(const TableRow&) const = default;
};

struct Table {
    std::vector<TableRow> rows;

    bool operator==(const Table&) const = default;
};

/// A place in a table. Rows and columns count from 0. Table 0 is no table.
struct CellPlace {
    Index table = 0;
    Index row = 0;
    Index column = 0;

    bool operator==(const CellPlace&) const = default;
};

} // namespace korvane::doc
