#pragma once

namespace korvane {

struct MainParts;

// The routines of the main window that commands call, named as their entries in the menu where they have one.

void mnuFile_Open(const MainParts& main);
/// Saves every tab, altered or not, and lists them.
void mnuFile_SaveAll(const MainParts& main);
void mnuFile_Close(const MainParts& main);
void mnuFile_Recent(const MainParts& main);
void mnuFile_DirLister(const MainParts& main);
void mnuFile_Exit(const MainParts& main);
void mnuFile_SwitchTabsForward(const MainParts& main);
void mnuFile_SwitchTabsBack(const MainParts& main);
void mnuFile_AreLoaded(const MainParts& main);

// These make a tab of their own first, which stays when they fail.
void mnuEdit_DesignDb(const MainParts& main);
void mnuImport_Clip(const MainParts& main);

// These do nothing when no tab is open.
void mnuSidebarWidth(const MainParts& main);
void mnuWindowSize(const MainParts& main);

void mnuSideBar(const MainParts& main);
/// Moves the keyboard between the grid and the sidebar.
void mnuSwitchFocus_Click(const MainParts& main);

void mnuHelpText(const MainParts& main);
void mnuMisc_About(const MainParts& main);
void mnuMisc_Settings(const MainParts& main);
void mnuMisc_Wallpaper(const MainParts& main);
void mnuMisc_YourProgram(const MainParts& main);
void mnuMisc_Clock(const MainParts& main);
void ViewAndPaste(const MainParts& main);
void mnuView_TextEdit(const MainParts& main);
void mnuMisc_Websites(const MainParts& main);

// What they start is a program of its own.
void mnuMisc_Calc(const MainParts& main);
void mnuMisc_Browser(const MainParts& main);
void mnuMisc_Explorer(const MainParts& main);
void CustomBrowser(const MainParts& main);
void ExploreCaptionFolder(const MainParts& main);
void LoadFindText(const MainParts& main);
void LoadFindFiles(const MainParts& main);
void ToggleDesktop(const MainParts& main);

} // namespace korvane
