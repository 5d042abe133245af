#include "shell/settings/LocateSystemFolders.h"

#include "common/text/Names.h"
#include "context/App.h"
#include "context/exchange/SystemDirs.h"
#include "platform/FileSystem.h"
#include "platform/SystemFolders.h"

namespace korvane {

namespace {

constexpr TextView kDriveC = u"C:\\";

/// The text before the first NUL, with a separator at its end.
Text AsFolder(const Text& path, const PathStyle& style) {
    Text folder(CutAtNul(path));
    if (!folder.empty()) style.AddBackslash(folder);
    return folder;
}

} // namespace

void LocateSystemFolders(App& app) {
    SystemDirs& dirs = app.Exchange<SystemDirs>();
    const SystemFolders* folders = app.Folders();
    if (folders == nullptr) return;
    const PathStyle style = app.Files().Style();
    dirs.ProgramFilesDir = AsFolder(folders->ProgramFiles(), style);
    if (dirs.ProgramFilesDir.empty() && app.Files().DirExists(kDriveC)) dirs.ProgramFilesDir = Text(kDriveC);
    dirs.WindowsDir = AsFolder(folders->Windows(), style);
    dirs.SystemDir = AsFolder(folders->System(), style);
    dirs.FontsDir = AsFolder(folders->Fonts(), style);
    dirs.DocumentsDir = AsFolder(folders->Documents(), style);
}

} // namespace korvane
