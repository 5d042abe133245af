#include "context/Companions.h"

#include "context/App.h"
#include "context/Desktop.h"
#include "context/Launching.h"
#include "context/exchange/SystemDirs.h"
#include "platform/FileSystem.h"
#include "platform/Shell.h"

#include <algorithm>
#include <array>

namespace korvane {

namespace {

using StandIn = void (*)(App& app, TextView argument);

/// A full path, so that a name that starts with "-" can't be an option of the desktop's program.
void OpenOnDesktop(App& app, TextView file) {
    if (!file.empty()) app.Shell().Open({.file = app.Files().FullPath(file)});
}

void ExploreOnDesktop(App& app, TextView folder) {
    ExploreFolder(app, folder.empty() ? Text() : app.Files().FullPath(folder));
}

// The calculators of the usual desktops, the plain one of X last.
constexpr std::array<TextView, 6> kCalculators{u"gnome-calculator", u"kcalc",      u"mate-calc",
                                               u"qalculate-gtk",    u"galculator", u"xcalc"};

void StartCalculator(App& app, TextView) {
    SystemDirs& dirs = app.Exchange<SystemDirs>();
    if (app.Files().Style().HasDrives()) {
        // The path is full, because a bare name would be looked for in the current directory first, where it
        // may be anything.
        if (!dirs.SystemDir.empty()) app.Shell().Run(dirs.SystemDir + u"calc.exe", {}, WindowState::Normal);
        return;
    }
    std::ranges::find_if(kCalculators, [&app](TextView calculator) {
        return app.Shell().Run(calculator, {}, WindowState::Normal) != 0;
    });
}

struct CompanionProgram {
    TextView path;
    StandIn standIn = nullptr;
};

// The order is that of `Companion`.
constexpr std::array<CompanionProgram, 9> kCompanions{{
    {u"C:\\Drive_G\\Sandrel\\Abrill\\Abrill.exe", StartCalculator},
    {u"C:\\Drive_G\\Sandrel\\Dunmark\\Dunmark.exe", OpenOnDesktop},
    {u"C:\\Drive_G\\Sandrel\\Hadrell\\Nimbrel\\Nimbrel.exe", OpenOnDesktop},
    {u"C:\\Drive_G\\Sandrel\\Hadrell\\Tessaly\\Tessaly.exe", OpenOnDesktop},
    {u"C:\\Drive_G\\Sandrel\\Hadrell\\Lorrit\\Lorrit.exe", ExploreOnDesktop},
    {u"C:\\Drive_G\\Sandrel\\Wexley\\Wexley.exe"},
    {u"C:\\Drive_G\\TolmereSet\\TolmereSet\\TolmereSet.exe"},
    {u"C:\\Drive_G\\TolmereSet\\Ostrel\\Ostrel.exe"},
    {u"C:\\Drive_G\\TolmereSet\\Veldan\\Veldan.exe"},
}};

/// A file or folder that exists is meant as it is, even when its name contains a quote.
TextView StandInArgument(const FileSystem& files, TextView argument) {
    const bool isThere = files.FileExists(argument) || files.DirExists(argument);
    return isThere ? argument : BareArgument(argument);
}

} // namespace

bool StartCompanion(App& app, Companion companion, TextView argument) {
    return LaunchProgram(app, kCompanions[static_cast<std::size_t>(companion)].path, argument) != 0;
}

void LaunchCompanion(App& app, Companion companion, TextView argument) {
    const CompanionProgram& program = kCompanions[static_cast<std::size_t>(companion)];
    const bool started = StartCompanion(app, companion, argument);
    if (!started && program.standIn != nullptr) program.standIn(app, StandInArgument(app.Files(), argument));
}

void LaunchLorrit(App& app, TextView folder) {
    LaunchCompanion(app, Companion::Lorrit, folder);
}

void LaunchDunmark(App& app, TextView file) {
    LaunchCompanion(app, Companion::Dunmark, file);
}

} // namespace korvane
