#pragma once

namespace korvane {

struct TabContext;

/// Makes a table of the clipboard's text, which the user sees first. Each line becomes a row, tab characters
/// separate the cells, and the first line decides how many columns there are.
void mnuImport_Clip_Clack(const TabContext& tab);

} // namespace korvane
