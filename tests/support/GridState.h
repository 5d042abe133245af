#pragma once

#include "grid/Grid.h"

#include <sstream>
#include <string>

namespace korvane {

/// Everything that a grid contains as a text, so that grids can be compared.
inline std::string StateOf(const Grid& grid) {
    std::ostringstream state;
    const auto put = [&state](const auto&... values) { ((state << values << '|'), ...) << '\n'; };
    put(grid.RowCount().Number(), grid.ColCount().Number(), grid.GridBackColor().value,
        grid.GridForeColor().value, ToUtf8(grid.GridFontName()), grid.GridFontSize());
    for (Col col{1}; col <= grid.ColCount(); ++col)
        put(ToUtf8(grid.ColKey(col)), ToUtf8(grid.ColHeaderText(col)), grid.ColWidth(col));
    for (Row row{1}; row <= grid.RowCount(); ++row) {
        put(grid.RowHeight(row), grid.HasRowHeight(row), grid.RowVisible(row), grid.CellCheck(row),
            grid.CellCheckShown(row));
        for (Col col{1}; col <= grid.ColCount(); ++col)
            put(ToUtf8(grid.CellValue(row, col)), grid.CellBackColor(row, col).value,
                grid.CellForeColor(row, col).value, grid.CellFontFlag(row, col, CellFlag::Italic),
                grid.CellFontFlag(row, col, CellFlag::Bold),
                grid.CellFontFlag(row, col, CellFlag::Strikethrough));
    }
    return state.str();
}

} // namespace korvane
