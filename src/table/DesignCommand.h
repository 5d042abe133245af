#pragma once

namespace korvane {

struct TabContext;

/// Lets the user name columns and turns the tab into a new table of eight empty rows with these, under the
/// default name, which isn't on disk yet. The columns come behind those that the grid holds.
void mnuEdit_DesignDb_Clack(const TabContext& tab);

} // namespace korvane
