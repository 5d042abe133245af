#pragma once

#include "grid/Grid.h"
#include "table/model/TbxFormat.h"

namespace korvane {

/// The text of column 1 in a row that the next save leaves out.
inline Text DeleteMark() {
    return FromAscii(tbx::kDeleteMark);
}

/// Whether the row's column 1 holds exactly the mark that leaves it out of the next save.
inline bool IsMarkedForDeletion(const Grid& grid, Row row) {
    return grid.CellBytes(row, Col{1}) == tbx::kDeleteMark;
}

/// Overwrites the text of the row's column 1 with the mark. Nothing happens when there is no such row.
inline void MarkForDeletion(Grid& grid, Row row) {
    grid.SetCellValue(row, Col{1}, DeleteMark());
}

} // namespace korvane
