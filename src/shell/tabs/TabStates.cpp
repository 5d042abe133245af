#include "shell/tabs/TabStates.h"

namespace korvane {

int TabStates::CountInUse() const {
    int count = 0;
    for (int slot = 1; slot <= UpperBound(); ++slot)
        count += InUse(slot) ? 1 : 0;
    return count;
}

int TabStates::FindFreeIndex() {
    for (int slot = 1; slot <= UpperBound(); ++slot) {
        if (InUse(slot)) continue;
        (*this)[slot].Deleted = 0;
        (*this)[slot].Discard = 0;
        return slot;
    }
    states_.emplace_back();
    return UpperBound();
}

} // namespace korvane
