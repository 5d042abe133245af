#pragma once

#include "common/number/Units.h"
#include "common/text/Text.h"

namespace korvane {

class Grid;

/// The columns of the text's first line, at most as many as a table counts.
Col ColumnsOfTabbedText(TextView text);

/// The lines that end in LF, and an unfinished one at the end, at most as many as a table takes.
Row RowsOfTabbedText(TextView text);

/// Writes the text's cells into a grid that has its rows, from the first one on. A CR in front of a line's LF
/// stays in its last cell. What has no column or row in the grid is dropped.
void FillFromTabbedText(Grid& grid, TextView text);

} // namespace korvane
