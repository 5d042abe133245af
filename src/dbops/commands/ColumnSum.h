#pragma once

namespace korvane {

struct TabContext;

/// Adds up the current column and puts the total in a new row.
void mnuCalc_Add_Clack(const TabContext& tab);

} // namespace korvane
