#include "shell/commands/GridKeys.h"

#include "context/App.h"
#include "context/Desktop.h"
#include "dbops/commands/CellCommands.h"
#include "dbops/commands/ColumnCommands.h"
#include "dbops/commands/RowCommands.h"
#include "dbops/commands/RowLookCommands.h"
#include "dbops/rules/RowFontFlags.h"
#include "dbops/rules/UndoCommands.h"
#include "dbops/windows/frmViewCell.h"
#include "grid/Grid.h"
#include "platform/FileSystem.h"
#include "shell/commands/MainParts.h"
#include "shell/commands/MainRoutines.h"
#include "shell/tabs/Tabs.h"
#include "shell/tabs/frmMDIChild.h"
#include "table/SaveCommands.h"
#include "table/model/TableModel.h"

namespace korvane {

namespace {

using enum KeyUse;

constexpr GridKey kGridKeys[] = {
    // Kept for compatibility: f10-with-any-modifier.
    {"Any+F10", &mnuFile_SaveAs_Clack},
    {"Alt+X", &mnuSwitchFocus_Click},
    {"F4", &mnuEdit_EditCell_Clack},
    {"Ctrl+1", &mnuEdit_Font_Clack},
    {"Ctrl+Alt+D", &ToggleDesktop},
    {"Ctrl+Alt+V", &ViewAndPaste},
    {"Ctrl+Alt+X", &ExploreTableFolder},
    // The nine looks of a row, by number and by letter. These keys reach the grid too. Kept for
    // compatibility: row-colour-keys-reach-grid.
    {"Ctrl+Alt+1", &RowColour<0>, Passes},
    {"Ctrl+Alt+F", &RowColour<0>, Passes},
    {"Ctrl+Alt+2", &RowColour<1>, Passes},
    {"Ctrl+Alt+H", &RowColour<1>, Passes},
    {"Ctrl+Alt+3", &RowColour<2>, Passes},
    {"Ctrl+Alt+Y", &RowColour<2>, Passes},
    {"Ctrl+Alt+4", &RowColour<3>, Passes},
    {"Ctrl+Alt+R", &RowColour<3>, Passes},
    {"Ctrl+Alt+5", &RowColour<4>, Passes},
    {"Ctrl+Alt+K", &RowColour<4>, Passes},
    {"Ctrl+Alt+6", &RowColour<5>, Passes},
    {"Ctrl+Alt+L", &RowColour<5>, Passes},
    {"Ctrl+Alt+7", &RowColour<6>, Passes},
    {"Ctrl+Alt+G", &RowColour<6>, Passes},
    {"Ctrl+Alt+8", &RowColour<7>, Passes},
    {"Ctrl+Alt+A", &RowColour<7>, Passes},
    {"Ctrl+Alt+9", &RowColour<8>, Passes},
    {"Ctrl+Alt+O", &RowColour<8>, Passes},
    {"Alt+Shift+F7", &NextSideBarWidthFromGrid},
    {"Alt+B", &CustomBrowser},
    {"Ctrl+Shift+I", &MakeEmailItalic},
    {"Ctrl+Shift+B", &MakeEmailBold},
    {"Ctrl+Shift+X", &MakeEmailStrikethru},
    {"Ctrl+Z", &UndoEdit},
    {"Ctrl+Shift+Z", &RedoEdit},
    {"Ctrl+C", &CopyCell},
    {"Ctrl+Insert", &CopyCell},
    {"Ctrl+X", &CutCell},
    {"Shift+Delete", &CutCell},
    {"Ctrl+V", &PasteCells},
    {"Shift+Insert", &PasteCells},
    {"Delete", &ClearCell},
    {"Ctrl+Shift+F", &GoToFindBox},
    {"Ctrl+Shift+O", &SortByCurrentColumn},
    {"Ctrl+Shift+Up", &mnuRowUp_Clack},
    {"Ctrl+Shift+Down", &mnuRowDown_Clack},
};

} // namespace

std::span<const GridKey> GridKeys() {
    return kGridKeys;
}

void ExploreTableFolder(const TabContext& tab) {
    const PathStyle style = tab.app.Files().Style();
    ExploreFolder(tab.app, style.DirectoryForChange(style.FolderPart(tab.table.TxtDbFile)));
}

void GoToFindBox(const MainParts& main) {
    frmMDIChild* tab = main.tabs.Active();
    if (tab == nullptr) return;
    tab->txtFindString.SelectAll();
    tab->txtFindString.SetFocus();
}

void SortByCurrentColumn(const MainParts& main) {
    if (frmMDIChild* tab = main.tabs.Active()) tab->iGrid1.ClickHeader(tab->GridStore().CurCol());
}

void NextSideBarWidthFromGrid(const MainParts& main) {
    mnuSidebarWidth(main);
    if (frmMDIChild* tab = main.tabs.Active()) tab->GridStore().GridSetFocus();
}

} // namespace korvane
