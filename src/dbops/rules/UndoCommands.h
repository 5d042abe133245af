#pragma once

namespace korvane {

struct TabContext;

/// Takes the table's latest edit back. Nothing happens when there is none, or no history.
void UndoEdit(const TabContext& tab);
/// Makes the edit again that was undone last.
void RedoEdit(const TabContext& tab);

/// Ends an edit that a command makes while its window is open, so that it is undone by itself and not
/// together with the others that are made from the same window.
void EndEdit(const TabContext& tab);

} // namespace korvane
