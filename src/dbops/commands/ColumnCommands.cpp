#include "dbops/commands/ColumnCommands.h"

#include "common/number/Number.h"
#include "common/text/Shown.h"
#include "context/App.h"
#include "context/ports/FontPicker.h"
#include "dbops/windows/frmTxtDbColName.h"
#include "dialogs/Questions.h"
#include "grid/GridUpdate.h"
#include "platform/Screen.h"
#include "table/TabContext.h"
#include "table/model/TableHost.h"
#include "table/model/TableModel.h"

#include <algorithm>

namespace korvane {

namespace {

/// Inserting a column makes a table no wider than this, which is one less than the `MaxColumns` that a file
/// can have.
constexpr Col kWidestByInsert{23};
constexpr TextView kNewColumnName = u"NEW";
constexpr double kTwipsPerWidthUnit = 15.5;

void RenameColumn(TableModel& table, Col col, const Text& name) {
    table.GridStore().SetColHeaderText(col, name);
    table.ColumnNames.Set(col, name);
}

/// The captions come from `ColumnNames`, which itself isn't shifted, so that a later insert gives captions of
/// other columns. Kept for compatibility: column-names-not-shifted. A column whose left neighbour has no name
/// keeps its caption.
void ShiftCaptions(TableModel& table, Col first) {
    Grid& grid = table.GridStore();
    for (Col col = std::min(grid.ColCount() - 1, MaxColumns); col >= first; --col)
        grid.SetColHeaderText(col + 1, table.ColumnNames[col]);
}

void InsertColumn(TableModel& table) {
    Grid& grid = table.GridStore();
    const GridUpdate update(grid);
    const Col current = grid.CurCol();
    if (grid.ColCount() < kWidestByInsert) grid.SetColCount(grid.ColCount() + 1);
    const Col first = std::max(current, Col{1});
    ShiftCaptions(table, first);
    // In a table that can't grow, the texts of the last column have nowhere to go. Kept for compatibility:
    // insert-column-full-table. Where it is the current one itself, it gets the caption and keeps its texts.
    if (first < grid.ColCount()) grid.ShiftTextsRight(first);
    RenameColumn(table, current, Text(kNewColumnName));
}

/// An empty name, or a size of 0, leaves what the table has.
void TakeFont(TableModel& table, const FontSpec& font) {
    Grid& grid = table.GridStore();
    if (!font.name.empty()) {
        grid.SetGridFontName(font.name);
        table.TableFontName = font.name;
    }
    if (font.size != 0) {
        grid.SetGridFontSize(font.size);
        table.TableFontSize = static_cast<std::int16_t>(font.size);
    }
}

} // namespace

void mnuEdit_ColumnName_Clack(const TabContext& tab) {
    Grid& grid = tab.table.GridStore();
    const Col col = grid.CurCol();
    frmTxtDbColName form(tab.app, grid.ColHeaderText(col));
    if (ShowForResult(tab.app, form) > 0) {
        RenameColumn(tab.table, col, form.NewName());
        grid.GridRefresh();
        tab.table.TableAltered = 1;
    }
    grid.GridSetFocus();
}

void mnuEdit_InsertColumn_Clack(const TabContext& tab) {
    tab.app.Screen().ProcessMessages();
    InsertColumn(tab.table);
    tab.table.GridStore().GridRefresh();
    tab.table.GridStore().GridSetFocus();
    tab.table.TableAltered = 1;
}

void mnuEdit_DeleteColumn_Clack(const TabContext& tab) {
    Grid& grid = tab.table.GridStore();
    const Text question =
        u"Remove this column: \r\n\"" + Text(Shown(grid.ColHeaderText(grid.CurCol()))) + u"\"\t";
    if (!AskYesNo(tab.app, question, YesNoDefault::No)) return;
    // The check boxes and the marks for deletion go with the first column. Kept for compatibility:
    // first-column-takes-marks.
    grid.RemoveCol(grid.CurCol());
    grid.GridSetFocus();
    tab.table.TableAltered = 1;
}

/// `TableAltered` stays as it is. Kept for compatibility: widths-are-no-change.
void MnuEdit_RefreshColumnWidths_Clack(const TabContext& tab) {
    Grid& grid = tab.table.GridStore();
    if (grid.ColCount() == Col{0}) return;
    const double share = static_cast<double>(tab.host.GridWidth().Number()) / grid.ColCount().Number();
    const auto width = static_cast<int>(RoundHalfEven(share / kTwipsPerWidthUnit));
    for (Col col{1}; col <= grid.ColCount(); ++col)
        grid.SetColWidth(col, width);
}

void mnuEdit_Font_Clack(const TabContext& tab) {
    Grid& grid = tab.table.GridStore();
    if (tab.app.Port<FontPicker>() != nullptr) {
        if (const auto font =
                tab.app.Port<FontPicker>()->Choose({grid.GridFontName(), grid.GridFontSize()})) {
            TakeFont(tab.table, *font);
            tab.table.TableAltered = 1;
        }
    }
    grid.GridSetFocus();
}

} // namespace korvane
