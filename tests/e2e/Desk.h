#pragma once

#include "e2e/Process.h"
#include "support/TempDir.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace korvane::e2e {

/// A display of its own with a copy of the program in a folder of its own, and a hand on its keyboard.
class Desk {
public:
    Desk();

    /// False when there is no display.
    bool Stands() const { return !environment_.at("DISPLAY").empty(); }
    std::filesystem::path Path(const std::string& name) const { return folder_ / name; }

    /// Starts the copy of the program.
    std::unique_ptr<Process> Start(const std::vector<std::string>& arguments) const;

    /// Waits for a window whose title is matched by the expression, other than `except`, and gives it the
    /// keyboard. Its number; empty when it doesn't come.
    std::string GoTo(const std::string& title, const std::string& except = "") const;
    /// Waits until no such window is seen any more.
    bool Gone(const std::string& title, const std::string& except = "") const;
    /// Presses keys one after the other: "Down", "F2", "ctrl+s".
    void Press(const std::vector<std::string>& keys) const;
    void Type(const std::string& text) const;

private:
    void StartDisplay();
    /// Empty when there is none.
    std::string Find(const std::string& title, const std::string& except) const;

    TempDir folder_;
    Process::Environment environment_;
    std::unique_ptr<Process> display_;
};

} // namespace korvane::e2e
