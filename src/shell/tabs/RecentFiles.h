#pragma once

namespace korvane {

class frmMDIParent;

/// Shows the recent files and loads those that the user picks, each on a tab of its own.
void ShowRecentFiles(frmMDIParent& main);

/// Throws the only tab away when nothing was ever loaded into it.
void DiscardPristineUntitled(frmMDIParent& main);

} // namespace korvane
