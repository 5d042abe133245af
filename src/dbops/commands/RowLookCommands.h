#pragma once

namespace korvane {

struct TabContext;

/// Gives the current row the colours that the row colour key of this index (0 to 8) sets.
void ColourCurrentRowByKey(const TabContext& tab, int index);
/// The same as a routine for each key.
template <int index>
void RowColour(const TabContext& tab) {
    ColourCurrentRowByKey(tab, index);
}

/// Shows `frmRowColour` and does what was chosen there: colours the current row, ticks the rows of a colour,
/// or hides and shows rows by font flag.
void mnuFormat_RowColour_Clack(const TabContext& tab);
/// Asks for another background colour for the whole table.
void mnuFormat_BColor_Clack(const TabContext& tab);

} // namespace korvane
