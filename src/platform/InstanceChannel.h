#pragma once

#include "common/text/Text.h"

#include <functional>

namespace korvane {

/// The way from a second start of the program to the copy that runs already.
class InstanceChannel {
public:
    virtual ~InstanceChannel() = default;

    // The second start.

    virtual bool PreviousInstanceRuns() = 0;
    /// False when the running copy has no slot for a path.
    virtual bool FindReceiver() = 0;
    /// Waits, without a time-out, until the receiver's slot is empty; false when the receiver died meanwhile.
    virtual bool WaitUntilSlotEmpty() = 0;
    /// Puts one full path into the slot; false when it wasn't taken.
    virtual bool Deliver(TextView path) = 0;
    virtual void ActivateRunning() = 0;

    // The running copy.

    /// Calls `received` with each path that arrives and `activate` when a second start asks for the window.
    /// `slotEmpty` tells whether the copy can take a path now.
    struct Reception {
        std::function<void(TextView path)> received;
        std::function<bool()> slotEmpty;
        std::function<void()> activate;
    };
    virtual void Listen(Reception reception) = 0;
};

} // namespace korvane
