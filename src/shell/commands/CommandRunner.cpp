#include "shell/commands/CommandRunner.h"

#include "common/text/ScopedValue.h"
#include "controls/KeyEvent.h"
#include "shell/commands/Commands.h"
#include "shell/commands/GridKeys.h"
#include "shell/commands/MainParts.h"
#include "shell/tabs/Tabs.h"

namespace korvane {

void CommandRunner::Run(const CommandCall& call) {
    ReleaseClosedTabs();
    const ScopedValue within(depth_, depth_ + 1);
    if (const auto* routine = std::get_if<MainRoutine>(&call)) {
        (*routine)(parts_);
    } else if (const auto* ofTab = std::get_if<TabRoutine>(&call)) {
        parts_.tabs.RunOnActive(*ofTab);
    }
}

void CommandRunner::RunNamed(std::string_view name) {
    if (const Command* command = FindCommand(name)) Run(command->calls);
}

void CommandRunner::RunGridKey(KeyEvent& key) {
    const GridKey* row = FindKey(GridKeys(), key);
    if (row == nullptr) return;
    key.consumed = row->use == KeyUse::Consumed;
    Run(row->starts);
}

void CommandRunner::CloseTab(Form& child) {
    ReleaseClosedTabs();
    parts_.tabs.Close(child);
}

void CommandRunner::ReleaseClosedTabs() {
    // A tab that a command closed may still be running it. No such call is left when a command isn't part of
    // another one.
    if (depth_ == 0) parts_.tabs.ReleaseClosed();
}

} // namespace korvane
