#include "GridFixtures.h"
#include "grid/Grid.h"

namespace korvane {
namespace {

class GridStoreLooksTest : public GridTest {};

TEST_F(GridStoreLooksTest, CellsHaveNoColourAndNoFlagAtFirst) {
    Resize(1, 2);
    EXPECT_EQ(grid.CellBackColor(Row{1}, Col{2}), Colour{-1});
    EXPECT_EQ(grid.CellForeColor(Row{1}, Col{2}), Colour{-1});
    for (const CellFlag flag : {CellFlag::Italic, CellFlag::Bold, CellFlag::Strikethrough})
        EXPECT_FALSE(grid.CellFontFlag(Row{1}, Col{2}, flag));
}

TEST_F(GridStoreLooksTest, ACellsColourIsItsOwn) {
    Resize(2, 2);
    grid.SetCellBackColor(Row{1}, Col{2}, Colour{255});
    grid.SetCellForeColor(Row{2}, Col{1}, Colour{0xFF0000});
    EXPECT_EQ(grid.CellBackColor(Row{1}, Col{2}), Colour{255});
    EXPECT_EQ(grid.CellBackColor(Row{1}, Col{1}), kNoColour);
    EXPECT_EQ(grid.CellBackColor(Row{2}, Col{2}), kNoColour);
    EXPECT_EQ(grid.CellForeColor(Row{2}, Col{1}), Colour{0xFF0000});
    EXPECT_EQ(grid.CellForeColor(Row{2}, Col{2}), kNoColour);
}

TEST_F(GridStoreLooksTest, FlagsAreIndependent) {
    Resize(1, 1);
    grid.SetCellFontFlag(Row{1}, Col{1}, CellFlag::Italic, true);
    grid.SetCellFontFlag(Row{1}, Col{1}, CellFlag::Strikethrough, true);
    grid.SetCellFontFlag(Row{1}, Col{1}, CellFlag::Italic, false);
    EXPECT_FALSE(grid.CellFontFlag(Row{1}, Col{1}, CellFlag::Italic));
    EXPECT_FALSE(grid.CellFontFlag(Row{1}, Col{1}, CellFlag::Bold));
    EXPECT_TRUE(grid.CellFontFlag(Row{1}, Col{1}, CellFlag::Strikethrough));
}

TEST_F(GridStoreLooksTest, ARowsLookGoesToEveryColumn) {
    Resize(2, 3);
    grid.SetCellBackColor(Row{1}, Col{2}, Colour{7});
    grid.SetRowBackColor(Row{1}, Colour{9});
    grid.SetRowForeColor(Row{1}, Colour{10});
    grid.SetRowFontFlag(Row{1}, CellFlag::Bold, true);
    for (Col col{1}; col <= Col{3}; ++col) {
        EXPECT_EQ(grid.CellBackColor(Row{1}, col), Colour{9});
        EXPECT_EQ(grid.CellForeColor(Row{1}, col), Colour{10});
        EXPECT_TRUE(grid.CellFontFlag(Row{1}, col, CellFlag::Bold));
        EXPECT_EQ(grid.CellBackColor(Row{2}, col), kNoColour);
    }
}

TEST_F(GridStoreLooksTest, ACellCanDifferFromItsRow) {
    Resize(1, 3);
    grid.SetRowBackColor(Row{1}, Colour{9});
    grid.SetCellBackColor(Row{1}, Col{2}, kNoColour);
    EXPECT_EQ(grid.CellBackColor(Row{1}, Col{1}), Colour{9});
    EXPECT_EQ(grid.CellBackColor(Row{1}, Col{2}), kNoColour);
    EXPECT_EQ(grid.CellBackColor(Row{1}, Col{3}), Colour{9});
}

TEST_F(GridStoreLooksTest, AColumnAddedLaterHasNoShareInTheRowsLook) {
    Resize(1, 1);
    grid.SetRowBackColor(Row{1}, Colour{9});
    grid.SetColCount(Col{2});
    EXPECT_EQ(grid.CellBackColor(Row{1}, Col{1}), Colour{9});
    EXPECT_EQ(grid.CellBackColor(Row{1}, Col{2}), kNoColour);
    grid.AddCol(u"3no", u"");
    EXPECT_EQ(grid.CellBackColor(Row{1}, Col{3}), kNoColour);
    grid.SetRowBackColor(Row{1}, Colour{8});
    EXPECT_EQ(grid.CellBackColor(Row{1}, Col{3}), Colour{8});
}

TEST_F(GridStoreLooksTest, ARowWithoutColumnsTakesNoLook) {
    Resize(1, 0);
    grid.SetRowBackColor(Row{1}, Colour{9});
    grid.SetColCount(Col{1});
    EXPECT_EQ(grid.CellBackColor(Row{1}, Col{1}), kNoColour);
}

TEST_F(GridStoreLooksTest, LooksGoWithARemovedColumn) {
    Resize(1, 3);
    grid.SetCellBackColor(Row{1}, Col{2}, Colour{2});
    grid.SetCellBackColor(Row{1}, Col{3}, Colour{3});
    grid.RemoveCol(Col{2});
    EXPECT_EQ(grid.CellBackColor(Row{1}, Col{1}), kNoColour);
    EXPECT_EQ(grid.CellBackColor(Row{1}, Col{2}), Colour{3});
    grid.RemoveCol(Col{2});
    grid.RemoveCol(Col{1});
    grid.SetColCount(Col{1});
    EXPECT_EQ(grid.CellBackColor(Row{1}, Col{1}), kNoColour);
}

TEST_F(GridStoreLooksTest, AColumnThatLostItsRowsTakesTheLooksOfNewOnes) {
    Resize(1, 1);
    grid.SetCellBackColor(Row{1}, Col{1}, Colour{2});
    grid.SetRowCount(Row{0});
    grid.SetRowCount(Row{1});
    grid.SetRowBackColor(Row{1}, Colour{9});
    EXPECT_EQ(grid.CellBackColor(Row{1}, Col{1}), Colour{9});
}

} // namespace
} // namespace korvane
