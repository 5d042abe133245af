#pragma once

namespace korvane {

struct TabContext;

/// Makes a table of the clipboard's text, which the user sees first: a line for each row, tab characters
/// between the cells, as many columns as the first line has.
void mnuImport_Clip_Clack(const TabContext& tab);

} // namespace korvane
