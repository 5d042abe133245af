#pragma once

#include <span>
#include <string_view>

namespace korvane {

struct TabContext;

/// What a user does to an open table, by the name under which the main window calls it on the active tab.
struct DbOpsCommand {
    std::string_view name;
    void (*run)(const TabContext&);
};

/// All commands of this folder, each name once.
std::span<const DbOpsCommand> DbOpsCommands();

} // namespace korvane
