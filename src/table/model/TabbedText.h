#pragma once

#include "common/number/Units.h"
#include "common/text/Text.h"

namespace korvane {

class Grid;

/// The number of columns in the first line of the text, at most as many as 16 bits can count.
Col ColumnsOfTabbedText(TextView text);

/// The number of lines that end in LF, plus one for an unfinished line at the end, at most as many as 16 bits
/// can count.
Row RowsOfTabbedText(TextView text);

/// Writes the cells of the text into a grid that already has the rows for them, from the first row on. A CR
/// before the LF of a line stays in the line's last cell. Cells without a column or row in the grid are
/// dropped.
void FillFromTabbedText(Grid& grid, TextView text);

} // namespace korvane
