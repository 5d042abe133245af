#include "context/StoredPaths.h"

#include "common/path/DriveForms.h"
#include "context/App.h"
#include "context/DiskQuestions.h"
#include "context/exchange/ListerRequest.h"
#include "platform/FileSystem.h"
#include "platform/MessageBoxes.h"
#include "platform/Shell.h"

namespace korvane {

namespace {

PathQuestion FileExistsOn(const FileSystem& files) {
    return [&files](TextView path) { return files.FileExists(path); };
}

void ShowCannotLocateDirectory(App& app, const Text& folder) {
    app.Shell().Beep();
    app.Messages().Show({u"Cannot locate this directory:\r\n\r\n" + folder, MessageIcon::Stop});
}

} // namespace

Text MapDrivePath(const FileSystem& files, TextView path) {
    return MapDrivePath(files.Style(), path, FileExistsOn(files));
}

Text SwapDriveForm(const FileSystem& files, TextView path) {
    return SwapDriveForm(files.Style(), path, FileExistsOn(files));
}

Text MapFolderPath(App& app, TextView path) {
    if (path.starts_with(u'-') || Trim(path).empty()) return Text(path);
    const FileSystem& files = app.Files();
    const auto isThere = [&app](const Text& folder) { return HasFolderSoon(app, folder).value_or(false); };
    const Text folder = isThere(Text(path)) ? Text(path) : OtherFolderForm(files.Style(), path);
    if (isThere(folder)) {
        app.Exchange<ListerRequest>().CurrentFolderHint = folder;
    } else {
        ShowCannotLocateDirectory(app, folder);
    }
    return folder;
}

} // namespace korvane
