#include "shell/tabs/RecentFiles.h"

#include "common/text/ScopedValue.h"
#include "context/App.h"
#include "context/StandardMessages.h"
#include "dialogs/Questions.h"
#include "platform/FileSystem.h"
#include "shell/recent/RecentRecord.h"
#include "shell/recent/frmFileList.h"
#include "shell/tabs/LoadPipeline.h"
#include "shell/tabs/Tabs.h"
#include "shell/tabs/frmMDIChild.h"

namespace korvane {

namespace {

/// No button gives this result. Kept for compatibility: recent-result-two.
constexpr std::int16_t kChooseFiles = 2;

void GoToFolderOf(FileSystem& files, const Text& path) {
    const PathStyle style = files.Style();
    const Text folder = style.DirectoryForChange(style.FolderPart(path));
    // A bare name means a file in the current directory, which has to stay the same for the load to find it.
    if (!folder.empty() && files.DirExists(folder)) files.ChangeDir(folder);
}

} // namespace

void RecentFiles::ShowRecentFiles() {
    frmFileList form(app_, recents_, window_);
    const std::int16_t result = ShowForResult(app_, form);
    if (result < 1) return;
    if (result == kChooseFiles) return OpenFromRecord({});
    // The button for a new text comes here too, without a pick. Kept for compatibility:
    // new-text-opens-nothing.
    for (std::size_t i = 0; i < recents_.RecentPicks.size(); ++i)
        LoadPick(i);
}

void RecentFiles::LoadPick(std::size_t index) {
    FileSystem& files = app_.Files();
    Text path = recents_.RecentPicks[index];
    if (!files.FileExists(path)) return ShowCannotLocate(app_, path);
    // A first file that is lost ends this load before the empty tab goes. Kept for compatibility:
    // lost-first-file-keeps-tab.
    if (index == 0) DiscardPristineUntitled();
    GoToFolderOf(files, path);
    recents_.RecentOffset = recents_.RecentOffsets[index];
    OpenFromRecord(path);
}

void RecentFiles::Open(const Text& path) {
    Text missing = path;
    if (!app_.Files().FileExists(path)) return ShowCannotLocate(app_, missing);
    GoToFolderOf(app_.Files(), path);
    recents_.RecentOffset = 0;
    OpenFromRecord(path);
}

void RecentFiles::OpenFromRecord(const Text& path) {
    const ScopedValue fromRecord(recents_.LoadFromRecent, 1, 0);
    pipeline_.OpenDatabase(path, LoadInto::NewTab);
}

void RecentFiles::DiscardPristineUntitled() {
    frmMDIChild* only = tabs_.TabState.UpperBound() == 1 ? tabs_.Document(1) : nullptr;
    // The caption may be the name of a file. Kept for compatibility: untitled-by-caption.
    if (only == nullptr || !only->Caption.Get().starts_with(u"Untitled")) return;
    TabState& state = tabs_.TabState[1];
    // This isn't the mark of the table: a table that was typed into asks before it goes, and stays without a
    // slot when the user refuses. Kept for compatibility: untitled-tab-asks.
    if (state.Dirty != 0) return;
    tabs_.Show(1);
    state.Discard = -1;
    state.Deleted = -1;
    tabs_.Close(*only);
}

} // namespace korvane
