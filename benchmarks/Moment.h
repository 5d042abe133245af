#pragma once

#include <chrono>
#include <cstdint>

namespace korvane::bench {

/// A moment that means the same in every process of the machine.
inline std::int64_t NanosecondsNow() {
    return std::chrono::duration_cast<std::chrono::nanoseconds>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

} // namespace korvane::bench
