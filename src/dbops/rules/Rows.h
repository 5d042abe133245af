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

inline bool IsTicked(const Grid& grid, Row row) {
    return grid.CellCheck(row) == 1;
}

} // namespace korvane
