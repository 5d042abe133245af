#include "files/lists/FolderEntries.h"

#include "context/App.h"
#include "controls/lists/ListBox.h"
#include "dialogs/Questions.h"
#include "platform/Shell.h"

#include <algorithm>

namespace korvane {

namespace {

void SwapCurrentWith(ListBox& list, int neighbour) {
    const int current = list.ListIndex();
    if (current < 0 || neighbour < 0 || neighbour >= list.ListCount()) return;
    const Text moved = list.List(current);
    list.SetList(current, list.List(neighbour));
    list.SetList(neighbour, moved);
    list.SetListIndex(neighbour);
}

} // namespace

std::vector<Text> EntriesOf(const ListBox& list) {
    std::vector<Text> entries;
    entries.reserve(static_cast<std::size_t>(list.ListCount()));
    for (int index = 0; index < list.ListCount(); ++index)
        entries.push_back(list.List(index));
    return entries;
}

bool HasEntry(const ListBox& list, TextView entry) {
    const std::vector<Text> entries = EntriesOf(list);
    return std::ranges::find(entries, entry) != entries.end();
}

void AddFolderEntry(App& app, ListBox& list, const Text& folder) {
    if (HasEntry(list, folder)) return Inform(app, u"This folder is already in the list: \r\n\r\n" + folder);
    InsertEntry(list, std::max(list.ListIndex(), 0), folder);
}

void InsertEntry(ListBox& list, int index, const Text& entry) {
    const int place = std::min(index, list.ListCount());
    list.InsertItem(place, entry);
    list.SetListIndex(place);
}

void MoveEntryDown(ListBox& list) {
    SwapCurrentWith(list, list.ListIndex() + 1);
}

void MoveEntryUp(ListBox& list) {
    SwapCurrentWith(list, list.ListIndex() - 1);
}

void ExploreEntry(App& app, const ListBox& list) {
    const Text folder = list.List(list.ListIndex());
    if (!folder.empty()) app.Shell().Open({.verb = u"explore", .file = folder, .directory = folder});
}

} // namespace korvane
