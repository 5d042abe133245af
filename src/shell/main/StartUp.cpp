#include "shell/main/StartUp.h"

#include "context/App.h"
#include "context/WindowFitting.h"
#include "context/exchange/StartState.h"
#include "context/exchange/StateFiles.h"
#include "controls/Form.h"
#include "controls/Menu.h"
#include "controls/TextBox.h"
#include "controls/views/TabStrip.h"
#include "platform/FileSystem.h"
#include "platform/InstanceChannel.h"
#include "platform/Screen.h"
#include "shell/commands/MainParts.h"
#include "shell/commands/SideBar.h"
#include "shell/main/HandOver.h"
#include "shell/recent/RecentRecord.h"
#include "shell/settings/LocateSystemFolders.h"
#include "shell/settings/SettingsFile.h"
#include "shell/settings/WordRules.h"
#include "shell/tabs/LoadPipeline.h"
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
    files.IniFilePath = OwnSettingsFile(app.Files());
    files.RecFilePath = style.JoinPath(app.Files().StateDir(), u"Korvane.rec");
    SetWordRules(app);
}

void ApplySettings(const MainParts& main) {
    const Settings& settings = main.app.Settings;
    if (!settings.MenuFontName.empty() && settings.MenuFontSize > 0) {
        main.menuBar.Font =
            FontSpec{settings.MenuFontName, settings.MenuFontSize, settings.MenuFontBold != 0};
    }
    main.strip.Style = settings.TabStyle;
}

void PlaceWindow(const MainParts& main) {
    const Settings& settings = main.app.Settings;
    // The fitting gets the stored values and not those of the window, because a stored 0 means that no place
    // was stored yet.
    Rect place{Twips{settings.MainLeft}, Twips{settings.MainTop}, Twips{settings.MainWidth},
               Twips{settings.MainHeight}};
    main.window.Top = place.top;
    main.window.Left = place.left;
    main.window.Height = place.height;
    main.window.Width = place.width;
    FitWindowToWorkArea(main.app.Screen().WorkArea(), main.window, place, kMainWindowGap);
}

void ListenForFiles(const MainParts& main, TextBox& txtCommand) {
    main.app.Instance().Listen({
        [&txtCommand](TextView path) { txtCommand.Text = Text(path); },
        [&txtCommand] { return txtCommand.Text.Get().empty(); },
        [&window = main.window] { window.Host().Raise(window); },
    });
}

void EndSecondStart(const MainParts& main, const Text& startFile) {
    const bool answered = HandOver(main.app, startFile);
    main.window.Close();
    if (answered) main.app.Instance().ActivateRunning();
}

} // namespace

void StartUp(const MainParts& main, TextBox& txtCommand, const Text& commandLine) {
    App& app = main.app;
    StartState& start = app.Exchange<StartState>();
    SetStartValues(app);
    LocateSystemFolders(app);
    ReadSettings(app);
    ApplySettings(main);
    main.recents.Read(app);
    PlaceWindow(main);
    main.sideBar.BuildSideBar();
    main.window.Resize();
    // The whole line is one path, even when it contains blanks.
    const Text startFile = WithoutOuterQuotes(commandLine);
    start.SecondInstance = 0;
    start.LoadedByCommand = 0;
    if (app.Instance().PreviousInstanceRuns()) return EndSecondStart(main, startFile);
    main.strip.On = true;
    ListenForFiles(main, txtCommand);
    if (!startFile.empty() && app.Files().FileExists(startFile)) {
        main.pipeline.OpenDatabase(startFile, LoadInto::NewTab);
    }
}

} // namespace korvane
