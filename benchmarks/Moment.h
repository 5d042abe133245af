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

/// The seconds that the work takes by the clock, whatever threads do it.
template <class Work>
double ClockSecondsOf(const Work& work) {
    const std::int64_t start = NanosecondsNow();
    work();
    return static_cast<double>(NanosecondsNow() - start) * 1e-9;
}

} // namespace korvane::bench
