#include "files/lister/FolderCommands.h"

#include "common/text/ScopedValue.h"
#include "context/App.h"
#include "context/Companions.h"
#include "context/StoredPaths.h"
#include "context/exchange/FileOperation.h"
#include "context/exchange/FolderPick.h"
#include "context/exchange/ListerRequest.h"
#include "context/ports/FavouriteFolders.h"
#include "dialogs/Questions.h"
#include "files/jobs/Explore.h"
#include "files/jobs/frmFolderOpNotify.h"
#include "files/lister/ShownFolder.h"
#include "files/lister/rows/DiskWait.h"
#include "files/lists/frmFoldersToday.h"
#include "files/names/frmNewDir.h"
#include "files/names/frmRenDir.h"
#include "files/tree/FolderTree.h"
#include "platform/FileSystem.h"
#include "platform/Shell.h"

#include <algorithm>

namespace korvane {

namespace {

constexpr std::int16_t kForLister = 11;

Text ParentOf(const PathStyle& style, const Text& folder) {
    return style.DirectoryForChange(style.FolderPart(folder));
}

Text RootOf(const PathStyle& style, Text folder) {
    while (!style.IsRoot(folder) && !ParentOf(style, folder).empty())
        folder = ParentOf(style, folder);
    return folder;
}

} // namespace

FolderCommands::FolderCommands(App& app, ShownFolder& folder, FolderTree& tree, DiskWait& wait)
    : app_(app), folder_(folder), tree_(tree), wait_(wait) {}

std::optional<bool> FolderCommands::IsThere(const Text& folder) {
    return AnswerTo<bool>(
        [this](const DiskQuestion& question) { return wait_.AskForCommand(question); },
        [folder](const FileSystem& files, const StillWaits&) { return files.DirExists(folder); });
}

void FolderCommands::NewFolder() {
    if (!IsThere(folder_.Path()) || !folder_.Enter()) return;
    frmNewDir window(app_);
    if (ShowForResult(app_, window) == 1) folder_.GoTo(app_.Exchange<FileOperation>().NewFolderResult);
}

void FolderCommands::RenameFolder() {
    if (!IsThere(folder_.Path())) return;
    app_.Exchange<ListerRequest>().ListerFolder = folder_.Path();
    frmRenDir window(app_);
    if (ShowForResult(app_, window) != 1) return;
    tree_.Fill();
    folder_.GoTo(app_.Exchange<FileOperation>().NewFolderResult);
}

void FolderCommands::DeleteFolder() {
    FileSystem& files = app_.Files();
    const Text folder = folder_.Path();
    if (files.Style().IsRoot(folder)) return TellError(app_, u"You cannot delete the root directory!");
    if (!IsThere(folder)) return;
    const Text parent = ParentOf(files.Style(), folder);
    // Some systems hold on to a folder that is the current directory.
    files.ChangeDir(RootOf(files.Style(), folder));
    if (!app_.Shell().Recycle(folder, RecycleTalk::AsksAndShows)) {
        tree_.Fill();
        return folder_.GoTo(folder);
    }
    tree_.Remove(folder);
    folder_.GoTo(parent);
    TellOfDeletion(folder);
}

void FolderCommands::TellOfDeletion(const Text& folder) {
    frmFolderOpNotify notify(app_);
    notify.TellOfDeletion(folder);
    notify.ShowModal();
}

void FolderCommands::Refresh() {
    tree_.Fill();
    folder_.GoTo(Text(app_.Exchange<ListerRequest>().ListerFolder));
}

void FolderCommands::Explore() {
    korvane::Explore(app_, folder_.Path());
    folder_.ListAgain();
}

void FolderCommands::StartLorrit() {
    LaunchLorrit(app_, folder_.Path());
}

void FolderCommands::ShowTodaysFolders(NoteFolder note) {
    FolderPick& pick = app_.Exchange<FolderPick>();
    const bool isNoted = std::ranges::count(pick.TodaysFolders, folder_.Path()) > 0;
    if (note == NoteFolder::Yes && !isNoted) pick.TodaysFolders.push_back(folder_.Path());
    pick.FolderPicked.clear();
    frmFoldersToday window(app_, folder_.Path());
    if (ShowForResult(app_, window) == frmFoldersToday::kToFavourites) return GetTarget();
    if (!IsThere(pick.FolderPicked).value_or(false)) return;
    MapFolderPath(app_, pick.FolderPicked);
    const Text hint = app_.Exchange<ListerRequest>().CurrentFolderHint;
    if (!hint.empty()) folder_.GoTo(hint);
}

void FolderCommands::GetTarget() {
    auto* favourites = app_.Port<FavouriteFolders>();
    if (favourites == nullptr) return;
    ListerRequest& request = app_.Exchange<ListerRequest>();
    const ScopedValue mode(app_.Exchange<FolderPick>().FavouritePickMode, kForLister, 0);
    request.ListerFolder = folder_.Path();
    request.ChosenFilePath.clear();
    app_.DialogResult = 0;
    favourites->Show();
    // For whoever opened the lister it would be a chosen file.
    const Text folder = std::exchange(request.ChosenFilePath, Text());
    if (app_.DialogResult == 1 && !folder.empty()) folder_.GoTo(folder);
}

} // namespace korvane
