#pragma once

#include "platform/MessageBoxes.h"
#include "table/model/TableModel.h"
#include "tbx/base/Output.h"

#include <vector>

namespace korvane {

/// Writes everything that a load has left in the table, and the messages that it would have shown, as one
/// line of JSON in ASCII. The bytes depend on nothing else. A value that the load never set is `null`.
void WriteTableDump(const TableModel& table, const std::vector<Message>& messages, Output& out);

} // namespace korvane
