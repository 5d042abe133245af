#include "dbops/rules/Rows.h"

#include "table/model/NewTable.h"

namespace korvane {

void AppendRows(Grid& grid, int count) {
    const Row last = grid.RowCount();
    const bool first = last == Row{0};
    const int height = first ? kNewRowHeight : grid.RowHeight(last);
    const bool boxes = first || grid.CellCheckShown(last);
    grid.SetRowCount(last + count);
    for (Row row = last + 1; row <= grid.RowCount(); ++row) {
        grid.SetRowHeight(row, height);
        grid.SetCellCheckShown(row, boxes);
    }
}

} // namespace korvane
