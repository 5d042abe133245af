#include "controls/lists/Calendar.h"

#include "controls/Form.h"
#include "support/ScriptedUser.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace korvane {
namespace {

constexpr int kMonday = 1;

class CalendarTest : public testing::Test {
protected:
    void ShowMonth(int year, int month, int firstWeekday = 0) {
        calendar.ShowMonth({year, month, 1}, today, {EnglishDateNames(), firstWeekday});
    }
    Text TextAt(int tile) { return calendar.Items.Get()[static_cast<std::size_t>(tile)].text; }
    int DaysShown() {
        return static_cast<int>(
            std::ranges::count_if(calendar.Items.Get(), [](const auto& tile) { return !tile.text.empty(); }));
    }

    ScriptedUser user;
    Form form{user, "Form", u""};
    Calendar calendar{form, "calendar"};
    const DateTime today{2026, 11, 22};
};

TEST_F(CalendarTest, TheDaysAreUnderTheirWeekdays) {
    ShowMonth(2026, 11);
    EXPECT_EQ(calendar.Headers.Get()[0], u"Sun");
    EXPECT_EQ(TextAt(0), u"1");
    EXPECT_EQ(TextAt(29), u"30");
    EXPECT_EQ(DaysShown(), 30);
    ShowMonth(2026, 11, kMonday);
    EXPECT_EQ(calendar.Headers.Get()[0], u"Mon");
    EXPECT_EQ(calendar.Headers.Get()[6], u"Sun");
    EXPECT_EQ(TextAt(5), u"");
    EXPECT_EQ(TextAt(6), u"1");
}

TEST_F(CalendarTest, TodayIsMarkedAndCurrent) {
    ShowMonth(2026, 11);
    EXPECT_EQ(calendar.Day(), 22);
    EXPECT_TRUE(calendar.Items.Get()[21].marked);
    EXPECT_EQ(calendar.Items.Get()[21].spoken, u"Sunday, 22 November 2026");
    ShowMonth(2026, 12);
    EXPECT_EQ(calendar.Day(), 0);
    EXPECT_TRUE(std::ranges::none_of(calendar.Items.Get(), &Tiles::Tile::marked));
}

TEST_F(CalendarTest, TheUserStaysInTheMonth) {
    ShowMonth(2026, 12);
    calendar.Select(0);
    EXPECT_EQ(calendar.Day(), 1);
    calendar.Select(41);
    EXPECT_EQ(calendar.Day(), 31);
}

TEST_F(CalendarTest, FebruaryHasItsDays) {
    for (const auto& [year, days] : {std::pair(2024, 29), {2026, 28}, {2100, 28}, {2000, 29}}) {
        ShowMonth(year, 2);
        EXPECT_EQ(DaysShown(), days) << year;
    }
}

TEST_F(CalendarTest, TheFirstAndTheLastMonthOfAllAreShown) {
    ShowMonth(1, 1);
    EXPECT_EQ(DaysShown(), 31);
    ShowMonth(9999, 12);
    EXPECT_EQ(DaysShown(), 31);
    calendar.Select(41);
    EXPECT_EQ(calendar.Day(), 31);
}

TEST_F(CalendarTest, AMonthThatNoCalendarHasIsEmpty) {
    ShowMonth(2026, 11);
    calendar.ShowNothing();
    EXPECT_EQ(calendar.Day(), 0);
    calendar.Select(3);
    EXPECT_EQ(calendar.Day(), 0);
    EXPECT_TRUE(calendar.Items.Get().empty());
}

} // namespace
} // namespace korvane
