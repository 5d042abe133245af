#pragma once

#include <string>

namespace korvane::bench {

/// The bytes of a `.tbx` file at the format's limit: 32,767 rows of 24 columns, about 45 bytes a cell, some
/// of them in several lines, some rows ticked, coloured or bold. The same on every run and machine.
const std::string& LimitTableBytes();

/// The path of a file with these bytes, written on first use and removed at the end of the program.
const std::string& LimitTablePath();

} // namespace korvane::bench
