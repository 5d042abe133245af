// What stands in the menus, on the tool bar, in the sidebar and on the keys of the grid, in full: users know
// it by heart, and nothing of it changes by the way.

#include "shell/commands/Commands.h"
#include "shell/commands/GridKeys.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace korvane {
namespace {

using testing::ElementsAreArray;
using Lines = std::vector<std::string>;

// Name, caption, bound key and target. Some captions name keys that aren't theirs, and some menus have a
// mnemonic twice. Kept for compatibility: captions-name-other-keys.
constexpr std::string_view kMenuBar = R"(
mnuFile | &File |  | menu
    mnuFile_Open | &Open database (new tab) | Ctrl+O | main
    mnuFile_FileInfo | &File info | Shift+F9 | tab
    mnuFile_Save | &Save database to disk | Ctrl+S | tab
    mnuFile_SaveAs | Save &as ...    ( F10, Ctrl+Shift-S ) |  | tab
    mnuFile_SaveAll | Sa&ve all   ( Ctrl-Shift-S ) | Ctrl+F11 | main
    mnuFile_Close | &Close this tab | Ctrl+Q | main
    mnuFile_Recent | &Recent files | F5 | main
    mnuFile_DirLister | &Directory lister | Ctrl+F5 | main
    mnuFile_Exit | E&xit program   ( Alt-F4 ) |  | main
mnuEdit | &Edit |  | menu
    mnuEdit_EditCell | Edi&t cell contents | Ctrl+T | tab
    mnuEdit_DesignDb | Design &new database | Ctrl+N | new tab
    mnuEdit_Find | &Find | Ctrl+F | tab
    mnuEdit_Replace | &Replace | Ctrl+R | tab
    mnuEdit_ToggleSelection | To&ggle tick in check box | Ctrl+G | tab
    mnuEdit_AddOneRow | Add one ro&w | Ctrl+W | tab
    mnuEdit_AddRows | Add man&y rows | Ctrl+Y | tab
    mnuEdit_SetRowHeight | Set row &height | Ctrl+H | tab
    mnuEdit_Delete | Mark &current row for delete | Ctrl+Shift+F3 | tab
    mnuDel_CheckedRows | Mar&k checked rows for deletion | Ctrl+Shift+F8 | tab
    mnuEdit_ColumnName | Name of col&umn |  | tab
    mnuEdit_InsertColumn | &Insert column | Ctrl+I | tab
    mnuEdit_DeleteColumn | Re&move column | Ctrl+M | tab
    MnuEdit_RefreshColumnWidths | Refresh column wi&dths |  | tab
mnuImport | &Import |  | menu
    mnuImport_Clip | &Tabbed text from clipboard | Ctrl+F1 | new tab
    mnuEdit_WinClip | Show &Windows clipboard    ( Ctrl-Alt-V ) |  | tab
mnuExport | Exp&ort |  | menu
    mnuSelAll_TickBoxes | Mark t&ick box in all visible rows | Ctrl+A | tab
    mnuSelAll_UnTickBoxes | Remove t&icks in all visible rows | Ctrl+U | tab
    mnuEdit_CopyCellToText | Copy &cell contents to text | F6 | tab
    mnuEdit_CopyRowToText | Copy one &row to text | Shift+F6 | tab
    mnuCopyColumn | Copy c&urrent column to clipboard | Ctrl+F2 | tab
    mnuCopyCheckedRows | Copy checked row&s to text | Shift+F5 | tab
    mnuCopyCheckedRowsToClipb | Cop&y checked rows to clipboard | Ctrl+Shift+F5 | tab
    mnuCopyTableToText | Copy &whole table to text | Ctrl+Shift+F6 | tab
    mnuCopyTableToClipboard | Copy whole table to clip&board | Ctrl+Shift+F7 | tab
    mnuEdit_MakeTable | Convert to text &table | Ctrl+F9 | tab
    mnuExport_Excel | Export to E&xcel table | Ctrl+F12 | tab
mnuCalc | &Calculation |  | menu
    mnuCalc_Add | &Calculate sum of cell values |  | tab
    mnuMisc_Calc | &Load calculator | Ctrl+Shift+F1 | main
mnuView | &View |  | menu
    mnuEdit_Font | Database fon&t |  | tab
    mnuFormat_BColor | Bac&kground colour... |  | tab
    mnuFormat_RowColour | Specify row &colour | Ctrl+F3 | tab
    mnuSidebarWidth | Set side&bar width    ( Alt-Shift-F7 ) |  | tab
    mnuView_TextEdit | Text &edit window | Ctrl+E | main
mnuWindow | &Window |  | menu
    mnuFile_SwitchTabsForward | &Next tab | F12 | main
    mnuFile_SwitchTabsBack | &Previous tab | Shift+F12 | main
    mnuWindowSize | Program window si&ze | Ctrl+Shift+F2 | tab
    mnuFile_AreLoaded | &Show loaded files | F8 | main
mnuStyles | St&yles |  | menu
    mnuStyle2 | gray, unrounded |  | main
    mnuStyle3 | blue and orange, 1 |  | main
    mnuStyle5 | blue and orange, 2 |  | main
    mnuStyle7 | blue and white |  | main
    mnuStyle8 | gray, rounded |  | main
    mnuStyle9 | blue, rounded |  | main
    mnuStyle11 | bluegray |  | main
mnuMisc | M&iscellaneous |  | menu
    mnuHelpText | &Help text | F1 | main
    mnuMisc_About | Abo&ut Korvane |  | main
    mnuMisc_Settings | &Settings | F3 | main
    mnuMisc_Wallpaper | &Wallpaper | F7 | main
    mnuMisc_Browser | Internet &browser    ( Alt-B ) |  | main
    mnuMisc_Websites | &List of websites | Ctrl+F7 | main
    mnuMisc_YourProgram | &Your program | F9 | main
    mnuMisc_Clock | &Time and date |  | main
    mnuMisc_Explorer | Windows E&xplorer | Ctrl+Shift+F9 | main
mnuSideBar | &SideBar |  | main
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

// Key, target and routine in the order of the tests; the keys in brackets are left to the grid as well.
constexpr std::string_view kGridKeys = R"(
any F10 | tab | mnuFile_SaveAs_Clack
Alt+X | main | mnuSwitchFocus
F4 | tab | mnuEdit_EditCell_Clack
Ctrl+1 | tab | mnuEdit_Font_Clack
Ctrl+Alt+D | main | ToggleDesktop
Ctrl+Alt+V | main | ViewAndPaste
Ctrl+Alt+X | tab | ExploreTableFolder
(Ctrl+Alt+1) | tab | RowColour0
(Ctrl+Alt+F) | tab | RowColour0
(Ctrl+Alt+2) | tab | RowColour1
(Ctrl+Alt+H) | tab | RowColour1
(Ctrl+Alt+3) | tab | RowColour2
(Ctrl+Alt+Y) | tab | RowColour2
(Ctrl+Alt+4) | tab | RowColour3
(Ctrl+Alt+R) | tab | RowColour3
(Ctrl+Alt+5) | tab | RowColour4
(Ctrl+Alt+K) | tab | RowColour4
(Ctrl+Alt+6) | tab | RowColour5
(Ctrl+Alt+L) | tab | RowColour5
(Ctrl+Alt+7) | tab | RowColour6
(Ctrl+Alt+G) | tab | RowColour6
(Ctrl+Alt+8) | tab | RowColour7
(Ctrl+Alt+A) | tab | RowColour7
(Ctrl+Alt+9) | tab | RowColour8
(Ctrl+Alt+O) | tab | RowColour8
Shift+Alt+F7 | tab, then focus | mnuSidebarWidth_Clack
Alt+B | main | CustomBrowser
Ctrl+Shift+I | tab | MakeEmailItalic
Ctrl+Shift+B | tab | MakeEmailBold
Ctrl+Shift+X | tab | MakeEmailStrikethru
Ctrl+Z | tab | UndoEdit
Ctrl+Shift+Z | tab | RedoEdit
)";

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

std::string NameOf(CommandTarget target) {
    static const std::map<CommandTarget, std::string> kNames{{CommandTarget::Menu, "menu"},
                                                             {CommandTarget::Tab, "tab"},
                                                             {CommandTarget::NewTab, "new tab"},
                                                             {CommandTarget::Main, "main"}};
    return kNames.at(target);
}

std::string NameOf(GridKey::Target target) {
    static const std::map<GridKey::Target, std::string> kNames{
        {GridKey::Target::Tab, "tab"},
        {GridKey::Target::TabThenFocus, "tab, then focus"},
        {GridKey::Target::Main, "main"}};
    return kNames.at(target);
}

std::string NameOfKey(const GridKey& key) {
    const auto modifier = [&key](int mask, const char* name) {
        return key.mask != GridKey::kAnyMask && (key.mask & mask) != 0 ? name : "";
    };
    std::string name = key.mask == GridKey::kAnyMask ? "any " : "";
    name =
        name + modifier(Mask::Ctrl, "Ctrl+") + modifier(Mask::Shift, "Shift+") + modifier(Mask::Alt, "Alt+");
    const bool function = key.code >= Key::F1;
    name +=
        function ? "F" + std::to_string(key.code - Key::F1 + 1) : std::string(1, static_cast<char>(key.code));
    return key.swallowed ? name : "(" + name + ")";
}

// Kept for compatibility: captions-name-other-keys.
TEST(Vocabulary, OfTheMenuBarWithTheKeysThatItsCaptionsNameWrongly) {
    Lines lines;
    for (const MenuEntry& entry : MenuBarEntries()) {
        const std::string indent(entry.level == 0 ? 0 : 4, ' ');
        lines.push_back(
            Joined({indent + std::string(entry.name), Plain(entry.caption),
                    std::string(entry.shortcut.Name()), NameOf(FindCommand(entry.name)->target)}));
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
            Joined({std::string(button.name), Plain(button.toolTip), std::string(button.command)}));
    }
    EXPECT_THAT(lines, ElementsAreArray(LinesOf(kToolBar)));
}

TEST(Vocabulary, OfTheSideBar) {
    Lines lines;
    for (const SideBarRow& row : SideBarRows())
        lines.push_back(Joined({Plain(row.text), std::string(row.command)}));
    EXPECT_THAT(lines, ElementsAreArray(LinesOf(kSideBar)));
}

TEST(Vocabulary, OfTheKeysOfTheGridInTheirOrder) {
    Lines lines;
    for (const GridKey& key : GridKeys())
        lines.push_back(Joined({NameOfKey(key), NameOf(key.target), std::string(key.routine)}));
    EXPECT_THAT(lines, ElementsAreArray(LinesOf(kGridKeys)));
}

} // namespace
} // namespace korvane
