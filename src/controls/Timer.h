#pragma once

#include "controls/Control.h"

#include <chrono>
#include <functional>

namespace korvane {

/// Ticks at regular intervals while its window is shown. It isn't seen.
class Timer : public Control {
public:
    Timer(Form& owner, std::string_view name, std::chrono::milliseconds interval);

    std::chrono::milliseconds Interval() const { return interval_; }

    std::function<void()> Tick;

    /// An interval is over. Nothing happens while the timer is disabled.
    void Elapse();

private:
    std::chrono::milliseconds interval_;
};

} // namespace korvane
