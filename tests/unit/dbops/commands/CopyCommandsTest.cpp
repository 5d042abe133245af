#include "dbops/commands/CopyCommands.h"

#include "common/number/Number.h"
#include "context/exchange/DelimiterChoice.h"
#include "context/ports/ClipboardView.h"
#include "context/ports/TextWindow.h"
#include "dbops/windows/frmChooseRange.h"
#include "dbops/windows/frmDelimiterType.h"
#include "unit/dbops/FakePorts.h"
#include "unit/dbops/TestTab.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

class CopyCommands : public testing::Test {
protected:
    CopyCommands() {
        t.Fill({{u"a1", u"b1", u"c1"}, {u"a2", u"b2", u"c2"}, {u"a3", u"b3", u"c3"}});
        t.app.Settings.DelimiterString = u"\t";
    }
    /// Answers the range dialog.
    void AnswerRange(bool onlyTicked) {
        t.user.On<frmChooseRange>([onlyTicked](frmChooseRange& f) {
            (onlyTicked ? f.Option2 : f.Option1).Press();
            f.cmdProceed.Press();
        });
    }
    /// Answers the delimiter dialog with all columns but these, counted from 0.
    void AnswerDelimiter(std::initializer_list<int> without = {}) {
        t.user.On<frmDelimiterType>([leftOut = std::vector(without)](frmDelimiterType& f) {
            for (const int index : leftOut)
                f.lstColumns.SetSelected(index, false);
            f.cmdProceed.Press();
        });
    }
    /// The whole table as it reaches the clipboard.
    Text CopiedTable(std::initializer_list<int> without = {}) {
        AnswerDelimiter(without);
        mnuCopyTableToClipboard_Clack(t.tab);
        return t.clipboard.GetText();
    }
    Text CopiedColumn(bool onlyTicked = false) {
        AnswerRange(onlyTicked);
        mnuCopyColumn_Clack(t.tab);
        return t.clipboard.GetText();
    }

    TestTab t;
    FakeTextWindow textWindow{t.app};
    FakeClipboardView clipboardView{t.app};
};

// One cell, one row.

TEST_F(CopyCommands, TheCurrentCellGoesIntoTheTextWindow) {
    t.GoTo(2, 3);
    mnuEdit_CopyCellToText_Clack(t.tab);
    EXPECT_EQ(textWindow.inserted, std::vector<Text>{u"c2"});
}

TEST_F(CopyCommands, ACellOfSeveralLinesKeepsThem) {
    t.SetCell(1, 1, u"one\r\ntwo\r\n");
    mnuEdit_CopyCellToText_Clack(t.tab);
    EXPECT_EQ(textWindow.inserted, std::vector<Text>{u"one\r\ntwo\r\n"});
}

TEST_F(CopyCommands, TheCurrentRowGoesIntoTheTextWindowJoinedByTabs) {
    t.GoTo(2, 3);
    mnuEdit_CopyRowToText_Clack(t.tab);
    EXPECT_EQ(textWindow.inserted, std::vector<Text>{u"a2\tb2\tc2\r\n"});
}

TEST_F(CopyCommands, AnEmptyTableGivesAnEmptyCellAndABareLineEnd) {
    TestTab empty;
    const FakeTextWindow target(empty.app);
    mnuEdit_CopyCellToText_Clack(empty.tab);
    mnuEdit_CopyRowToText_Clack(empty.tab);
    EXPECT_EQ(target.inserted, (std::vector<Text>{u"", u"\r\n"}));
}

// A column.

// Kept for compatibility: copied-column-runs-together.
TEST_F(CopyCommands, RunsTheValuesOfAColumnTogether) {
    t.GoTo(1, 2);
    EXPECT_EQ(CopiedColumn(), u"b1b2b3");
    EXPECT_EQ(clipboardView.shown, 1);
    EXPECT_EQ(t.watcher.focusWanted, 1);
}

TEST_F(CopyCommands, AColumnOfTickedRowsTakesOnlyThese) {
    t.GoTo(1, 2);
    t.Tick({1, 3});
    EXPECT_EQ(CopiedColumn(true), u"b1b3");
}

TEST_F(CopyCommands, AColumnLeavesOutRowsMarkedForDeletion) {
    t.SetCell(2, 1, u"---");
    t.SetCell(3, 1, u"----");
    t.GoTo(1, 2);
    EXPECT_EQ(CopiedColumn(), u"b1b3");
}

TEST_F(CopyCommands, AColumnTakesHiddenRows) {
    t.grid.SetRowVisible(Row{2}, false);
    EXPECT_EQ(CopiedColumn(), u"a1a2a3");
}

TEST_F(CopyCommands, AColumnWithoutRowsClearsTheClipboard) {
    t.clipboard.SetText(u"before");
    EXPECT_EQ(CopiedColumn(true), u"");
    EXPECT_EQ(clipboardView.shown, 1);
}

TEST_F(CopyCommands, ACancelledRangeStopsTheColumn) {
    t.clipboard.SetText(u"before");
    t.user.On<frmChooseRange>([](frmChooseRange& f) { f.cmdCancel.Press(); });
    mnuCopyColumn_Clack(t.tab);
    EXPECT_EQ(t.clipboard.GetText(), u"before");
    EXPECT_EQ(clipboardView.shown, 0);
    EXPECT_EQ(t.watcher.focusWanted, 0);
}

// Ticked rows and the whole table.

TEST_F(CopyCommands, TheWholeTableGoesToTheClipboardWithAnEmptyLineBehindEachRecord) {
    EXPECT_EQ(CopiedTable(), u"a1\tb1\tc1\r\n\r\n"
                             u"a2\tb2\tc2\r\n\r\n"
                             u"a3\tb3\tc3\r\n\r\n");
    EXPECT_EQ(clipboardView.shown, 1);
    EXPECT_EQ(t.watcher.focusWanted, 1);
    EXPECT_TRUE(textWindow.inserted.empty());
}

TEST_F(CopyCommands, TheWholeTableGoesIntoTheTextWindow) {
    t.user.On<frmDelimiterType>([](frmDelimiterType& f) {
        EXPECT_EQ(f.lblDestination.Caption.Get(), u"text module");
        EXPECT_EQ(f.lblCheckedRows.Caption.Get(), u"3");
        f.cmdProceed.Press();
    });
    mnuCopyTableToText_Clack(t.tab);
    EXPECT_EQ(textWindow.inserted,
              std::vector<Text>{u"a1\tb1\tc1\r\n\r\na2\tb2\tc2\r\n\r\na3\tb3\tc3\r\n\r\n"});
    EXPECT_EQ(clipboardView.shown, 0);
    EXPECT_FALSE(t.clipboard.HasText());
    EXPECT_EQ(t.watcher.focusWanted, 1);
}

TEST_F(CopyCommands, TickedRowsGoToTheClipboard) {
    t.Tick({1, 3});
    t.user.On<frmDelimiterType>([](frmDelimiterType& f) {
        EXPECT_EQ(f.lblDestination.Caption.Get(), u"clipboard");
        EXPECT_EQ(f.lblCheckedRows.Caption.Get(), u"2");
        f.cmdProceed.Press();
    });
    mnuCopyCheckedRowsToClipb_Clack(t.tab);
    EXPECT_EQ(t.clipboard.GetText(), u"a1\tb1\tc1\r\n\r\na3\tb3\tc3\r\n\r\n");
    EXPECT_EQ(clipboardView.shown, 1);
    EXPECT_EQ(t.watcher.focusWanted, 1);
}

TEST_F(CopyCommands, TickedRowsGoIntoTheTextWindow) {
    t.Tick({2});
    AnswerDelimiter();
    mnuCopyCheckedRows_Clack(t.tab);
    EXPECT_EQ(textWindow.inserted, std::vector<Text>{u"a2\tb2\tc2\r\n\r\n"});
    EXPECT_EQ(clipboardView.shown, 0);
}

TEST_F(CopyCommands, WithoutTicksTellsSoAndStops) {
    for (const auto command : {&mnuCopyCheckedRows_Clack, &mnuCopyCheckedRowsToClipb_Clack}) {
        t.user.Answer({u"No rows with ticks in check boxes.", MessageIcon::Information}, Answer::Ok);
        command(t.tab);
    }
    EXPECT_TRUE(textWindow.inserted.empty());
    EXPECT_FALSE(t.clipboard.HasText());
    EXPECT_EQ(t.watcher.focusWanted, 0);
}

TEST_F(CopyCommands, ACancelledDelimiterStopsTheCopy) {
    t.user.On<frmDelimiterType>([](frmDelimiterType& f) { f.cmdCancel.Press(); });
    mnuCopyTableToClipboard_Clack(t.tab);
    EXPECT_FALSE(t.clipboard.HasText());
    EXPECT_EQ(clipboardView.shown, 0);
    EXPECT_EQ(t.watcher.focusWanted, 0);
}

// Kept for compatibility: copied-record-ends.
TEST_F(CopyCommands, EndsARecordWithoutTheLastColumnInItsDelimiter) {
    EXPECT_EQ(CopiedTable({2}), u"a1\tb1\t\r\n\r\n"
                                u"a2\tb2\t\r\n\r\n"
                                u"a3\tb3\t\r\n\r\n");
}

TEST_F(CopyCommands, LeavesOutUncheckedColumnsWithTheirDelimiters) {
    EXPECT_EQ(CopiedTable({0}), u"b1\tc1\r\n\r\nb2\tc2\r\n\r\nb3\tc3\r\n\r\n");
}

TEST_F(CopyCommands, WithoutAnyColumnOnlyLineEndsAreLeft) {
    EXPECT_EQ(CopiedTable({0, 1, 2}), u"\r\n\r\n\r\n\r\n");
}

TEST_F(CopyCommands, NoDelimiterRunsTheFieldsTogether) {
    t.app.Settings.DelimiterString = u"";
    EXPECT_EQ(CopiedTable(), u"a1b1c1\r\n\r\na2b2c2\r\n\r\na3b3c3\r\n\r\n");
}

TEST_F(CopyCommands, ALastIncludedCellThatEndsItsLineGetsOneLineEndMore) {
    t.app.Settings.DelimiterString = u"";
    t.SetCell(1, 2, u"b1\r\n");
    t.grid.SetRowCount(Row{2});
    EXPECT_EQ(CopiedTable({2}), u"a1b1\r\n\r\na2b2\r\n\r\n");
}

TEST_F(CopyCommands, ALineEndMadeOfTwoCellsCountsAsOne) {
    t.app.Settings.DelimiterString = u"";
    t.grid.SetRowCount(Row{1});
    t.SetCell(1, 1, u"\u6587\r");
    t.SetCell(1, 2, u"\n");
    EXPECT_EQ(CopiedTable({2}), u"\u6587\r\n\r\n");
}

TEST_F(CopyCommands, ADelimiterBehindALineEndHidesIt) {
    t.SetCell(1, 2, u"b1\r\n");
    t.grid.SetRowCount(Row{1});
    EXPECT_EQ(CopiedTable({2}), u"a1\tb1\r\n\t\r\n\r\n");
}

// Kept for compatibility: copies-take-all-rows.
TEST_F(CopyCommands, CopiesRowsMarkedForDeletionWithTheirMark) {
    t.SetCell(2, 1, u"---");
    EXPECT_EQ(CopiedTable({1}), u"a1\tc1\r\n\r\n---\tc2\r\n\r\na3\tc3\r\n\r\n");
}

TEST_F(CopyCommands, CopiesHiddenRows) {
    t.grid.SetRowVisible(Row{1}, false);
    t.grid.SetRowVisible(Row{3}, false);
    EXPECT_EQ(CopiedTable({1, 2}), u"a1\t\r\n\r\na2\t\r\n\r\na3\t\r\n\r\n");
}

TEST_F(CopyCommands, CopiesATickedRowThatIsHidden) {
    t.Tick({2});
    t.grid.SetRowVisible(Row{2}, false);
    AnswerDelimiter();
    mnuCopyCheckedRowsToClipb_Clack(t.tab);
    EXPECT_EQ(t.clipboard.GetText(), u"a2\tb2\tc2\r\n\r\n");
}

// Kept for compatibility: line-break-box-without-effect.
TEST_F(CopyCommands, TheLineBreakBoxHasNoEffectOnTheOutput) {
    t.user.On<frmDelimiterType>([](frmDelimiterType& f) {
        f.chkBreakAfterFieldThree.Press();
        f.cmdProceed.Press();
    });
    t.Tick({1});
    mnuCopyCheckedRowsToClipb_Clack(t.tab);
    EXPECT_EQ(t.clipboard.GetText(), u"a1\tb1\tc1\r\n\r\n");
    EXPECT_EQ(t.app.Exchange<DelimiterChoice>().BreakAfterFieldThree, 1);
}

TEST_F(CopyCommands, TextsThatTheCodePageDoesNotHoldComeThroughInTheirPlace) {
    t.grid.SetRowCount(Row{2});
    t.SetCell(1, 2, u"\u4E2D");
    t.SetCell(2, 1, u"\u20AC\u00E4");
    EXPECT_EQ(CopiedTable(), u"a1\t\u4E2D\tc1\r\n\r\n\u20AC\u00E4\tb2\tc2\r\n\r\n");
}

TEST_F(CopyCommands, ADelimiterThatTheCodePageDoesNotHoldComesThrough) {
    t.grid.SetRowCount(Row{1});
    t.app.Settings.DelimiterString = u"\u2192";
    EXPECT_EQ(CopiedTable(), u"a1\u2192b1\u2192c1\r\n\r\n");
}

TEST_F(CopyCommands, LongTextsComeThroughWhole) {
    const Text lengthy(100'000, u'x');
    t.grid.SetRowCount(Row{1});
    t.SetCell(1, 1, lengthy);
    t.SetCell(1, 2, lengthy);
    EXPECT_EQ(CopiedTable(), lengthy + u"\t" + lengthy + u"\tc1\r\n\r\n");
}

TEST_F(CopyCommands, ManyRowsComeThroughInOrder) {
    t.grid.SetRowCount(Row{5000});
    Text expected;
    for (int row = 1; row <= 5000; ++row) {
        const Text number = NumberText(row);
        t.SetCell(row, 1, number);
        t.SetCell(row, 2, u"");
        t.SetCell(row, 3, u"end");
        expected += number + u"\t\tend\r\n\r\n";
    }
    EXPECT_EQ(CopiedTable(), expected);
}

TEST_F(CopyCommands, ATableWithoutRowsCopiesAnEmptyText) {
    t.grid.SetRowCount(Row{0});
    EXPECT_EQ(CopiedTable(), u"");
    EXPECT_TRUE(t.clipboard.HasText());
}

TEST_F(CopyCommands, ColumnsPastThe24thStayOut) {
    t.grid.SetRowCount(Row{1});
    t.grid.SetColCount(Col{25});
    t.SetCell(1, 24, u"x");
    t.SetCell(1, 25, u"y");
    const Text copied = CopiedTable();
    EXPECT_TRUE(copied.ends_with(u"\tx\t\r\n\r\n"));
    EXPECT_EQ(copied.find(u'y'), Text::npos);
}

TEST_F(CopyCommands, LeavesTheTableUnaltered) {
    CopiedTable();
    CopiedColumn();
    EXPECT_EQ(t.table.TableAltered, 0);
}

TEST_F(CopyCommands, WithoutATextWindowAndAClipboardViewDoesTheRest) {
    t.app.SetPort<TextWindow>(nullptr);
    t.app.SetPort<ClipboardView>(nullptr);
    mnuEdit_CopyCellToText_Clack(t.tab);
    mnuEdit_CopyRowToText_Clack(t.tab);
    mnuEdit_WinClip_Clack(t.tab);
    EXPECT_EQ(CopiedColumn(), u"a1a2a3");
    t.Tick({1});
    AnswerDelimiter();
    mnuCopyCheckedRows_Clack(t.tab);
    EXPECT_EQ(t.watcher.focusWanted, 2);
}

TEST_F(CopyCommands, TheClipboardCommandShowsItsContents) {
    mnuEdit_WinClip_Clack(t.tab);
    EXPECT_EQ(clipboardView.shown, 1);
}

} // namespace
} // namespace korvane
