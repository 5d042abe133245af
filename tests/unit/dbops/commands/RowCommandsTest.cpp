#include "dbops/commands/RowCommands.h"

#include "dbops/windows/frmTxtDbAddRows.h"
#include "grid/Grid.h"
#include "unit/dbops/TestTab.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

using Texts = std::vector<Text>;

class RowCommands : public testing::Test {
protected:
    RowCommands() { t.Fill({{u"a", u"A"}, {u"b", u"B"}, {u"c", u"C"}}); }

    void SetAllHeights(int height) {
        for (Row row{1}; row <= t.grid.RowCount(); ++row)
            t.grid.SetRowHeight(row, height);
    }
    void AddMany(int listIndex) {
        t.user.On<frmTxtDbAddRows>([listIndex](frmTxtDbAddRows& window) {
            window.List1.Select(listIndex);
            window.cmdProceed.Press();
        });
        mnuEdit_AddRows_Clack(t.tab);
    }

    TestTab t;
};

class AddingRows : public RowCommands {};

TEST_F(AddingRows, AppendsAnEmptyRowWithACheckBoxAndGoesThere) {
    t.GoTo(1, 2);
    mnuEdit_AddOneRow_Clack(t.tab);
    EXPECT_EQ(t.Column(1), (Texts{u"a", u"b", u"c", u""}));
    EXPECT_EQ(t.Column(2), (Texts{u"A", u"B", u"C", u""}));
    EXPECT_EQ(t.grid.RowHeight(Row{4}), 24);
    EXPECT_TRUE(t.grid.CellCheckShown(Row{4}));
    EXPECT_EQ(t.grid.CellCheck(Row{4}), 0);
    EXPECT_EQ(t.Current(), At(4, 1));
    EXPECT_EQ(t.watcher.rowsWanted, (std::vector{Row{3}, Row{4}}));
    EXPECT_EQ(t.watcher.focusWanted, 1);
    EXPECT_EQ(t.table.TableAltered, 1);
}

// Kept for compatibility: added-rows-set-last-height.
TEST_F(AddingRows, GivesTheRowThatWasTheLastOneTheFixedHeightToo) {
    SetAllHeights(40);
    t.table.SetRowHeight = 40;
    mnuEdit_AddOneRow_Clack(t.tab);
    EXPECT_EQ(t.Heights(), (std::vector{40, 40, 24, 24}));
    EXPECT_TRUE(t.grid.CellCheckShown(Row{3}));
    EXPECT_FALSE(t.grid.CellCheckShown(Row{2}));
    EXPECT_EQ(t.table.SetRowHeight, 40);
}

TEST_F(AddingRows, StartsAnEmptyTable) {
    t.grid.SetRowCount(Row{0});
    mnuEdit_AddOneRow_Clack(t.tab);
    EXPECT_EQ(t.Heights(), (std::vector{24}));
    EXPECT_TRUE(t.grid.CellCheckShown(Row{1}));
    EXPECT_EQ(t.Current(), At(1, 1));
}

TEST_F(AddingRows, SetsUpEveryAddedRow) {
    SetAllHeights(40);
    AddMany(4);
    EXPECT_EQ(t.Heights(), (std::vector{40, 40, 24, 24, 24, 24, 24, 24}));
    EXPECT_EQ(t.OfRows([this](Row row) { return t.grid.CellCheckShown(row); }),
              (std::vector{false, false, true, true, true, true, true, true}));
    EXPECT_EQ(t.Current(), At(8, 1));
    EXPECT_EQ(t.table.TableAltered, 1);
}

TEST_F(AddingRows, AddsNothingWithoutANumber) {
    AddMany(-1);
    EXPECT_EQ(t.grid.RowCount(), Row{3});
    EXPECT_EQ(t.table.TableAltered, 0);
}

TEST_F(AddingRows, AddsNothingAfterACancelWhateverTheLastDialogLeft) {
    t.app.DialogResult = 5;
    t.user.On<frmTxtDbAddRows>([](frmTxtDbAddRows& window) {
        window.List1.Select(6);
        window.cmdCancel.Press();
    });
    mnuEdit_AddRows_Clack(t.tab);
    EXPECT_EQ(t.grid.RowCount(), Row{3});
    EXPECT_EQ(t.table.TableAltered, 0);
    EXPECT_EQ(t.app.DialogResult, 0);
}

TEST_F(AddingRows, StopsAtTheLargestRowNumberAndKeepsItsCells) {
    t.grid.SetRowCount(kMaxRows - 1);
    AddMany(2);
    EXPECT_EQ(t.grid.RowCount(), kMaxRows);
    t.SetCell(32767, 1, u"last");
    mnuEdit_AddOneRow_Clack(t.tab);
    EXPECT_EQ(t.grid.RowCount(), kMaxRows);
    EXPECT_EQ(t.Cell(32767, 1), u"last");
    EXPECT_EQ(t.Current(), At(32767, 1));
}

class MovingRows : public RowCommands {};

TEST_F(MovingRows, DownSwapsTheTextsWithTheRowBelowAndGoesAlong) {
    t.GoTo(1, 2);
    mnuRowDown_Clack(t.tab);
    EXPECT_EQ(t.Column(1), (Texts{u"b", u"a", u"c"}));
    EXPECT_EQ(t.Column(2), (Texts{u"B", u"A", u"C"}));
    EXPECT_EQ(t.Current(), At(2, 2));
    EXPECT_EQ(t.watcher.rowsWanted, std::vector{Row{2}});
    EXPECT_EQ(t.watcher.focusWanted, 1);
    EXPECT_EQ(t.table.TableAltered, 1);
}

TEST_F(MovingRows, UpSwapsTheTextsWithTheRowAboveAndGoesAlong) {
    t.GoTo(3, 2);
    mnuRowUp_Clack(t.tab);
    EXPECT_EQ(t.Column(1), (Texts{u"a", u"c", u"b"}));
    EXPECT_EQ(t.Column(2), (Texts{u"A", u"C", u"B"}));
    EXPECT_EQ(t.Current(), At(2, 2));
    EXPECT_EQ(t.watcher.rowsWanted, std::vector{Row{2}});
    EXPECT_EQ(t.watcher.focusWanted, 1);
    EXPECT_EQ(t.table.TableAltered, 1);
}

TEST_F(MovingRows, ShowTheHourglassAndLetMessagesRun) {
    mnuRowDown_Clack(t.tab);
    EXPECT_EQ(t.screen.Pointers(), (std::vector{Pointer::Hourglass, Pointer::Default}));
    EXPECT_EQ(t.screen.ProcessMessagesCount(), 1);
    mnuRowUp_Clack(t.tab);
    EXPECT_EQ(t.screen.Pointers().size(), 4u);
    EXPECT_EQ(t.screen.ProcessMessagesCount(), 2);
}

TEST_F(MovingRows, DownOnTheLastRowDoesNothingButTakeTheFocus) {
    t.GoTo(3, 1);
    mnuRowDown_Clack(t.tab);
    EXPECT_EQ(t.Column(1), (Texts{u"a", u"b", u"c"}));
    EXPECT_EQ(t.Current(), At(3, 1));
    EXPECT_EQ(t.watcher.focusWanted, 1);
    EXPECT_EQ(t.table.TableAltered, 0);
    EXPECT_TRUE(t.screen.Pointers().empty());
}

TEST_F(MovingRows, UpOnTheFirstRowDoesNothingButTakeTheFocus) {
    mnuRowUp_Clack(t.tab);
    EXPECT_EQ(t.Column(1), (Texts{u"a", u"b", u"c"}));
    EXPECT_EQ(t.Current(), At(1, 1));
    EXPECT_EQ(t.watcher.focusWanted, 1);
    EXPECT_EQ(t.table.TableAltered, 0);
}

// Kept for compatibility: moves-swap-texts-only.
TEST_F(MovingRows, LeaveTicksColoursFlagsAndHeightsWhereTheyAre) {
    const Row first{1};
    t.Tick({1});
    t.grid.SetRowBackColor(first, Colour{255});
    t.grid.SetRowForeColor(first, Colour{7});
    t.grid.SetRowFontFlag(first, CellFlag::Bold, true);
    t.grid.SetRowHeight(first, 77);
    mnuRowDown_Clack(t.tab);
    EXPECT_EQ(t.Cell(2, 1), u"a");
    EXPECT_EQ(t.Ticks(), (std::vector{1, 0, 0}));
    EXPECT_EQ(t.Heights(), (std::vector{77, 24, 24}));
    EXPECT_EQ(t.grid.CellBackColor(first, Col{1}), Colour{255});
    EXPECT_EQ(t.grid.CellForeColor(first, Col{2}), Colour{7});
    EXPECT_TRUE(t.grid.CellFontFlag(first, Col{1}, CellFlag::Bold));
    EXPECT_EQ(t.grid.CellBackColor(Row{2}, Col{1}), kNoColour);
    EXPECT_FALSE(t.grid.CellFontFlag(Row{2}, Col{1}, CellFlag::Bold));
}

TEST_F(MovingRows, TakeTheDeletionMarkAlong) {
    t.SetCell(1, 1, u"---");
    mnuRowDown_Clack(t.tab);
    EXPECT_EQ(t.Column(1), (Texts{u"b", u"---", u"c"}));
}

TEST_F(MovingRows, SwapWithAHiddenNeighbour) {
    t.Hide({2});
    mnuRowDown_Clack(t.tab);
    EXPECT_EQ(t.Column(1), (Texts{u"b", u"a", u"c"}));
    EXPECT_EQ(t.Current(), At(2, 1));
    EXPECT_EQ(t.Visible(), (std::vector{true, false, true}));
}

TEST_F(MovingRows, UpSwapsWithAHiddenNeighbourToo) {
    t.Hide({1});
    t.GoTo(2, 1);
    mnuRowUp_Clack(t.tab);
    EXPECT_EQ(t.Column(1), (Texts{u"b", u"a", u"c"}));
    EXPECT_EQ(t.Current(), At(1, 1));
    EXPECT_EQ(t.Visible(), (std::vector{false, true, true}));
}

TEST_F(MovingRows, OfATableOfOneRowDoesNothing) {
    t.grid.SetRowCount(Row{1});
    mnuRowDown_Clack(t.tab);
    mnuRowUp_Clack(t.tab);
    EXPECT_EQ(t.Column(1), (Texts{u"a"}));
    EXPECT_EQ(t.table.TableAltered, 0);
}

TEST(MovingRowsWithoutACurrentRow, ChangesNothing) {
    TestTab t;
    t.grid.SetColCount(Col{1});
    mnuRowDown_Clack(t.tab);
    mnuRowUp_Clack(t.tab);
    t.grid.SetRowCount(Row{2});
    t.SetCell(1, 1, u"a");
    ASSERT_EQ(t.grid.CurRow(), Row{0});
    mnuRowDown_Clack(t.tab);
    mnuRowUp_Clack(t.tab);
    EXPECT_EQ(t.Column(1), (Texts{u"a", u""}));
    EXPECT_EQ(t.table.TableAltered, 0);
    EXPECT_EQ(t.watcher.focusWanted, 4);
}

class MarkingRows : public RowCommands {
protected:
    static constexpr int kNo = 2;
    const Text kQuestion = u"Mark current row for deletion ?\r\n\r\nb; B\r\n";
};

TEST_F(MarkingRows, WritesTheMarkOverTheCurrentRowsFirstCell) {
    t.GoTo(2, 2);
    t.watcher.refreshes = 0;
    t.AnswerQuestion(kQuestion, Answer::Yes, kNo);
    mnuEdit_Delete_Clack(t.tab);
    EXPECT_EQ(t.Column(1), (Texts{u"a", u"---", u"c"}));
    EXPECT_EQ(t.Column(2), (Texts{u"A", u"B", u"C"}));
    EXPECT_EQ(t.grid.RowCount(), Row{3});
    EXPECT_EQ(t.watcher.refreshes, 1);
    EXPECT_EQ(t.watcher.focusWanted, 1);
    EXPECT_EQ(t.table.TableAltered, 1);
}

TEST_F(MarkingRows, LeavesTheRowOnNo) {
    t.GoTo(2, 2);
    t.AnswerQuestion(kQuestion, Answer::No, kNo);
    mnuEdit_Delete_Clack(t.tab);
    EXPECT_EQ(t.Column(1), (Texts{u"a", u"b", u"c"}));
    EXPECT_EQ(t.watcher.focusWanted, 0);
    EXPECT_EQ(t.table.TableAltered, 0);
}

TEST_F(MarkingRows, TheSummaryOfASingleColumnIsItsText) {
    t.grid.SetColCount(Col{1});
    t.AnswerQuestion(u"Mark current row for deletion ?\r\n\r\na\r\n", Answer::No, kNo);
    mnuEdit_Delete_Clack(t.tab);
}

TEST_F(MarkingRows, TheSummaryKeepsEmptyCells) {
    t.Fill({{u"", u"x", u""}});
    t.AnswerQuestion(u"Mark current row for deletion ?\r\n\r\n; x; \r\n", Answer::No, kNo);
    mnuEdit_Delete_Clack(t.tab);
}

TEST(MarkingWithoutACurrentRow, ChangesNoRow) {
    TestTab t;
    t.AnswerQuestion(u"Mark current row for deletion ?\r\n\r\n\r\n", Answer::Yes, 2);
    mnuEdit_Delete_Clack(t.tab);
    EXPECT_EQ(t.grid.RowCount(), Row{0});
}

TEST_F(MarkingRows, MarksEveryTickedRowHiddenOnesToo) {
    t.Tick({1, 3});
    t.Hide({3});
    t.AnswerQuestion(u"Mark [ 2 ] selected rows for deletion ?\r\n", Answer::Yes, kNo);
    mnuDel_CheckedRows_Clack(t.tab);
    EXPECT_EQ(t.Column(1), (Texts{u"---", u"b", u"---"}));
    EXPECT_EQ(t.Column(2), (Texts{u"A", u"B", u"C"}));
    EXPECT_EQ(t.Ticks(), (std::vector{1, 0, 1}));
    EXPECT_EQ(t.watcher.focusWanted, 1);
    EXPECT_EQ(t.table.TableAltered, 1);
}

TEST_F(MarkingRows, TellsTheShownGridOfAMassMarkingOnceBeforeItRefreshes) {
    t.Tick({1, 2, 3});
    t.watcher.rowChanges = t.watcher.refreshes = 0;
    t.user.Answer(Answer::Yes);
    mnuDel_CheckedRows_Clack(t.tab);
    EXPECT_EQ(t.watcher.rowChanges, 0);
    EXPECT_EQ(t.watcher.refreshes, 2);
}

// Kept for compatibility: marking-stays-on-row.
TEST_F(MarkingRows, StaysOnTheCurrentRowAfterMarkingTickedOnes) {
    t.GoTo(2, 2);
    t.Tick({3});
    t.user.Answer(Answer::Yes);
    mnuDel_CheckedRows_Clack(t.tab);
    EXPECT_EQ(t.Current(), At(2, 2));
}

TEST_F(MarkingRows, LeavesTickedRowsOnNo) {
    t.Tick({2});
    t.AnswerQuestion(u"Mark [ 1 ] selected rows for deletion ?\r\n", Answer::No, kNo);
    mnuDel_CheckedRows_Clack(t.tab);
    EXPECT_EQ(t.Column(1), (Texts{u"a", u"b", u"c"}));
    EXPECT_EQ(t.table.TableAltered, 0);
}

TEST_F(MarkingRows, SaysThatNoRowIsTicked) {
    t.AnswerInformation(u"No rows contain checks.");
    mnuDel_CheckedRows_Clack(t.tab);
    EXPECT_EQ(t.watcher.focusWanted, 0);
    EXPECT_EQ(t.table.TableAltered, 0);
}

TEST(AddRowsWindow, OffersOneToTwelve) {
    TestTab t;
    frmTxtDbAddRows window(t.app);
    window.EnsureLoaded();
    const Texts expected{u"  1", u"  2", u"  3", u"  4", u"  5", u"  6",
                         u"  7", u"  8", u"  9", u" 10", u" 11", u" 12"};
    Texts entries;
    for (int index = 0; index < window.List1.ListCount(); ++index)
        entries.push_back(window.List1.List(index));
    EXPECT_EQ(entries, expected);
    EXPECT_EQ(window.cmdProceed.Caption.Get(), u"&Proceed");
    EXPECT_EQ(window.cmdCancel.Caption.Get(), u"&Cancel");
    EXPECT_TRUE(window.cmdProceed.Default);
    EXPECT_TRUE(window.cmdCancel.Cancel);
}

TEST(AddRowsWindow, GivesTheChosenNumber) {
    for (const int index : {0, 8, 9, 11}) {
        TestTab t;
        t.user.On<frmTxtDbAddRows>([index](frmTxtDbAddRows& window) {
            window.List1.Select(index);
            window.cmdProceed.Press();
        });
        frmTxtDbAddRows(t.app).ShowModal();
        EXPECT_EQ(t.app.DialogResult, index + 1);
    }
}

} // namespace
} // namespace korvane
