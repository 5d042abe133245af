#include "GridFixtures.h"
#include "grid/Grid.h"

namespace korvane {
namespace {

class GridStoreTest : public GridTest {};

TEST_F(GridStoreTest, ANewTableIsEmpty) {
    EXPECT_EQ(grid.RowCount(), Row{0});
    EXPECT_EQ(grid.ColCount(), Col{0});
    EXPECT_EQ(grid.CurRow(), Row{0});
    EXPECT_EQ(grid.CurCol(), Col{0});
    EXPECT_TRUE(grid.GridVisible());
    EXPECT_FALSE(grid.SortOnHeaderClick());
    EXPECT_EQ(grid.GridBackColor(), kNoColour);
    EXPECT_EQ(grid.GridForeColor(), kNoColour);
    EXPECT_EQ(grid.GridFontName(), u"");
    EXPECT_EQ(grid.GridFontSize(), 0);
}

TEST_F(GridStoreTest, ALargerRowCountAppendsEmptyRowsAndASmallerOneDropsFromTheEnd) {
    Resize(2, 1);
    FillColumn(Col{1}, {u"a", u"b"});
    grid.SetRowCount(Row{3});
    EXPECT_EQ(Column(Col{1}), (std::vector<Text>{u"a", u"b", u""}));
    grid.SetRowCount(Row{1});
    EXPECT_EQ(Column(Col{1}), (std::vector<Text>{u"a"}));
}

TEST_F(GridStoreTest, DroppedRowsComeBackPlain) {
    Resize(600, 2);
    for (Row row{1}; row <= grid.RowCount(); ++row) {
        grid.SetCellValue(row, Col{2}, u"x");
        grid.SetRowBackColor(row, Colour{1});
        grid.SetCellCheck(row, 1);
        grid.SetCellCheckShown(row, true);
        grid.SetRowHeight(row, 50);
        grid.SetRowVisible(row, false);
    }
    grid.SetRowCount(Row{10});
    grid.SetRowCount(Row{600});
    for (Row row{11}; row <= grid.RowCount(); ++row) {
        ASSERT_EQ(grid.CellValue(row, Col{2}), u"");
        ASSERT_EQ(grid.CellBackColor(row, Col{2}), kNoColour);
        ASSERT_EQ(grid.CellCheck(row), 0);
        ASSERT_FALSE(grid.CellCheckShown(row));
        ASSERT_EQ(grid.RowHeight(row), 24);
        ASSERT_FALSE(grid.HasRowHeight(row));
        ASSERT_TRUE(grid.RowVisible(row));
    }
    EXPECT_EQ(grid.CellValue(Row{10}, Col{2}), u"x");
}

TEST_F(GridStoreTest, ThereAreNoRowsPastTheLimit) {
    Resize(0, 1);
    grid.SetRowCount(Row{40000});
    EXPECT_EQ(grid.RowCount(), Row{32767});
    grid.SetCellValue(Row{32767}, Col{1}, u"last");
    grid.SetRowCount(Row{32768});
    EXPECT_EQ(grid.RowCount(), Row{32767});
    EXPECT_EQ(grid.CellValue(Row{32767}, Col{1}), u"last");
}

TEST_F(GridStoreTest, NegativeCountsHaveNoEffect) {
    Resize(2, 3);
    grid.SetRowCount(Row{-1});
    grid.SetColCount(Col{-1});
    EXPECT_EQ(grid.RowCount(), Row{2});
    EXPECT_EQ(grid.ColCount(), Col{3});
}

TEST_F(GridStoreTest, ALargerColCountAppendsColumnsWithoutKeyAndCaption) {
    Resize(1, 1);
    grid.SetCellValue(Row{1}, Col{1}, u"a");
    grid.SetColCount(Col{3});
    EXPECT_EQ(grid.ColCount(), Col{3});
    EXPECT_EQ(grid.ColKey(Col{3}), u"");
    EXPECT_EQ(grid.ColHeaderText(Col{3}), u"");
    EXPECT_EQ(grid.CellValue(Row{1}, Col{1}), u"a");
    EXPECT_EQ(grid.CellValue(Row{1}, Col{3}), u"");
}

TEST_F(GridStoreTest, ASmallerColCountDropsColumnsFromTheEnd) {
    Resize(1, 2);
    FillColumn(Col{1}, {u"a"});
    FillColumn(Col{2}, {u"b"});
    grid.SetColCount(Col{1});
    EXPECT_EQ(grid.CellValue(Row{1}, Col{1}), u"a");
    grid.SetColCount(Col{2});
    EXPECT_EQ(grid.CellValue(Row{1}, Col{2}), u"");
}

TEST_F(GridStoreTest, AddColAppendsAColumnWithItsKeyAndCaption) {
    grid.AddCol(u"1no", u"Name");
    grid.AddCol(u"2no", u"Note");
    EXPECT_EQ(grid.ColCount(), Col{2});
    EXPECT_EQ(grid.ColKey(Col{2}), u"2no");
    EXPECT_EQ(grid.ColHeaderText(Col{2}), u"Note");
}

TEST_F(GridStoreTest, ASecondAddColUnderAKeyHasNoEffect) {
    grid.AddCol(u"1no", u"Name");
    grid.AddCol(u"1no", u"Other");
    EXPECT_EQ(grid.ColCount(), Col{1});
    EXPECT_EQ(grid.ColHeaderText(Col{1}), u"Name");
}

TEST_F(GridStoreTest, ColumnsWithoutAKeyAreNeverTheSame) {
    grid.AddCol(u"", u"a");
    grid.AddCol(u"", u"b");
    EXPECT_EQ(grid.ColCount(), Col{2});
}

TEST_F(GridStoreTest, RemoveColTakesTheColumnWithItsCellsAndKeepsTheKeysOfTheOthers) {
    for (const TextView key : {u"1no", u"2no", u"3no"})
        grid.AddCol(key, key);
    grid.SetRowCount(Row{1});
    for (const int col : {1, 2, 3})
        grid.SetCellValue(Row{1}, Col{col}, NumberText(col));
    grid.RemoveCol(Col{2});
    EXPECT_EQ(grid.ColCount(), Col{2});
    EXPECT_EQ(grid.ColKey(Col{2}), u"3no");
    EXPECT_EQ(grid.ColHeaderText(Col{2}), u"3no");
    EXPECT_EQ(grid.CellValue(Row{1}, Col{1}), u"1");
    EXPECT_EQ(grid.CellValue(Row{1}, Col{2}), u"3");
}

TEST_F(GridStoreTest, CaptionsWidthsAndHeightsAreKept) {
    Resize(2, 2);
    grid.SetColHeaderText(Col{2}, u"Höhe");
    grid.SetColWidth(Col{2}, 77);
    grid.SetRowHeight(Row{2}, 31);
    EXPECT_EQ(grid.ColHeaderText(Col{2}), u"Höhe");
    EXPECT_EQ(grid.ColWidth(Col{2}), 77);
    EXPECT_EQ(grid.RowHeight(Row{2}), 31);
    EXPECT_EQ(grid.RowHeight(Row{1}), 24);
}

TEST_F(GridStoreTest, ARowHasAHeightOfItsOwnOnceOneIsWritten) {
    Resize(2, 1);
    EXPECT_FALSE(grid.HasRowHeight(Row{1}));
    grid.SetRowHeight(Row{1}, 24);
    EXPECT_TRUE(grid.HasRowHeight(Row{1}));
    EXPECT_FALSE(grid.HasRowHeight(Row{2}));
}

TEST_F(GridStoreTest, HiddenRowsKeepTheirDataAndAreCounted) {
    Resize(2, 1);
    FillColumn(Col{1}, {u"a", u"b"});
    grid.SetCellCheck(Row{1}, 1);
    grid.SetRowVisible(Row{1}, false);
    EXPECT_FALSE(grid.RowVisible(Row{1}));
    EXPECT_TRUE(grid.RowVisible(Row{2}));
    EXPECT_EQ(grid.RowCount(), Row{2});
    EXPECT_EQ(grid.CellValue(Row{1}, Col{1}), u"a");
    EXPECT_EQ(grid.CellCheck(Row{1}), 1);
}

TEST_F(GridStoreTest, TheCurrentCellGoesWhereItIsSetAndNowhereElse) {
    Resize(3, 2);
    grid.SetCurRow(Row{3});
    grid.SetCurCol(Col{2});
    for (const int outside : {4, 0, -1, 40000}) {
        grid.SetCurRow(Row{outside});
        grid.SetCurCol(Col{outside});
        EXPECT_EQ(grid.CurRow(), Row{3});
        EXPECT_EQ(grid.CurCol(), Col{2});
    }
}

TEST_F(GridStoreTest, TheCurrentCellStaysInsideAShrinkingTable) {
    Resize(3, 3);
    grid.SetCurRow(Row{3});
    grid.SetCurCol(Col{3});
    grid.SetRowCount(Row{2});
    grid.RemoveCol(Col{1});
    EXPECT_EQ(grid.CurRow(), Row{2});
    EXPECT_EQ(grid.CurCol(), Col{2});
    Resize(0, 0);
    EXPECT_EQ(grid.CurRow(), Row{0});
    EXPECT_EQ(grid.CurCol(), Col{0});
}

TEST_F(GridStoreTest, TheCheckBoxIsUntickedAndNotShownAtFirst) {
    Resize(1, 1);
    EXPECT_EQ(grid.CellCheck(Row{1}), 0);
    EXPECT_FALSE(grid.CellCheckShown(Row{1}));
    grid.SetCellCheck(Row{1}, 1);
    grid.SetCellCheckShown(Row{1}, true);
    EXPECT_EQ(grid.CellCheck(Row{1}), 1);
    EXPECT_TRUE(grid.CellCheckShown(Row{1}));
    grid.SetCellCheck(Row{1}, 2);
    EXPECT_EQ(grid.CellCheck(Row{1}), 2);
}

TEST_F(GridStoreTest, TheCheckBoxesGoWithColumnOne) {
    Resize(1, 3);
    grid.SetCellCheck(Row{1}, 1);
    grid.SetCellCheckShown(Row{1}, true);
    grid.RemoveCol(Col{2});
    EXPECT_EQ(grid.CellCheck(Row{1}), 1);
    grid.RemoveCol(Col{1});
    EXPECT_EQ(grid.CellCheck(Row{1}), 0);
    EXPECT_FALSE(grid.CellCheckShown(Row{1}));

    grid.SetCellCheck(Row{1}, 1);
    grid.SetColCount(Col{0});
    grid.SetColCount(Col{1});
    EXPECT_EQ(grid.CellCheck(Row{1}), 0);
}

TEST_F(GridStoreTest, WithoutColumnsThereIsNoCheckBox) {
    Resize(1, 0);
    grid.SetCellCheck(Row{1}, 1);
    grid.SetCellCheckShown(Row{1}, true);
    EXPECT_EQ(grid.CellCheck(Row{1}), 0);
    EXPECT_FALSE(grid.CellCheckShown(Row{1}));
}

TEST_F(GridStoreTest, ReadsOutsideGiveTheValuesOfAnEmptyCell) {
    Resize(1, 1);
    FillColumn(Col{1}, {u"a"});
    for (const auto& [row, col] : {std::pair{0, 1}, {1, 0}, {2, 1}, {1, 2}, {-1, -1}, {40000, 40000}}) {
        const Row r{row};
        const Col c{col};
        EXPECT_EQ(grid.CellValue(r, c), u"");
        EXPECT_EQ(grid.CellText(r, c), u"");
        EXPECT_EQ(grid.CellBytes(r, c), "");
        EXPECT_EQ(grid.CellBackColor(r, c), kNoColour);
        EXPECT_EQ(grid.CellForeColor(r, c), kNoColour);
        EXPECT_FALSE(grid.CellFontFlag(r, c, CellFlag::Bold));
    }
    for (const Row row : {Row{0}, Row{2}, Row{-5}}) {
        EXPECT_EQ(grid.RowHeight(row), 24);
        EXPECT_FALSE(grid.HasRowHeight(row));
        EXPECT_TRUE(grid.RowVisible(row));
        EXPECT_EQ(grid.CellCheck(row), 0);
        EXPECT_FALSE(grid.CellCheckShown(row));
    }
    for (const Col col : {Col{0}, Col{2}, Col{-5}}) {
        EXPECT_EQ(grid.ColKey(col), u"");
        EXPECT_EQ(grid.ColHeaderText(col), u"");
        EXPECT_EQ(grid.ColWidth(col), 240);
    }
}

TEST_F(GridStoreTest, WritesOutsideHaveNoEffect) {
    Resize(1, 1);
    grid.AdoptBytes(BytesOf("abc"));
    for (const auto& [row, col] : {std::pair{0, 1}, {1, 0}, {2, 1}, {1, 2}, {-1, -1}}) {
        const Row r{row};
        const Col c{col};
        grid.SetCellValue(r, c, u"x");
        grid.SetCellSlice(r, c, 0, 1);
        grid.SetCellBackColor(r, c, Colour{1});
        grid.SetCellForeColor(r, c, Colour{1});
        grid.SetCellFontFlag(r, c, CellFlag::Italic, true);
        grid.SetCellColourMode(r, c, 1);
    }
    for (const Row row : {Row{0}, Row{2}, Row{-5}}) {
        grid.SetRowHeight(row, 99);
        grid.SetRowVisible(row, false);
        grid.SetCellCheck(row, 1);
        grid.SetCellCheckShown(row, true);
        grid.SetRowBackColor(row, Colour{1});
        grid.SetRowForeColor(row, Colour{1});
        grid.SetRowFontFlag(row, CellFlag::Bold, true);
        grid.EnsureRowVisible(row);
    }
    for (const Col col : {Col{0}, Col{2}, Col{-5}}) {
        grid.SetColHeaderText(col, u"x");
        grid.SetColWidth(col, 1);
        grid.RemoveCol(col);
        grid.SortByColumn(col, SortOrder::Ascending);
    }
    EXPECT_EQ(grid.RowCount(), Row{1});
    EXPECT_EQ(grid.ColCount(), Col{1});
    EXPECT_EQ(grid.CellValue(Row{1}, Col{1}), u"");
    EXPECT_EQ(grid.CellBackColor(Row{1}, Col{1}), kNoColour);
    EXPECT_EQ(grid.RowHeight(Row{1}), 24);
    EXPECT_TRUE(grid.RowVisible(Row{1}));
    EXPECT_EQ(grid.CellCheck(Row{1}), 0);
    EXPECT_EQ(grid.ColHeaderText(Col{1}), u"");
}

TEST_F(GridStoreTest, TheLookOfTheWholeTableIsKept) {
    grid.SetGridBackColor(Colour{0xFF0000});
    grid.SetGridForeColor(Colour{255});
    grid.SetGridFontName(u"Calibri");
    grid.SetGridFontSize(12);
    grid.SetSortOnHeaderClick(true);
    grid.SetGridVisible(false);
    EXPECT_EQ(grid.GridBackColor(), Colour{0xFF0000});
    EXPECT_EQ(grid.GridForeColor(), Colour{255});
    EXPECT_EQ(grid.GridFontName(), u"Calibri");
    EXPECT_EQ(grid.GridFontSize(), 12);
    EXPECT_TRUE(grid.SortOnHeaderClick());
    EXPECT_FALSE(grid.GridVisible());
}

} // namespace
} // namespace korvane
