#pragma once

namespace korvane {

struct TabContext;

/// Lets the user name columns, and turns the tab into a new table of eight empty rows with these columns. The
/// table gets the default name and isn't on disk yet. The columns come after those that the grid has.
void mnuEdit_DesignDb_Clack(const TabContext& tab);

} // namespace korvane
