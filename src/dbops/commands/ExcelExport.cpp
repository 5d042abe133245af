#include "dbops/commands/ExcelExport.h"

#include "common/number/Number.h"
#include "context/App.h"
#include "context/FileChooser.h"
#include "context/StandardMessages.h"
#include "context/ports/SystemFileDialog.h"
#include "dbops/rules/Rows.h"
#include "dbops/windows/frmChooseRange.h"
#include "platform/Screen.h"
#include "platform/Spreadsheet.h"
#include "table/TabContext.h"
#include "table/model/TableModel.h"

#include <optional>

namespace korvane {

namespace {

/// All columns get this width. Kept for compatibility: export-own-widths.
constexpr int kColumnWidth = 32;
/// A light green.
constexpr int kHeaderColorIndex = 35;

/// Single letters are enough for the columns that a file can have. In a wider table, the columns after Z get
/// no valid name and so are left out.
Text ColumnLetter(Col col) {
    return Text(1, static_cast<char16_t>(u'A' + col.Number() - 1));
}

Text CellName(Row row, Col col) {
    return ColumnLetter(col) + NumberText(row.Number());
}

/// Everything up to the last dot is kept, even one in the name of a folder; without any dot, the extension
/// alone is proposed. Kept for compatibility: export-name-after-last-dot.
Text ProposedName(TextView path) {
    return Text(Left(path, InStrRev(path, u"."))) + u"xls";
}

/// Whatever folder the user goes to in the dialog, the current directory is the same again afterwards.
std::optional<Text> ChooseFileName(const TabContext& tab) {
    auto* systemFileDialog = tab.app.Port<SystemFileDialog>();
    if (systemFileDialog == nullptr) return std::nullopt;
    const KeepCurrentDir keep(tab.app);
    return systemFileDialog->Choose({.purpose = SystemFileDialog::Purpose::Save,
                                     .filter = u"Excel tables (*.xls)|*.xls",
                                     .title = u"Save database as Excel table",
                                     .name = ProposedName(tab.table.TxtDbFile),
                                     .defaultExtension = u"xls"});
}

void PutCell(Spreadsheet& excel, Row row, Col col, TextView value) {
    if (excel.SelectRange(CellName(row, col))) excel.SetActiveCellValue(value);
}

void PutHeader(Spreadsheet& excel, const Grid& grid) {
    constexpr Row kHeader{1};
    for (Col col{1}; col <= grid.ColCount(); ++col) {
        PutCell(excel, kHeader, col, grid.ColHeaderText(col));
        excel.SetColumnWidth(ColumnLetter(col) + u":" + ColumnLetter(col), kColumnWidth);
        excel.SetInteriorColorIndex(CellName(kHeader, col), kHeaderColorIndex);
    }
}

/// Hidden rows, and rows that are marked for deletion, are exported like others. Kept for compatibility:
/// export-takes-all-rows.
void PutRows(Spreadsheet& excel, const App& app, const Grid& grid) {
    Row target{2};
    ForEachRow(grid, [&](Row row) {
        if (!IsInChosenRange(app, grid, row)) return;
        for (Col col{1}; col <= grid.ColCount(); ++col)
            PutCell(excel, target, col, grid.CellValue(row, col));
        ++target;
    });
}

void Export(const TabContext& tab, const Text& path) {
    const auto excel = tab.app.MakeSpreadsheet();
    if (!excel) return;
    excel->AddWorkbook();
    PutHeader(*excel, tab.table.GridStore());
    PutRows(*excel, tab.app, tab.table.GridStore());
    if (!excel->SaveAs(path, kNormalWorkbook)) ShowCannotAccess(tab.app, path);
    excel->SelectRange(u"A1");
    excel->MakeVisible();
}

} // namespace

void mnuExport_Excel_Clack(const TabContext& tab) {
    App& app = tab.app;
    if (!ChooseRange(app)) return;
    const auto path = ChooseFileName(tab);
    if (!path) return;
    const Hourglass hourglass(app.Screen());
    app.Screen().ProcessMessages();
    Export(tab, *path);
}

} // namespace korvane
