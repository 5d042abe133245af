#pragma once

namespace korvane {

struct TabContext;

/// Fills the table from the file `TxtDbFile`; shows a message when the file can't be loaded or isn't a table
/// that the program can hold.
void ReadTableData(const TabContext& tab);

/// Writes the table to the file `TxtDbFile`, over what it held; shows a message when that fails, and then
/// leaves `TableAltered` as it was. A `TableKeeper` guards what may be lost.
void SaveThisTable(const TabContext& tab);

} // namespace korvane
