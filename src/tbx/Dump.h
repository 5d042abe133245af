#pragma once

#include "platform/MessageBoxes.h"
#include "table/TableModel.h"
#include "tbx/Output.h"

#include <vector>

namespace korvane {

/// Writes everything that a load has left in the table, and the messages that it would have shown, as one
/// line of JSON in ASCII whose bytes depend on nothing else. `null` stands where the load never set the
/// value.
void WriteTableDump(const TableModel& table, const std::vector<Message>& messages, Output& out);

} // namespace korvane
