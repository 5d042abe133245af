#pragma once

#include <string_view>

namespace korvane {

class Grid;
class TableModel;

/// Reads a `.tbx` file in the simplest possible way: it copies each line, takes every step of every rule in
/// turn, and sets each cell by itself. The program's reader is compared with it. Returns false when there are
/// too many columns.
bool ReadPlainly(std::string_view bytes, TableModel& table);

/// Names the first difference between two tables, or is empty when there is none.
std::string_view DifferenceBetween(const TableModel& a, const TableModel& b);

} // namespace korvane
