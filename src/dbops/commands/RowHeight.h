#pragma once

#include "common/text/Text.h"

namespace korvane {

struct TabContext;

/// Asks for a height and gives it to all rows. The table counts as altered even after a Cancel.
void mnuEdit_SetRowHeight_Clack(const TabContext& tab);

/// Makes `height`, in grid units, the row height of the table while the tab's slider is moved, and leaves the
/// rows as they are. A height outside the slider's range has no effect.
void MoveRowHeight(const TabContext& tab, int height);
/// Gives all rows the row height of the table when the slider is let go.
void ApplyRowHeight(const TabContext& tab);
/// Gives all rows the height that was typed into the tab's box. It may be outside the slider's range.
void ApplyTypedRowHeight(const TabContext& tab, TextView typed);

} // namespace korvane
