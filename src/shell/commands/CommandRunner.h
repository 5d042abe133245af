#pragma once

#include "shell/commands/CommandCall.h"

#include <string_view>

namespace korvane {

class Form;
struct KeyEvent;

/// Runs commands on the main window or on the tab that is active at the time.
class CommandRunner {
public:
    /// The parts outlive the runner.
    explicit CommandRunner(const MainParts& parts) : parts_(parts) {}

    /// A routine of a tab does nothing, silently, when no tab is open.
    void Run(const CommandCall& call);
    /// The same by the command's name. An unknown name does nothing, silently.
    void RunNamed(std::string_view name);
    /// A key that went down in the grid of the active tab.
    void RunGridKey(KeyEvent& key);
    /// Closes a tab, which may refuse.
    void CloseTab(Form& child);

private:
    void ReleaseClosedTabs();

    const MainParts& parts_;
    /// How many commands run within each other.
    int depth_ = 0;
};

} // namespace korvane
