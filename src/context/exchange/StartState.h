#pragma once

#include <cstdint>

namespace korvane {

/// How the program was started. Flags are -1, 0 and 1 as each says.
struct StartState {
    /// 1 only in a start that found a running copy: nothing is saved then.
    std::int16_t SecondInstance = 0;
    /// -1 after a file has arrived from a second start.
    std::int16_t LoadedByCommand = 0;
    /// -1 from the load of the main window to its first activation.
    std::int16_t FirstLoadPending = 0;
};

} // namespace korvane
