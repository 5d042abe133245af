#include "dbops/commands/TickCommands.h"

#include "unit/dbops/TestTab.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

using Numbers = std::vector<int>;

class TickCommands : public testing::Test {
protected:
    TickCommands() { t.Fill({{u"a"}, {u"b"}, {u"c"}, {u"d"}}); }

    TestTab t;
};

TEST_F(TickCommands, TheToggleTurnsTheCurrentRowsTickRound) {
    t.GoTo(2, 1);
    mnuEdit_ToggleSelection_Clack(t.tab);
    EXPECT_EQ(t.Ticks(), (Numbers{0, 1, 0, 0}));
    EXPECT_EQ(t.table.TableAltered, 1);
    mnuEdit_ToggleSelection_Clack(t.tab);
    EXPECT_EQ(t.Ticks(), (Numbers{0, 0, 0, 0}));
}

TEST_F(TickCommands, TheToggleTicksWhateverIsNotExactlyTicked) {
    t.grid.SetCellCheck(Row{1}, 2);
    mnuEdit_ToggleSelection_Clack(t.tab);
    EXPECT_EQ(t.Ticks(), (Numbers{1, 0, 0, 0}));
}

TEST(TickToggleWithoutACurrentRow, TicksNothing) {
    TestTab t;
    mnuEdit_ToggleSelection_Clack(t.tab);
    EXPECT_EQ(t.grid.RowCount(), Row{0});
}

TEST_F(TickCommands, TickAllCountsAndTicksTheVisibleRows) {
    t.Hide({2});
    t.Tick({1});
    t.AnswerQuestion(u"Tick the boxes in [ 3 ] visible rows?", Answer::Yes);
    mnuSelAll_TickBoxes_Clack(t.tab);
    EXPECT_EQ(t.Ticks(), (Numbers{1, 0, 1, 1}));
}

TEST_F(TickCommands, TickAllTicksNothingOnNo) {
    t.AnswerQuestion(u"Tick the boxes in [ 4 ] visible rows?", Answer::No);
    mnuSelAll_TickBoxes_Clack(t.tab);
    EXPECT_EQ(t.Ticks(), (Numbers{0, 0, 0, 0}));
}

TEST_F(TickCommands, TickAllAsksInAnEmptyTableToo) {
    t.grid.SetRowCount(Row{0});
    t.AnswerQuestion(u"Tick the boxes in [ 0 ] visible rows?", Answer::Yes);
    mnuSelAll_TickBoxes_Clack(t.tab);
}

TEST_F(TickCommands, UntickAllCountsTheVisibleTicksAndLeavesHiddenOnes) {
    t.Tick({1, 2, 3});
    t.Hide({2});
    t.AnswerQuestion(u"Remove ticks in boxes for [ 2 ] visible rows?\r\n\r\n"
                     u"(N.B.: Ticks in invisible rows are not removed.)",
                     Answer::Yes);
    mnuSelAll_UnTickBoxes_Clack(t.tab);
    EXPECT_EQ(t.Ticks(), (Numbers{0, 1, 0, 0}));
}

TEST_F(TickCommands, UntickAllLeavesTheTicksOnNo) {
    t.Tick({1});
    t.user.Answer(Answer::No);
    mnuSelAll_UnTickBoxes_Clack(t.tab);
    EXPECT_EQ(t.Ticks(), (Numbers{1, 0, 0, 0}));
}

// Kept for compatibility: ticks-are-no-change.
TEST_F(TickCommands, TickAllAndUntickAllDoNotCountAsChanges) {
    t.user.Answer(Answer::Yes);
    mnuSelAll_TickBoxes_Clack(t.tab);
    EXPECT_EQ(t.table.TableAltered, 0);
    t.user.Answer(Answer::Yes);
    mnuSelAll_UnTickBoxes_Clack(t.tab);
    EXPECT_EQ(t.table.TableAltered, 0);
}

TEST_F(TickCommands, MassTickingIsToldToTheShownGridOnce) {
    t.watcher.refreshes = t.watcher.rowChanges = 0;
    t.user.Answer(Answer::Yes);
    mnuSelAll_TickBoxes_Clack(t.tab);
    EXPECT_EQ(t.watcher.refreshes, 1);
    ClearAllTicks(t.tab, AskFirst::No);
    EXPECT_EQ(t.watcher.refreshes, 2);
    EXPECT_EQ(t.watcher.rowChanges, 0);
}

// Kept for compatibility: clear-ticks-reaches-hidden.
TEST_F(TickCommands, ClearAllAsksAndReachesHiddenRows) {
    t.Tick({1, 2});
    t.Hide({2});
    t.AnswerQuestion(u" Deselect [ 2 ] grid rows?", Answer::Yes);
    ClearAllTicks(t.tab, AskFirst::Yes);
    EXPECT_EQ(t.Ticks(), (Numbers{0, 0, 0, 0}));
    EXPECT_EQ(t.table.TableAltered, 1);
    EXPECT_EQ(t.watcher.focusWanted, 1);
}

TEST_F(TickCommands, ClearAllLeavesTheTicksOnNo) {
    t.Tick({1, 2});
    t.AnswerQuestion(u" Deselect [ 2 ] grid rows?", Answer::No);
    ClearAllTicks(t.tab, AskFirst::Yes);
    EXPECT_EQ(t.Ticks(), (Numbers{1, 1, 0, 0}));
    EXPECT_EQ(t.table.TableAltered, 0);
    EXPECT_EQ(t.watcher.focusWanted, 1);
}

TEST_F(TickCommands, ClearAllWithoutAskingJustClears) {
    t.Tick({4});
    ClearAllTicks(t.tab, AskFirst::No);
    EXPECT_EQ(t.Ticks(), (Numbers{0, 0, 0, 0}));
    EXPECT_EQ(t.table.TableAltered, 1);
    EXPECT_EQ(t.watcher.focusWanted, 1);
}

TEST_F(TickCommands, ClearAllSaysThatNothingIsTickedOnlyWhenItWouldAsk) {
    t.AnswerInformation(u"No rows selected.");
    ClearAllTicks(t.tab, AskFirst::Yes);
    ClearAllTicks(t.tab, AskFirst::No);
    EXPECT_EQ(t.user.Messages().size(), 1u);
    EXPECT_EQ(t.table.TableAltered, 0);
    EXPECT_EQ(t.watcher.focusWanted, 2);
}

} // namespace
} // namespace korvane
