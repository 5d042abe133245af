#include "platform/qt/services/QtUserLocale.h"

#include "platform/qt/base/Convert.h"

#include <QDateTime>

namespace korvane {

namespace {

constexpr int kSunday = 7;

DateNames NamesOf(const QLocale& locale) {
    DateNames names;
    for (int month = 0; month < 12; ++month) {
        const auto at = static_cast<std::size_t>(month);
        names.months[at] = ToText(locale.monthName(month + 1));
        names.shortMonths[at] = ToText(locale.monthName(month + 1, QLocale::ShortFormat));
    }
    for (int day = 0; day < 7; ++day) {
        const auto at = static_cast<std::size_t>(day);
        // The list begins with Sunday, which is Qt's day 7.
        const int weekday = day == 0 ? kSunday : day;
        names.weekdays[at] = ToText(locale.dayName(weekday));
        names.shortWeekdays[at] = ToText(locale.dayName(weekday, QLocale::ShortFormat));
    }
    names.morning = ToText(locale.amText());
    names.afternoon = ToText(locale.pmText());
    return names;
}

} // namespace

QtUserLocale::QtUserLocale(const QLocale& locale) : locale_(locale), names_(NamesOf(locale)) {}

Text QtUserLocale::GeneralDate(const DateTime& when) const {
    const QDateTime moment(QDate(when.year, when.month, when.day),
                           QTime(when.hour, when.minute, when.second));
    return ToText(locale_.toString(moment, QLocale::ShortFormat));
}

int QtUserLocale::FirstWeekday() const {
    return static_cast<int>(locale_.firstDayOfWeek()) % kSunday;
}

} // namespace korvane
