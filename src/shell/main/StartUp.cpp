#include "shell/main/StartUp.h"

#include "context/App.h"
#include "context/WindowFitting.h"
#include "context/exchange/StartState.h"
#include "context/exchange/StateFiles.h"
#include "platform/FileSystem.h"
#include "platform/InstanceChannel.h"
#include "platform/Screen.h"
#include "shell/main/HandOver.h"
#include "shell/main/frmMDIParent.h"
#include "shell/settings/LocateSystemFolders.h"
#include "shell/settings/SettingsFile.h"
#include "shell/settings/WordRules.h"
#include "shell/tabs/QuotedPath.h"

namespace korvane {

namespace {

constexpr std::int16_t kStartTabUnit = 720;

void SetStartValues(App& app) {
    StateFiles& files = app.Exchange<StateFiles>();
    app.Settings.TabUnitTwips = kStartTabUnit;
    app.Exchange<StartState>().FirstLoadPending = -1;
    const PathStyle style = app.Files().Style();
    files.HelpFilePath = style.JoinPath(app.Files().ProgramDir(), u"Korvane_Help.rtf");
    const Text stateDir = app.Files().StateDir();
    files.IniFilePath = style.JoinPath(stateDir, u"Korvane.ini");
    files.RecFilePath = style.JoinPath(stateDir, u"Korvane.rec");
    SetWordRules(app);
}

void ApplySettings(frmMDIParent& main) {
    const Settings& settings = main.TheApp().Settings;
    if (!settings.MenuFontName.empty() && settings.MenuFontSize > 0) {
        main.OfficeMenu1.Font =
            FontSpec{settings.MenuFontName, settings.MenuFontSize, settings.MenuFontBold != 0};
    }
    main.MDITabs1.Style = settings.TabStyle;
}

void PlaceWindow(frmMDIParent& main) {
    const Settings& settings = main.TheApp().Settings;
    // What is stored goes to the fitting, whatever the screen made of it: a stored 0 is a place never stored.
    Rect place{Twips{settings.MainLeft}, Twips{settings.MainTop}, Twips{settings.MainWidth},
               Twips{settings.MainHeight}};
    main.Top = place.top;
    main.Left = place.left;
    main.Height = place.height;
    main.Width = place.width;
    FitWindowToWorkArea(main.TheApp().Screen().WorkArea(), main, place, kMainWindowGap);
}

void ListenForFiles(frmMDIParent& main) {
    main.TheApp().Instance().Listen({
        [&main](TextView path) { main.txtCommand.Text = Text(path); },
        [&main] { return main.txtCommand.Text.Get().empty(); },
        [&main] { main.Host().Raise(main); },
    });
}

void EndSecondStart(frmMDIParent& main, const Text& startFile) {
    const bool answered = HandOver(main.TheApp(), startFile);
    main.Close();
    if (answered) main.TheApp().Instance().ActivateRunning();
}

} // namespace

void StartUp(frmMDIParent& main) {
    App& app = main.TheApp();
    StartState& start = app.Exchange<StartState>();
    SetStartValues(app);
    LocateSystemFolders(app);
    ReadSettings(app);
    ApplySettings(main);
    main.Recents().Read(app);
    PlaceWindow(main);
    main.TheSideBar().BuildSideBar();
    main.Resize();
    // The whole line is one path, blanks and all.
    const Text startFile = WithoutOuterQuotes(main.CommandLine());
    start.SecondInstance = 0;
    start.LoadedByCommand = 0;
    if (app.Instance().PreviousInstanceRuns()) return EndSecondStart(main, startFile);
    main.MDITabs1.On = true;
    ListenForFiles(main);
    if (!startFile.empty() && app.Files().FileExists(startFile)) {
        main.Pipeline().OpenDatabase(startFile, LoadInto::NewTab);
    }
}

} // namespace korvane
