#pragma once

#include "platform/Clock.h"

#include <ctime>

namespace korvane {

/// The computer's clock, in local time.
class NativeClock final : public Clock {
public:
    DateTime Now() const override;
    std::chrono::milliseconds Uptime() const override;
    void Wait(std::chrono::milliseconds time) override;
};

/// The local date and time of a system time.
DateTime ToLocalDateTime(std::time_t time);

} // namespace korvane
