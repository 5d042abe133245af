#pragma once

#include "common/text/Text.h"
#include "platform/xls/LittleEndian.h"

#include <optional>

namespace korvane::xls {

/// The size of a sheet.
inline constexpr U32 kSheetRows = 65536;
inline constexpr U16 kSheetCols = 256;

/// The place of a cell, with row and column counted from 0.
struct CellPlace {
    U16 row = 0;
    U16 col = 0;

    bool operator==(const CellPlace&) const = default;
};

/// The place of "B3", with letters of either case; nothing when it isn't a cell of a sheet.
std::optional<CellPlace> ParseCellName(TextView name);
/// The column of "B:B", counted from 0; nothing when it isn't exactly one column.
std::optional<U16> ParseColumnName(TextView name);

} // namespace korvane::xls
