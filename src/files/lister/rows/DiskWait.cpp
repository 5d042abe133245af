#include "files/lister/rows/DiskWait.h"

#include "common/text/ScopedValue.h"
#include "context/App.h"
#include "context/DiskQuestions.h"
#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/lists/ListView.h"
#include "controls/views/ProgressBar.h"
#include "platform/Clock.h"
#include "platform/Screen.h"

namespace korvane {

namespace {

/// From this time on a wait is long.
constexpr std::chrono::milliseconds kLong{300};

} // namespace

DiskWait::DiskWait(App& app, Parts parts) : app_(app), parts_(parts) {}

bool DiskWait::Ask(const DiskQuestion& question, const std::function<bool()>& wanted,
                   const std::function<bool()>& isLong) {
    const auto start = app_.Clock().Uptime();
    const StillWaits stillWaits = [&] {
        const bool seen = isLong() || app_.Clock().Uptime() - start >= kLong;
        return (!seen || GoesOn()) && wanted();
    };
    return AskDisk(app_, question, stillWaits);
}

bool DiskWait::AskBetween(const DiskQuestion& question, const std::function<bool()>& wanted,
                          Control& focused) {
    const bool listed = parts_.list.Visible;
    BeginAgain();
    const bool answered = Ask(question, wanted);
    if (!listed || parts_.list.Visible) return answered;
    // First of all, because a button that goes gives the keyboard to the list, which would be read then.
    focused.SetFocus();
    Show(false);
    // The list couldn't take it while it was hidden.
    if (&focused == &parts_.list) focused.SetFocus();
    return answered;
}

bool DiskWait::AskForCommand(const DiskQuestion& question) {
    if (inCommand_) return false;
    const ScopedValue inCommand(inCommand_, true);
    Control* const focused = parts_.list.Owner().Focused();
    const bool answered = AskBetween(
        question, [this] { return !abandoned_; }, focused == nullptr ? parts_.list : *focused);
    return answered && !abandoned_;
}

bool DiskWait::GoesOn() {
    Show(true);
    app_.Screen().Yield();
    return !stopped_;
}

void DiskWait::Show(bool shown) {
    const bool begins = shown && !parts_.stop.Visible;
    parts_.bar.Visible = shown;
    parts_.stop.Visible = shown;
    parts_.list.Visible = !shown;
    if (!begins) return;
    parts_.bar.Value = 0;
    parts_.stop.SetFocus();
}

} // namespace korvane
