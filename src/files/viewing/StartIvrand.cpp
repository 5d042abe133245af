#include "files/viewing/StartIvrand.h"

#include "common/path/PathStyle.h"
#include "context/App.h"
#include "context/Desktop.h"
#include "context/StandardMessages.h"
#include "platform/FileSystem.h"
#include "platform/Shell.h"

#include <algorithm>
#include <vector>

namespace korvane {

namespace {

/// In its own folder beside the program's, then in the program's.
std::vector<Text> PlacesOfIvrand(const FileSystem& files) {
    const PathStyle style = files.Style();
    const Text programDir = files.ProgramDir();
    const Text beside = style.JoinPath(style.DirectoryForChange(style.FolderPart(programDir)), u"Ivrand");
    std::vector<Text> places;
    for (const Text& folder : {beside, programDir}) {
        // Where no drives are, programs go by their name without ".exe" too.
        if (!style.HasDrives()) places.push_back(style.JoinPath(folder, u"Ivrand"));
        places.push_back(style.JoinPath(folder, u"Ivrand.exe"));
    }
    return places;
}

} // namespace

void StartIvrand(App& app, TextView folder) {
    const FileSystem& files = app.Files();
    std::vector<Text> places = PlacesOfIvrand(files);
    const auto found = std::ranges::find_if(places, [&](const Text& each) { return files.FileExists(each); });
    if (found != places.end()) {
        app.Shell().Run(*found, {Text(folder)}, WindowState::Minimised);
    } else if (files.Style().HasDrives()) {
        ShowCannotLocate(app, places.back());
    } else {
        ExploreFolder(app, folder);
    }
}

} // namespace korvane
