#include "common/number/DateTime.h"

#include "common/number/Number.h"

#include <algorithm>
#include <chrono>

namespace korvane {

namespace {

constexpr TextView kHalfOfDay = u"AMPM";

/// What the parts of a pattern are filled from.
struct Moment {
    const DateTime& when;
    const DateNames& names;
    bool countsTo12;
};

Text Padded(int number, std::size_t width) {
    const Text digits = NumberText(number);
    return digits.size() < width ? Text(width - digits.size(), u'0') + digits : digits;
}

template <std::size_t Size>
const Text& NameOf(const std::array<Text, Size>& names, int index) {
    return names[static_cast<std::size_t>(index)];
}

int ShownHour(const Moment& moment) {
    const int hour = moment.when.hour;
    if (!moment.countsTo12) return hour;
    return hour % 12 == 0 ? 12 : hour % 12;
}

struct Part {
    TextView token;
    Text (*text)(const Moment&);
};

/// Of two parts that begin alike, the longer one comes first.
constexpr Part kParts[] = {
    {u"yyyy", [](const Moment& m) { return Padded(m.when.year, 4); }},
    {u"yy", [](const Moment& m) { return Padded(m.when.year % 100, 2); }},
    {u"mmmm", [](const Moment& m) { return NameOf(m.names.months, m.when.month - 1); }},
    {u"mmm", [](const Moment& m) { return NameOf(m.names.shortMonths, m.when.month - 1); }},
    {u"mm", [](const Moment& m) { return Padded(m.when.month, 2); }},
    {u"m", [](const Moment& m) { return NumberText(m.when.month); }},
    {u"dddd", [](const Moment& m) { return NameOf(m.names.weekdays, Weekday(m.when)); }},
    {u"ddd", [](const Moment& m) { return NameOf(m.names.shortWeekdays, Weekday(m.when)); }},
    {u"dd", [](const Moment& m) { return Padded(m.when.day, 2); }},
    {u"d", [](const Moment& m) { return NumberText(m.when.day); }},
    {u"hh", [](const Moment& m) { return Padded(ShownHour(m), 2); }},
    {u"h", [](const Moment& m) { return NumberText(ShownHour(m)); }},
    {u"nn", [](const Moment& m) { return Padded(m.when.minute, 2); }},
    {u"n", [](const Moment& m) { return NumberText(m.when.minute); }},
    {u"ss", [](const Moment& m) { return Padded(m.when.second, 2); }},
    {u"s", [](const Moment& m) { return NumberText(m.when.second); }},
    {kHalfOfDay, [](const Moment& m) { return m.when.hour < 12 ? m.names.morning : m.names.afternoon; }},
};

const Part* PartAt(TextView pattern) {
    const auto* const found =
        std::ranges::find_if(kParts, [&](const Part& part) { return pattern.starts_with(part.token); });
    return found == std::end(kParts) ? nullptr : found;
}

/// The part that writes minutes instead of the month as a number.
const Part* MinutesFor(const Part* part) {
    if (part->token == u"mm") return PartAt(u"nn");
    if (part->token == u"m") return PartAt(u"n");
    return part;
}

} // namespace

const DateNames& EnglishDateNames() {
    static const DateNames names{
        {u"January", u"February", u"March", u"April", u"May", u"June", u"July", u"August", u"September",
         u"October", u"November", u"December"},
        {u"Jan", u"Feb", u"Mar", u"Apr", u"May", u"Jun", u"Jul", u"Aug", u"Sep", u"Oct", u"Nov", u"Dec"},
        {u"Sunday", u"Monday", u"Tuesday", u"Wednesday", u"Thursday", u"Friday", u"Saturday"},
        {u"Sun", u"Mon", u"Tue", u"Wed", u"Thu", u"Fri", u"Sat"},
        u"AM",
        u"PM"};
    return names;
}

int Weekday(const DateTime& when) {
    using namespace std::chrono;
    const year_month_day date{year(when.year), month(static_cast<unsigned>(when.month)),
                              day(static_cast<unsigned>(when.day))};
    return static_cast<int>(weekday(sys_days(date)).c_encoding());
}

int DaysOfMonth(int year, int month) {
    namespace chrono = std::chrono;
    const chrono::year_month_day_last last{
        chrono::year(year), chrono::month_day_last(chrono::month(static_cast<unsigned>(month)))};
    return static_cast<int>(static_cast<unsigned>(last.day()));
}

Text GeneralDate(const DateTime& when) {
    return FormatDate(when, u"yyyy-mm-dd hh:nn:ss");
}

Text FormatDate(const DateTime& when, TextView pattern, const DateNames& names) {
    const Moment moment{when, names, pattern.find(kHalfOfDay) != TextView::npos};
    Text text;
    bool afterHour = false;
    while (!pattern.empty()) {
        const Part* part = PartAt(pattern);
        if (part == nullptr) {
            text += pattern.front();
            pattern.remove_prefix(1);
            continue;
        }
        pattern.remove_prefix(part->token.size());
        if (afterHour) part = MinutesFor(part);
        afterHour = part->token.front() == u'h';
        text += part->text(moment);
    }
    return text;
}

} // namespace korvane
