#include "GridFixtures.h"
#include "grid/Grid.h"

namespace korvane {
namespace {

class GridStoreSortTest : public GridTest {
protected:
    std::vector<Text> Sorted(const std::vector<Text>& texts, SortOrder order) {
        Resize(static_cast<int>(texts.size()), 1);
        FillColumn(Col{1}, texts);
        grid.SortByColumn(Col{1}, order);
        return Column(Col{1});
    }
};

TEST_F(GridStoreSortTest, TheOrderIsThatOfCharacterCodes) {
    EXPECT_EQ(Sorted({u"b", u"a", u"B", u"", u"10", u"9", u"ab", u"ä"}, SortOrder::Ascending),
              (std::vector<Text>{u"", u"10", u"9", u"B", u"a", u"ab", u"b", u"ä"}));
}

TEST_F(GridStoreSortTest, CharactersCountNotBytes) {
    // The euro sign has the byte 0x80, yet a far higher character code than "ü".
    EXPECT_EQ(Sorted({u"€", u"ü", u"z"}, SortOrder::Ascending), (std::vector<Text>{u"z", u"ü", u"€"}));
}

TEST_F(GridStoreSortTest, TextsOutsideThePageTakeTheirPlaceAmongTheOthers) {
    EXPECT_EQ(Sorted({u"€", u"я", u"a", u"Я", u"aя"}, SortOrder::Ascending),
              (std::vector<Text>{u"a", u"aя", u"Я", u"я", u"€"}));
}

TEST_F(GridStoreSortTest, DescendingReversesTheOrder) {
    EXPECT_EQ(Sorted({u"b", u"", u"c", u"a"}, SortOrder::Descending),
              (std::vector<Text>{u"c", u"b", u"a", u""}));
}

TEST_F(GridStoreSortTest, RowsThatCompareAlikeKeepTheirOrderBothWays) {
    Resize(6, 2);
    FillColumn(Col{1}, {u"b", u"a", u"b", u"a", u"b", u"a"});
    FillColumn(Col{2}, {u"1", u"2", u"3", u"4", u"5", u"6"});
    grid.SortByColumn(Col{1}, SortOrder::Ascending);
    EXPECT_EQ(Column(Col{2}), (std::vector<Text>{u"2", u"4", u"6", u"1", u"3", u"5"}));
    grid.SortByColumn(Col{1}, SortOrder::Descending);
    EXPECT_EQ(Column(Col{2}), (std::vector<Text>{u"1", u"3", u"5", u"2", u"4", u"6"}));
}

TEST_F(GridStoreSortTest, ARowMovesWithAllThatBelongsToIt) {
    Resize(2, 2);
    FillColumn(Col{1}, {u"b", u"a"});
    grid.SetCellValue(Row{1}, Col{2}, u"of b");
    grid.SetRowHeight(Row{1}, 50);
    grid.SetRowVisible(Row{1}, false);
    grid.SetCellCheck(Row{1}, 1);
    grid.SetCellCheckShown(Row{1}, true);
    grid.SetRowBackColor(Row{1}, Colour{1});
    grid.SetCellForeColor(Row{1}, Col{2}, Colour{2});
    grid.SetRowFontFlag(Row{1}, CellFlag::Bold, true);
    grid.SortByColumn(Col{1}, SortOrder::Ascending);

    EXPECT_EQ(grid.CellValue(Row{2}, Col{2}), u"of b");
    EXPECT_EQ(grid.RowHeight(Row{2}), 50);
    EXPECT_TRUE(grid.HasRowHeight(Row{2}));
    EXPECT_FALSE(grid.RowVisible(Row{2}));
    EXPECT_EQ(grid.CellCheck(Row{2}), 1);
    EXPECT_TRUE(grid.CellCheckShown(Row{2}));
    EXPECT_EQ(grid.CellBackColor(Row{2}, Col{2}), Colour{1});
    EXPECT_EQ(grid.CellForeColor(Row{2}, Col{1}), kNoColour);
    EXPECT_EQ(grid.CellForeColor(Row{2}, Col{2}), Colour{2});
    EXPECT_TRUE(grid.CellFontFlag(Row{2}, Col{1}, CellFlag::Bold));

    EXPECT_EQ(grid.RowHeight(Row{1}), 24);
    EXPECT_TRUE(grid.RowVisible(Row{1}));
    EXPECT_EQ(grid.CellCheck(Row{1}), 0);
    EXPECT_EQ(grid.CellBackColor(Row{1}, Col{1}), kNoColour);
}

TEST_F(GridStoreSortTest, TheCurrentRowNumberStays) {
    Resize(2, 1);
    FillColumn(Col{1}, {u"b", u"a"});
    grid.SetCurRow(Row{1});
    grid.SortByColumn(Col{1}, SortOrder::Ascending);
    EXPECT_EQ(grid.CurRow(), Row{1});
}

} // namespace
} // namespace korvane
