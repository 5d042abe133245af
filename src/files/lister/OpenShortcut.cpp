#include "files/lister/OpenShortcut.h"

#include "context/App.h"
#include "files/lister/rows/NonTextFiles.h"
#include "platform/Shell.h"

namespace korvane {

bool OpenShortcut(App& app, const Text& path) {
    if (!IsShortcutFile(path)) return false;
    app.Shell().Open({.file = Text(kFileManager), .parameters = path});
    return true;
}

} // namespace korvane
