#include "dbops/rules/RowFontFlags.h"

#include "grid/Grid.h"
#include "table/TabContext.h"
#include "table/model/TableModel.h"

namespace korvane {

namespace {

/// The table doesn't count as altered, although the file keeps the flags of column 1. Kept for compatibility:
/// font-flags-are-no-change.
void FlipFlagOfCurrentRow(Grid& grid, CellFlag flag) {
    const Row row = grid.CurRow();
    for (Col col{1}; col <= grid.ColCount(); ++col)
        grid.SetCellFontFlag(row, col, flag, !grid.CellFontFlag(row, col, flag));
}

} // namespace

void MakeEmailItalic(const TabContext& tab) {
    FlipFlagOfCurrentRow(tab.table.GridStore(), CellFlag::Italic);
}

void MakeEmailBold(const TabContext& tab) {
    FlipFlagOfCurrentRow(tab.table.GridStore(), CellFlag::Bold);
}

void MakeEmailStrikethru(const TabContext& tab) {
    FlipFlagOfCurrentRow(tab.table.GridStore(), CellFlag::Strikethrough);
}

} // namespace korvane
