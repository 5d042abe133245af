#pragma once

#include "common/number/DateTime.h"

#include <chrono>

namespace korvane {

class Clock {
public:
    virtual ~Clock() = default;
    /// Local date and time.
    virtual DateTime Now() const = 0;
    /// How long the computer has been on, or any other time that only grows and isn't set.
    virtual std::chrono::milliseconds Uptime() const = 0;
    /// Blocks the caller for this time without letting messages run.
    virtual void Wait(std::chrono::milliseconds time) = 0;
};

} // namespace korvane
