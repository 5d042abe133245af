#include "files/lister/ShownFolder.h"

#include "common/text/ScopedValue.h"
#include "context/App.h"
#include "context/exchange/ListSort.h"
#include "context/exchange/ListerRequest.h"
#include "controls/DropDown.h"
#include "dialogs/Questions.h"
#include "files/lister/rows/DiskWait.h"
#include "files/lister/rows/FileRows.h"
#include "files/tree/FolderTree.h"
#include "platform/FileSystem.h"

namespace korvane {

ShownFolder::ShownFolder(App& app, Parts parts) : app_(app), parts_(parts) {}

const Text& ShownFolder::Path() const {
    return parts_.path.Text;
}

Text ShownFolder::PathOf(TextView name) const {
    const PathStyle style = app_.Files().Style();
    return style.IsFullPath(name) ? Text(name) : style.JoinPath(Path(), name);
}

bool ShownFolder::IsListed() const {
    return !LastListedPath_.empty() && LastListedPath_ == Path();
}

bool ShownFolder::Enter() const {
    if (app_.Files().ChangeDir(Path())) return true;
    TellError(app_, u"Cannot locate this directory:\r\n\r\n" + Path());
    return false;
}

void ShownFolder::TakePath(const Text& folder) {
    app_.Exchange<ListerRequest>().ListerFolder = folder;
    parts_.path.Text = folder;
}

void ShownFolder::GoTo(const Text& folder) {
    TakePath(folder);
    parts_.wait.BeginAgain();
    {
        const ScopedValue going(going_, true);
        parts_.tree.SetTreePath(folder);
    }
    // The user can have gone elsewhere while the disk was waited for.
    if (Path() != folder) return List();
    NoteAnswer(folder);
    // A disk that didn't answer until the user stopped it isn't asked again.
    if (!IsGivenUp()) ListAgain();
}

void ShownFolder::NoteAnswer(const Text& folder) {
    GivenUpPath_ = parts_.wait.Stopped() ? folder : Text();
}

void ShownFolder::List() {
    if (IsListed()) return;
    LastListedPath_.clear();
    const ScopedValue listing(listing_, true);
    const Text folder = Path();
    if (Listing) Listing();
    const bool filled = parts_.rows.Fill(folder, parts_.pattern.Text);
    if (filled) {
        LastListedPath_ = folder;
        GivenUpPath_.clear();
    } else if (folder == Path()) {
        NoteAnswer(folder);
    }
}

void ShownFolder::ListAgain() {
    LastListedPath_.clear();
    List();
}

void ShownFolder::SortBy(int column) {
    // Kept for compatibility: lone-row-keeps-order.
    if (parts_.rows.Count() < 2) return;
    ListSort& sort = app_.Exchange<ListSort>();
    sort.ListSortColumn = static_cast<std::int16_t>(column - 1);
    sort.ListSortOrder = sort.ListSortOrder == 0 ? 1 : 0;
    // The marked rows aren't files of the folder when the user went on in the tree.
    if (!IsListed()) return ListAgain();
    if (sort.ListSortColumn == ListSort::kName) return parts_.rows.Sort();
    // The texts that are shown don't sort by their numbers.
    const std::vector<Text> marked = parts_.rows.MarkedNames();
    const Text current = parts_.rows.CurrentName();
    const bool byUser = parts_.rows.ChosenByUser();
    ListAgain();
    parts_.rows.GoToName(current);
    parts_.rows.Mark(marked);
    if (byUser) parts_.rows.NoteChoice();
}

} // namespace korvane
