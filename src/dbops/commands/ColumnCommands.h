#pragma once

namespace korvane {

struct TabContext;

/// Asks for another name for the current column.
void mnuEdit_ColumnName_Clack(const TabContext& tab);
/// Moves the texts of the current column, and of those after it, one column to the right, and names the
/// current column "NEW". A table of 23 or more columns doesn't grow, and loses the texts of its last column.
void mnuEdit_InsertColumn_Clack(const TabContext& tab);
/// Asks before it removes the current column.
void mnuEdit_DeleteColumn_Clack(const TabContext& tab);
/// Makes all columns equally wide, so that together they fill the grid.
void MnuEdit_RefreshColumnWidths_Clack(const TabContext& tab);
/// Asks for another font for the whole table.
void mnuEdit_Font_Clack(const TabContext& tab);

} // namespace korvane
