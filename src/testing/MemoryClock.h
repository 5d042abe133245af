#pragma once

#include "platform/Clock.h"

#include <vector>

namespace korvane {

/// A clock that doesn't move until it is set or somebody waits.
class MemoryClock final : public Clock {
public:
    explicit MemoryClock(const DateTime& start = {2026, 11, 21, 10, 30, 0}) { Set(start); }

    DateTime Now() const override;
    /// Remembers the wait and moves the clock on by it, at once.
    void Wait(std::chrono::milliseconds time) override;

    void Set(const DateTime& now);
    /// All waits so far, in order.
    const std::vector<std::chrono::milliseconds>& Waits() const { return waits_; }

private:
    std::chrono::local_time<std::chrono::milliseconds> now_;
    std::vector<std::chrono::milliseconds> waits_;
};

} // namespace korvane
