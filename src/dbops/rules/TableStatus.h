#pragma once

#include "common/text/Text.h"

#include <vector>

namespace korvane {

class TableModel;
struct DateTime;

/// Where the user is in the table, the most important part first: "Row 12 of 201", "34 ticked", "filtered",
/// "saved 23:32". Nothing for a table without rows.
std::vector<Text> TableStatus(const TableModel& table, const DateTime& now);

} // namespace korvane
