#pragma once

#include "platform/InstanceChannel.h"
#include "platform/MessageBoxes.h"

namespace korvane {

// These classes replace the user and other copies of the program in a run that only draws a picture.

/// Prints each message box to the standard error stream and answers it as Esc would.
class PrintedMessages final : public MessageBoxes {
public:
    Answer Show(const Message& message) override;
};

/// Finds no running copy, and is never found by a second start.
class NoOtherCopy final : public InstanceChannel {
public:
    bool PreviousInstanceRuns() override { return false; }
    bool FindReceiver() override { return false; }
    bool WaitUntilSlotEmpty() override { return false; }
    bool Deliver(TextView) override { return false; }
    void ActivateRunning() override {}
    void Listen(Reception) override {}
};

} // namespace korvane
