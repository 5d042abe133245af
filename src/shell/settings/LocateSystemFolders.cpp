#include "shell/settings/LocateSystemFolders.h"

#include "common/text/Names.h"
#include "context/App.h"
#include "platform/FileSystem.h"
#include "platform/SystemFolders.h"

namespace korvane {

namespace {

constexpr TextView kDriveC = u"C:\\";

/// What stands before the first NUL, with a separator at its end.
Text AsFolder(const Text& path, const PathStyle& style) {
    Text folder(CutAtNul(path));
    if (!folder.empty()) style.AddBackslash(folder);
    return folder;
}

} // namespace

void LocateSystemFolders(App& app) {
    const SystemFolders* folders = app.Folders();
    if (folders == nullptr) return;
    const PathStyle style = app.Files().Style();
    app.ProgramFilesDir = AsFolder(folders->ProgramFiles(), style);
    if (app.ProgramFilesDir.empty() && app.Files().DirExists(kDriveC)) app.ProgramFilesDir = Text(kDriveC);
    app.WindowsDir = AsFolder(folders->Windows(), style);
    app.SystemDir = AsFolder(folders->System(), style);
    app.FontsDir = AsFolder(folders->Fonts(), style);
    app.DocumentsDir = AsFolder(folders->Documents(), style);
}

} // namespace korvane
