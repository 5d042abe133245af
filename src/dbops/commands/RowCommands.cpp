#include "dbops/commands/RowCommands.h"

#include "common/number/Number.h"
#include "context/App.h"
#include "dbops/rules/DeleteMark.h"
#include "dbops/rules/Rows.h"
#include "dbops/windows/frmTxtDbAddRows.h"
#include "dialogs/Questions.h"
#include "grid/GridUpdate.h"
#include "platform/Screen.h"
#include "table/TabContext.h"
#include "table/model/TableModel.h"

#include <utility>
#include <vector>

namespace korvane {

namespace {

constexpr int kAddedRowHeight = 24;

void AddRows(const TabContext& tab, int count) {
    Grid& grid = tab.table.GridStore();
    const Row old = grid.RowCount();
    grid.SetRowCount(old + count);
    // The loop starts at the row that was the last one until now. Kept for compatibility:
    // added-rows-set-last-height.
    for (Row row = old; row <= grid.RowCount(); ++row) {
        grid.SetRowHeight(row, kAddedRowHeight);
        grid.SetCellCheckShown(row, true);
        grid.EnsureRowVisible(row);
    }
    grid.SetCurRow(grid.RowCount());
    grid.SetCurCol(Col{1});
    grid.GridSetFocus();
    tab.table.TableAltered = 1;
}

std::vector<Text> RowTexts(const Grid& grid, Row row) {
    std::vector<Text> texts;
    for (Col col{1}; col <= grid.ColCount(); ++col)
        texts.push_back(grid.CellText(row, col));
    return texts;
}

void WriteRowTexts(Grid& grid, Row row, const std::vector<Text>& texts) {
    Col col{1};
    for (const Text& text : texts)
        grid.SetCellValue(row, std::exchange(col, col + 1), text);
}

/// Only the texts change places: ticks, colours, font flags and heights belong to the position. Kept for
/// compatibility: moves-swap-texts-only.
void SwapTexts(Grid& grid, Row current, Row neighbour) {
    const std::vector<Text> currentTexts = RowTexts(grid, current);
    const std::vector<Text> neighbourTexts = RowTexts(grid, neighbour);
    WriteRowTexts(grid, current, neighbourTexts);
    WriteRowTexts(grid, neighbour, currentTexts);
}

void MoveCurrentRow(const TabContext& tab, int step) {
    Grid& grid = tab.table.GridStore();
    const Row current = grid.CurRow();
    const Row neighbour = current + step;
    if (!grid.HasRow(current) || !grid.HasRow(neighbour)) {
        grid.GridSetFocus();
        return;
    }
    const Hourglass hourglass(tab.app.Screen());
    tab.app.Screen().ProcessMessages();
    SwapTexts(grid, current, neighbour);
    grid.GridSetFocus();
    grid.SetCurRow(neighbour);
    grid.EnsureRowVisible(neighbour);
    tab.table.TableAltered = 1;
}

Text RowSummary(const Grid& grid, Row row) {
    Text summary;
    TextView separator;
    for (const Text& text : RowTexts(grid, row)) {
        summary.append(std::exchange(separator, u"; ")).append(text);
    }
    return summary;
}

void FinishMarking(const TabContext& tab) {
    tab.table.GridStore().GridRefresh();
    tab.table.GridStore().GridSetFocus();
}

void MarkTickedRows(const TabContext& tab) {
    Grid& grid = tab.table.GridStore();
    Row row{1};
    {
        const GridUpdate update(grid);
        for (; row <= grid.RowCount(); ++row) {
            if (IsTicked(grid, row)) MarkForDeletion(grid, row);
        }
    }
    FinishMarking(tab);
    // The grid doesn't take a row after the last one, so the current row stays. Kept for compatibility:
    // marking-stays-on-row.
    grid.SetCurRow(row);
    tab.table.TableAltered = 1;
}

} // namespace

void mnuEdit_AddOneRow_Clack(const TabContext& tab) {
    AddRows(tab, 1);
}

void mnuEdit_AddRows_Clack(const TabContext& tab) {
    frmTxtDbAddRows form(tab.app);
    const int count = ShowForResult(tab.app, form);
    if (count > 0) AddRows(tab, count);
}

void mnuRowDown_Clack(const TabContext& tab) {
    MoveCurrentRow(tab, 1);
}

void mnuRowUp_Clack(const TabContext& tab) {
    MoveCurrentRow(tab, -1);
}

void mnuEdit_Delete_Clack(const TabContext& tab) {
    Grid& grid = tab.table.GridStore();
    const Text question =
        u"Mark current row for deletion ?\r\n\r\n" + RowSummary(grid, grid.CurRow()) + u"\r\n";
    if (!AskYesNo(tab.app, question, YesNoDefault::No)) return;
    MarkForDeletion(grid, grid.CurRow());
    FinishMarking(tab);
    tab.table.TableAltered = 1;
}

void mnuDel_CheckedRows_Clack(const TabContext& tab) {
    const Grid& grid = tab.table.GridStore();
    const int ticked = CountRows(grid, [&grid](Row row) { return IsTicked(grid, row); });
    if (ticked == 0) {
        Inform(tab.app, u"No rows contain checks.");
        return;
    }
    const Text question = u"Mark [ " + NumberText(ticked) + u" ] selected rows for deletion ?\r\n";
    if (AskYesNo(tab.app, question, YesNoDefault::No)) MarkTickedRows(tab);
}

} // namespace korvane
