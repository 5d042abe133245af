#pragma once

#include "common/text/Text.h"

#include <vector>

namespace korvane {

class App;
class ListBox;

// What the windows that list folders do to their entries.

std::vector<Text> EntriesOf(const ListBox& list);
bool HasEntry(const ListBox& list, TextView entry);

/// Puts a folder in front of the current entry and makes it the current one; a box refuses one that is there
/// already.
void AddFolderEntry(App& app, ListBox& list, const Text& folder);
/// Puts an entry at the index, or at the end where that is past it, and makes it the current one.
void InsertEntry(ListBox& list, int index, const Text& entry);
/// Exchanges the current entry with its neighbour, and goes with it; nothing happens at the ends.
void MoveEntryDown(ListBox& list);
void MoveEntryUp(ListBox& list);

/// Opens the current entry's folder in the desktop's file manager.
void ExploreEntry(App& app, const ListBox& list);

} // namespace korvane
