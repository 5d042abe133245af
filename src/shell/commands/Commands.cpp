#include "shell/commands/Commands.h"

#include "context/ports/MainWindow.h"
#include "dbops/commands/ColumnCommands.h"
#include "dbops/commands/ColumnSum.h"
#include "dbops/commands/CopyCommands.h"
#include "dbops/commands/ExcelExport.h"
#include "dbops/commands/RowCommands.h"
#include "dbops/commands/RowHeight.h"
#include "dbops/commands/RowLookCommands.h"
#include "dbops/commands/TextTableCommand.h"
#include "dbops/commands/TickCommands.h"
#include "dbops/windows/frmFindReplace.h"
#include "dbops/windows/frmViewCell.h"
#include "shell/commands/MainRoutines.h"
#include "shell/commands/Styles.h"
#include "table/SaveCommands.h"

#include <algorithm>
#include <array>

namespace korvane {

namespace {

// What every menu entry, button, sidebar row and key of the menu does. Some captions name keys that aren't
// theirs ("( Ctrl-Shift-S )"): the fourth column is what is bound. Kept for compatibility:
// captions-name-other-keys. An entry that calls nothing opens a menu.
constexpr std::array kCommands{
    Command{0, "mnuFile", u"&File", ""},
    Command{1, "mnuFile_Open", u"&Open database (new tab)", "Ctrl+O", &mnuFile_Open},
    Command{1, "mnuFile_FileInfo", u"&File info", "Shift+F9", &mnuFile_FileInfo_Clack},
    Command{1, "mnuFile_Save", u"&Save database to disk", "Ctrl+S", &mnuFile_Save_Clack},
    Command{1, "mnuFile_SaveAs", u"Save &as ...    ( F10, Ctrl+Shift-S )", "", &mnuFile_SaveAs_Clack},
    Command{1, "mnuFile_SaveAll", u"Sa&ve all   ( Ctrl-Shift-S )", "Ctrl+F11", &mnuFile_SaveAll},
    Command{1, "mnuFile_Close", u"&Close this tab", "Ctrl+Q", &mnuFile_Close},
    Command{1, "mnuFile_Recent", u"&Recent files", "F5", &mnuFile_Recent},
    Command{1, "mnuFile_DirLister", u"&Directory lister", "Ctrl+F5", &mnuFile_DirLister},
    Command{1, "mnuFile_Exit", u"E&xit program   ( Alt-F4 )", "", &mnuFile_Exit},

    Command{0, "mnuEdit", u"&Edit", ""},
    Command{1, "mnuEdit_EditCell", u"Edi&t cell contents", "Ctrl+T", &mnuEdit_EditCell_Clack},
    Command{1, "mnuEdit_DesignDb", u"Design &new database", "Ctrl+N", &mnuEdit_DesignDb},
    Command{1, "mnuEdit_Find", u"&Find", "Ctrl+F", &mnuEdit_Find_Clack},
    Command{1, "mnuEdit_Replace", u"&Replace", "Ctrl+R", &mnuEdit_Replace_Clack},
    Command{1, "mnuEdit_ToggleSelection", u"To&ggle tick in check box", "Ctrl+G",
            &mnuEdit_ToggleSelection_Clack},
    Command{1, "mnuEdit_AddOneRow", u"Add one ro&w", "Ctrl+W", &mnuEdit_AddOneRow_Clack},
    Command{1, "mnuEdit_AddRows", u"Add man&y rows", "Ctrl+Y", &mnuEdit_AddRows_Clack},
    Command{1, "mnuEdit_SetRowHeight", u"Set row &height", "Ctrl+H", &mnuEdit_SetRowHeight_Clack},
    Command{1, "mnuEdit_Delete", u"Mark &current row for delete", "Ctrl+Shift+F3", &mnuEdit_Delete_Clack},
    Command{1, "mnuDel_CheckedRows", u"Mar&k checked rows for deletion", "Ctrl+Shift+F8",
            &mnuDel_CheckedRows_Clack},
    Command{1, "mnuEdit_ColumnName", u"Name of col&umn", "", &mnuEdit_ColumnName_Clack},
    Command{1, "mnuEdit_InsertColumn", u"&Insert column", "Ctrl+I", &mnuEdit_InsertColumn_Clack},
    Command{1, "mnuEdit_DeleteColumn", u"Re&move column", "Ctrl+M", &mnuEdit_DeleteColumn_Clack},
    Command{1, "MnuEdit_RefreshColumnWidths", u"Refresh column wi&dths", "",
            &MnuEdit_RefreshColumnWidths_Clack},

    Command{0, "mnuImport", u"&Import", ""},
    Command{1, "mnuImport_Clip", u"&Tabbed text from clipboard", "Ctrl+F1", &mnuImport_Clip},
    Command{1, "mnuEdit_WinClip", u"Show &Windows clipboard    ( Ctrl-Alt-V )", "", &mnuEdit_WinClip_Clack},

    Command{0, "mnuExport", u"Exp&ort", ""},
    Command{1, "mnuSelAll_TickBoxes", u"Mark t&ick box in all visible rows", "Ctrl+A",
            &mnuSelAll_TickBoxes_Clack},
    Command{1, "mnuSelAll_UnTickBoxes", u"Remove t&icks in all visible rows", "Ctrl+U",
            &mnuSelAll_UnTickBoxes_Clack},
    Command{1, "mnuEdit_CopyCellToText", u"Copy &cell contents to text", "F6", &mnuEdit_CopyCellToText_Clack},
    Command{1, "mnuEdit_CopyRowToText", u"Copy one &row to text", "Shift+F6", &mnuEdit_CopyRowToText_Clack},
    Command{1, "mnuCopyColumn", u"Copy c&urrent column to clipboard", "Ctrl+F2", &mnuCopyColumn_Clack},
    Command{1, "mnuCopyCheckedRows", u"Copy checked row&s to text", "Shift+F5", &mnuCopyCheckedRows_Clack},
    Command{1, "mnuCopyCheckedRowsToClipb", u"Cop&y checked rows to clipboard", "Ctrl+Shift+F5",
            &mnuCopyCheckedRowsToClipb_Clack},
    Command{1, "mnuCopyTableToText", u"Copy &whole table to text", "Ctrl+Shift+F6",
            &mnuCopyTableToText_Clack},
    Command{1, "mnuCopyTableToClipboard", u"Copy whole table to clip&board", "Ctrl+Shift+F7",
            &mnuCopyTableToClipboard_Clack},
    Command{1, "mnuEdit_MakeTable", u"Convert to text &table", "Ctrl+F9", &mnuEdit_MakeTable_Clack},
    Command{1, "mnuExport_Excel", u"Export to E&xcel table", "Ctrl+F12", &mnuExport_Excel_Clack},

    Command{0, "mnuCalc", u"&Calculation", ""},
    Command{1, "mnuCalc_Add", u"&Calculate sum of cell values", "", &mnuCalc_Add_Clack},
    Command{1, "mnuMisc_Calc", u"&Load calculator", "Ctrl+Shift+F1", &mnuMisc_Calc},

    Command{0, "mnuView", u"&View", ""},
    Command{1, "mnuEdit_Font", u"Database fon&t", "", &mnuEdit_Font_Clack},
    Command{1, "mnuFormat_BColor", u"Bac&kground colour...", "", &mnuFormat_BColor_Clack},
    Command{1, "mnuFormat_RowColour", u"Specify row &colour", "Ctrl+F3", &mnuFormat_RowColour_Clack},
    Command{1, "mnuSidebarWidth", u"Set side&bar width    ( Alt-Shift-F7 )", "", &mnuSidebarWidth},
    Command{1, "mnuView_TextEdit", u"Text &edit window", "Ctrl+E", &mnuView_TextEdit},

    Command{0, "mnuWindow", u"&Window", ""},
    Command{1, "mnuFile_SwitchTabsForward", u"&Next tab", "F12", &mnuFile_SwitchTabsForward},
    Command{1, "mnuFile_SwitchTabsBack", u"&Previous tab", "Shift+F12", &mnuFile_SwitchTabsBack},
    Command{1, "mnuWindowSize", u"Program window si&ze", "Ctrl+Shift+F2", &mnuWindowSize},
    Command{1, "mnuFile_AreLoaded", u"&Show loaded files", "F8", &mnuFile_AreLoaded},

    Command{0, "mnuStyles", u"St&yles", ""},
    Command{1, "mnuStyle2", u"gray, unrounded", "", &mnuStyle<2>},
    Command{1, "mnuStyle3", u"blue and orange, 1", "", &mnuStyle<3>},
    Command{1, "mnuStyle5", u"blue and orange, 2", "", &mnuStyle<5>},
    Command{1, "mnuStyle7", u"blue and white", "", &mnuStyle<7>},
    Command{1, "mnuStyle8", u"gray, rounded", "", &mnuStyle<8>},
    Command{1, "mnuStyle9", u"blue, rounded", "", &mnuStyle<9>},
    Command{1, "mnuStyle11", u"bluegray", "", &mnuStyle<11>},

    Command{0, "mnuMisc", u"M&iscellaneous", ""},
    Command{1, "mnuHelpText", u"&Help text", "F1", &mnuHelpText},
    Command{1, "mnuMisc_About", u"Abo&ut Korvane", "", &mnuMisc_About},
    Command{1, "mnuMisc_Settings", u"&Settings", "F3", &mnuMisc_Settings},
    Command{1, "mnuMisc_Wallpaper", u"&Wallpaper", "F7", &mnuMisc_Wallpaper},
    Command{1, "mnuMisc_Browser", u"Internet &browser    ( Alt-B )", "", &mnuMisc_Browser},
    Command{1, "mnuMisc_Websites", u"&List of websites", "Ctrl+F7", &mnuMisc_Websites},
    Command{1, "mnuMisc_YourProgram", u"&Your program", "F9", &mnuMisc_YourProgram},
    Command{1, "mnuMisc_Clock", u"&Time and date", "", &mnuMisc_Clock},
    Command{1, "mnuMisc_Explorer", u"Windows E&xplorer", "Ctrl+Shift+F9", &mnuMisc_Explorer},

    Command{0, "mnuSideBar", u"&SideBar", "", &mnuSideBar},

    Command{kNotInMenu, "mnuRowUp", u"", "", &mnuRowUp_Clack},
    Command{kNotInMenu, "mnuRowDown", u"", "", &mnuRowDown_Clack},
    Command{kNotInMenu, "StyleBack", u"", "", &StyleBack},
    Command{kNotInMenu, "StyleForward", u"", "", &StyleForward},
    Command{kNotInMenu, "ToggleDesktop", u"", "", &ToggleDesktop},
    Command{kNotInMenu, "ExploreCaptionFolder", u"", "", &ExploreCaptionFolder},
    Command{kNotInMenu, "LoadFindText", u"", "", &LoadFindText},
    Command{kNotInMenu, "LoadFindFiles", u"", "", &LoadFindFiles},
};

constexpr auto At(std::string_view name) {
    return std::ranges::find(kCommands, name, &Command::name);
}

/// The command of this name. A name that no row has doesn't compile.
consteval const Command& The(std::string_view name) {
    if (At(name) == kCommands.end()) throw "no command has this name";
    return *At(name);
}

// What windows below the main window run by name.
static_assert(The(CommandName::mnuHelpText).level >= 0);
static_assert(The(CommandName::mnuMisc_Clock).level >= 0);
static_assert(The(CommandName::mnuMisc_Settings).level >= 0);
static_assert(The(CommandName::mnuMisc_Wallpaper).level >= 0);
static_assert(The(CommandName::mnuMisc_Websites).level >= 0);
static_assert(The(CommandName::mnuMisc_YourProgram).level >= 0);

// The tool-tips of the style buttons are crosswise, one tip has a misspelt word, and two name keys that don't
// move a row. Kept for compatibility: toolbar-tips.
constexpr std::array kToolBar{
    ToolBarButton{"cmdDesignDb", u"Design database", The("mnuEdit_DesignDb")},
    ToolBarButton{"cmdSetColour", u"Specify background colour for database", The("mnuFormat_BColor")},
    ToolBarButton{"cmdSwitchTabsBack", u"Previous tab", The("mnuFile_SwitchTabsBack")},
    ToolBarButton{"cmdWindowsExplorer", u"Load Widnows Explorer", The("mnuMisc_Explorer")},
    ToolBarButton{"cmdStyleBack", u"Next style", The("StyleBack")},
    ToolBarButton{"cmdStyleForward", u"Previous style", The("StyleForward")},
    ToolBarButton{"cmdExit", u"Exit program", The("mnuFile_Exit")},
    ToolBarButton{"cmdOpen", u"Open database", The("mnuFile_Open")},
    ToolBarButton{"cmdImportText", u"Import tabbed text", The("mnuImport_Clip")},
    ToolBarButton{"cmdSaveAsExcel", u"Save to Excel table", The("mnuExport_Excel")},
    ToolBarButton{"cmdCopyToClip", u"Copy whole table to clipboard", The("mnuCopyTableToClipboard")},
    ToolBarButton{"cmdRecent", u"List of recent files", The("mnuFile_Recent")},
    ToolBarButton{"cmdClose", u"Close current tab", The("mnuFile_Close")},
    ToolBarButton{"cmdFileInfo", u"File information", The("mnuFile_FileInfo")},
    ToolBarButton{"cmdLoadedFiles", u"Show loaded databases", The("mnuFile_AreLoaded")},
    ToolBarButton{"cmdDirLister", u"Directory listing", The("mnuFile_DirLister")},
    ToolBarButton{"cmdSwitchTabsForward", u"Next tab", The("mnuFile_SwitchTabsForward")},
    ToolBarButton{"cmdFonts", u"Specify font", The("mnuEdit_Font")},
    ToolBarButton{"cmdClock", u"Show time and date", The("mnuMisc_Clock")},
    ToolBarButton{"cmdEditCell", u"Edit cell contents", The("mnuEdit_EditCell")},
    ToolBarButton{"cmdDesktop", u"Show desktop", The("ToggleDesktop")},
    ToolBarButton{"imgDown", u"Move current row down (Ctrl-D)", The("mnuRowDown"), u"Ctrl+Shift+Down"},
    ToolBarButton{"imgUp", u"Move current row up (Ctrl-U)", The("mnuRowUp"), u"Ctrl+Shift+Up"},
};

constexpr std::array kSideBar{
    SideBarRow{u"Recent files", The("mnuFile_Recent")},
    SideBarRow{u"Load db.", The("mnuFile_Open")},
    SideBarRow{u"File info", The("mnuFile_FileInfo")},
    SideBarRow{u"Save db.", The("mnuFile_Save")},
    SideBarRow{u"Save as...", The("mnuFile_SaveAs")},
    SideBarRow{u"Save all dbs.", The("mnuFile_SaveAll")},
    SideBarRow{u"Close tab", The("mnuFile_Close")},
    SideBarRow{u"Design db.", The("mnuEdit_DesignDb")},
    SideBarRow{u"Text window", The("mnuView_TextEdit")},
    SideBarRow{u"Dir. lister", The("mnuFile_DirLister")},
    SideBarRow{u"Find text", The("LoadFindText")},
    SideBarRow{u"Find files", The("LoadFindFiles")},
    SideBarRow{u"Explorer", The("ExploreCaptionFolder")},
    SideBarRow{u"Browser", The("mnuMisc_Browser")},
    SideBarRow{u"Settings", The("mnuMisc_Settings")},
    SideBarRow{u"Desktop", The("ToggleDesktop")},
};

constexpr MenuEntry kSeparator{0, "", u"", ""};

/// An entry of another menu than the bar. The bar binds the keys already.
consteval MenuEntry Entry(std::string_view name, TextView caption) {
    return {0, The(name).name, caption, {}};
}

constexpr std::array kPopupMenu{
    Entry("mnuEdit_EditCell", u"Edit cell"),
    Entry("mnuEdit_Find", u"Find string"),
    kSeparator,
    Entry("mnuEdit_DesignDb", u"New database"),
    Entry("mnuFile_Open", u"Open database"),
    Entry("mnuFile_FileInfo", u"File info"),
    Entry("mnuFile_Save", u"Save database"),
    Entry("mnuFile_SaveAs", u"Save as..."),
    Entry("mnuFile_SaveAll", u"Save all dbs."),
    kSeparator,
    Entry("mnuEdit_AddOneRow", u"Add row to table"),
    Entry("mnuEdit_AddRows", u"Add several rows"),
    Entry("mnuCopyTableToClipboard", u"Copy whole table"),
    kSeparator,
    Entry("mnuExport_Excel", u"Export to Excel"),
    Entry("mnuImport_Clip", u"Import tabbed text"),
    kSeparator,
    Entry("mnuFile_Exit", u"Exit program"),
};

constexpr std::size_t kMenuBarCount = static_cast<std::size_t>(
    std::count_if(kCommands.begin(), kCommands.end(), [](const Command& c) { return c.level >= 0; }));

constexpr auto kMenuBar = [] {
    std::array<MenuEntry, kMenuBarCount> entries{};
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const Command& command = kCommands[i];
        entries[i] = {command.level, command.name, command.caption, command.shortcut};
    }
    return entries;
}();

constexpr auto kWindowMenu = [] {
    constexpr const Command* first = &The("mnuWindow") + 1;
    std::array<MenuEntry, &The("mnuStyles") - first> entries{};
    std::ranges::transform(first, first + entries.size(), entries.begin(),
                           [](const Command& command) -> MenuEntry {
                               return {0, command.name, command.caption, {}};
                           });
    return entries;
}();

} // namespace

std::span<const Command> Commands() {
    return kCommands;
}

const Command* FindCommand(std::string_view name) {
    const auto found = At(name);
    return found == kCommands.end() ? nullptr : &*found;
}

std::span<const MenuEntry> MenuBarEntries() {
    return kMenuBar;
}

std::span<const MenuEntry> PopupMenuEntries() {
    return kPopupMenu;
}

std::span<const MenuEntry> WindowMenuEntries() {
    return kWindowMenu;
}

std::span<const ToolBarButton> ToolBarButtons() {
    return kToolBar;
}

Text ShownTip(const ToolBarButton& button) {
    const Text tip(button.toolTip);
    return button.key.empty() ? tip : tip + u"\n" + Text(button.key);
}

std::span<const SideBarRow> SideBarRows() {
    return kSideBar;
}

} // namespace korvane
