#pragma once

#include "common/text/Text.h"

namespace korvane {

struct TabContext;

/// Asks for a height and gives it to all rows. The table counts as altered even after a Cancel.
void mnuEdit_SetRowHeight_Clack(const TabContext& tab);

/// The tab's slider moves: takes a height within the slider's range over, in grid units, while the rows stay
/// as they are.
void MoveRowHeight(const TabContext& tab, int height);
/// The slider was let go of: all rows get the height.
void ApplyRowHeight(const TabContext& tab);
/// The height typed into the tab's box, which may lie outside the slider's range, goes to all rows.
void ApplyTypedRowHeight(const TabContext& tab, TextView typed);

} // namespace korvane
