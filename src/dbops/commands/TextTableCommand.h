#pragma once

#include "table/TabContext.h"

namespace korvane {

/// Puts the table, or its ticked rows, into the text window as a formatted table.
void mnuEdit_MakeTable_Clack(const TabContext& tab);

} // namespace korvane
