#include "controls/lists/Calendar.h"

#include "common/number/Number.h"

#include <algorithm>

namespace korvane {

namespace {

constexpr int kDaysOfWeek = 7;
/// No month needs more.
constexpr int kWeeks = 6;

bool SameMonth(const DateTime& a, const DateTime& b) {
    return a.year == b.year && a.month == b.month;
}

std::vector<Text> HeadersOf(const Calendar::Ways& ways) {
    std::vector<Text> headers;
    for (int column = 0; column < kDaysOfWeek; ++column) {
        const auto weekday = static_cast<std::size_t>((ways.firstWeekday + column) % kDaysOfWeek);
        headers.push_back(ways.names.shortWeekdays[weekday]);
    }
    return headers;
}

} // namespace

void Calendar::ShowMonth(const DateTime& month, const DateTime& today, const Ways& ways) {
    DateTime date{month.year, month.month, 1};
    first_ = (Weekday(date) - ways.firstWeekday + kDaysOfWeek) % kDaysOfWeek;
    days_ = DaysOfMonth(month.year, month.month);
    std::vector<Tile> tiles(kWeeks * kDaysOfWeek);
    for (date.day = 1; date.day <= days_; ++date.day) {
        const bool isToday = SameMonth(date, today) && date.day == today.day;
        tiles[static_cast<std::size_t>(first_ + date.day - 1)] = {
            NumberText(date.day), FormatDate(date, u"dddd, d mmmm yyyy", ways.names), isToday};
    }
    SetCurrent(-1);
    Headers = HeadersOf(ways);
    Items = std::move(tiles);
    if (SameMonth(month, today)) SetCurrent(first_ + today.day - 1);
}

void Calendar::ShowNothing() {
    SetCurrent(-1);
    days_ = 0;
    Headers = std::vector<Text>();
    Items = std::vector<Tile>();
}

int Calendar::Reachable(int tile) const {
    return days_ == 0 || tile < 0 ? Current() : std::clamp(tile, first_, first_ + days_ - 1);
}

} // namespace korvane
