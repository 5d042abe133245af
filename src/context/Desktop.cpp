#include "context/Desktop.h"

#include "context/App.h"
#include "platform/FileSystem.h"
#include "platform/Screen.h"
#include "platform/Shell.h"

namespace korvane {

namespace {

/// The directory "0" means none: the file manager starts in a place of its own choice.
void OpenExplorer(App& app, TextView parameters) {
    app.Shell().Open({u"Open", Text(kFileManager), Text(parameters), u"0"});
}

} // namespace

void ShowDesktop(App& app) {
    app.Shell().ToggleDesktop();
}

void ExploreFolder(App& app, TextView path) {
    app.Screen().ProcessMessages();
    const bool there = !path.empty() && app.Files().DirExists(path);
    app.Shell().Explore(there ? Text(path) : app.Files().CurrentDir());
}

void RunExplorer(App& app) {
    OpenExplorer(app, {});
}

void ShowRecycleBin(App& app) {
    OpenExplorer(app, kRecycleStoreParameters);
}

} // namespace korvane
