#pragma once

#include "common/Text.h"
#include "context/ListerRequest.h"

#include <string_view>

namespace korvane {

/// Lets the user choose files by the request block; returns when the choice is made or cancelled.
class FilePicker {
public:
    virtual ~FilePicker() = default;
    virtual void Choose(ListerRequest& request) = 0;
};

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
};

} // namespace korvane
