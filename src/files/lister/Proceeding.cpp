#include "files/lister/Proceeding.h"

#include "context/App.h"
#include "context/FileNames.h"
#include "context/exchange/FileOperation.h"
#include "context/exchange/ListerRequest.h"
#include "dialogs/Questions.h"
#include "files/lister/OpenShortcut.h"
#include "files/lister/ShownFolder.h"
#include "files/lister/rows/DiskWait.h"
#include "files/lister/rows/FileRows.h"
#include "files/lister/rows/NonTextFiles.h"
#include "files/viewing/ViewFileByType.h"
#include "platform/FileSystem.h"

#include <algorithm>
#include <limits>

namespace korvane {

namespace {

constexpr int kMostFiles = std::numeric_limits<std::int16_t>::max();

// Nobody sets the last two. Kept for compatibility: lister-sleeping-modes.
constexpr std::int16_t kSave = 1;
constexpr std::int16_t kPickToAppend = 2;
constexpr std::int16_t kPickFolder = 77;

bool IsBlank(TextView text) {
    return Trim(text).empty();
}

} // namespace

Proceeding::Proceeding(App& app, const ShownFolder& folder, const FileRows& rows, DiskWait& wait)
    : app_(app), folder_(folder), rows_(rows), wait_(wait) {}

ListerRequest& Proceeding::Request() const {
    return app_.Exchange<ListerRequest>();
}

bool Proceeding::Run(const Text& name) {
    switch (Request().ListerMode) {
    case kPickToAppend:
        return PickToAppend(name);
    case kPickFolder:
        return PickFolder();
    default:
        return LoadOrSave(name);
    }
}

bool Proceeding::PickFolder() {
    Request().ChosenFilePath = folder_.Path();
    return true;
}

bool Proceeding::PickToAppend(const Text& name) {
    if (IsBlank(name)) {
        Warn(app_, u"You must choose a file to append data to.\r\n\r\nCheck input line on bottom of screen.");
        return false;
    }
    app_.Exchange<FileOperation>().FileOpName = folder_.PathOf(name);
    return true;
}

bool Proceeding::LoadOrSave(const Text& name) {
    const bool saves = Request().ListerMode == kSave;
    const Text path = folder_.PathOf(name);
    if (OpenShortcut(app_, path)) return false;
    // A path is refused for its separator. Kept for compatibility: save-takes-bare-name.
    if (saves && !CheckFileName(app_, name)) return false;
    if (IsBlank(name)) {
        Warn(app_, u"No file specified yet.");
        return false;
    }
    const std::optional<bool> there = IsThere(path);
    const bool taken = there && (!saves || !*there || MayOverwrite(path));
    Request().ChosenFilePath = taken ? path : Text();
    if (taken && !saves) CollectMarked(name);
    return taken;
}

std::optional<bool> Proceeding::IsThere(const Text& path) {
    return AnswerTo<bool>(
        [this](const DiskQuestion& question) { return wait_.AskForCommand(question); },
        [path](const FileSystem& files, const StillWaits&) { return files.FileExists(path); });
}

bool Proceeding::MayOverwrite(const Text& path) {
    return AskYesNo(app_, u"Overwrite disk version of this file ?\r\n\r\n\"" + path + u"\"");
}

/// The row that the list began with counts only when its name was taken.
bool Proceeding::IsMarkedByUser(const Text& name) const {
    return rows_.ChosenByUser() || app_.Files().Style().SameName(rows_.CurrentName(), name);
}

void Proceeding::CollectMarked(const Text& name) {
    if (!folder_.IsListed() || !IsMarkedByUser(name)) return;
    std::vector<Text> marked = rows_.MarkedNames();
    std::erase_if(marked, [](const Text& each) { return IsBlank(each); });
    if (marked.empty()) return;
    app_.Files().ChangeDir(folder_.Path());
    ListerRequest& request = Request();
    request.ChosenFiles.assign(1, Text());
    request.ChosenFileCount = 0;
    for (const Text& each : marked) {
        if (request.ChosenFileCount == kMostFiles) return;
        Take(each);
        if (!IsNonTextFile(each)) continue;
        // It is viewed, and nothing is loaded. Kept for compatibility: picked-picture-is-viewed.
        request.ChosenFileCount = 0;
        FileOperation& file = app_.Exchange<FileOperation>();
        file.FileOpFolder = folder_.Path();
        file.FileOpName = request.ChosenFileFull;
        ViewFileByType(app_, request.ChosenFileFull);
        return;
    }
}

void Proceeding::Take(const Text& name) {
    ListerRequest& request = Request();
    request.ChosenFileFolder = folder_.Path();
    app_.Files().Style().AddBackslash(request.ChosenFileFolder);
    request.ChosenFileFull = folder_.PathOf(name);
    request.ChosenFileName = name;
    request.ChosenFiles.push_back(request.ChosenFileFull);
    ++request.ChosenFileCount;
}

} // namespace korvane
