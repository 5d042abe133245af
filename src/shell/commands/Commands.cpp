#include "shell/commands/Commands.h"

#include <algorithm>
#include <array>

namespace korvane {

namespace {

using enum CommandTarget;

// What every menu entry, button, sidebar row and key of the menu does. Some captions name keys that aren't
// theirs ("( Ctrl-Shift-S )"): the third column is what is bound.
constexpr std::array kCommands{
    Command{0, "mnuFile", u"&File", "", Menu},
    Command{1, "mnuFile_Open", u"&Open database (new tab)", "Ctrl+O", Main},
    Command{1, "mnuFile_FileInfo", u"&File info", "Shift+F9", Tab},
    Command{1, "mnuFile_Save", u"&Save database to disk", "Ctrl+S", Tab},
    Command{1, "mnuFile_SaveAs", u"Save &as ...    ( F10, Ctrl+Shift-S )", "", Tab},
    Command{1, "mnuFile_SaveAll", u"Sa&ve all   ( Ctrl-Shift-S )", "Ctrl+F11", Main},
    Command{1, "mnuFile_Close", u"&Close this tab", "Ctrl+Q", Main},
    Command{1, "mnuFile_Recent", u"&Recent files", "F5", Main},
    Command{1, "mnuFile_DirLister", u"&Directory lister", "Ctrl+F5", Main},
    Command{1, "mnuFile_Exit", u"E&xit program   ( Alt-F4 )", "", Main},

    Command{0, "mnuEdit", u"&Edit", "", Menu},
    Command{1, "mnuEdit_EditCell", u"Edi&t cell contents", "Ctrl+T", Tab},
    Command{1, "mnuEdit_DesignDb", u"Design &new database", "Ctrl+N", NewTab},
    Command{1, "mnuEdit_Find", u"&Find", "Ctrl+F", Tab},
    Command{1, "mnuEdit_Replace", u"&Replace", "Ctrl+R", Tab},
    Command{1, "mnuEdit_ToggleSelection", u"To&ggle tick in check box", "Ctrl+G", Tab},
    Command{1, "mnuEdit_AddOneRow", u"Add one ro&w", "Ctrl+W", Tab},
    Command{1, "mnuEdit_AddRows", u"Add man&y rows", "Ctrl+Y", Tab},
    Command{1, "mnuEdit_SetRowHeight", u"Set row &height", "Ctrl+H", Tab},
    Command{1, "mnuEdit_Delete", u"Mark &current row for delete", "Ctrl+Shift+F3", Tab},
    Command{1, "mnuDel_CheckedRows", u"Mar&k checked rows for deletion", "Ctrl+Shift+F8", Tab},
    Command{1, "mnuEdit_ColumnName", u"Name of col&umn", "", Tab},
    Command{1, "mnuEdit_InsertColumn", u"&Insert column", "Ctrl+I", Tab},
    Command{1, "mnuEdit_DeleteColumn", u"Re&move column", "Ctrl+M", Tab},
    Command{1, "MnuEdit_RefreshColumnWidths", u"Refresh column wi&dths", "", Tab},

    Command{0, "mnuImport", u"&Import", "", Menu},
    Command{1, "mnuImport_Clip", u"&Tabbed text from clipboard", "Ctrl+F1", NewTab},
    Command{1, "mnuEdit_WinClip", u"Show &Windows clipboard    ( Ctrl-Alt-V )", "", Tab},

    Command{0, "mnuExport", u"Exp&ort", "", Menu},
    Command{1, "mnuSelAll_TickBoxes", u"Mark t&ick box in all visible rows", "Ctrl+A", Tab},
    Command{1, "mnuSelAll_UnTickBoxes", u"Remove t&icks in all visible rows", "Ctrl+U", Tab},
    Command{1, "mnuEdit_CopyCellToText", u"Copy &cell contents to text", "F6", Tab},
    Command{1, "mnuEdit_CopyRowToText", u"Copy one &row to text", "Shift+F6", Tab},
    Command{1, "mnuCopyColumn", u"Copy c&urrent column to clipboard", "Ctrl+F2", Tab},
    Command{1, "mnuCopyCheckedRows", u"Copy checked row&s to text", "Shift+F5", Tab},
    Command{1, "mnuCopyCheckedRowsToClipb", u"Cop&y checked rows to clipboard", "Ctrl+Shift+F5", Tab},
    Command{1, "mnuCopyTableToText", u"Copy &whole table to text", "Ctrl+Shift+F6", Tab},
    Command{1, "mnuCopyTableToClipboard", u"Copy whole table to clip&board", "Ctrl+Shift+F7", Tab},
    Command{1, "mnuEdit_MakeTable", u"Convert to text &table", "Ctrl+F9", Tab},
    Command{1, "mnuExport_Excel", u"Export to E&xcel table", "Ctrl+F12", Tab},

    Command{0, "mnuCalc", u"&Calculation", "", Menu},
    Command{1, "mnuCalc_Add", u"&Calculate sum of cell values", "", Tab},
    Command{1, "mnuMisc_Calc", u"&Load calculator", "Ctrl+Shift+F1", Main},

    Command{0, "mnuView", u"&View", "", Menu},
    Command{1, "mnuEdit_Font", u"Database fon&t", "", Tab},
    Command{1, "mnuFormat_BColor", u"Bac&kground colour...", "", Tab},
    Command{1, "mnuFormat_RowColour", u"Specify row &colour", "Ctrl+F3", Tab},
    Command{1, "mnuSidebarWidth", u"Set side&bar width    ( Alt-Shift-F7 )", "", Tab},
    Command{1, "mnuView_TextEdit", u"Text &edit window", "Ctrl+E", Main},

    Command{0, "mnuWindow", u"&Window", "", Menu},
    Command{1, "mnuFile_SwitchTabsForward", u"&Next tab", "F12", Main},
    Command{1, "mnuFile_SwitchTabsBack", u"&Previous tab", "Shift+F12", Main},
    Command{1, "mnuWindowSize", u"Program window si&ze", "Ctrl+Shift+F2", Tab},
    Command{1, "mnuFile_AreLoaded", u"&Show loaded files", "F8", Main},

    Command{0, "mnuStyles", u"St&yles", "", Menu},
    Command{1, "mnuStyle2", u"gray, unrounded", "", Main},
    Command{1, "mnuStyle3", u"blue and orange, 1", "", Main},
    Command{1, "mnuStyle5", u"blue and orange, 2", "", Main},
    Command{1, "mnuStyle7", u"blue and white", "", Main},
    Command{1, "mnuStyle8", u"gray, rounded", "", Main},
    Command{1, "mnuStyle9", u"blue, rounded", "", Main},
    Command{1, "mnuStyle11", u"bluegray", "", Main},

    Command{0, "mnuMisc", u"M&iscellaneous", "", Menu},
    Command{1, "mnuHelpText", u"&Help text", "F1", Main},
    Command{1, "mnuMisc_About", u"Abo&ut Korvane", "", Main},
    Command{1, "mnuMisc_Settings", u"&Settings", "F3", Main},
    Command{1, "mnuMisc_Wallpaper", u"&Wallpaper", "F7", Main},
    Command{1, "mnuMisc_Browser", u"Internet &browser    ( Alt-B )", "", Main},
    Command{1, "mnuMisc_Websites", u"&List of websites", "Ctrl+F7", Main},
    Command{1, "mnuMisc_YourProgram", u"&Your program", "F9", Main},
    Command{1, "mnuMisc_Clock", u"&Time and date", "", Main},
    Command{1, "mnuMisc_Explorer", u"Windows E&xplorer", "Ctrl+Shift+F9", Main},

    Command{0, "mnuSideBar", u"&SideBar", "", Main},

    Command{kNotInMenu, "mnuRowUp", u"", "", Tab},
    Command{kNotInMenu, "mnuRowDown", u"", "", Tab},
    Command{kNotInMenu, "mnuSwitchFocus", u"", "", Main},
    Command{kNotInMenu, "NextSideBarWidth", u"", "", Main},
    Command{kNotInMenu, "SetWindowSize", u"", "", Main},
    Command{kNotInMenu, "StyleBack", u"", "", Main},
    Command{kNotInMenu, "StyleForward", u"", "", Main},
    Command{kNotInMenu, "ToggleDesktop", u"", "", Main},
    Command{kNotInMenu, "ExploreCaptionFolder", u"", "", Main},
    Command{kNotInMenu, "LoadFindText", u"", "", Main},
    Command{kNotInMenu, "LoadFindFiles", u"", "", Main},
    Command{kNotInMenu, "CustomBrowser", u"", "", Main},
    Command{kNotInMenu, "ViewAndPaste", u"", "", Main},
};

// The tool-tips of the style buttons are crosswise, and one tip has a misspelt word. Kept for compatibility:
// toolbar-tips.
constexpr std::array kToolBar{
    ToolBarButton{"cmdDesignDb", u"Design database", "mnuEdit_DesignDb"},
    ToolBarButton{"cmdSetColour", u"Specify background colour for database", "mnuFormat_BColor"},
    ToolBarButton{"cmdSwitchTabsBack", u"Previous tab", "mnuFile_SwitchTabsBack"},
    ToolBarButton{"cmdWindowsExplorer", u"Load Widnows Explorer", "mnuMisc_Explorer"},
    ToolBarButton{"cmdStyleBack", u"Next style", "StyleBack"},
    ToolBarButton{"cmdStyleForward", u"Previous style", "StyleForward"},
    ToolBarButton{"cmdExit", u"Exit program", "mnuFile_Exit"},
    ToolBarButton{"cmdOpen", u"Open database", "mnuFile_Open"},
    ToolBarButton{"cmdImportText", u"Import tabbed text", "mnuImport_Clip"},
    ToolBarButton{"cmdSaveAsExcel", u"Save to Excel table", "mnuExport_Excel"},
    ToolBarButton{"cmdCopyToClip", u"Copy whole table to clipboard", "mnuCopyTableToClipboard"},
    ToolBarButton{"cmdRecent", u"List of recent files", "mnuFile_Recent"},
    ToolBarButton{"cmdClose", u"Close current tab", "mnuFile_Close"},
    ToolBarButton{"cmdFileInfo", u"File information", "mnuFile_FileInfo"},
    ToolBarButton{"cmdLoadedFiles", u"Show loaded databases", "mnuFile_AreLoaded"},
    ToolBarButton{"cmdDirLister", u"Directory listing", "mnuFile_DirLister"},
    ToolBarButton{"cmdSwitchTabsForward", u"Next tab", "mnuFile_SwitchTabsForward"},
    ToolBarButton{"cmdFonts", u"Specify font", "mnuEdit_Font"},
    ToolBarButton{"cmdClock", u"Show time and date", "mnuMisc_Clock"},
    ToolBarButton{"cmdEditCell", u"Edit cell contents", "mnuEdit_EditCell"},
    ToolBarButton{"cmdDesktop", u"Show desktop", "ToggleDesktop"},
    ToolBarButton{"imgDown", u"Move current row down (Ctrl-D)", "mnuRowDown"},
    ToolBarButton{"imgUp", u"Move current row up (Ctrl-U)", "mnuRowUp"},
};

constexpr std::array kSideBar{
    SideBarRow{u"Recent files", "mnuFile_Recent"},   SideBarRow{u"Load db.", "mnuFile_Open"},
    SideBarRow{u"File info", "mnuFile_FileInfo"},    SideBarRow{u"Save db.", "mnuFile_Save"},
    SideBarRow{u"Save as...", "mnuFile_SaveAs"},     SideBarRow{u"Save all dbs.", "mnuFile_SaveAll"},
    SideBarRow{u"Close tab", "mnuFile_Close"},       SideBarRow{u"Design db.", "mnuEdit_DesignDb"},
    SideBarRow{u"Text window", "mnuView_TextEdit"},  SideBarRow{u"Dir. lister", "mnuFile_DirLister"},
    SideBarRow{u"Find text", "LoadFindText"},        SideBarRow{u"Find files", "LoadFindFiles"},
    SideBarRow{u"Explorer", "ExploreCaptionFolder"}, SideBarRow{u"Browser", "mnuMisc_Browser"},
    SideBarRow{u"Settings", "mnuMisc_Settings"},     SideBarRow{u"Desktop", "ToggleDesktop"},
};

constexpr MenuEntry kSeparator{0, "", u"", ""};

constexpr std::array kPopupMenu{
    MenuEntry{0, "mnuEdit_EditCell", u"Edit cell", ""},
    MenuEntry{0, "mnuEdit_Find", u"Find string", ""},
    kSeparator,
    MenuEntry{0, "mnuEdit_DesignDb", u"New database", ""},
    MenuEntry{0, "mnuFile_Open", u"Open database", ""},
    MenuEntry{0, "mnuFile_FileInfo", u"File info", ""},
    MenuEntry{0, "mnuFile_Save", u"Save database", ""},
    MenuEntry{0, "mnuFile_SaveAs", u"Save as...", ""},
    MenuEntry{0, "mnuFile_SaveAll", u"Save all dbs.", ""},
    kSeparator,
    MenuEntry{0, "mnuEdit_AddOneRow", u"Add row to table", ""},
    MenuEntry{0, "mnuEdit_AddRows", u"Add several rows", ""},
    MenuEntry{0, "mnuCopyTableToClipboard", u"Copy whole table", ""},
    kSeparator,
    MenuEntry{0, "mnuExport_Excel", u"Export to Excel", ""},
    MenuEntry{0, "mnuImport_Clip", u"Import tabbed text", ""},
    kSeparator,
    MenuEntry{0, "mnuFile_Exit", u"Exit program", ""},
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

constexpr std::size_t IndexOf(std::string_view name) {
    const auto found =
        std::find_if(kCommands.begin(), kCommands.end(), [name](const Command& c) { return c.name == name; });
    return static_cast<std::size_t>(found - kCommands.begin());
}

constexpr std::size_t kWindowMenuStart = IndexOf("mnuWindow") + 1;

constexpr auto kWindowMenu = [] {
    std::array<MenuEntry, IndexOf("mnuStyles") - kWindowMenuStart> entries{};
    for (std::size_t i = 0; i < entries.size(); ++i) {
        // Without the keys, which the menu bar binds already.
        const Command& command = kCommands[kWindowMenuStart + i];
        entries[i] = {0, command.name, command.caption, ""};
    }
    return entries;
}();

} // namespace

std::span<const Command> Commands() {
    return kCommands;
}

const Command* FindCommand(std::string_view name) {
    const std::size_t index = IndexOf(name);
    return index == kCommands.size() ? nullptr : &kCommands[index];
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

std::span<const SideBarRow> SideBarRows() {
    return kSideBar;
}

} // namespace korvane
