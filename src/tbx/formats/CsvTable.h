#pragma once

#include "common/text/CodePage.h"
#include "common/text/Text.h"

#include <string>
#include <string_view>

namespace korvane {

class Grid;

/// Fills an empty grid from a CSV file whose first record names the columns. The bytes are UTF-8, or of the
/// grid's code page when they aren't valid UTF-8. Line breaks in cells become CR LF, those in headers a
/// blank. A record that is too short is filled up with empty cells, and an empty line is no record unless
/// there is just one column. A record that is too long is a fault, and so is a table that no `.tbx` file can
/// hold. Returns what the fault is, or an empty text when there is none. After a fault the rest isn't read.
std::string FillFromCsv(Grid& grid, std::string_view bytes, char delimiter);

/// The text with `lineBreak` in place of every line break (CR LF, a lone CR or a lone LF).
Text WithLineBreaks(TextView text, TextView lineBreak);

} // namespace korvane
