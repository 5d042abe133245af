#include "table/ImportCommand.h"

#include "common/number/Number.h"
#include "context/App.h"
#include "context/ports/ClipboardView.h"
#include "grid/Grid.h"
#include "grid/GridUpdate.h"
#include "platform/Clipboard.h"
#include "platform/MessageBoxes.h"
#include "platform/Screen.h"
#include "table/SaveCommands.h"
#include "table/TabContext.h"
#include "table/model/NewTable.h"
#include "table/model/TabbedText.h"
#include "table/model/TableHost.h"
#include "table/model/TableModel.h"

namespace korvane {

namespace {

bool AskToImport(App& app) {
    return app.Messages().Show({u"A new database with the clipboard contents will be made. Continue?",
                                MessageIcon::Question, MessageButtons::YesNo}) == Answer::Yes;
}

/// There are no check boxes, and the model gets no column names and no look. The columns that the grid has
/// stay, and there may be more than a file can have. Kept for compatibility: import-has-no-look,
/// import-adds-columns, import-takes-any-width.
void FillGrid(Grid& grid, TextView text, bool sortOnHeaderClick) {
    const GridUpdate update(grid);
    const Col columns = ColumnsOfTabbedText(text);
    for (Col col{1}; col <= columns; ++col)
        AddNewColumn(grid, col, u"Col. " + NumberText(col.Number()));
    grid.SetRowCount(RowsOfTabbedText(text));
    grid.SetSortOnHeaderClick(sortOnHeaderClick);
    GiveNewTableLook(grid);
    FillFromTabbedText(grid, text);
}

void ImportClipboard(const TabContext& tab) {
    App& app = tab.app;
    TableModel& table = tab.table;
    table.TxtDbFile = NewDatabaseFilePath(app.Files());
    const Hourglass hourglass(app.Screen());
    app.Screen().ProcessMessages();
    const Text text = app.Clipboard().GetText();
    // The new name gives way at once to the one that the tab shows. Kept for compatibility:
    // import-keeps-tab-name.
    table.TxtDbFile = tab.host.TabCaption();
    FillGrid(table.GridStore(), text, app.Settings.AllowSorting == 1);
    GoToFirstCell(table.GridStore());
    table.SavedAt.reset();
    table.TableAltered = 1;
    table.GridStore().GridSetFocus();
}

} // namespace

void mnuImport_Clip_Clack(const TabContext& tab) {
    auto* clipboardView = tab.app.Port<ClipboardView>();
    if (clipboardView == nullptr || !clipboardView->Choose()) return;
    if (AskToSave(tab) && AskToImport(tab.app)) ImportClipboard(tab);
}

} // namespace korvane
