#include "controls/views/Splitter.h"

#include "controls/Form.h"
#include "support/ScriptedUser.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

TEST(Splitter, TellsOnlyWhatTheUserMoves) {
    ScriptedUser user;
    Form form(user, "frmTest", u"");
    Splitter splitter(form, "imgSplitV");
    int moves = 0;
    splitter.Moved = [&moves] { ++moves; };
    splitter.Position = 100;
    EXPECT_EQ(moves, 0);
    splitter.DragTo(150);
    EXPECT_EQ(splitter.Position.Get(), 150);
    EXPECT_EQ(moves, 1);
}

} // namespace
} // namespace korvane
