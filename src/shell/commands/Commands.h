#pragma once

#include "common/text/Text.h"
#include "controls/Menu.h"
#include "shell/commands/CommandCall.h"

#include <span>
#include <string_view>

namespace korvane {

/// A command of the program.
struct Command {
    /// Depth in the menu bar, as in `MenuEntry`; `kNotInMenu` for commands that only other places start.
    int level;
    std::string_view name;
    TextView caption;
    /// The key that the menu binds. A caption may name another one.
    Shortcut shortcut;
    CommandCall calls{};
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
    const Command& command;
    /// The key of the table's grid, where the tip names one that does something else.
    TextView key{};
};
std::span<const ToolBarButton> ToolBarButtons();
/// The tip as it is shown: with the key that works below it.
Text ShownTip(const ToolBarButton& button);

/// A row of the sidebar.
struct SideBarRow {
    TextView text;
    const Command& command;
};
std::span<const SideBarRow> SideBarRows();

} // namespace korvane
