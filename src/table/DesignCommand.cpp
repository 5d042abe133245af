#include "table/DesignCommand.h"

#include "context/App.h"
#include "grid/Grid.h"
#include "grid/GridUpdate.h"
#include "table/SaveCommands.h"
#include "table/TabContext.h"
#include "table/frmDesignTable.h"
#include "table/model/NewTable.h"
#include "table/model/TableHost.h"
#include "table/model/TableModel.h"

namespace korvane {

namespace {

/// Rows after these are dropped. Kept for compatibility: design-has-eight-rows.
constexpr Row kNewRows{8};

void TakeColumnNames(TableModel& table) {
    table.ColumnNames.Clear();
    Col col{1};
    for (const Text& title : table.lstNewTableColumns) {
        table.ColumnNames.Set(col, title);
        ++col;
    }
}

/// The columns that the grid has stay. Kept for compatibility: design-adds-columns.
void FillGrid(Grid& grid, const std::vector<Text>& titles) {
    const GridUpdate update(grid);
    grid.SetRowCount(kNewRows);
    Col col{1};
    for (const Text& title : titles) {
        AddNewColumn(grid, col, title);
        ++col;
    }
    // The switch for sorting stays as it was in the tab. Kept for compatibility: design-leaves-sorting.
    GiveNewTableLook(grid);
    for (Row row{1}; row <= kNewRows; ++row) {
        grid.SetRowHeight(row, kNewRowHeight);
        grid.SetCellCheckShown(row, true);
    }
}

void TakeLook(TableModel& table) {
    const Grid& grid = table.GridStore();
    table.SetRowHeight = static_cast<std::int16_t>(kNewRowHeight);
    table.TableBackColour = grid.GridBackColor();
    table.TableFontName = grid.GridFontName();
    table.TableFontSize = static_cast<std::int16_t>(grid.GridFontSize());
}

void MakeDesignedTable(const TabContext& tab) {
    TableModel& table = tab.table;
    TakeColumnNames(table);
    FillGrid(table.GridStore(), table.lstNewTableColumns);
    GoToFirstCell(table.GridStore());
    // A file of that name is overwritten by the first save. Kept for compatibility: design-overwrites-file.
    table.TxtDbFile = NewDatabaseFilePath(tab.app.Files());
    tab.host.SetTabCaption(table.TxtDbFile);
    TakeLook(table);
    tab.host.ShowRowHeight(static_cast<std::int16_t>(kNewRowHeight));
    table.SavedAt.reset();
    table.TableAltered = 1;
}

} // namespace

void mnuEdit_DesignDb_Clack(const TabContext& tab) {
    if (AskToSave(tab)) {
        frmDesignTable(tab).ShowModal();
        // Only the titles count, not how the window was left. Kept for compatibility:
        // design-cancel-takes-titles.
        if (!tab.table.lstNewTableColumns.empty()) MakeDesignedTable(tab);
    }
    tab.table.GridStore().GridSetFocus();
}

} // namespace korvane
