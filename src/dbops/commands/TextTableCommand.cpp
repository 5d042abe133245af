#include "dbops/commands/TextTableCommand.h"

#include "context/App.h"
#include "context/ports/FrontWindow.h"
#include "context/ports/MainWindow.h"
#include "context/ports/TextWindow.h"
#include "dbops/rules/TextTable.h"
#include "dbops/windows/frmChooseRange.h"
#include "dbops/windows/frmFormatTable.h"
#include "dialogs/Questions.h"
#include "document/rtf/Rtf.h"
#include "platform/Screen.h"
#include "table/model/TableModel.h"

#include <optional>

namespace korvane {

namespace {

TextTableLook LookOf(const Settings& settings) {
    return {.titles = settings.TableOptionA == 1,
            .firstRowColoured = settings.TableOptionB == 1,
            .firstRowBack = {settings.TableValueA},
            .firstRowText = {settings.TableValueB},
            .alternateRowsColoured = settings.TableOptionC == 1,
            .alternateBack = {settings.TableValueC},
            .leftMargin = settings.TableOptionD,
            .border = settings.TableValueD,
            .gap = settings.TableOptionE};
}

std::vector<Text> TitlesOf(const TableModel& table) {
    std::vector<Text> titles;
    for (Col col{1}; col <= table.GridStore().ColCount(); ++col)
        titles.push_back(table.ColumnNames[col]);
    return titles;
}

/// The rows as formatted text; nothing if they are more than a text can hold.
std::optional<std::string> MakeRtf(const TabContext& tab) {
    const Hourglass hourglass(tab.app.Screen());
    const Grid& grid = tab.table.GridStore();
    const auto takes = [&](Row row) { return IsInChosenRange(tab.app, grid, row); };
    const doc::Limits limits;
    const auto table = MakeTextTable(grid, TitlesOf(tab.table), takes, LookOf(tab.app.Settings), limits);
    if (!table) return std::nullopt;
    std::string rtf = doc::WriteRtf(*table, doc::RtfExtent::Fragment);
    return rtf.size() <= limits.bytes ? std::optional(std::move(rtf)) : std::nullopt;
}

/// The message is that of any table that a text doesn't take. Kept for compatibility:
/// refused-text-table-closes.
void Refuse(const TabContext& tab) {
    Warn(tab.app, u"The text cursor is currently inside a table.\r\nMove it outside and try again.");
    tab.app.Screen().SetPointer(Pointer::Default);
    if (auto* main = tab.app.Port<MainWindow>()) main->RunCommand(CommandName::mnuFile_Close);
}

} // namespace

void mnuEdit_MakeTable_Clack(const TabContext& tab) {
    if (!ChooseRange(tab.app)) return;
    tab.app.Screen().ProcessMessages();
    if (auto* front = tab.app.Port<FrontWindow>()) front->PressDown();
    frmFormatTable form(tab.app);
    if (ShowForResult(tab.app, form) == 0) return;
    const auto rtf = MakeRtf(tab);
    if (!rtf) return Refuse(tab);
    if (auto* textWindow = tab.app.Port<TextWindow>()) textWindow->TextWindowInsertRtf(*rtf);
    tab.table.GridStore().GridSetFocus();
}

} // namespace korvane
