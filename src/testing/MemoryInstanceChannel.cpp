#include "testing/MemoryInstanceChannel.h"

namespace korvane {

bool MemoryInstanceChannel::WaitUntilSlotEmpty() {
    ++waits_;
    return !running.diesBeforeSlotIsEmpty;
}

bool MemoryInstanceChannel::Deliver(TextView path) {
    if (running.takesPath) delivered_.emplace_back(path);
    return running.takesPath;
}

bool MemoryInstanceChannel::Arrive(TextView path) {
    if (!reception_.received || (reception_.slotEmpty && !reception_.slotEmpty())) return false;
    reception_.received(path);
    return true;
}

bool MemoryInstanceChannel::AskToActivate() {
    if (!reception_.activate) return false;
    reception_.activate();
    return true;
}

} // namespace korvane
