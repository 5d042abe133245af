#include "dbops/commands/ColumnSum.h"

#include "dbops/windows/frmChooseRange.h"
#include "unit/dbops/TestTab.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

class ColumnSum : public testing::Test {
protected:
    ColumnSum() {
        t.Fill({{u"x", u"1", u"p"}, {u"y", u"2.5", u"q"}, {u"z", u"-4", u"r"}});
        t.table.ColumnNames.Set(Col{2}, u"Amount");
        t.GoTo(1, 2);
    }
    void AnswerRange(bool onlyTicked = false) {
        t.user.On<frmChooseRange>([onlyTicked](frmChooseRange& f) {
            (onlyTicked ? f.Option2 : f.Option1).Press();
            f.cmdProceed.Press();
        });
    }
    void AnswerQuestion(const Text& name, Answer answer) {
        t.user.Answer(
            {u"Is this the column with values to use for calculating the total?\r\n\r\n\"" + name + u"\"",
             MessageIcon::Question, MessageButtons::YesNo},
            answer);
    }
    /// The text of the total of column 2 with these values.
    Text TotalOf(std::initializer_list<Text> values) {
        t.grid.SetRowCount(Row{0});
        t.grid.SetRowCount(Row{static_cast<int>(values.size())});
        int row = 0;
        for (const Text& value : values)
            t.SetCell(++row, 2, value);
        t.GoTo(1, 2);
        Add();
        return t.Cell(row + 1, 2);
    }
    void Add(bool onlyTicked = false) {
        AnswerRange(onlyTicked);
        AnswerQuestion(t.table.ColumnNames[t.grid.CurCol()], Answer::Yes);
        mnuCalc_Add_Clack(t.tab);
    }

    TestTab t;
};

TEST_F(ColumnSum, AppendsARowWithTheTotal) {
    Add();
    EXPECT_EQ(t.grid.RowCount(), Row{4});
    EXPECT_EQ(t.Cell(4, 1), u"Total:");
    EXPECT_EQ(t.Cell(4, 2), u"-0.5");
    EXPECT_EQ(t.Cell(4, 3), u"");
}

TEST_F(ColumnSum, TheNewRowHasACheckBoxAndTheHeightOfTheFirst) {
    t.grid.SetRowHeight(Row{1}, 57);
    Add();
    EXPECT_TRUE(t.grid.CellCheckShown(Row{4}));
    EXPECT_EQ(t.grid.CellCheck(Row{4}), 0);
    EXPECT_EQ(t.grid.RowHeight(Row{4}), 57);
}

// Kept for compatibility: sum-is-no-change.
TEST_F(ColumnSum, LeavesTheTableUnaltered) {
    Add();
    EXPECT_EQ(t.table.TableAltered, 0);
}

TEST_F(ColumnSum, GivesTheGridTheKeyboardAndLeavesTheCurrentCell) {
    Add();
    EXPECT_EQ(t.watcher.focusWanted, 1);
    EXPECT_EQ(t.Current(), At(1, 2));
}

TEST_F(ColumnSum, InColumn1TheSumStandsAlone) {
    t.SetCell(2, 1, u"7");
    t.GoTo(1, 1);
    Add();
    EXPECT_EQ(t.Cell(4, 1), u"7");
    EXPECT_EQ(t.Cell(4, 2), u"");
}

// Kept for compatibility: sum-asks-by-old-name.
TEST_F(ColumnSum, AsksByTheNameAsReadOrDesigned) {
    t.grid.SetColHeaderText(Col{2}, u"Another caption");
    AnswerRange();
    AnswerQuestion(u"Amount", Answer::No);
    mnuCalc_Add_Clack(t.tab);
}

TEST_F(ColumnSum, NoStopsWithTheKeyboardOnTheGrid) {
    AnswerRange();
    AnswerQuestion(u"Amount", Answer::No);
    mnuCalc_Add_Clack(t.tab);
    EXPECT_EQ(t.grid.RowCount(), Row{3});
    EXPECT_EQ(t.watcher.focusWanted, 1);
}

TEST_F(ColumnSum, ACancelledRangeStopsAtOnce) {
    t.user.On<frmChooseRange>([](frmChooseRange& f) { f.cmdCancel.Press(); });
    mnuCalc_Add_Clack(t.tab);
    EXPECT_EQ(t.grid.RowCount(), Row{3});
    EXPECT_EQ(t.watcher.focusWanted, 0);
}

TEST_F(ColumnSum, AddsOnlyTickedRowsWhenChosen) {
    t.Tick({1, 2});
    Add(true);
    EXPECT_EQ(t.Cell(4, 2), u"3.5");
}

TEST_F(ColumnSum, LeavesOutRowsMarkedForDeletion) {
    t.SetCell(1, 1, u"---");
    Add();
    EXPECT_EQ(t.Cell(4, 2), u"-1.5");
}

TEST_F(ColumnSum, TakesHiddenRows) {
    t.grid.SetRowVisible(Row{3}, false);
    Add();
    EXPECT_EQ(t.Cell(4, 2), u"-0.5");
}

TEST_F(ColumnSum, ACellThatDoesNotBeginWithANumberCountsZero) {
    EXPECT_EQ(TotalOf({u"", u"no 5", u"3 pieces", u"EUR 9"}), u"3");
}

TEST_F(ColumnSum, AColumnOfTextsGivesZero) {
    EXPECT_EQ(TotalOf({u"one", u"two"}), u"0");
}

TEST_F(ColumnSum, ANumberStopsAtTheComma) {
    EXPECT_EQ(TotalOf({u"1,5"}), u"1");
}

TEST_F(ColumnSum, IsWrittenWithFifteenDigitsAtMost) {
    EXPECT_EQ(TotalOf({u"0.1", u"0.2"}), u"0.3");
    EXPECT_EQ(TotalOf({u".1", u".1", u".1", u".1", u".1", u".1", u".1", u".1", u".1", u".1"}), u"1");
    EXPECT_EQ(TotalOf({u"1", u"-0.9"}), u"0.1");
    EXPECT_EQ(TotalOf({u"123456789012345678"}), u"123456789012346000");
    EXPECT_EQ(TotalOf({u"123456789012345", u"0.25"}), u"123456789012345");
}

TEST_F(ColumnSum, AddsInDoublePrecisionWithAsManyDigitsAsItNeeds) {
    EXPECT_EQ(TotalOf({u"0.25", u"1000000000"}), u"1000000000.25");
    EXPECT_EQ(TotalOf({u"1.5", u"1.5"}), u"3");
}

TEST_F(ColumnSum, ReadsNumbersInTextsThatTheCodePageDoesNotHold) {
    EXPECT_EQ(TotalOf({u"12 \u5143", u"1"}), u"13");
}

TEST_F(ColumnSum, ANumberTooLargeToBeAddedLeavesTheSumAsItWas) {
    EXPECT_EQ(TotalOf({u"1", Text(400, u'9'), u"2"}), u"3");
}

// Kept for compatibility: second-sum-adds-first.
TEST_F(ColumnSum, ASecondSumAddsTheFirstTotal) {
    Add();
    t.SetCell(3, 2, u"4");
    Add();
    EXPECT_EQ(t.Cell(5, 1), u"Total:");
    EXPECT_EQ(t.Cell(5, 2), u"7");
}

TEST_F(ColumnSum, ATableWithoutRowsGetsARowWithZero) {
    t.grid.SetRowCount(Row{0});
    t.grid.SetCurCol(Col{2});
    Add();
    EXPECT_EQ(t.grid.RowCount(), Row{1});
    EXPECT_EQ(t.Cell(1, 2), u"0");
    EXPECT_EQ(t.Cell(1, 1), u"Total:");
}

TEST_F(ColumnSum, AFullTableKeepsItsLastRow) {
    t.grid.SetRowCount(kMaxRows);
    t.SetCell(kMaxRows.Number(), 2, u"9");
    Add();
    EXPECT_EQ(t.grid.RowCount(), kMaxRows);
    EXPECT_EQ(t.Cell(kMaxRows.Number(), 2), u"9");
    EXPECT_EQ(t.Cell(kMaxRows.Number(), 1), u"");
}

} // namespace
} // namespace korvane
