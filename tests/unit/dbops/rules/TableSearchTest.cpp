#include "dbops/rules/TableSearch.h"

#include "grid/Grid.h"
#include "unit/dbops/TestTab.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

class TableSearch : public testing::Test {
protected:
    TableSearch() {
        t.Fill({{u"one", u"two", u"three", u"four"},
                {u"abc", u"find me", u"", u"last"},
                {u"ABC", u"", u"find me too", u"end"}});
    }
    /// The find box searches for the text and finds nothing.
    void FindNothing(const Text& text) {
        const CellPosition before = t.Current();
        t.user.Answer({u"No (further) find for :\r\n\r\n\"" + text + u"\"\t", MessageIcon::Information},
                      Answer::Ok);
        FindFromBox(t.tab, text);
        EXPECT_EQ(t.Current(), before);
    }

    TestTab t;
};

TEST_F(TableSearch, GoesForwardFromTheCurrentCellThroughItsRowAndTheRowsBelow) {
    FindFromBox(t.tab, u"ee");
    EXPECT_EQ(t.Current(), At(1, 3));
    FindFromBox(t.tab, u"find");
    EXPECT_EQ(t.Current(), At(2, 2));
    FindFromBox(t.tab, u"find");
    EXPECT_EQ(t.Current(), At(3, 3));
}

TEST_F(TableSearch, SearchesTheColumnsLeftOfTheCurrentOneInTheRowsBelow) {
    t.GoTo(1, 4);
    FindFromBox(t.tab, u"abc");
    EXPECT_EQ(t.Current(), At(2, 1));
}

TEST_F(TableSearch, NeverTestsTheCurrentCell) {
    t.GoTo(2, 2);
    FindFromBox(t.tab, u"find me");
    EXPECT_EQ(t.Current(), At(3, 3));
}

TEST_F(TableSearch, ACellWithTwoMatchesIsFoundOnce) {
    t.SetCell(2, 2, u"xx and xx");
    FindFromBox(t.tab, u"xx");
    EXPECT_EQ(t.Current(), At(2, 2));
    FindNothing(u"xx");
}

TEST_F(TableSearch, NeverWraps) {
    t.GoTo(3, 4);
    FindNothing(u"one");
}

TEST_F(TableSearch, FromTheLastCellThereIsNoFurtherFind) {
    t.GoTo(3, 4);
    FindNothing(u"end");
}

TEST_F(TableSearch, CaseCounts) {
    FindFromBox(t.tab, u"BC");
    EXPECT_EQ(t.Current(), At(3, 1));
    t.GoTo(2, 1);
    FindNothing(u"abc");
}

// Kept for compatibility: find-passes-over-last-column.
TEST_F(TableSearch, PassesOverTheLastColumnOfTheCurrentRowFromTheOneBeforeIt) {
    t.GoTo(2, 3);
    FindNothing(u"last");
}

TEST_F(TableSearch, FindsTheLastColumnOfTheCurrentRowFromFurtherLeft) {
    t.GoTo(2, 2);
    FindFromBox(t.tab, u"last");
    EXPECT_EQ(t.Current(), At(2, 4));
}

TEST_F(TableSearch, FindsTheLastColumnOfTheRowsBelow) {
    t.GoTo(1, 3);
    FindFromBox(t.tab, u"last");
    EXPECT_EQ(t.Current(), At(2, 4));
}

TEST_F(TableSearch, SearchesHiddenRowsLikeOthers) {
    t.grid.SetRowVisible(Row{2}, false);
    FindFromBox(t.tab, u"find");
    EXPECT_EQ(t.Current(), At(2, 2));
}

TEST_F(TableSearch, AnEmptyTextStopsBeforeAnythingElse) {
    FindFromBox(t.tab, u"");
    EXPECT_EQ(t.Current(), At(1, 1));
    EXPECT_EQ(t.watcher.focusWanted, 0);
}

TEST_F(TableSearch, ShowsTheMatchAndGivesTheGridTheKeyboard) {
    FindFromBox(t.tab, u"too");
    EXPECT_EQ(t.watcher.rowsWanted, std::vector{Row{3}});
    EXPECT_EQ(t.watcher.focusWanted, 1);
}

TEST_F(TableSearch, GivesTheGridTheKeyboardAlsoWithoutAMatch) {
    FindNothing(u"nowhere");
    EXPECT_EQ(t.watcher.focusWanted, 1);
}

TEST_F(TableSearch, FindsTextsThatTheCodePageDoesNotHold) {
    t.SetCell(3, 2, u"\u4E2D\u6587");
    FindFromBox(t.tab, u"\u6587");
    EXPECT_EQ(t.Current(), At(3, 2));
}

TEST_F(TableSearch, ATableWithoutRowsHoldsNothing) {
    t.grid.SetRowCount(Row{0});
    FindNothing(u"one");
}

TEST_F(TableSearch, ATableWithoutColumnsHoldsNothing) {
    t.grid.SetColCount(Col{0});
    FindNothing(u"one");
}

TEST_F(TableSearch, WithoutACurrentCellStartsAtTheFirstRow) {
    TestTab other;
    other.grid.SetColCount(Col{3});
    other.grid.SetRowCount(Row{2});
    other.SetCell(1, 1, u"here");
    ASSERT_EQ(other.Current(), At(0, 0));
    FindFromBox(other.tab, u"here");
    EXPECT_EQ(other.Current(), At(1, 1));
}

TEST_F(TableSearch, ATableOfOneColumnIsSearchedFromTheNextRowOn) {
    t.Fill({{u"x"}, {u"x"}});
    FindFromBox(t.tab, u"x");
    EXPECT_EQ(t.Current(), At(2, 1));
    FindNothing(u"x");
}

TEST_F(TableSearch, LeavesTheTableUnaltered) {
    FindFromBox(t.tab, u"find");
    EXPECT_EQ(t.table.TableAltered, 0);
}

} // namespace
} // namespace korvane
