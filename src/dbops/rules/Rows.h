#pragma once

#include "grid/Grid.h"

namespace korvane {

/// Calls `visit(Row)` for every row, hidden ones included.
template <class Visit>
void ForEachRow(const Grid& grid, const Visit& visit) {
    for (Row row{1}; row <= grid.RowCount(); ++row)
        visit(row);
}

/// The number of rows for which `holds(Row)` is true.
template <class Test>
int CountRows(const Grid& grid, const Test& holds) {
    int count = 0;
    ForEachRow(grid, [&](Row row) { count += holds(row) ? 1 : 0; });
    return count;
}

/// Appends rows that are as high as the last one, and have a check box where it has one. In a table without
/// rows they are as those of a new table. Fewer are appended where the table can't hold them.
void AppendRows(Grid& grid, int count);

inline bool IsTicked(const Grid& grid, Row row) {
    return grid.CellCheck(row) == 1;
}

} // namespace korvane
