#include "shell/commands/MainRoutines.h"

#include "common/text/FindEntry.h"
#include "context/App.h"
#include "context/Companions.h"
#include "context/Desktop.h"
#include "context/FileChooser.h"
#include "context/Launching.h"
#include "context/StandardMessages.h"
#include "context/exchange/StateFiles.h"
#include "context/ports/ClipboardView.h"
#include "dialogs/Questions.h"
#include "grid/Grid.h"
#include "platform/FileSystem.h"
#include "shell/commands/MainParts.h"
#include "shell/commands/SideBar.h"
#include "shell/commands/Styles.h"
#include "shell/commands/frmAbout.h"
#include "shell/settings/frmSetYourProg.h"
#include "shell/settings/frmSettings.h"
#include "shell/settings/frmWindowSize.h"
#include "shell/tabs/LoadPipeline.h"
#include "shell/tabs/RecentFiles.h"
#include "shell/tabs/Tabs.h"
#include "shell/tabs/frmLoadList.h"
#include "shell/tabs/frmMDIChild.h"

#include <algorithm>
#include <array>

namespace korvane {

namespace {

void mnuFile_Open(const MainParts& main) {
    const Text caption = main.window.Caption;
    if (!main.pipeline.OpenDatabase({}, LoadInto::NewTab)) main.window.Caption = caption;
}

void mnuFile_SaveAll(const MainParts& main) {
    Text list;
    for (int slot = 1; slot <= main.tabs.TabState.UpperBound(); ++slot) {
        frmMDIChild* tab = main.tabs.Document(slot);
        if (tab == nullptr) continue;
        tab->Invoke("SaveThisTable");
        list += tab->Caption.Get() + Text(kCrLf);
    }
    if (list.empty()) return;
    Inform(main.app, u"Databases saved to disk: \r\n\r\n" + list);
}

void mnuFile_Close(const MainParts& main) {
    if (frmMDIChild* tab = main.tabs.Active()) main.tabs.Close(*tab);
}

void mnuFile_Recent(const MainParts& main) {
    RecentFiles(main.app, main.tabs, main.recents, main.pipeline, main.window).ShowRecentFiles();
}

void mnuFile_AreLoaded(const MainParts& main) {
    ShowLoadedFiles(main.app, main.tabs, main.window);
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

void mnuSideBar(const MainParts& main) {
    std::int16_t& visible = main.app.Settings.SideBarVisible;
    visible = visible == 1 ? 0 : 1;
    main.window.Resize();
}

void ExploreCaptionFolder(const MainParts& main) {
    ExploreFolder(main.app, main.app.Files().Style().FolderPart(main.window.Caption.Get()));
}

void SetWindowSize(const MainParts& main) {
    if (!ChooseWindowSize(main.app, main.windowSize, main.window)) return;
    frmMDIChild* tab = main.tabs.Active();
    if (tab == nullptr) return;
    tab->Resize();
    tab->GridStore().GridSetFocus();
}

void ViewAndPaste(const MainParts& main) {
    if (auto* clipboardView = main.app.Port<ClipboardView>()) clipboardView->Show();
}

template <class Window>
void ShowWindow(const MainParts& main) {
    Window(main.app).ShowModal();
}

void mnuMisc_Browser(const MainParts& main) {
    App& app = main.app;
    LaunchProgram(app, Text(app.Settings.WebListA));
}

void CustomBrowser(const MainParts& main) {
    App& app = main.app;
    Text browser = app.Settings.CustomBrowserPath;
    if (browser.empty() || !app.Files().FileExists(browser)) {
        ShowCannotLocate(app, browser);
    } else {
        LaunchProgram(app, browser);
    }
}

struct NamedRoutine {
    std::string_view name;
    void (*run)(const MainParts&);
};

constexpr std::array kRoutines{
    NamedRoutine{"mnuFile_Open", &mnuFile_Open},
    NamedRoutine{"mnuFile_SaveAll", &mnuFile_SaveAll},
    NamedRoutine{"mnuFile_Close", &mnuFile_Close},
    NamedRoutine{"mnuFile_Recent", &mnuFile_Recent},
    NamedRoutine{"mnuFile_AreLoaded", &mnuFile_AreLoaded},
    NamedRoutine{"mnuFile_Exit", [](const MainParts& main) { main.window.Close(); }},
    NamedRoutine{"mnuFile_SwitchTabsForward", [](const MainParts& main) { main.tabs.SwitchForward(); }},
    NamedRoutine{"mnuFile_SwitchTabsBack", [](const MainParts& main) { main.tabs.SwitchBack(); }},
    NamedRoutine{"mnuMisc_Calc", [](const MainParts& main) { LaunchCompanion(main.app, Companion::Abrill); }},
    NamedRoutine{"mnuMisc_Browser", &mnuMisc_Browser},
    NamedRoutine{"mnuMisc_Explorer", [](const MainParts& main) { RunExplorer(main.app); }},
    NamedRoutine{"mnuFile_DirLister", [](const MainParts& main) { ShowDirectoryLister(main.app); }},
    NamedRoutine{"ViewAndPaste", &ViewAndPaste},
    NamedRoutine{
        "mnuHelpText",
        [](const MainParts& main) { LaunchDunmark(main.app, main.app.Exchange<StateFiles>().HelpFilePath); }},
    NamedRoutine{"mnuMisc_About", &ShowWindow<frmAbout>},
    NamedRoutine{"mnuMisc_Settings",
                 [](const MainParts& main) {
                     frmSettings(main.app, main.tabs, main.menuBar, main.sideBar.Commands()).ShowModal();
                 }},
    NamedRoutine{"mnuMisc_YourProgram", &ShowWindow<frmSetYourProg>},
    NamedRoutine{"LoadFindText", [](const MainParts& main) { LaunchCompanion(main.app, Companion::Ostrel); }},
    NamedRoutine{"LoadFindFiles",
                 [](const MainParts& main) { LaunchCompanion(main.app, Companion::Veldan); }},
    NamedRoutine{"mnuSideBar", &mnuSideBar},
    NamedRoutine{"mnuSwitchFocus", &mnuSwitchFocus_Click},
    NamedRoutine{"NextSideBarWidth", [](const MainParts& main) { main.sideBar.NextWidth(); }},
    NamedRoutine{"SetWindowSize", &SetWindowSize},
    NamedRoutine{"StyleBack", &StyleBack},
    NamedRoutine{"StyleForward", &StyleForward},
    NamedRoutine{"mnuStyle2", &mnuStyle<2>},
    NamedRoutine{"mnuStyle3", &mnuStyle<3>},
    NamedRoutine{"mnuStyle5", &mnuStyle<5>},
    NamedRoutine{"mnuStyle7", &mnuStyle<7>},
    NamedRoutine{"mnuStyle8", &mnuStyle<8>},
    NamedRoutine{"mnuStyle9", &mnuStyle<9>},
    NamedRoutine{"mnuStyle11", &mnuStyle<11>},
    NamedRoutine{"ToggleDesktop", [](const MainParts& main) { ShowDesktop(main.app); }},
    NamedRoutine{"ExploreCaptionFolder", &ExploreCaptionFolder},
    NamedRoutine{"CustomBrowser", &CustomBrowser},
};

} // namespace

void RunMainRoutine(const MainParts& main, std::string_view name) {
    const auto* found = FindEntry(kRoutines, name, &NamedRoutine::name);
    if (found != nullptr) found->run(main);
}

} // namespace korvane
