#pragma once

#include "e2e/Display.h"
#include "e2e/FolderEvents.h"
#include "e2e/Process.h"
#include "support/TempDir.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace korvane::e2e {

/// A display of its own with a copy of the program in a folder of its own, and a hand on its keyboard.
class Desk {
public:
    Desk();

    /// False when there is no display.
    bool Stands() const { return display_ && display_->Works(); }
    std::filesystem::path Path(const std::string& name) const { return folder_ / name; }

    /// Waits until `holds` does, looking again whenever something happens on the display or to a file of the
    /// desk; false when it doesn't in time.
    bool Until(const std::function<bool()>& holds);
    /// Waits until the file holds these bytes.
    bool Holds(const std::filesystem::path& file, const std::string& bytes);

    /// Starts the copy of the program.
    std::unique_ptr<Process> Start(const std::vector<std::string>& arguments) const;

    /// Puts a program of this name before those of the system; it only notes how it was started.
    void Provide(const std::string& program) const;
    /// The command lines of provided programs so far, one a line, without the folders of the programs.
    std::string Started() const;

    /// Waits for a window whose title is matched by the expression, other than `except`, and gives it the
    /// keyboard. Its number; empty when it doesn't come.
    std::string GoTo(const std::string& title, const std::string& except = "");
    /// Waits until no such window is seen any more.
    bool Gone(const std::string& title, const std::string& except = "");
    /// The window that has the keyboard.
    std::string Focused() const;
    Display& Screen() { return *display_; }
    /// Presses keys one after the other: "Down", "F2", "ctrl+s".
    void Press(const std::vector<std::string>& keys) const;
    void Type(const std::string& text) const;
    /// Presses the context button there, in pixels from the window's corner.
    void ContextClick(const std::string& window, int x, int y) const;

private:
    void StartDisplay();
    /// Empty when there is none.
    std::string Find(const std::string& title, const std::string& except) const;

    TempDir folder_;
    Process::Environment environment_;
    FolderEvents files_{folder_.Path()};
    std::unique_ptr<Process> server_;
    std::unique_ptr<Display> display_;
};

} // namespace korvane::e2e
