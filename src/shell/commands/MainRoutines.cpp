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
#include "shell/commands/Styles.h"
#include "shell/commands/frmAbout.h"
#include "shell/main/frmMDIParent.h"
#include "shell/settings/frmSetYourProg.h"
#include "shell/settings/frmSettings.h"
#include "shell/tabs/RecentFiles.h"
#include "shell/tabs/frmLoadList.h"
#include "shell/tabs/frmMDIChild.h"

#include <algorithm>
#include <array>

namespace korvane {

namespace {

void mnuFile_Open(frmMDIParent& main) {
    const Text caption = main.Caption;
    if (!main.Pipeline().OpenDatabase({}, LoadInto::NewTab)) main.Caption = caption;
}

void mnuFile_SaveAll(frmMDIParent& main) {
    Text list;
    for (int slot = 1; slot <= main.TheTabs().TabState.UpperBound(); ++slot) {
        frmMDIChild* tab = main.TheTabs().Document(slot);
        if (tab == nullptr) continue;
        tab->Invoke("SaveThisTable");
        list += tab->Caption.Get() + Text(kCrLf);
    }
    if (list.empty()) return;
    Inform(main.TheApp(), u"Databases saved to disk: \r\n\r\n" + list);
}

void mnuFile_Close(frmMDIParent& main) {
    if (frmMDIChild* tab = main.TheTabs().Active()) main.CloseTab(*tab);
}

void mnuFile_Recent(frmMDIParent& main) {
    RecentFiles(main.TheApp(), main.TheTabs(), main.Recents(), main.Pipeline(), main).ShowRecentFiles();
}

void mnuFile_AreLoaded(frmMDIParent& main) {
    ShowLoadedFiles(main.TheApp(), main.TheTabs(), main);
}

void mnuSideBar(frmMDIParent& main) {
    std::int16_t& visible = main.TheApp().Settings.SideBarVisible;
    visible = visible == 1 ? 0 : 1;
    main.Resize();
}

void ExploreCaptionFolder(frmMDIParent& main) {
    ExploreFolder(main.TheApp(), main.TheApp().Files().Style().FolderPart(main.Caption.Get()));
}

void SetWindowSize(frmMDIParent& main) {
    if (!ChooseWindowSize(main.TheApp(), main.WindowSize, main)) return;
    frmMDIChild* tab = main.TheTabs().Active();
    if (tab == nullptr) return;
    tab->Resize();
    tab->GridStore().GridSetFocus();
}

void ViewAndPaste(frmMDIParent& main) {
    if (auto* clipboardView = main.TheApp().Port<ClipboardView>()) clipboardView->Show();
}

template <int Index>
void mnuStyle(frmMDIParent& main) {
    ChooseTabStyle(main, Index);
}

template <class Window>
void ShowWindow(frmMDIParent& main) {
    Window(main.TheApp()).ShowModal();
}

void mnuMisc_Browser(frmMDIParent& main) {
    App& app = main.TheApp();
    LaunchProgram(app, Text(app.Settings.WebListA));
}

void CustomBrowser(frmMDIParent& main) {
    App& app = main.TheApp();
    Text browser = app.Settings.CustomBrowserPath;
    if (browser.empty() || !app.Files().FileExists(browser)) {
        ShowCannotLocate(app, browser);
    } else {
        LaunchProgram(app, browser);
    }
}

struct NamedRoutine {
    std::string_view name;
    void (*run)(frmMDIParent&);
};

constexpr std::array kRoutines{
    NamedRoutine{"mnuFile_Open", &mnuFile_Open},
    NamedRoutine{"mnuFile_SaveAll", &mnuFile_SaveAll},
    NamedRoutine{"mnuFile_Close", &mnuFile_Close},
    NamedRoutine{"mnuFile_Recent", &mnuFile_Recent},
    NamedRoutine{"mnuFile_AreLoaded", &mnuFile_AreLoaded},
    NamedRoutine{"mnuFile_Exit", [](frmMDIParent& main) { main.Close(); }},
    NamedRoutine{"mnuFile_SwitchTabsForward", [](frmMDIParent& main) { main.TheTabs().SwitchForward(); }},
    NamedRoutine{"mnuFile_SwitchTabsBack", [](frmMDIParent& main) { main.TheTabs().SwitchBack(); }},
    NamedRoutine{"mnuMisc_Calc",
                 [](frmMDIParent& main) { LaunchCompanion(main.TheApp(), Companion::Abrill); }},
    NamedRoutine{"mnuMisc_Browser", &mnuMisc_Browser},
    NamedRoutine{"mnuMisc_Explorer", [](frmMDIParent& main) { RunExplorer(main.TheApp()); }},
    NamedRoutine{"mnuFile_DirLister", [](frmMDIParent& main) { ShowDirectoryLister(main.TheApp()); }},
    NamedRoutine{"ViewAndPaste", &ViewAndPaste},
    NamedRoutine{"mnuHelpText",
                 [](frmMDIParent& main) {
                     LaunchDunmark(main.TheApp(), main.TheApp().Exchange<StateFiles>().HelpFilePath);
                 }},
    NamedRoutine{"mnuMisc_About", &ShowWindow<frmAbout>},
    NamedRoutine{"mnuMisc_Settings", [](frmMDIParent& main) { frmSettings(main).ShowModal(); }},
    NamedRoutine{"mnuMisc_YourProgram", &ShowWindow<frmSetYourProg>},
    NamedRoutine{"LoadFindText",
                 [](frmMDIParent& main) { LaunchCompanion(main.TheApp(), Companion::Ostrel); }},
    NamedRoutine{"LoadFindFiles",
                 [](frmMDIParent& main) { LaunchCompanion(main.TheApp(), Companion::Veldan); }},
    NamedRoutine{"mnuSideBar", &mnuSideBar},
    NamedRoutine{"mnuSwitchFocus", [](frmMDIParent& main) { main.mnuSwitchFocus_Click(); }},
    NamedRoutine{"NextSideBarWidth", [](frmMDIParent& main) { main.TheSideBar().NextWidth(); }},
    NamedRoutine{"SetWindowSize", &SetWindowSize},
    NamedRoutine{"StyleBack", [](frmMDIParent& main) { SetTabStyle(main, StyleStep::Back); }},
    NamedRoutine{"StyleForward", [](frmMDIParent& main) { SetTabStyle(main, StyleStep::Forward); }},
    NamedRoutine{"mnuStyle2", &mnuStyle<2>},
    NamedRoutine{"mnuStyle3", &mnuStyle<3>},
    NamedRoutine{"mnuStyle5", &mnuStyle<5>},
    NamedRoutine{"mnuStyle7", &mnuStyle<7>},
    NamedRoutine{"mnuStyle8", &mnuStyle<8>},
    NamedRoutine{"mnuStyle9", &mnuStyle<9>},
    NamedRoutine{"mnuStyle11", &mnuStyle<11>},
    NamedRoutine{"ToggleDesktop", [](frmMDIParent& main) { ShowDesktop(main.TheApp()); }},
    NamedRoutine{"ExploreCaptionFolder", &ExploreCaptionFolder},
    NamedRoutine{"CustomBrowser", &CustomBrowser},
};

} // namespace

void RunMainRoutine(frmMDIParent& main, std::string_view name) {
    const auto* found = FindEntry(kRoutines, name, &NamedRoutine::name);
    if (found != nullptr) found->run(main);
}

} // namespace korvane
