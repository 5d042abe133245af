#pragma once

#include "common/number/Units.h"
#include "common/text/CodePage.h"
#include "common/text/Text.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

/// The table that a CSV file holds.
struct CsvTable {
    std::vector<Text> headers;
    /// Each has one text for each header.
    std::vector<std::vector<Text>> rows;
    /// Why there is no table; empty when there is one.
    std::string fault;
};

/// Makes a table of a CSV file whose first record names the columns. The bytes are UTF-8, or of the code page
/// when they aren't valid UTF-8. Line breaks in cells become CR LF, those in headers a blank. A record that
/// is too short is filled up with empty cells, and an empty line is no record unless there is just one
/// column. A record that is too long is a fault, and so is a table that no `.tbx` file can hold.
CsvTable ReadCsvTable(std::string_view bytes, char delimiter, const CodePage& page);

/// The text with `lineBreak` in place of every line break (CR LF, a lone CR or a lone LF).
Text WithLineBreaks(TextView text, TextView lineBreak);

} // namespace korvane
