#pragma once

#include "controls/KeyTable.h"
#include "shell/commands/CommandCall.h"

#include <span>

namespace korvane {

struct MainParts;

/// A key of the table's grid that no menu entry binds, and what it calls.
using GridKey = KeyRow<CommandCall>;

/// The keys in the order in which they are tested: the first match wins.
std::span<const GridKey> GridKeys();

// Routines that only keys start.

/// Opens the folder of the tab's file on the desktop; the current directory where that folder isn't there.
void ExploreTableFolder(const TabContext& tab);
/// Gives the keyboard to the tab's box for the text to find, with its text selected.
void GoToFindBox(const MainParts& main);
/// Does what a click on the current column's caption does.
void SortByCurrentColumn(const MainParts& main);
/// The sidebar's next width, after which the grid has the keyboard.
void NextSideBarWidthFromGrid(const MainParts& main);

} // namespace korvane
