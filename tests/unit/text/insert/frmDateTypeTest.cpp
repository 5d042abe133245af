#include "text/insert/frmDateType.h"

#include "context/exchange/InsertChoices.h"
#include "support/FakeMainWindow.h"
#include "support/TestApp.h"
#include "text/insert/InsertWindows.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace korvane {
namespace {

class DateTypeTest : public testing::Test {
protected:
    DateTypeTest() { t.clock.Set({2026, 3, 4, 15, 7, 9}); }

    frmDateType& Open() {
        window = std::make_unique<frmDateType>(t.app);
        window->EnsureLoaded();
        return *window;
    }
    frmDateType& OpenAt(const DateTime& now) {
        t.clock.Set(now);
        return Open();
    }
    static std::vector<Text> Lines(const ListBox& list) {
        std::vector<Text> lines;
        for (int row = 0; row < list.ListCount(); ++row)
            lines.push_back(list.List(row));
        return lines;
    }
    std::vector<Text> Months() {
        return {window->lblMonthOne.Caption.Get(), window->lblMonthTwo.Caption.Get()};
    }

    TestApp t;
    InsertWindows tools{t.app};
    std::unique_ptr<frmDateType> window;
};

TEST_F(DateTypeTest, HasItsCaptionsAndTips) {
    struct Row {
        CommandButton frmDateType::*button;
        Text caption;
        Text tip{};
    };
    static const Row kRows[] = {
        {&frmDateType::cmdDate, u"&Date"},
        {&frmDateType::cmdTime, u"&Time"},
        {&frmDateType::cmdDateTime, u"Date+Ti&me"},
        {&frmDateType::cmdClip, u"&Clip", u"Put this line in Windows clipboard"},
        {&frmDateType::cmdAccept, u"&Accept"},
        {&frmDateType::cmdExit, u"E&xit"},
        {&frmDateType::cmdPreviousMonth, u"<", u"Previous month in this year"},
        {&frmDateType::cmdNextMonth, u">", u"Next month in this year"},
        {&frmDateType::cmdClock, u"Cloc&k", u"Show clock"},
    };
    const frmDateType f(t.app);
    for (const Row& row : kRows) {
        EXPECT_EQ((f.*row.button).Caption.Get(), row.caption);
        EXPECT_EQ((f.*row.button).ToolTipText.Get(), row.tip);
    }
}

TEST_F(DateTypeTest, TheListsHaveTodayAndNowInAllForms) {
    Open();
    EXPECT_EQ(Lines(window->lstDate),
              (std::vector<Text>{u"Wednesday, 4 March 2026", u"Wed, 4 Mar 2026", u"4 March 2026", u"03/04/26",
                                 u"03/04/2026", u"04.03.26", u"04.03.2026"}));
    EXPECT_EQ(Lines(window->lstTime),
              (std::vector<Text>{u"03:07:09 PM", u"03:07 PM", u"15:07:09", u"15:07"}));
    EXPECT_EQ(window->lblToday.Caption.Get(), u"Today: Wednesday, 4 March 2026");
}

TEST_F(DateTypeTest, TheLineIsTheDateTheTimeOrBoth) {
    Open();
    EXPECT_EQ(window->txtLinetoClip.Text.Get(), u"Wednesday, 4 March 2026");
    window->lstDate.Select(2);
    EXPECT_EQ(window->txtLinetoClip.Text.Get(), u"4 March 2026");
    window->cmdTime.Press();
    EXPECT_EQ(window->txtLinetoClip.Text.Get(), u"03:07:09 PM");
    window->lstTime.Select(3);
    EXPECT_EQ(window->txtLinetoClip.Text.Get(), u"15:07");
    window->cmdDateTime.Press();
    EXPECT_EQ(window->txtLinetoClip.Text.Get(), u"4 March 2026; 15:07");
    window->cmdDate.Press();
    EXPECT_EQ(window->txtLinetoClip.Text.Get(), u"4 March 2026");
    EXPECT_EQ(t.app.Exchange<InsertChoices>().DateResult, u"4 March 2026");
}

TEST_F(DateTypeTest, TheChosenFormsAreKept) {
    Open();
    window->lstDate.Select(5);
    window->lstTime.Select(1);
    window->Close();
    Open();
    EXPECT_EQ(window->lstDate.ListIndex(), 5);
    EXPECT_EQ(window->lstTime.ListIndex(), 1);
    EXPECT_EQ(window->txtLinetoClip.Text.Get(), u"04.03.26");
}

TEST_F(DateTypeTest, TheLineGoesToTheClipboard) {
    Open();
    t.user.Answer({u"Text line deposited in Windows clipboard.", MessageIcon::Information}, Answer::Ok);
    window->cmdClip.Press();
    EXPECT_EQ(t.clipboard.GetText(), u"Wednesday, 4 March 2026");
    EXPECT_EQ(window->cmdClip.ToolTipText.Get(), u"Put this line in Windows clipboard");
}

TEST_F(DateTypeTest, AcceptGivesTheLineOut) {
    t.user.On<frmDateType>([](frmDateType& shown) {
        shown.cmdDateTime.Press();
        shown.cmdAccept.Press();
    });
    EXPECT_EQ(tools.ChooseDateTime(), u"Wednesday, 4 March 2026; 03:07:09 PM");
}

TEST_F(DateTypeTest, ExitGivesNothingOut) {
    t.app.DialogResult = 1;
    t.user.On<frmDateType>([](frmDateType& shown) { shown.cmdExit.Press(); });
    EXPECT_EQ(tools.ChooseDateTime(), std::nullopt);
    t.user.On<frmDateType>([](frmDateType& shown) { shown.Close(); });
    EXPECT_EQ(tools.ChooseDateTime(), std::nullopt);
}

TEST_F(DateTypeTest, TheCalendarsShowThisMonthAndTheNext) {
    Open();
    EXPECT_EQ(Months(), (std::vector<Text>{u"March 2026", u"April 2026"}));
    EXPECT_EQ(window->stCalendar1.Day(), 4);
    EXPECT_EQ(window->stCalendar2.Day(), 0);
    EXPECT_EQ(window->cmbMonth.Chosen(), u"March");
    EXPECT_EQ(window->cmbYear.Chosen(), u"2026");
}

TEST_F(DateTypeTest, PagingStopsAtTheEndsOfTheYear) {
    Open();
    for (int page = 0; page < 20; ++page)
        window->cmdPreviousMonth.Press();
    EXPECT_EQ(Months(), (std::vector<Text>{u"January 2026", u"February 2026"}));
    for (int page = 0; page < 20; ++page)
        window->cmdNextMonth.Press();
    EXPECT_EQ(Months(), (std::vector<Text>{u"December 2026", u"January 2027"}));
    EXPECT_EQ(window->cmbMonth.Chosen(), u"December");
}

TEST_F(DateTypeTest, TheKeysOfPagesPageTheCalendars) {
    Open();
    KeyEvent down{Key::PageDown};
    window->stCalendar2.KeyDown(down);
    EXPECT_TRUE(down.consumed);
    EXPECT_EQ(Months()[0], u"April 2026");
    KeyEvent up{Key::PageUp};
    window->stCalendar1.KeyDown(up);
    EXPECT_EQ(Months()[0], u"March 2026");
}

TEST_F(DateTypeTest, TheListsJumpToAMonthAndAYear) {
    Open();
    window->cmbMonth.Select(11);
    EXPECT_EQ(Months(), (std::vector<Text>{u"December 2026", u"January 2027"}));
    window->cmbYear.Select(0);
    EXPECT_EQ(Months(), (std::vector<Text>{u"December 2016", u"January 2017"}));
    EXPECT_EQ(window->cmbYear.List(20), u"2036");
    EXPECT_EQ(window->cmbYear.ListCount(), 21);
}

TEST_F(DateTypeTest, AChosenDayChangesNothingOfTheLine) {
    Open();
    window->stCalendar1.Select(20);
    EXPECT_EQ(window->txtLinetoClip.Text.Get(), u"Wednesday, 4 March 2026");
}

TEST_F(DateTypeTest, TheFirstYearHasNoneBefore) {
    OpenAt({1, 1, 1});
    EXPECT_EQ(window->cmbYear.List(0), u"1");
    EXPECT_EQ(window->cmbYear.ListCount(), 11);
    EXPECT_EQ(window->lstDate.List(6), u"01.01.0001");
    window->cmdPreviousMonth.Press();
    EXPECT_EQ(Months()[0], u"January 0001");
}

TEST_F(DateTypeTest, TheLastMonthHasNoneAfter) {
    OpenAt({9999, 12, 31, 23, 59, 59});
    EXPECT_EQ(Months(), (std::vector<Text>{u"December 9999", u""}));
    EXPECT_TRUE(window->stCalendar2.Items.Get().empty());
    EXPECT_EQ(window->cmbYear.List(window->cmbYear.ListCount() - 1), u"9999");
    window->cmdPreviousMonth.Press();
    EXPECT_EQ(Months(), (std::vector<Text>{u"November 9999", u"December 9999"}));
}

TEST_F(DateTypeTest, TheClockIsShown) {
    Open().cmdClock.Press();
    FakeMainWindow main{t.app};
    window->cmdClock.Press();
    EXPECT_EQ(main.commands, std::vector<std::string>{"mnuMisc_Clock"});
}

TEST_F(DateTypeTest, KeepsItsPlace) {
    t.app.Settings.DateTypeLeft = 1000;
    t.app.Settings.DateTypeTop = 2000;
    t.user.On<frmDateType>([](frmDateType& shown) {
        EXPECT_EQ(shown.Left.Get(), Twips{1000});
        EXPECT_EQ(shown.Top.Get(), Twips{2000});
        shown.Left = Twips{3000};
        shown.Top = Twips{3100};
        shown.Close();
    });
    EXPECT_EQ(tools.ChooseDateTime(), std::nullopt);
    EXPECT_EQ(t.app.Settings.DateTypeLeft, 3000);
    EXPECT_EQ(t.app.Settings.DateTypeTop, 3100);
}

} // namespace
} // namespace korvane
