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

TEST_F(GridStoreSortTest, NumbersComeFirstByTheirValue) {
    EXPECT_EQ(
        Sorted({u"b", u"10", u"9", u"-3", u"1,5", u"1.25", u"+2", u" 7 ", u"9a", u"1.2.3", u"-"},
               SortOrder::Ascending),
        (std::vector<Text>{u"-3", u"1.25", u"1,5", u"+2", u" 7 ", u"9", u"10", u"-", u"1.2.3", u"9a", u"b"}));
}

TEST_F(GridStoreSortTest, NumbersInsideTextsCountByTheirValue) {
    EXPECT_EQ(Sorted({u"Room 10", u"Room 9b", u"Room 9", u"Room 009", u"Room"}, SortOrder::Ascending),
              (std::vector<Text>{u"Room", u"Room 009", u"Room 9", u"Room 9b", u"Room 10"}));
}

TEST_F(GridStoreSortTest, AccentsAndCaseCountOnlyWhereNothingElseDiffers) {
    EXPECT_EQ(
        Sorted({u"Zoo", u"äpfel", u"Apfel", u"apfel", u"zoo", u"Äpfel", u"apfelz", u"€", u"я"},
               SortOrder::Ascending),
        (std::vector<Text>{u"apfel", u"Apfel", u"äpfel", u"Äpfel", u"apfelz", u"zoo", u"Zoo", u"я", u"€"}));
}

TEST_F(GridStoreSortTest, BlanksAreAtTheEndInBothOrders) {
    EXPECT_EQ(Sorted({u"b", u"", u"c", u" ", u"a"}, SortOrder::Descending),
              (std::vector<Text>{u"c", u"b", u"a", u"", u" "}));
    EXPECT_EQ(Sorted({u"b", u"", u"2", u" ", u"a"}, SortOrder::Ascending),
              (std::vector<Text>{u"2", u"a", u"b", u"", u" "}));
}

TEST_F(GridStoreSortTest, AnOrderOfTheUsersOwnCounts) {
    struct ByLength final : TextOrder {
        std::vector<int> RanksOf(const std::vector<Text>& texts) const override {
            std::vector<int> ranks;
            for (const Text& text : texts)
                ranks.push_back(static_cast<int>(text.size()));
            return ranks;
        }
    };
    GridStore own(CodePage::Windows1252(), std::make_shared<ByLength>());
    own.SetColCount(Col{1});
    own.SetRowCount(Row{2});
    own.SetCellValue(Row{1}, Col{1}, u"aaa");
    own.SetCellValue(Row{2}, Col{1}, u"b");
    own.SortByColumn(Col{1}, SortOrder::Ascending);
    EXPECT_EQ(own.CellValue(Row{1}, Col{1}), u"b");
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
