#pragma once

#include <chrono>
#include <cstdint>

namespace korvane::bench {

/// The present time on a clock that is the same for all processes of the machine.
inline std::int64_t NanosecondsNow() {
    return std::chrono::duration_cast<std::chrono::nanoseconds>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

} // namespace korvane::bench
