#include "controls/Timer.h"

#include "controls/Form.h"
#include "support/ScriptedUser.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

TEST(Timer, TicksUnlessItIsDisabled) {
    ScriptedUser user;
    Form window(user, "Window", u"");
    Timer timer(window, "frmTimer", std::chrono::milliseconds(100));
    timer.Elapse();
    int ticks = 0;
    timer.Tick = [&ticks] { ++ticks; };
    timer.Elapse();
    EXPECT_EQ(ticks, 1);
    timer.Enabled = false;
    timer.Elapse();
    EXPECT_EQ(ticks, 1);
}

} // namespace
} // namespace korvane
