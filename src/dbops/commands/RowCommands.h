#pragma once

namespace korvane {

struct TabContext;

void mnuEdit_AddOneRow_Clack(const TabContext& tab);
/// Asks how many rows to add.
void mnuEdit_AddRows_Clack(const TabContext& tab);

// The texts of the current row change places with those of the next or previous row, hidden ones included,
// and the current cell goes along. Whatever else belongs to the two rows stays where it is.
void mnuRowDown_Clack(const TabContext& tab);
void mnuRowUp_Clack(const TabContext& tab);

// Both ask first and then mark rows for deletion: the current row, or all ticked rows. A marked row stays in
// the table until the next save leaves it out.
void mnuEdit_Delete_Clack(const TabContext& tab);
void mnuDel_CheckedRows_Clack(const TabContext& tab);

} // namespace korvane
