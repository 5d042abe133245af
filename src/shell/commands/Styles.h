#pragma once

#include "controls/TabStyles.h"

namespace korvane {

class frmMDIParent;

/// Gives the tab strip the next or previous style.
void SetTabStyle(frmMDIParent& main, StyleStep step);

/// Gives the strip the style of an entry of `mnuStyle`, by the entry's index, with its check mark.
void ChooseTabStyle(frmMDIParent& main, int menuIndex);

/// The style number behind an index of `mnuStyle`.
int TabStyleOfMenuIndex(int menuIndex);

/// Checks the entry of `mnuStyle` that the program starts with.
void CheckFirstStyle(frmMDIParent& main);

/// Gives the surfaces of the main window the colours of the strip's style.
void ApplyStyleColours(frmMDIParent& main);

} // namespace korvane
