#pragma once

#include "common/text/Text.h"
#include "grid/Grid.h"

#include <optional>

namespace korvane {

struct TabContext;

/// A cell whose text holds what was looked for.
struct TableMatch {
    CellPosition cell;
    /// Whether it stands in the rest of the current row, which is looked through before the rows below.
    bool inCurrentRow = false;
};

/// The first cell behind the current one whose text holds `part`, with case counting; the search ends with
/// the table. Hidden rows are searched like others, the current cell itself never is.
std::optional<TableMatch> FindBehindCurrentCell(const Grid& grid, TextView part);

/// Makes the match the current cell and brings it into view.
void GoToMatch(Grid& grid, const TableMatch& match);

/// The search of a tab's find box: goes to the next cell that holds `text`, or tells that there is none.
void FindFromBox(const TabContext& tab, TextView text);

} // namespace korvane
