#pragma once

#include "common/number/DateTime.h"

#include <chrono>

namespace korvane {

class Clock {
public:
    virtual ~Clock() = default;
    /// Local date and time.
    virtual DateTime Now() const = 0;
    /// Blocks the caller for this time without letting messages run.
    virtual void Wait(std::chrono::milliseconds time) = 0;
};

} // namespace korvane
