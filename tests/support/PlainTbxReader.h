#pragma once

#include <string_view>

namespace korvane {

class Grid;
class TableModel;

/// Reads a `.tbx` file in the plainest way: it copies each line and takes each step of each rule by itself.
/// The program's reader is compared with it. False when there are too many columns.
bool ReadPlainly(std::string_view bytes, TableModel& table);

/// The first difference between two tables in words; empty when they are alike.
std::string_view DifferenceBetween(const TableModel& a, const TableModel& b);

} // namespace korvane
