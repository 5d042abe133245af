#pragma once

#include <string_view>

namespace korvane {

class Grid;
class TableModel;

/// Reads a `.tbx` file in the plainest way there is: a copy of each line, every step of every rule as it
/// comes, each cell by itself. The program's reader is held against it. False when there are too many
/// columns.
bool ReadPlainly(std::string_view bytes, TableModel& table);

/// The first difference between two tables in words; empty when they are alike.
std::string_view DifferenceBetween(const TableModel& a, const TableModel& b);

} // namespace korvane
