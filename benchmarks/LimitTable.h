#pragma once

#include <string>

namespace korvane::bench {

/// The bytes of a `.tbx` file at the format's limit: 32,767 rows of 24 columns with about 45 bytes a cell.
/// Some cells have several lines, and some rows are ticked, coloured or bold. It is the same on every run and
/// machine.
const std::string& LimitTableBytes();

/// The path of a file with these bytes. It is written when it is first needed, and removed at the end of the
/// program.
const std::string& LimitTablePath();

} // namespace korvane::bench
