#pragma once

#include "common/text/Text.h"

#include <vector>

namespace korvane {

/// The cells of a text, row by row. Rows needn't be equally long.
using TextRows = std::vector<std::vector<Text>>;

/// Reads a text as programs with tables copy it: lines are rows, and tab characters separate cells. A cell
/// with tabs or line ends in it has double quotes around it, and doubled ones in it. A line end at the end of
/// the text begins no row. Line ends in a cell become CR LF.
TextRows RowsOfTextBlock(TextView text);

} // namespace korvane
