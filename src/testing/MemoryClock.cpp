#include "testing/MemoryClock.h"

namespace korvane {

using namespace std::chrono;

DateTime MemoryClock::Now() const {
    const auto midnight = floor<days>(now_);
    const year_month_day date(midnight);
    const hh_mm_ss time(floor<seconds>(now_ - midnight));
    return {int(date.year()),          int(unsigned(date.month())), int(unsigned(date.day())),
            int(time.hours().count()), int(time.minutes().count()), int(time.seconds().count())};
}

void MemoryClock::Wait(milliseconds time) {
    waits_.push_back(time);
    Pass(time);
}

void MemoryClock::Pass(milliseconds time) {
    now_ += time;
    uptime_ += time;
}

void MemoryClock::Set(const DateTime& now) {
    const auto date = year(now.year) / month(unsigned(now.month)) / day(unsigned(now.day));
    now_ = local_days(date) + hours(now.hour) + minutes(now.minute) + seconds(now.second);
}

} // namespace korvane
