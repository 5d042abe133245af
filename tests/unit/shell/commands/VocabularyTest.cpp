// Everything in the menus, on the tool bar, in the sidebar and on the keys of the grid. Users know it by
// heart, so none of it may change by accident.

#include "dbops/commands/CellCommands.h"
#include "dbops/commands/ColumnCommands.h"
#include "dbops/commands/ColumnSum.h"
#include "dbops/commands/CopyCommands.h"
#include "dbops/commands/ExcelExport.h"
#include "dbops/commands/RowCommands.h"
#include "dbops/commands/RowHeight.h"
#include "dbops/commands/RowLookCommands.h"
#include "dbops/commands/TextTableCommand.h"
#include "dbops/commands/TickCommands.h"
#include "dbops/rules/RowFontFlags.h"
#include "dbops/rules/UndoCommands.h"
#include "dbops/windows/frmFindReplace.h"
#include "dbops/windows/frmViewCell.h"
#include "shell/commands/Commands.h"
#include "shell/commands/GridKeys.h"
#include "shell/commands/MainRoutines.h"
#include "shell/commands/Styles.h"
#include "table/SaveCommands.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

namespace korvane {
namespace {

using testing::ElementsAreArray;
using Lines = std::vector<std::string>;

// Name, caption and the key that is bound, if any. Some captions name keys that aren't theirs, and some menus
// have a mnemonic twice. Kept for compatibility: captions-name-other-keys.
constexpr std::string_view kMenuBar = R"(
mnuFile | &File
    mnuFile_Open | &Open database (new tab) | Ctrl+O
    mnuFile_FileInfo | &File info | Shift+F9
    mnuFile_Save | &Save database to disk | Ctrl+S
    mnuFile_SaveAs | Save &as ...    ( F10, Ctrl+Shift-S )
    mnuFile_SaveAll | Sa&ve all   ( Ctrl-Shift-S ) | Ctrl+F11
    mnuFile_Close | &Close this tab | Ctrl+Q
    mnuFile_Recent | &Recent files | F5
    mnuFile_DirLister | &Directory lister | Ctrl+F5
    mnuFile_Exit | E&xit program   ( Alt-F4 )
mnuEdit | &Edit
    mnuEdit_EditCell | Edi&t cell contents | Ctrl+T
    mnuEdit_DesignDb | Design &new database | Ctrl+N
    mnuEdit_Find | &Find | Ctrl+F
    mnuEdit_Replace | &Replace | Ctrl+R
    mnuEdit_ToggleSelection | To&ggle tick in check box | Ctrl+G
    mnuEdit_AddOneRow | Add one ro&w | Ctrl+W
    mnuEdit_AddRows | Add man&y rows | Ctrl+Y
    mnuEdit_SetRowHeight | Set row &height | Ctrl+H
    mnuEdit_Delete | Mark &current row for delete | Ctrl+Shift+F3
    mnuDel_CheckedRows | Mar&k checked rows for deletion | Ctrl+Shift+F8
    mnuEdit_ColumnName | Name of col&umn
    mnuEdit_InsertColumn | &Insert column | Ctrl+I
    mnuEdit_DeleteColumn | Re&move column | Ctrl+M
    MnuEdit_RefreshColumnWidths | Refresh column wi&dths
mnuImport | &Import
    mnuImport_Clip | &Tabbed text from clipboard | Ctrl+F1
    mnuEdit_WinClip | Show &Windows clipboard    ( Ctrl-Alt-V )
mnuExport | Exp&ort
    mnuSelAll_TickBoxes | Mark t&ick box in all visible rows | Ctrl+A
    mnuSelAll_UnTickBoxes | Remove t&icks in all visible rows | Ctrl+U
    mnuEdit_CopyCellToText | Copy &cell contents to text | F6
    mnuEdit_CopyRowToText | Copy one &row to text | Shift+F6
    mnuCopyColumn | Copy c&urrent column to clipboard | Ctrl+F2
    mnuCopyCheckedRows | Copy checked row&s to text | Shift+F5
    mnuCopyCheckedRowsToClipb | Cop&y checked rows to clipboard | Ctrl+Shift+F5
    mnuCopyTableToText | Copy &whole table to text | Ctrl+Shift+F6
    mnuCopyTableToClipboard | Copy whole table to clip&board | Ctrl+Shift+F7
    mnuEdit_MakeTable | Convert to text &table | Ctrl+F9
    mnuExport_Excel | Export to E&xcel table | Ctrl+F12
mnuCalc | &Calculation
    mnuCalc_Add | &Calculate sum of cell values
    mnuMisc_Calc | &Load calculator | Ctrl+Shift+F1
mnuView | &View
    mnuEdit_Font | Database fon&t
    mnuFormat_BColor | Bac&kground colour...
    mnuFormat_RowColour | Specify row &colour | Ctrl+F3
    mnuSidebarWidth | Set side&bar width    ( Alt-Shift-F7 )
    mnuView_TextEdit | Text &edit window | Ctrl+E
mnuWindow | &Window
    mnuFile_SwitchTabsForward | &Next tab | F12
    mnuFile_SwitchTabsBack | &Previous tab | Shift+F12
    mnuWindowSize | Program window si&ze | Ctrl+Shift+F2
    mnuFile_AreLoaded | &Show loaded files | F8
mnuStyles | St&yles
    mnuStyle2 | gray, unrounded
    mnuStyle3 | blue and orange, 1
    mnuStyle5 | blue and orange, 2
    mnuStyle7 | blue and white
    mnuStyle8 | gray, rounded
    mnuStyle9 | blue, rounded
    mnuStyle11 | bluegray
mnuMisc | M&iscellaneous
    mnuHelpText | &Help text | F1
    mnuMisc_About | Abo&ut Korvane
    mnuMisc_Settings | &Settings | F3
    mnuMisc_Wallpaper | &Wallpaper | F7
    mnuMisc_Browser | Internet &browser    ( Alt-B )
    mnuMisc_Websites | &List of websites | Ctrl+F7
    mnuMisc_YourProgram | &Your program | F9
    mnuMisc_Clock | &Time and date
    mnuMisc_Explorer | Windows E&xplorer | Ctrl+Shift+F9
mnuSideBar | &SideBar
)";

// Command and caption.
constexpr std::string_view kPopUpMenu = R"(
mnuEdit_EditCell | Edit cell
mnuEdit_Find | Find string
-
mnuEdit_DesignDb | New database
mnuFile_Open | Open database
mnuFile_FileInfo | File info
mnuFile_Save | Save database
mnuFile_SaveAs | Save as...
mnuFile_SaveAll | Save all dbs.
-
mnuEdit_AddOneRow | Add row to table
mnuEdit_AddRows | Add several rows
mnuCopyTableToClipboard | Copy whole table
-
mnuExport_Excel | Export to Excel
mnuImport_Clip | Import tabbed text
-
mnuFile_Exit | Exit program
)";

// Name, tool-tip and command. The tips of the style buttons are crosswise, one has a misspelt word, and two
// name keys that do something else. Kept for compatibility: toolbar-tips, captions-name-other-keys.
constexpr std::string_view kToolBar = R"(
cmdDesignDb | Design database | mnuEdit_DesignDb
cmdSetColour | Specify background colour for database | mnuFormat_BColor
cmdSwitchTabsBack | Previous tab | mnuFile_SwitchTabsBack
cmdWindowsExplorer | Load Widnows Explorer | mnuMisc_Explorer
cmdStyleBack | Next style | StyleBack
cmdStyleForward | Previous style | StyleForward
cmdExit | Exit program | mnuFile_Exit
cmdOpen | Open database | mnuFile_Open
cmdImportText | Import tabbed text | mnuImport_Clip
cmdSaveAsExcel | Save to Excel table | mnuExport_Excel
cmdCopyToClip | Copy whole table to clipboard | mnuCopyTableToClipboard
cmdRecent | List of recent files | mnuFile_Recent
cmdClose | Close current tab | mnuFile_Close
cmdFileInfo | File information | mnuFile_FileInfo
cmdLoadedFiles | Show loaded databases | mnuFile_AreLoaded
cmdDirLister | Directory listing | mnuFile_DirLister
cmdSwitchTabsForward | Next tab | mnuFile_SwitchTabsForward
cmdFonts | Specify font | mnuEdit_Font
cmdClock | Show time and date | mnuMisc_Clock
cmdEditCell | Edit cell contents | mnuEdit_EditCell
cmdDesktop | Show desktop | ToggleDesktop
imgDown | Move current row down (Ctrl-D) | mnuRowDown
imgUp | Move current row up (Ctrl-U) | mnuRowUp
)";

// Text and command.
constexpr std::string_view kSideBar = R"(
Recent files | mnuFile_Recent
Load db. | mnuFile_Open
File info | mnuFile_FileInfo
Save db. | mnuFile_Save
Save as... | mnuFile_SaveAs
Save all dbs. | mnuFile_SaveAll
Close tab | mnuFile_Close
Design db. | mnuEdit_DesignDb
Text window | mnuView_TextEdit
Dir. lister | mnuFile_DirLister
Find text | LoadFindText
Find files | LoadFindFiles
Explorer | ExploreCaptionFolder
Browser | mnuMisc_Browser
Settings | mnuMisc_Settings
Desktop | ToggleDesktop
)";

/// What an entry calls: the routine of its name, which on a tab ends in "_Clack".
struct Called {
    std::string_view name;
    CommandCall calls;
};
#define ON_A_TAB(name) #name, &name##_Clack
#define ON_THE_MAIN_WINDOW(name) #name, &name
const Called kCalled[] = {
    {"mnuFile", {}},
    {ON_THE_MAIN_WINDOW(mnuFile_Open)},
    {ON_A_TAB(mnuFile_FileInfo)},
    {ON_A_TAB(mnuFile_Save)},
    {ON_A_TAB(mnuFile_SaveAs)},
    {ON_THE_MAIN_WINDOW(mnuFile_SaveAll)},
    {ON_THE_MAIN_WINDOW(mnuFile_Close)},
    {ON_THE_MAIN_WINDOW(mnuFile_Recent)},
    {ON_THE_MAIN_WINDOW(mnuFile_DirLister)},
    {ON_THE_MAIN_WINDOW(mnuFile_Exit)},
    {"mnuEdit", {}},
    {ON_A_TAB(mnuEdit_EditCell)},
    {ON_THE_MAIN_WINDOW(mnuEdit_DesignDb)},
    {ON_A_TAB(mnuEdit_Find)},
    {ON_A_TAB(mnuEdit_Replace)},
    {ON_A_TAB(mnuEdit_ToggleSelection)},
    {ON_A_TAB(mnuEdit_AddOneRow)},
    {ON_A_TAB(mnuEdit_AddRows)},
    {ON_A_TAB(mnuEdit_SetRowHeight)},
    {ON_A_TAB(mnuEdit_Delete)},
    {ON_A_TAB(mnuDel_CheckedRows)},
    {ON_A_TAB(mnuEdit_ColumnName)},
    {ON_A_TAB(mnuEdit_InsertColumn)},
    {ON_A_TAB(mnuEdit_DeleteColumn)},
    {ON_A_TAB(MnuEdit_RefreshColumnWidths)},
    {"mnuImport", {}},
    {ON_THE_MAIN_WINDOW(mnuImport_Clip)},
    {ON_A_TAB(mnuEdit_WinClip)},
    {"mnuExport", {}},
    {ON_A_TAB(mnuSelAll_TickBoxes)},
    {ON_A_TAB(mnuSelAll_UnTickBoxes)},
    {ON_A_TAB(mnuEdit_CopyCellToText)},
    {ON_A_TAB(mnuEdit_CopyRowToText)},
    {ON_A_TAB(mnuCopyColumn)},
    {ON_A_TAB(mnuCopyCheckedRows)},
    {ON_A_TAB(mnuCopyCheckedRowsToClipb)},
    {ON_A_TAB(mnuCopyTableToText)},
    {ON_A_TAB(mnuCopyTableToClipboard)},
    {ON_A_TAB(mnuEdit_MakeTable)},
    {ON_A_TAB(mnuExport_Excel)},
    {"mnuCalc", {}},
    {ON_A_TAB(mnuCalc_Add)},
    {ON_THE_MAIN_WINDOW(mnuMisc_Calc)},
    {"mnuView", {}},
    {ON_A_TAB(mnuEdit_Font)},
    {ON_A_TAB(mnuFormat_BColor)},
    {ON_A_TAB(mnuFormat_RowColour)},
    {ON_THE_MAIN_WINDOW(mnuSidebarWidth)},
    {ON_THE_MAIN_WINDOW(mnuView_TextEdit)},
    {"mnuWindow", {}},
    {ON_THE_MAIN_WINDOW(mnuFile_SwitchTabsForward)},
    {ON_THE_MAIN_WINDOW(mnuFile_SwitchTabsBack)},
    {ON_THE_MAIN_WINDOW(mnuWindowSize)},
    {ON_THE_MAIN_WINDOW(mnuFile_AreLoaded)},
    {"mnuStyles", {}},
    {"mnuStyle2", &mnuStyle<2>},
    {"mnuStyle3", &mnuStyle<3>},
    {"mnuStyle5", &mnuStyle<5>},
    {"mnuStyle7", &mnuStyle<7>},
    {"mnuStyle8", &mnuStyle<8>},
    {"mnuStyle9", &mnuStyle<9>},
    {"mnuStyle11", &mnuStyle<11>},
    {"mnuMisc", {}},
    {ON_THE_MAIN_WINDOW(mnuHelpText)},
    {ON_THE_MAIN_WINDOW(mnuMisc_About)},
    {ON_THE_MAIN_WINDOW(mnuMisc_Settings)},
    {ON_THE_MAIN_WINDOW(mnuMisc_Wallpaper)},
    {ON_THE_MAIN_WINDOW(mnuMisc_Browser)},
    {ON_THE_MAIN_WINDOW(mnuMisc_Websites)},
    {ON_THE_MAIN_WINDOW(mnuMisc_YourProgram)},
    {ON_THE_MAIN_WINDOW(mnuMisc_Clock)},
    {ON_THE_MAIN_WINDOW(mnuMisc_Explorer)},
    {ON_THE_MAIN_WINDOW(mnuSideBar)},
    {ON_A_TAB(mnuRowUp)},
    {ON_A_TAB(mnuRowDown)},
    {ON_THE_MAIN_WINDOW(StyleBack)},
    {ON_THE_MAIN_WINDOW(StyleForward)},
    {ON_THE_MAIN_WINDOW(ToggleDesktop)},
    {ON_THE_MAIN_WINDOW(ExploreCaptionFolder)},
    {ON_THE_MAIN_WINDOW(LoadFindText)},
    {ON_THE_MAIN_WINDOW(LoadFindFiles)},
};

/// The keys of the grid in the order of the tests, with what they call. Those in brackets are left to the
/// grid as well.
const Called kGridKeys[] = {
    {"Any+F10", &mnuFile_SaveAs_Clack},
    {"Alt+X", &mnuSwitchFocus_Click},
    {"F4", &mnuEdit_EditCell_Clack},
    {"Ctrl+1", &mnuEdit_Font_Clack},
    {"Ctrl+Alt+D", &ToggleDesktop},
    {"Ctrl+Alt+V", &ViewAndPaste},
    {"Ctrl+Alt+X", &ExploreTableFolder},
    {"(Ctrl+Alt+1)", &RowColour<0>},
    {"(Ctrl+Alt+F)", &RowColour<0>},
    {"(Ctrl+Alt+2)", &RowColour<1>},
    {"(Ctrl+Alt+H)", &RowColour<1>},
    {"(Ctrl+Alt+3)", &RowColour<2>},
    {"(Ctrl+Alt+Y)", &RowColour<2>},
    {"(Ctrl+Alt+4)", &RowColour<3>},
    {"(Ctrl+Alt+R)", &RowColour<3>},
    {"(Ctrl+Alt+5)", &RowColour<4>},
    {"(Ctrl+Alt+K)", &RowColour<4>},
    {"(Ctrl+Alt+6)", &RowColour<5>},
    {"(Ctrl+Alt+L)", &RowColour<5>},
    {"(Ctrl+Alt+7)", &RowColour<6>},
    {"(Ctrl+Alt+G)", &RowColour<6>},
    {"(Ctrl+Alt+8)", &RowColour<7>},
    {"(Ctrl+Alt+A)", &RowColour<7>},
    {"(Ctrl+Alt+9)", &RowColour<8>},
    {"(Ctrl+Alt+O)", &RowColour<8>},
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

Lines LinesOf(std::string_view block) {
    Lines lines;
    std::istringstream stream{std::string(block.substr(1))};
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

std::string Plain(TextView text) {
    return {text.begin(), text.end()};
}

std::string Joined(std::initializer_list<std::string> fields) {
    std::string line;
    for (const std::string& field : fields)
        line += (line.empty() ? "" : " | ") + field;
    return line;
}

// Kept for compatibility: captions-name-other-keys.
TEST(Vocabulary, OfTheMenuBarWithTheKeysThatItsCaptionsNameWrongly) {
    Lines lines;
    for (const MenuEntry& entry : MenuBarEntries()) {
        const std::string indent(entry.level == 0 ? 0 : 4, ' ');
        const std::string key(entry.shortcut.Name());
        lines.push_back(Joined({indent + std::string(entry.name), Plain(entry.caption)}) +
                        (key.empty() ? "" : " | " + key));
    }
    EXPECT_THAT(lines, ElementsAreArray(LinesOf(kMenuBar)));
}

TEST(Vocabulary, OfThePopUpMenu) {
    Lines lines;
    for (const MenuEntry& entry : PopupMenuEntries()) {
        EXPECT_EQ(entry.level, 0);
        EXPECT_EQ(entry.shortcut.Name(), "") << "the menu bar has the keys";
        lines.push_back(entry.caption.empty() ? "-"
                                              : Joined({std::string(entry.name), Plain(entry.caption)}));
    }
    EXPECT_THAT(lines, ElementsAreArray(LinesOf(kPopUpMenu)));
}

// Kept for compatibility: toolbar-tips.
TEST(Vocabulary, OfTheToolBarWithTipsThatAreCrosswiseMisspeltOrNameOtherKeys) {
    Lines lines;
    for (const ToolBarButton& button : ToolBarButtons()) {
        lines.push_back(
            Joined({std::string(button.name), Plain(button.toolTip), std::string(button.command.name)}));
    }
    EXPECT_THAT(lines, ElementsAreArray(LinesOf(kToolBar)));
}

TEST(Vocabulary, OfTheToolBarHasTheKeysThatWorkWhereATipNamesOthers) {
    std::vector<std::string> names;
    for (const ToolBarButton& button : ToolBarButtons()) {
        if (button.key.empty()) continue;
        names.emplace_back(button.name);
        const auto key = std::ranges::find(GridKeys(), ToUtf8(button.key),
                                           [](const GridKey& row) { return std::string(row.key.Name()); });
        ASSERT_NE(key, GridKeys().end()) << button.name;
        EXPECT_EQ(key->starts, button.command.calls) << button.name;
    }
    EXPECT_THAT(names, testing::ElementsAre("imgDown", "imgUp"));
}

TEST(Vocabulary, OfTheSideBar) {
    Lines lines;
    for (const SideBarRow& row : SideBarRows())
        lines.push_back(Joined({Plain(row.text), std::string(row.command.name)}));
    EXPECT_THAT(lines, ElementsAreArray(LinesOf(kSideBar)));
}

TEST(Vocabulary, OfTheRoutinesThatTheCommandsCall) {
    ASSERT_EQ(Commands().size(), std::size(kCalled));
    for (std::size_t i = 0; i < Commands().size(); ++i) {
        EXPECT_EQ(Commands()[i].name, kCalled[i].name);
        EXPECT_TRUE(Commands()[i].calls == kCalled[i].calls) << kCalled[i].name;
    }
}

TEST(Vocabulary, OfTheKeysOfTheGridInTheirOrder) {
    ASSERT_EQ(GridKeys().size(), std::size(kGridKeys));
    for (std::size_t i = 0; i < GridKeys().size(); ++i) {
        const GridKey& row = GridKeys()[i];
        const std::string name(row.key.Name());
        EXPECT_EQ(row.use == KeyUse::Passes ? "(" + name + ")" : name, kGridKeys[i].name);
        EXPECT_TRUE(row.starts == kGridKeys[i].calls) << name;
    }
}

} // namespace
} // namespace korvane
