#pragma once

namespace korvane {

struct TabContext;

// What the editing keys do to the current cell while it isn't edited.

void CopyCell(const TabContext& tab);
void CutCell(const TabContext& tab);
void ClearCell(const TabContext& tab);
/// Fills the cells from the current one on with the clipboard's tabbed text, and appends rows for it. Hidden
/// rows are passed over. Where not all of it fits the user is asked first.
void PasteCells(const TabContext& tab);

} // namespace korvane
