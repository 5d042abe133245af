#pragma once

class QWidget;

namespace korvane {

/// The window above which a dialog opens, which lives at least as long as the dialog: the active one, but not
/// a menu that is closing. May be null.
QWidget* DialogParent();

} // namespace korvane
