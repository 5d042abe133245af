#pragma once

#include "platform/PatientDisk.h"

#include <functional>

namespace korvane {

class App;
class CommandButton;
class Control;
class ListView;
class ProgressBar;

/// Questions to the disk for which the lister waits. Where that takes long the wait is seen, the window lives
/// on, and the user can stop it.
class DiskWait {
public:
    struct Parts {
        ListView& list;
        ProgressBar& bar;
        CommandButton& stop;
    };
    /// All outlive the object.
    DiskWait(App& app, Parts parts);

    /// Asks, and waits until the answer is there, the user stops it, or `wanted` says that it isn't wanted
    /// any more; false without an answer. `isLong` says that the wait is to be seen at once.
    bool Ask(
        const DiskQuestion& question, const std::function<bool()>& wanted,
        const std::function<bool()>& isLong = [] { return false; });

    /// The same in the midst of other things: afterwards the list is as before, and `focused` has the
    /// keyboard again.
    bool AskBetween(const DiskQuestion& question, const std::function<bool()>& wanted, Control& focused);
    /// The same for a command. Only one at a time waits, and none goes on when the window has gone.
    bool AskForCommand(const DiskQuestion& question);
    /// Ends every wait, since the window goes.
    void Abandon() { abandoned_ = true; }

    void Stop() { stopped_ = true; }
    bool Stopped() const { return stopped_; }
    /// The user hasn't stopped what begins now.
    void BeginAgain() { stopped_ = false; }

    /// Shows the bar and the button to stop in place of the list, or the list again.
    void Show(bool shown);

private:
    bool GoesOn();

    App& app_;
    Parts parts_;
    bool stopped_ = false;
    bool abandoned_ = false;
    bool inCommand_ = false;
};

} // namespace korvane
