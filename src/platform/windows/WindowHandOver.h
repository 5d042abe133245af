#pragma once

#include "platform/InstanceChannel.h"
#include "platform/windows/WindowList.h"

#include <functional>

namespace korvane {

/// The text box of the running copy's main window that a second start writes its path into.
class CommandBox {
public:
    virtual ~CommandBox() = default;
    /// From now on calls `changed` with each text that another process writes into the box, which is empty
    /// again afterwards.
    virtual void Open(std::function<void(TextView text)> changed) = 0;
};

/// The way from a second start to the running copy through its windows: the text box in the first picture box
/// of the first window whose title holds "Korvane".
class WindowHandOver final : public InstanceChannel {
public:
    /// Both outlive the channel.
    WindowHandOver(WindowList& windows, CommandBox& commandBox);

    bool PreviousInstanceRuns() override { return windows_.AnotherCopyRuns(); }
    bool FindReceiver() override;
    /// Always true: the text of a window that is gone reads as empty, and then `Deliver` fails.
    bool WaitUntilSlotEmpty() override;
    bool Deliver(TextView path) override;
    /// Brings the window titled "Korvane" to the front, or the first whose title begins so.
    void ActivateRunning() override;

    /// The box is the slot, and activation is up to the other process: of the reception only `received` has
    /// a use.
    void Listen(Reception reception) override;

private:
    WindowList& windows_;
    CommandBox& commandBox_;
    WindowHandle textBox_ = kNoWindow;
};

} // namespace korvane
