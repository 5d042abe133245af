#include "shell/commands/MainRoutines.h"

#include "context/App.h"
#include "context/Companions.h"
#include "context/Desktop.h"
#include "context/FileChooser.h"
#include "context/Launching.h"
#include "context/StandardMessages.h"
#include "context/exchange/StateFiles.h"
#include "context/ports/ClipboardView.h"
#include "context/ports/TextWindow.h"
#include "context/ports/WebsiteList.h"
#include "dialogs/Questions.h"
#include "extras/clock/frmShowTimer.h"
#include "extras/lock/frmWallpaper.h"
#include "grid/Grid.h"
#include "platform/FileSystem.h"
#include "shell/commands/MainParts.h"
#include "shell/commands/SideBar.h"
#include "shell/commands/frmAbout.h"
#include "shell/commands/frmHelp.h"
#include "shell/settings/frmSetYourProg.h"
#include "shell/settings/frmSettings.h"
#include "shell/settings/frmWindowSize.h"
#include "shell/tabs/LoadPipeline.h"
#include "shell/tabs/RecentFiles.h"
#include "shell/tabs/Tabs.h"
#include "shell/tabs/frmLoadList.h"
#include "shell/tabs/frmMDIChild.h"
#include "table/DesignCommand.h"
#include "table/ImportCommand.h"
#include "table/TableFile.h"

namespace korvane {

namespace {

/// The tab stays if the routine fails or is cancelled. Kept for compatibility: failed-design-keeps-tab.
void RunOnNewTab(const MainParts& main, TabRoutine routine) {
    main.tabs.AddNewTab();
    main.tabs.RunOnActive(routine);
}

} // namespace

void mnuFile_Open(const MainParts& main) {
    const Text caption = main.window.Caption;
    if (!main.pipeline.OpenDatabase({}, LoadInto::NewTab)) main.window.Caption = caption;
}

/// Saves and lists unaltered tables too. Kept for compatibility: save-all-rewrites-all.
void mnuFile_SaveAll(const MainParts& main) {
    Text list;
    for (int slot = 1; slot <= main.tabs.TabState.UpperBound(); ++slot) {
        frmMDIChild* tab = main.tabs.Document(slot);
        if (tab == nullptr) continue;
        tab->Run(&SaveThisTable);
        list += tab->Caption.Get() + Text(kCrLf);
    }
    if (!list.empty()) Inform(main.app, u"Databases saved to disk: \r\n\r\n" + list);
}

void mnuFile_Close(const MainParts& main) {
    if (frmMDIChild* tab = main.tabs.Active()) main.tabs.Close(*tab);
}

void mnuFile_Recent(const MainParts& main) {
    RecentFiles(main.app, main.tabs, main.recents, main.pipeline, main.window).ShowRecentFiles();
}

void mnuFile_DirLister(const MainParts& main) {
    ShowDirectoryLister(main.app);
}

void mnuFile_Exit(const MainParts& main) {
    main.window.Close();
}

void mnuFile_SwitchTabsForward(const MainParts& main) {
    main.tabs.SwitchForward();
}

void mnuFile_SwitchTabsBack(const MainParts& main) {
    main.tabs.SwitchBack();
}

void mnuFile_AreLoaded(const MainParts& main) {
    ShowLoadedFiles(main.app, main.tabs, main.window);
}

void mnuEdit_DesignDb(const MainParts& main) {
    RunOnNewTab(main, &mnuEdit_DesignDb_Clack);
}

void mnuImport_Clip(const MainParts& main) {
    RunOnNewTab(main, &mnuImport_Clip_Clack);
}

void mnuSidebarWidth(const MainParts& main) {
    if (main.tabs.Active() != nullptr) main.sideBar.NextWidth();
}

void mnuWindowSize(const MainParts& main) {
    if (main.tabs.Active() == nullptr) return;
    if (!ChooseWindowSize(main.app, main.windowSize, main.window)) return;
    frmMDIChild* tab = main.tabs.Active();
    if (tab == nullptr) return;
    tab->Resize();
    tab->GridStore().GridSetFocus();
}

void mnuSideBar(const MainParts& main) {
    std::int16_t& visible = main.app.Settings.SideBarVisible;
    visible = visible == 1 ? 0 : 1;
    main.window.Resize();
}

void mnuSwitchFocus_Click(const MainParts& main) {
    std::int16_t& turn = main.sideBar.FocusOnSideBar;
    if (turn != 0) {
        main.sideBar.TakeFocus();
    } else if (frmMDIChild* tab = main.tabs.Active()) {
        tab->GridStore().GridSetFocus();
    }
    turn = turn == 0 ? 1 : 0;
}

void mnuHelpText(const MainParts& main) {
    const Text& path = main.app.Exchange<StateFiles>().HelpFilePath;
    if (!StartCompanion(main.app, Companion::Dunmark, path)) ShowHelp(main.app);
}

void mnuMisc_About(const MainParts& main) {
    frmAbout(main.app).ShowModal();
}

void mnuMisc_Settings(const MainParts& main) {
    frmSettings(main.app, main.tabs, main.menuBar, main.sideBar.Commands()).ShowModal();
}

void mnuMisc_Wallpaper(const MainParts& main) {
    frmWallpaper(main.app).ShowModal();
}

void mnuMisc_YourProgram(const MainParts& main) {
    frmSetYourProg(main.app).ShowModal();
}

void mnuMisc_Clock(const MainParts& main) {
    frmShowTimer(main.app).ShowModal();
}

void ViewAndPaste(const MainParts& main) {
    if (auto* clipboardView = main.app.Port<ClipboardView>()) clipboardView->Show();
}

void mnuView_TextEdit(const MainParts& main) {
    if (auto* textWindow = main.app.Port<TextWindow>()) textWindow->TextWindowShow();
}

void mnuMisc_Websites(const MainParts& main) {
    if (auto* websites = main.app.Port<WebsiteList>()) websites->Show();
}

void mnuMisc_Calc(const MainParts& main) {
    LaunchCompanion(main.app, Companion::Abrill);
}

/// The key that the caption names starts the custom browser. Kept for compatibility: two-browsers.
void mnuMisc_Browser(const MainParts& main) {
    LaunchProgram(main.app, Text(main.app.Settings.WebListA));
}

void mnuMisc_Explorer(const MainParts& main) {
    RunExplorer(main.app);
}

void CustomBrowser(const MainParts& main) {
    Text browser = main.app.Settings.CustomBrowserPath;
    if (browser.empty() || !main.app.Files().FileExists(browser)) {
        ShowCannotLocate(main.app, browser);
    } else {
        LaunchProgram(main.app, browser);
    }
}

void ExploreCaptionFolder(const MainParts& main) {
    ExploreFolder(main.app, main.app.Files().Style().FolderPart(main.window.Caption.Get()));
}

void LoadFindText(const MainParts& main) {
    LaunchCompanion(main.app, Companion::Ostrel);
}

void LoadFindFiles(const MainParts& main) {
    LaunchCompanion(main.app, Companion::Veldan);
}

void ToggleDesktop(const MainParts& main) {
    ShowDesktop(main.app);
}

} // namespace korvane
