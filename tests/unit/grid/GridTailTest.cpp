#include "grid/GridTail.h"

#include "GridFixtures.h"

namespace korvane {
namespace {

class GridTailTest : public GridTest {};

TEST_F(GridTailTest, ItsRowsFollowThoseOfTheTable) {
    grid.AdoptBytes(BytesOf("onetwothree"));
    Resize(1, 2);
    grid.SetCellSlice(Row{1}, Col{1}, 0, 3);
    const auto tail = grid.BeginTail();
    Grid& rows = tail->Rows();
    rows.SetRowCount(Row{2});
    rows.SetCellSlice(Row{1}, Col{2}, 3, 3);
    rows.SetCellBytes(Row{2}, Col{1}, "own \x80");
    rows.SetCellValue(Row{2}, Col{2}, u"Я");
    grid.SetRowCount(Row{2});
    EXPECT_EQ(rows.CellValue(Row{1}, Col{2}), u"two");
    ASSERT_TRUE(tail->Append());
    EXPECT_EQ(Column(Col{1}), (std::vector<Text>{u"one", u"", u"", u"own €"}));
    EXPECT_EQ(Column(Col{2}), (std::vector<Text>{u"", u"", u"two", u"Я"}));
}

TEST_F(GridTailTest, ItsRowsBringTheirLooksAlong) {
    Resize(1, 2);
    grid.SetCellForeColor(Row{1}, Col{2}, Colour{5});
    const auto tail = grid.BeginTail();
    Grid& rows = tail->Rows();
    rows.SetRowCount(Row{2});
    rows.SetRowBackColor(Row{1}, Colour{7});
    rows.SetCellFontFlag(Row{2}, Col{1}, CellFlag::Bold, true);
    rows.SetRowHeight(Row{1}, 40);
    rows.SetCellCheck(Row{2}, 1);
    rows.SetRowVisible(Row{2}, false);
    ASSERT_TRUE(tail->Append());
    EXPECT_EQ(grid.CellForeColor(Row{1}, Col{2}), Colour{5});
    EXPECT_EQ(grid.CellForeColor(Row{2}, Col{2}), kNoColour);
    EXPECT_EQ(grid.CellBackColor(Row{2}, Col{1}), Colour{7});
    EXPECT_EQ(grid.CellBackColor(Row{2}, Col{2}), Colour{7});
    EXPECT_TRUE(grid.CellFontFlag(Row{3}, Col{1}, CellFlag::Bold));
    EXPECT_FALSE(grid.CellFontFlag(Row{3}, Col{2}, CellFlag::Bold));
    EXPECT_EQ(grid.RowHeight(Row{2}), 40);
    EXPECT_EQ(grid.CellCheck(Row{3}), 1);
    EXPECT_FALSE(grid.RowVisible(Row{3}));
}

TEST_F(GridTailTest, TooManyRowsStayOutside) {
    Resize(2, 1);
    const auto tail = grid.BeginTail();
    tail->Rows().SetRowCount(kMaxRows - 1);
    EXPECT_FALSE(tail->Append());
    EXPECT_EQ(grid.RowCount(), Row{2});
    tail->Rows().SetRowCount(kMaxRows - 2);
    EXPECT_TRUE(tail->Append());
    EXPECT_EQ(grid.RowCount(), kMaxRows);
}

TEST_F(GridTailTest, ATableTellsThatItHasGrown) {
    Resize(1, 1);
    const auto tail = grid.BeginTail();
    tail->Rows().SetRowCount(Row{1});
    const auto before = grid.ChangeCount();
    ASSERT_TRUE(tail->Append());
    EXPECT_GT(grid.ChangeCount(), before);
}

} // namespace
} // namespace korvane
