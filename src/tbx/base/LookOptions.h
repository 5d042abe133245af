#pragma once

#include "dbops/rules/TextTable.h"

#include <string>
#include <string_view>

namespace korvane {

/// Takes an option for the look of a table. Returns what is wrong with its value; empty when nothing is, or
/// when the letter is that of another option.
std::string ReadLook(char letter, std::string_view value, TextTableLook& look);

} // namespace korvane
