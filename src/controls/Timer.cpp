#include "controls/Timer.h"

namespace korvane {

Timer::Timer(Form& owner, std::string_view name, std::chrono::milliseconds interval)
    : Control(owner, name), interval_(interval) {}

void Timer::Elapse() {
    if (Enabled && Tick) Tick();
}

} // namespace korvane
