#include "dbops/rules/TableSearch.h"

#include "context/App.h"
#include "dialogs/Questions.h"
#include "grid/Grid.h"
#include "platform/MessageBoxes.h"
#include "table/TabContext.h"
#include "table/model/TableModel.h"

namespace korvane {

namespace {

CellPosition SearchStart(const Grid& grid) {
    const CellPosition next{grid.CurRow(), grid.CurCol() + 1};
    // The column has to be below the last one, so that the last column of the current row is passed over when
    // it is the next one. Kept for compatibility: find-passes-over-last-column.
    if (next.col < grid.ColCount()) return next;
    return {grid.CurRow() + 1, Col{1}};
}

} // namespace

std::optional<TableMatch> FindBehindCurrentCell(const Grid& grid, TextView part) {
    const auto cell = grid.FindText(part, SearchStart(grid));
    if (!cell) return std::nullopt;
    return TableMatch{*cell, cell->row == grid.CurRow()};
}

void GoToMatch(Grid& grid, const TableMatch& match) {
    grid.SetCurRow(match.cell.row);
    grid.SetCurCol(match.cell.col);
    grid.EnsureRowVisible(match.cell.row);
}

void FindFromBox(const TabContext& tab, TextView text) {
    if (text.empty()) return;
    Grid& grid = tab.table.GridStore();
    if (const auto match = FindBehindCurrentCell(grid, text)) {
        GoToMatch(grid, *match);
    } else {
        Inform(tab.app, u"No (further) find for :\r\n\r\n\"" + Text(text) + u"\"\t");
    }
    grid.GridSetFocus();
}

} // namespace korvane
