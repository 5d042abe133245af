#pragma once

#include "platform/Clock.h"

#include <vector>

namespace korvane {

/// A clock that doesn't move until it is set or somebody waits.
class MemoryClock final : public Clock {
public:
    explicit MemoryClock(const DateTime& start = {2026, 11, 21, 10, 30, 0}) { Set(start); }

    DateTime Now() const override;
    /// The waits and passes so far.
    std::chrono::milliseconds Uptime() const override { return uptime_; }
    /// Remembers the wait and moves the clock on by it, at once.
    void Wait(std::chrono::milliseconds time) override;

    void Set(const DateTime& now);
    /// Moves the clock on without a wait.
    void Pass(std::chrono::milliseconds time);
    /// All waits so far, in order.
    const std::vector<std::chrono::milliseconds>& Waits() const { return waits_; }

private:
    std::chrono::local_time<std::chrono::milliseconds> now_;
    std::chrono::milliseconds uptime_{0};
    std::vector<std::chrono::milliseconds> waits_;
};

} // namespace korvane
