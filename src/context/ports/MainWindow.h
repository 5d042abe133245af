#pragma once

#include "common/text/Text.h"

#include <string_view>

namespace korvane {

/// What windows below the main window ask of it.
class MainWindow {
public:
    virtual ~MainWindow() = default;
    /// Moves the keyboard between the grid and the sidebar.
    virtual void mnuSwitchFocus_Click() = 0;
    /// Shows the table's menu at the mouse pointer.
    virtual void ShowPopupMenu() = 0;
    /// Runs a command as if it were chosen in the menu.
    virtual void RunCommand(std::string_view name) = 0;
    /// The folder that the active tab's caption names; empty when it names none, and, with a message, when no
    /// tab is open.
    virtual Text GetActiveFolder() = 0;
};

} // namespace korvane
