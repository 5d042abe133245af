#include "dbops/commands/CellCommands.h"

#include "common/number/Number.h"
#include "context/App.h"
#include "context/exchange/CopiedCell.h"
#include "dbops/rules/Rows.h"
#include "dbops/rules/TextBlock.h"
#include "dialogs/Questions.h"
#include "grid/GridUpdate.h"
#include "platform/Clipboard.h"
#include "table/TabContext.h"
#include "table/model/TableModel.h"

#include <algorithm>

namespace korvane {

namespace {

CellPosition CurrentCell(const Grid& grid) {
    return {grid.CurRow(), grid.CurCol()};
}

bool HasCell(const Grid& grid, CellPosition cell) {
    return grid.HasRow(cell.row) && grid.HasCol(cell.col);
}

void WriteCell(const TabContext& tab, CellPosition cell, TextView text) {
    Grid& grid = tab.table.GridStore();
    if (!HasCell(grid, cell) || grid.CellValue(cell.row, cell.col) == text) return;
    grid.SetCellValue(cell.row, cell.col, text);
    tab.table.TableAltered = 1;
}

/// The clipboard's text as cells. The lines of a cell that was copied here stay together.
TextRows RowsInClipboard(App& app) {
    const Text text = app.Clipboard().GetText();
    const bool copiedHere = !text.empty() && text == app.Exchange<CopiedCell>().text;
    return copiedHere ? TextRows{{text}} : RowsOfTextBlock(text);
}

int Width(const TextRows& rows) {
    const auto longest = std::ranges::max_element(rows, {}, &std::vector<Text>::size);
    return static_cast<int>(longest->size());
}

int ShownRowsFromCurrent(const Grid& grid) {
    return CountRows(grid, [&grid](Row row) { return row >= grid.CurRow() && grid.RowVisible(row); });
}

Text PartFits(TextView what, int count, int room) {
    return u"The clipboard has [ " + NumberText(count) + u" ] " + Text(what) + u", and there is room for [ " +
           NumberText(room) + u" ] from the current cell on.\r\n\r\nPaste what fits ?\r\n";
}

bool MayPaste(const TabContext& tab, const TextRows& rows) {
    const Grid& grid = tab.table.GridStore();
    const int columns = grid.ColCount() - grid.CurCol() + 1;
    if (Width(rows) > columns && !AskYesNo(tab.app, PartFits(u"columns", Width(rows), columns))) return false;
    const int room = ShownRowsFromCurrent(grid) + (kMaxRows - grid.RowCount());
    const int count = static_cast<int>(rows.size());
    return count <= room || AskYesNo(tab.app, PartFits(u"rows", count, room));
}

void AppendMissingRows(const TabContext& tab, int wanted) {
    Grid& grid = tab.table.GridStore();
    const int missing = wanted - ShownRowsFromCurrent(grid);
    if (missing <= 0) return;
    AppendRows(grid, missing);
    tab.table.TableAltered = 1;
}

void WriteRows(const TabContext& tab, const TextRows& rows) {
    Grid& grid = tab.table.GridStore();
    const GridUpdate update(grid);
    AppendMissingRows(tab, static_cast<int>(rows.size()));
    CellPosition cell = CurrentCell(grid);
    auto texts = rows.begin();
    for (; texts != rows.end() && grid.HasRow(cell.row); ++cell.row) {
        if (!grid.RowVisible(cell.row)) continue;
        cell.col = grid.CurCol();
        for (const Text& text : *texts++) {
            WriteCell(tab, cell, text);
            ++cell.col;
        }
    }
}

} // namespace

void CopyCell(const TabContext& tab) {
    const Grid& grid = tab.table.GridStore();
    const CellPosition cell = CurrentCell(grid);
    if (!HasCell(grid, cell)) return;
    const Text& copied = tab.app.Exchange<CopiedCell>().text = grid.CellText(cell.row, cell.col);
    tab.app.Clipboard().SetText(copied);
}

void CutCell(const TabContext& tab) {
    CopyCell(tab);
    ClearCell(tab);
}

void ClearCell(const TabContext& tab) {
    WriteCell(tab, CurrentCell(tab.table.GridStore()), {});
}

void PasteCells(const TabContext& tab) {
    Grid& grid = tab.table.GridStore();
    const TextRows rows = RowsInClipboard(tab.app);
    if (!rows.empty() && HasCell(grid, CurrentCell(grid)) && MayPaste(tab, rows)) WriteRows(tab, rows);
    grid.GridSetFocus();
}

} // namespace korvane
