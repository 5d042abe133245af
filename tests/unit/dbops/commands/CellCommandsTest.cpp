#include "dbops/commands/CellCommands.h"

#include "unit/dbops/TestTab.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

using Texts = std::vector<Text>;

class CellCommands : public testing::Test {
protected:
    CellCommands() { t.Fill({{u"a", u"A"}, {u"b", u"B"}, {u"c", u"C"}}); }
    void Paste(const Text& text) {
        t.clipboard.SetText(text);
        PasteCells(t.tab);
    }
    void AnswerPart(const Text& counts, Answer answer) {
        t.AnswerQuestion(u"The clipboard has " + counts +
                             u" from the current cell on.\r\n\r\nPaste what fits ?\r\n",
                         answer);
    }

    TestTab t;
};

TEST_F(CellCommands, CopyLeavesTheCellAndTheTableAsTheyAre) {
    t.GoTo(2, 2);
    CopyCell(t.tab);
    EXPECT_EQ(t.clipboard.GetText(), u"B");
    EXPECT_EQ(t.Cell(2, 2), u"B");
    EXPECT_EQ(t.table.TableAltered, 0);
}

TEST_F(CellCommands, CutMovesTheTextToTheClipboard) {
    t.GoTo(2, 2);
    CutCell(t.tab);
    EXPECT_EQ(t.clipboard.GetText(), u"B");
    EXPECT_EQ(t.Cell(2, 2), u"");
    EXPECT_EQ(t.table.TableAltered, 1);
}

TEST_F(CellCommands, AnEmptyCellThatIsClearedAltersNothing) {
    t.SetCell(1, 1, u"");
    ClearCell(t.tab);
    EXPECT_EQ(t.table.TableAltered, 0);
    t.GoTo(2, 1);
    ClearCell(t.tab);
    EXPECT_EQ(t.Column(1), (Texts{u"", u"", u"c"}));
    EXPECT_EQ(t.table.TableAltered, 1);
}

TEST_F(CellCommands, ABlockFillsTheCellsFromTheCurrentOneOn) {
    t.GoTo(2, 1);
    Paste(u"1\t2\r\n3\t4\r\n");
    EXPECT_EQ(t.Column(1), (Texts{u"a", u"1", u"3"}));
    EXPECT_EQ(t.Column(2), (Texts{u"A", u"2", u"4"}));
    EXPECT_EQ(t.Current(), At(2, 1));
    EXPECT_EQ(t.table.TableAltered, 1);
    EXPECT_EQ(t.watcher.focusWanted, 1);
}

TEST_F(CellCommands, RowsAreAppendedLikeTheLastOne) {
    t.grid.SetRowHeight(Row{3}, 40);
    t.GoTo(3, 2);
    Paste(u"1\n2\n3");
    EXPECT_EQ(t.Column(2), (Texts{u"A", u"B", u"1", u"2", u"3"}));
    EXPECT_EQ(t.Heights(), (std::vector<int>{24, 24, 40, 40, 40}));
    EXPECT_FALSE(t.grid.CellCheckShown(Row{5}));
    t.grid.SetCellCheckShown(Row{5}, true);
    t.GoTo(5, 1);
    Paste(u"x\ny");
    EXPECT_TRUE(t.grid.CellCheckShown(Row{6}));
}

TEST_F(CellCommands, HiddenRowsArePassedOver) {
    t.Hide({2});
    Paste(u"1\n2\n3");
    EXPECT_EQ(t.Column(1), (Texts{u"1", u"b", u"2", u"3"}));
}

TEST_F(CellCommands, TheLinesOfACellThatWasCopiedHereStayTogether) {
    t.SetCell(1, 1, u"one\r\ntwo\tx");
    CopyCell(t.tab);
    t.GoTo(3, 2);
    PasteCells(t.tab);
    EXPECT_EQ(t.Column(2), (Texts{u"A", u"B", u"one\r\ntwo\tx"}));
    EXPECT_EQ(t.grid.RowCount(), Row{3});
}

TEST_F(CellCommands, ABlockThatIsTooWideIsPastedAsFarAsItFitsIfTheUserWants) {
    t.GoTo(1, 2);
    AnswerPart(u"[ 3 ] columns, and there is room for [ 1 ]", Answer::No);
    Paste(u"1\t2\t3\n4");
    EXPECT_EQ(t.Column(2), (Texts{u"A", u"B", u"C"}));
    EXPECT_EQ(t.table.TableAltered, 0);
    AnswerPart(u"[ 3 ] columns, and there is room for [ 1 ]", Answer::Yes);
    Paste(u"1\t2\t3\n4");
    EXPECT_EQ(t.Column(2), (Texts{u"1", u"4", u"C"}));
    EXPECT_EQ(t.grid.ColCount(), Col{2});
}

TEST_F(CellCommands, MoreRowsThanATableCanHaveAreCutIfTheUserWants) {
    t.grid.SetRowCount(kMaxRows - 1);
    t.GoTo(kMaxRows.Number() - 1, 1);
    AnswerPart(u"[ 3 ] rows, and there is room for [ 2 ]", Answer::Yes);
    Paste(u"1\n2\n3");
    EXPECT_EQ(t.grid.RowCount(), kMaxRows);
    EXPECT_EQ(t.Cell(kMaxRows.Number(), 1), u"2");
}

TEST_F(CellCommands, NothingIsPastedFromAnEmptyClipboardOrIntoAnEmptyTable) {
    PasteCells(t.tab);
    EXPECT_EQ(t.Cell(1, 1), u"a");
    t.grid.SetRowCount(Row{0});
    Paste(u"x\ty");
    CutCell(t.tab);
    EXPECT_EQ(t.grid.RowCount(), Row{0});
    EXPECT_EQ(t.clipboard.GetText(), u"x\ty");
    EXPECT_EQ(t.table.TableAltered, 0);
}

} // namespace
} // namespace korvane
