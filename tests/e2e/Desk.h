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

/// A display with a copy of the program in a folder of its own. It can press the keys of the keyboard.
class Desk {
public:
    Desk();

    /// Returns false when there is no display.
    bool Stands() const { return display_ && display_->Works(); }
    /// Provides the bus on which programs talk to screen readers. Returns false where it isn't installed.
    bool ProvideBus();
    /// Lets the program run as the user that owns nothing when the tests run as the administrator. Returns
    /// false where there is no such user.
    bool GiveRightsAway();
    const Process::Environment& Environment() const { return environment_; }
    std::filesystem::path Path(const std::string& name) const { return folder_ / name; }

    /// Waits until `holds` returns true, and asks it again whenever something happens on the display or to a
    /// file of the desk. Returns false when the time is up.
    bool Until(const std::function<bool()>& holds);
    /// Lets `Until` know of the files of this folder too.
    void Watch(const std::filesystem::path& folder) { files_.Watch(folder); }
    /// Waits until the file contains exactly these bytes.
    bool Holds(const std::filesystem::path& file, const std::string& bytes);

    /// Starts the copy of the program, in this folder unless it is empty.
    std::unique_ptr<Process> Start(const std::vector<std::string>& arguments,
                                   const std::filesystem::path& folder = {}) const;

    /// Creates a program of this name that is found before the system's own. It only records how it was
    /// started.
    void Provide(const std::string& program) const;
    /// The command lines of the provided programs so far, one a line and without the folders of the programs.
    std::string Started() const;

    /// Waits for a window with a title that matches the expression, other than `except`, and gives it the
    /// keyboard. Returns the window's number, or an empty text when it doesn't appear.
    std::string GoTo(const std::string& title, const std::string& except = "");
    /// Waits until no such window is visible any more.
    bool Gone(const std::string& title, const std::string& except = "");
    /// The window that has the keyboard.
    std::string Focused() const;
    Display& Screen() { return *display_; }
    /// Presses keys one after the other. They are written like "Down", "F2" or "ctrl+s".
    void Press(const std::vector<std::string>& keys) const;
    void Type(const std::string& text) const;
    /// Clicks with the right button at this place, in pixels from the window's corner.
    void ContextClick(const std::string& window, int x, int y) const;

private:
    void StartDisplay();
    /// The number of the window, or an empty text when there is none.
    std::string Find(const std::string& title, const std::string& except) const;

    TempDir folder_;
    Process::Environment environment_;
    /// What starts the program as another user, or nothing.
    std::vector<std::string> starter_;
    FolderEvents files_{folder_.Path()};
    std::unique_ptr<Process> server_;
    std::unique_ptr<Process> bus_;
    std::unique_ptr<Display> display_;
};

} // namespace korvane::e2e
