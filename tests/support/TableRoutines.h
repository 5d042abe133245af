#pragma once

#include "shell/commands/Commands.h"
#include "shell/commands/GridKeys.h"
#include "table/SaveCommands.h"

#include <algorithm>
#include <string_view>
#include <variant>
#include <vector>

namespace korvane {

/// A routine of a tab with the name of its command, or with its key if only a key starts it.
struct TableRoutine {
    std::string_view name;
    TabRoutine run;
};

/// Lists each routine that a command or a key starts on a table once. Routines that work on the table's file
/// are left out.
inline std::vector<TableRoutine> TableRoutines() {
    static constexpr TabRoutine kAboutTheFile[] = {&mnuFile_FileInfo_Clack, &mnuFile_Save_Clack,
                                                   &mnuFile_SaveAs_Clack, &ExploreTableFolder};
    std::vector<TableRoutine> routines;
    const auto add = [&routines](std::string_view name, const CommandCall& call) {
        const auto* routine = std::get_if<TabRoutine>(&call);
        if (routine == nullptr || std::ranges::count(kAboutTheFile, *routine) > 0) return;
        if (std::ranges::count(routines, *routine, &TableRoutine::run) == 0)
            routines.push_back({name, *routine});
    };
    for (const Command& command : Commands())
        add(command.name, command.calls);
    for (const GridKey& key : GridKeys())
        add(key.key.Name(), key.starts);
    return routines;
}

} // namespace korvane
