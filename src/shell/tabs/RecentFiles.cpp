#include "shell/tabs/RecentFiles.h"

#include "context/App.h"
#include "context/StandardMessages.h"
#include "dialogs/Questions.h"
#include "platform/FileSystem.h"
#include "shell/main/frmMDIParent.h"
#include "shell/recent/frmFileList.h"
#include "shell/tabs/frmMDIChild.h"

namespace korvane {

namespace {

/// No button gives this result. Kept for compatibility: recent-result-two.
constexpr std::int16_t kChooseFiles = 2;

void GoToFolderOf(FileSystem& files, const Text& path) {
    const PathStyle style = files.Style();
    const Text folder = style.DirectoryForChange(style.FolderPart(path));
    // A bare name stands in the current directory, and has to be found there afterwards too.
    if (!folder.empty() && files.DirExists(folder)) files.ChangeDir(folder);
}

void OpenFromRecord(frmMDIParent& main, const Text& path) {
    main.Recents().LoadFromRecent = 1;
    main.Pipeline().OpenDatabase(path, LoadInto::NewTab);
    main.Recents().LoadFromRecent = 0;
}

void LoadPick(frmMDIParent& main, std::size_t index) {
    FileSystem& files = main.TheApp().Files();
    Text path = main.Recents().RecentPicks[index];
    if (!files.FileExists(path)) return ShowCannotLocate(main.TheApp(), path);
    if (index == 0) DiscardPristineUntitled(main);
    GoToFolderOf(files, path);
    main.Recents().RecentOffset = main.Recents().RecentOffsets[index];
    OpenFromRecord(main, path);
}

} // namespace

void ShowRecentFiles(frmMDIParent& main) {
    frmFileList form(main.TheApp(), main.Recents(), main);
    const std::int16_t result = ShowForResult(main.TheApp(), form);
    if (result < 1) return;
    if (result == kChooseFiles) return OpenFromRecord(main, {});
    // The button for a new text comes here too, without a pick. Kept for compatibility:
    // new-text-opens-nothing.
    for (std::size_t i = 0; i < main.Recents().RecentPicks.size(); ++i)
        LoadPick(main, i);
}

void DiscardPristineUntitled(frmMDIParent& main) {
    Tabs& tabs = main.TheTabs();
    frmMDIChild* only = tabs.TabState.UpperBound() == 1 ? tabs.Document(1) : nullptr;
    if (only == nullptr || !only->Caption.Get().starts_with(u"Untitled")) return;
    TabState& state = tabs.TabState[1];
    // This isn't the mark of the table: a table that was typed into asks before it goes, and stays without a
    // slot when the user refuses. Kept for compatibility: untitled-tab-asks.
    if (state.Dirty != 0) return;
    tabs.Show(1);
    state.Discard = -1;
    state.Deleted = -1;
    main.CloseTab(*only);
}

} // namespace korvane
