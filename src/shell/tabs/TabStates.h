#pragma once

#include "common/text/Text.h"

#include <cstdint>
#include <vector>

namespace korvane {

/// What is kept of a tab's slot. Flags are -1 and 0.
struct TabState {
    /// The slot is free. A closing tab sets it; a new tab takes the first such slot.
    std::int16_t Deleted = 0;
    /// The text window wrote into the tab's document. Not the table's `TableAltered`.
    std::int16_t Dirty = 0;
    /// An untouched Untitled tab was thrown away.
    std::int16_t Discard = 0;
    /// Full path of the file, or the Untitled caption.
    Text Path;
    /// The part of the path after the last separator.
    Text Name;
};

/// The slots of all tabs, numbered from 1. A new tab takes the first free one. Entry 0 exists and belongs to
/// no tab. Any number above the upper bound reads and writes entry 0.
class TabStates {
public:
    /// 0 as long as no tab was ever made.
    int UpperBound() const { return static_cast<int>(states_.size()) - 1; }
    TabState& operator[](int slot) { return states_[Holds(slot) ? static_cast<std::size_t>(slot) : 0]; }

    bool InUse(int slot) const { return Holds(slot) && states_[static_cast<std::size_t>(slot)].Deleted == 0; }
    int CountInUse() const;

    /// Finds the slot for a new tab and marks it as used.
    int FindFreeIndex();

private:
    bool Holds(int slot) const { return slot >= 1 && slot <= UpperBound(); }

    std::vector<TabState> states_{1};
};

} // namespace korvane
