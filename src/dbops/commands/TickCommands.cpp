#include "dbops/commands/TickCommands.h"

#include "common/number/Number.h"
#include "dbops/rules/Rows.h"
#include "dialogs/Questions.h"
#include "grid/GridUpdate.h"
#include "table/TabContext.h"
#include "table/model/TableModel.h"

namespace korvane {

namespace {

/// This doesn't count as a change of the table, although the file keeps ticks. Kept for compatibility:
/// ticks-are-no-change.
void SetVisibleChecks(Grid& grid, int check) {
    const GridUpdate update(grid);
    ForEachRow(grid, [&](Row row) {
        if (grid.RowVisible(row)) grid.SetCellCheck(row, check);
    });
}

/// Hidden rows lose their ticks too. Kept for compatibility: clear-ticks-reaches-hidden.
void ClearChecks(TableModel& table) {
    Grid& grid = table.GridStore();
    const GridUpdate update(grid);
    ForEachRow(grid, [&grid](Row row) { grid.SetCellCheck(row, 0); });
    table.TableAltered = 1;
}

bool MayClear(const TabContext& tab, int ticked) {
    return AskYesNo(tab.app, u" Deselect [ " + NumberText(ticked) + u" ] grid rows?");
}

} // namespace

void mnuEdit_ToggleSelection_Clack(const TabContext& tab) {
    Grid& grid = tab.table.GridStore();
    grid.SetCellCheck(grid.CurRow(), IsTicked(grid, grid.CurRow()) ? 0 : 1);
    tab.table.TableAltered = 1;
}

void mnuSelAll_TickBoxes_Clack(const TabContext& tab) {
    Grid& grid = tab.table.GridStore();
    const int visible = CountRows(grid, [&grid](Row row) { return grid.RowVisible(row); });
    if (AskYesNo(tab.app, u"Tick the boxes in [ " + NumberText(visible) + u" ] visible rows?"))
        SetVisibleChecks(grid, 1);
}

void mnuSelAll_UnTickBoxes_Clack(const TabContext& tab) {
    Grid& grid = tab.table.GridStore();
    const int ticked =
        CountRows(grid, [&grid](Row row) { return grid.RowVisible(row) && IsTicked(grid, row); });
    const Text question = u"Remove ticks in boxes for [ " + NumberText(ticked) +
                          u" ] visible rows?\r\n\r\n(N.B.: Ticks in invisible rows are not removed.)";
    if (AskYesNo(tab.app, question)) SetVisibleChecks(grid, 0);
}

void ClearAllTicks(const TabContext& tab, AskFirst ask) {
    Grid& grid = tab.table.GridStore();
    const int ticked = CountRows(grid, [&grid](Row row) { return IsTicked(grid, row); });
    if (ticked > 0) {
        if (ask == AskFirst::No || MayClear(tab, ticked)) ClearChecks(tab.table);
    } else if (ask == AskFirst::Yes) {
        Inform(tab.app, u"No rows selected.");
    }
    grid.GridSetFocus();
}

} // namespace korvane
