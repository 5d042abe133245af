#pragma once

#include "common/text/Text.h"

#include <string>
#include <vector>

namespace korvane {

using TestRow = std::vector<std::string>;

/// The bytes of a table's file as a save under `path` writes them: rows without colours and flags, all of
/// them not ticked, columns 240 and rows 24 high, numbered from 1.
std::string TableBytes(const Text& path, const TestRow& columns, const std::vector<TestRow>& rows);

/// One column "Name" with these cells.
std::string NameTable(const Text& path, const TestRow& names);

} // namespace korvane
