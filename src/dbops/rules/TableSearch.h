#pragma once

#include "common/text/Text.h"
#include "grid/Grid.h"

#include <optional>

namespace korvane {

struct TabContext;

/// A cell whose text contains what was searched for.
struct TableMatch {
    CellPosition cell;
    /// Whether the cell is in the rest of the current row, which is searched before the rows below.
    bool inCurrentRow = false;
};

/// The first cell after the current one whose text contains `part` in the same case. The search ends at the
/// last cell of the table. Hidden rows are searched like others, and the current cell isn't searched.
std::optional<TableMatch> FindBehindCurrentCell(const Grid& grid, TextView part);

/// Makes the match the current cell and brings it into view.
void GoToMatch(Grid& grid, const TableMatch& match);

/// The search of a tab's find box: goes to the next cell that holds `text`, or tells that there is none.
void FindFromBox(const TabContext& tab, TextView text);

} // namespace korvane
