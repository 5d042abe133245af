#pragma once

#include "common/text/Text.h"

#include <string>
#include <vector>

namespace korvane {

using TestRow = std::vector<std::string>;

/// The bytes of a table's file as the program saves it under `path`. Its rows have no colours and flags and
/// aren't ticked, its columns have the width 240, its rows have the height 24, and both are numbered from 1.
std::string TableBytes(const Text& path, const TestRow& columns, const std::vector<TestRow>& rows);

/// The bytes of a table with one column "Name" and these cells.
std::string NameTable(const Text& path, const TestRow& names);

} // namespace korvane
