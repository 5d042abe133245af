#pragma once

#include "platform/InstanceChannel.h"
#include "platform/windows/WindowList.h"

#include <functional>

namespace korvane {

/// The text box in the running copy's main window. A second start writes its path into it.
class CommandBox {
public:
    virtual ~CommandBox() = default;
    /// Calls `changed` with each text that another process writes into the box. The box is emptied
    /// afterwards.
    virtual void Open(std::function<void(TextView text)> changed) = 0;
};

/// Connects a second start with the running copy through windows: it uses the first text box in the first
/// picture box of the first window whose title contains "Korvane".
class WindowHandOver final : public InstanceChannel {
public:
    /// Both arguments must outlive the channel.
    WindowHandOver(WindowList& windows, CommandBox& commandBox);

    bool PreviousInstanceRuns() override { return windows_.AnotherCopyRuns(); }
    bool FindReceiver() override;
    /// Always returns true. If the window is gone its text reads as empty, and then `Deliver` fails.
    bool WaitUntilSlotEmpty() override;
    bool Deliver(TextView path) override;
    /// Brings the window titled "Korvane" to the front, or else the first window whose title begins so.
    void ActivateRunning() override;

    /// Uses only `received`: the box itself shows whether the slot is empty, and the other process activates
    /// the window.
    void Listen(Reception reception) override;

private:
    WindowList& windows_;
    CommandBox& commandBox_;
    WindowHandle textBox_ = kNoWindow;
};

} // namespace korvane
