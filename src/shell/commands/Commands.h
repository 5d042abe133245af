#pragma once

#include "common/text/Text.h"
#include "controls/Menu.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace korvane {

/// Who carries a command out. A target that isn't there is no error: the command then does nothing.
enum class CommandTarget : std::uint8_t {
    /// Nobody: the entry opens a menu.
    Menu,
    /// The routine `<name>_Clack` of the tab that is active at the time of the call.
    Tab,
    /// The same, on a new tab that is made for it.
    NewTab,
    /// The routine `<name>` of the main window.
    Main,
};

/// A command of the program.
struct Command {
    /// Depth in the menu bar, as in `MenuEntry`; `kNotInMenu` for commands that only other places start.
    int level;
    std::string_view name;
    TextView caption;
    /// The key that the menu binds. Where a caption names another one, the caption stands as it is.
    Shortcut shortcut;
    CommandTarget target;
};
inline constexpr int kNotInMenu = -1;

/// All commands, those of the menu bar first and in its order.
std::span<const Command> Commands();
/// nullptr when there is no such command.
const Command* FindCommand(std::string_view name);

std::span<const MenuEntry> MenuBarEntries();
/// The menu of the table, shown by the grid.
std::span<const MenuEntry> PopupMenuEntries();
/// The entries of `mnuWindow` as a menu of its own, shown by the tab strip.
std::span<const MenuEntry> WindowMenuEntries();

/// A button of the tool bar.
struct ToolBarButton {
    std::string_view name;
    TextView toolTip;
    std::string_view command;
};
std::span<const ToolBarButton> ToolBarButtons();

/// A row of the sidebar.
struct SideBarRow {
    TextView text;
    std::string_view command;
};
std::span<const SideBarRow> SideBarRows();

} // namespace korvane
