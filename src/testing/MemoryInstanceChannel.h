#pragma once

#include "platform/InstanceChannel.h"

#include <vector>

namespace korvane {

/// Both ends of the way between two starts, in one process. A test plays the other end: a running copy with
/// the facts of `running`, or a second start through `Arrive` and `AskToActivate`.
class MemoryInstanceChannel final : public InstanceChannel {
public:
    bool PreviousInstanceRuns() override { return running.runs; }
    bool FindReceiver() override { return running.offersSlot; }
    bool WaitUntilSlotEmpty() override;
    bool Deliver(TextView path) override;
    void ActivateRunning() override { ++activations_; }
    void Listen(Reception reception) override { reception_ = std::move(reception); }

    /// What the second start finds.
    struct Running {
        bool runs = false;
        bool offersSlot = true;
        bool diesBeforeSlotIsEmpty = false;
        bool takesPath = true;
    };
    Running running;

    /// What the second start did.
    int Waits() const { return waits_; }
    int Activations() const { return activations_; }
    const std::vector<Text>& Delivered() const { return delivered_; }

    /// Brings a path to the copy that listens; false when nobody listens or the slot isn't empty.
    bool Arrive(TextView path);
    /// Asks the copy that listens for its window; false when nobody listens.
    bool AskToActivate();

private:
    Reception reception_;
    std::vector<Text> delivered_;
    int waits_ = 0;
    int activations_ = 0;
};

} // namespace korvane
