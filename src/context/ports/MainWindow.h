#pragma once

#include "common/text/Text.h"

#include <string_view>

namespace korvane {

class Form;
struct KeyEvent;

/// The commands that windows below the main window run by name.
namespace CommandName {
inline constexpr std::string_view mnuFile_Close = "mnuFile_Close";
inline constexpr std::string_view mnuHelpText = "mnuHelpText";
inline constexpr std::string_view mnuMisc_Clock = "mnuMisc_Clock";
inline constexpr std::string_view mnuMisc_Settings = "mnuMisc_Settings";
inline constexpr std::string_view mnuMisc_Wallpaper = "mnuMisc_Wallpaper";
inline constexpr std::string_view mnuMisc_Websites = "mnuMisc_Websites";
inline constexpr std::string_view mnuMisc_YourProgram = "mnuMisc_YourProgram";
} // namespace CommandName

/// What windows below the main window ask of it.
class MainWindow {
public:
    virtual ~MainWindow() = default;
    /// Takes a key that went down in the grid of the active tab.
    virtual void GridKeyDown(KeyEvent& key) = 0;
    /// Shows the table's menu at the mouse pointer.
    virtual void ShowPopupMenu() = 0;
    /// Runs a command as if it were chosen in the menu. An unknown name does nothing, silently.
    virtual void RunCommand(std::string_view name) = 0;
    /// The folder that the active tab's caption names; empty when it names none, and, with a message, when no
    /// tab is open.
    virtual Text GetActiveFolder() = 0;
    /// The window itself, beside which others are put.
    virtual Form& Window() = 0;
    /// Shows the recent files; `DialogResult` says what the user wants of them. Modal.
    virtual void ShowFileList() = 0;
};

} // namespace korvane
