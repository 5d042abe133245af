#include "context/ShellHelpers.h"

#include "context/App.h"
#include "platform/FileSystem.h"
#include "platform/Screen.h"
#include "platform/Shell.h"

namespace korvane {

void ExploreFolder(App& app, TextView folder) {
    app.Screen().ProcessMessages();
    const bool there = !folder.empty() && app.Files().DirExists(folder);
    app.Shell().Explore(there ? Text(folder) : app.Files().CurrentDir());
}

void ShowDesktop(App& app) {
    app.Shell().ToggleDesktop();
}

void RunExplorer(App& app) {
    app.Shell().Open({u"Open", u"explorer.exe", {}, u"0"});
}

} // namespace korvane
