#include "common/number/DateTime.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

constexpr DateTime kMorning{2026, 11, 21, 9, 12, 5};
constexpr DateTime kEvening{2024, 2, 3, 21, 7, 0};

TEST(DateTime, ComparesFromTheYearDownToTheSecond) {
    EXPECT_EQ(kMorning, (DateTime{2026, 11, 21, 9, 12, 5}));
    EXPECT_LT((DateTime{2026, 11, 21, 9, 12, 4}), kMorning);
    EXPECT_LT((DateTime{2026, 11, 21, 8, 59, 59}), kMorning);
    EXPECT_LT((DateTime{2026, 10, 31, 23, 59, 59}), kMorning);
    EXPECT_LT(kEvening, kMorning);
}

TEST(DateTime, GeneralDateHasOneFormOnEverySystem) {
    EXPECT_EQ(GeneralDate({2026, 11, 21, 9, 12, 0}), u"2026-11-21 09:12:00");
    EXPECT_EQ(GeneralDate(kEvening), u"2024-02-03 21:07:00");
    EXPECT_EQ(GeneralDate({2026, 1, 1}), u"2026-01-01 00:00:00");
}

TEST(DateTime, WeekdayCountsFromSunday) {
    EXPECT_EQ(Weekday({2026, 11, 22}), 0);
    EXPECT_EQ(Weekday(kMorning), 6);
    EXPECT_EQ(Weekday({2000, 2, 29}), 2);
    EXPECT_EQ(Weekday({1899, 12, 30}), 6);
}

TEST(DateTime, FormatDateFillsEveryPatternInUse) {
    EXPECT_EQ(FormatDate(kMorning, u"yyyy.mm.dd"), u"2026.11.21");
    EXPECT_EQ(FormatDate(kMorning, u"dd/mm/yyyy"), u"21/11/2026");
    EXPECT_EQ(FormatDate(kMorning, u"mm/dd/yy"), u"11/21/26");
    EXPECT_EQ(FormatDate(kEvening, u"dd.mm.yy"), u"03.02.24");
    EXPECT_EQ(FormatDate(kMorning, u"dd-mmm-yyyy"), u"21-Nov-2026");
    EXPECT_EQ(FormatDate(kEvening, u"d mmmm yyyy"), u"3 February 2024");
    EXPECT_EQ(FormatDate(kMorning, u"dddd, mmm d yyyy"), u"Saturday, Nov 21 2026");
    EXPECT_EQ(FormatDate(kEvening, u"dddd, d mmmm yyyy"), u"Saturday, 3 February 2024");
    EXPECT_EQ(FormatDate({2026, 11, 22}, u"ddd, d mmm yyyy"), u"Sun, 22 Nov 2026");
    EXPECT_EQ(FormatDate(kMorning, u"hh:mm"), u"09:12");
    EXPECT_EQ(FormatDate(kMorning, u"hh:mm:ss"), u"09:12:05");
    EXPECT_EQ(FormatDate(kMorning, u"dd.mm.yyyy, hh:mm"), u"21.11.2026, 09:12");
    EXPECT_EQ(FormatDate(kEvening, u"mm/dd/yyyy  hh:mm"), u"02/03/2024  21:07");
    EXPECT_EQ(FormatDate(kEvening, u"yyyy/mm/dd  hh:mm"), u"2024/02/03  21:07");
    EXPECT_EQ(FormatDate(kEvening, u"yyyymmddhhmm"), u"202402032107");
    EXPECT_EQ(FormatDate(kMorning, u"ss"), u"05");
}

TEST(DateTime, MonthsAfterAnHourAreMinutes) {
    EXPECT_EQ(FormatDate(kEvening, u"mm hh mm mm"), u"02 21 07 02");
    EXPECT_EQ(FormatDate(kEvening, u"h:m m"), u"21:7 2");
    EXPECT_EQ(FormatDate(kEvening, u"hh mmm"), u"21 Feb");
    EXPECT_EQ(FormatDate(kEvening, u"nn n"), u"07 7");
}

TEST(DateTime, ShortPartsHaveNoLeadingZero) {
    EXPECT_EQ(FormatDate({2026, 1, 2, 3, 4, 5}, u"d.m. h s"), u"2.1. 3 5");
}

TEST(DateTime, YearsHaveFourOrTwoDigits) {
    EXPECT_EQ(FormatDate({987, 1, 2}, u"yyyy yy"), u"0987 87");
    EXPECT_EQ(FormatDate({2005, 1, 2}, u"yy"), u"05");
}

TEST(DateTime, HoursCountTo12WithAHalfOfTheDay) {
    const TextView pattern = u"hh:mm AMPM";
    EXPECT_EQ(FormatDate({2026, 1, 1, 0, 5}, pattern), u"12:05 AM");
    EXPECT_EQ(FormatDate({2026, 1, 1, 11, 59}, pattern), u"11:59 AM");
    EXPECT_EQ(FormatDate({2026, 1, 1, 12, 0}, pattern), u"12:00 PM");
    EXPECT_EQ(FormatDate(kEvening, u"hh:mm:ss AMPM"), u"09:07:00 PM");
}

TEST(DateTime, AnythingElseIsCopied) {
    EXPECT_EQ(FormatDate(kMorning, u""), u"");
    EXPECT_EQ(FormatDate(kMorning, u"_(dd)§ A"), u"_(21)§ A");
}

TEST(DateTime, NamesComeFromTheTableGiven) {
    DateNames german = EnglishDateNames();
    german.months[1] = u"Februar";
    german.shortMonths[1] = u"Feb.";
    german.weekdays[6] = u"Samstag";
    german.shortWeekdays[6] = u"Sa";
    german.afternoon = u"nachm.";
    EXPECT_EQ(FormatDate(kEvening, u"dddd ddd mmmm mmm AMPM", german), u"Samstag Sa Februar Feb. nachm.");
}

TEST(DateTime, MonthsHaveTheirDays) {
    EXPECT_EQ(DaysOfMonth(2026, 1), 31);
    EXPECT_EQ(DaysOfMonth(2026, 2), 28);
    EXPECT_EQ(DaysOfMonth(2028, 2), 29);
    EXPECT_EQ(DaysOfMonth(1900, 2), 28);
    EXPECT_EQ(DaysOfMonth(9999, 12), 31);
}

TEST(DateTime, EveryMonthAndWeekdayHasItsEnglishName) {
    EXPECT_EQ(FormatDate({2026, 1, 4}, u"mmmm mmm dddd ddd"), u"January Jan Sunday Sun");
    EXPECT_EQ(FormatDate({2026, 12, 31}, u"mmmm mmm dddd ddd"), u"December Dec Thursday Thu");
    for (std::size_t month = 0; month < 12; ++month) {
        EXPECT_EQ(Left(EnglishDateNames().months[month], 3), EnglishDateNames().shortMonths[month]);
    }
    for (std::size_t day = 0; day < 7; ++day) {
        EXPECT_EQ(Left(EnglishDateNames().weekdays[day], 3), EnglishDateNames().shortWeekdays[day]);
    }
}

} // namespace
} // namespace korvane
