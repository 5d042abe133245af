#pragma once

#include "common/text/Text.h"

#include <array>
#include <compare>

namespace korvane {

/// A date of the calendar and a time of the day, always a valid one; earlier is less.
struct DateTime {
    int year = 1;
    int month = 1; ///< 1 to 12
    int day = 1;
    int hour = 0; ///< 0 to 23
    int minute = 0;
    int second = 0;

    auto operator<=>(const DateTime&) const = default;
};

/// The words of dates in the user's language.
struct DateNames {
    std::array<Text, 12> months;
    std::array<Text, 12> shortMonths;
    std::array<Text, 7> weekdays; ///< from Sunday on
    std::array<Text, 7> shortWeekdays;
    Text morning;
    Text afternoon;
};

const DateNames& EnglishDateNames();

/// 0 for Sunday to 6 for Saturday.
int Weekday(const DateTime& when);

/// 28 to 31.
int DaysOfMonth(int year, int month);

/// Date and time in the general form, the same on every system: "2026-11-21 09:12:00".
Text GeneralDate(const DateTime& when);

/// Date and time by a pattern. The parts, of which the longest that fits is taken, are yyyy, yy; m, mm, mmm,
/// mmmm (number, two digits, short name, name); d, dd, ddd, dddd (day and weekday likewise); h, hh; n, nn
/// (minutes); s, ss; AMPM (half of the day, which makes h count to 12). After an hour, m and mm are minutes.
/// Anything else is copied.
Text FormatDate(const DateTime& when, TextView pattern, const DateNames& names = EnglishDateNames());

} // namespace korvane
