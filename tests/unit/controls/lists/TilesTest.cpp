#include "controls/lists/Tiles.h"

#include "controls/Form.h"
#include "support/ScriptedUser.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

class TilesTest : public testing::Test {
protected:
    TilesTest() {
        tiles.Items = std::vector<Tiles::Tile>(5);
        tiles.Click = [this] { ++clicks; };
    }

    ScriptedUser user;
    Form form{user, "Form", u""};
    Tiles tiles{form, "tiles", 3};
    int clicks = 0;
};

TEST_F(TilesTest, RowsAreFilledOneAfterTheOther) {
    EXPECT_EQ(tiles.Rows(), 2);
    tiles.Items = std::vector<Tiles::Tile>(6);
    EXPECT_EQ(tiles.Rows(), 2);
    tiles.Items = std::vector<Tiles::Tile>();
    EXPECT_EQ(tiles.Rows(), 0);
}

TEST_F(TilesTest, AnotherCurrentTileIsAClick) {
    EXPECT_EQ(tiles.Current(), -1);
    tiles.Select(4);
    tiles.Select(4);
    EXPECT_EQ(tiles.Current(), 4);
    EXPECT_EQ(clicks, 1);
    tiles.SetCurrent(-1);
    EXPECT_EQ(clicks, 2);
}

TEST_F(TilesTest, ANumberWithoutATileHasNoEffect) {
    tiles.Select(1);
    tiles.Select(5);
    tiles.Select(-2);
    EXPECT_EQ(tiles.Current(), 1);
    EXPECT_EQ(clicks, 1);
}

TEST_F(TilesTest, ADoubleClickSelectsFirst) {
    int at = -1;
    tiles.DblClick = [&] { at = tiles.Current(); };
    tiles.DoubleClick(2);
    EXPECT_EQ(at, 2);
}

TEST_F(TilesTest, ThePointerIsOverATileOrNone) {
    std::vector<int> seen;
    tiles.PointedAt = [&seen](int tile) { seen.push_back(tile); };
    tiles.PointAt(3);
    tiles.PointAt(-1);
    tiles.PointAt(5);
    EXPECT_EQ(seen, std::vector<int>{3});
}

} // namespace
} // namespace korvane
