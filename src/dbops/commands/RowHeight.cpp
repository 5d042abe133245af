#include "dbops/commands/RowHeight.h"

#include "common/number/Number.h"
#include "dbops/rules/Rows.h"
#include "dbops/windows/frmSetRowHeight.h"
#include "dialogs/Questions.h"
#include "grid/GridUpdate.h"
#include "table/TabContext.h"
#include "table/model/TableHost.h"
#include "table/model/TableModel.h"

namespace korvane {

namespace {

// A height that is typed has no limits. Kept for compatibility: row-height-box-goes-further.
constexpr int kLowestBySlider = 13;
constexpr int kHighestBySlider = 360;

/// Nothing happens in a table that never got a height.
void SetAllRowHeights(TableModel& table) {
    if (!table.SetRowHeight) return;
    Grid& grid = table.GridStore();
    const GridUpdate update(grid);
    ForEachRow(grid, [&](Row row) { grid.SetRowHeight(row, *table.SetRowHeight); });
}

} // namespace

void mnuEdit_SetRowHeight_Clack(const TabContext& tab) {
    frmSetRowHeight form(tab);
    if (ShowForResult(tab.app, form) == 1) {
        SetAllRowHeights(tab.table);
        tab.host.ShowRowHeight(tab.table.SetRowHeight.value_or(std::int16_t{0}));
    }
    // This also happens after a cancel. Kept for compatibility: row-height-counts-after-cancel.
    tab.table.TableAltered = 1;
}

void MoveRowHeight(const TabContext& tab, int height) {
    if (height < kLowestBySlider || height > kHighestBySlider) return;
    tab.table.SetRowHeight = static_cast<std::int16_t>(height);
    tab.host.ShowRowHeight(*tab.table.SetRowHeight);
    tab.table.TableAltered = 1;
}

void ApplyRowHeight(const TabContext& tab) {
    SetAllRowHeights(tab.table);
    tab.table.GridStore().GridSetFocus();
    tab.table.TableAltered = 1;
}

void ApplyTypedRowHeight(const TabContext& tab, TextView typed) {
    std::int16_t height = tab.table.SetRowHeight.value_or(std::int16_t{0});
    if (ReadNumber(typed, height)) tab.table.SetRowHeight = height;
    tab.host.ShowRowHeight(height);
    ApplyRowHeight(tab);
}

} // namespace korvane
