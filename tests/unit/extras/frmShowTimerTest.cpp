#include "extras/clock/frmShowTimer.h"

#include "support/TestApp.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

using std::chrono::milliseconds;

class ShowTimerTest : public testing::Test {
protected:
    /// Opens the clock, which the script has to close.
    void InClock(std::function<void(frmShowTimer&)> script) {
        t.user.On<frmShowTimer>(std::move(script));
        frmShowTimer(t.app).ShowModal();
    }
    void Pass(frmShowTimer& clock, milliseconds time) {
        t.clock.Pass(time);
        clock.frmTimer.Elapse();
    }

    TestApp t;
};

TEST_F(ShowTimerTest, TellsTheDateAndTheTimeAtOnce) {
    t.clock.Set({2026, 3, 7, 9, 5, 2});
    InClock([](frmShowTimer& f) {
        EXPECT_EQ(f.Caption.Get(), u"Time & Date;  press any key to continue...");
        EXPECT_EQ(f.Label1.Caption.Get(), u"Saturday, 7 March 2026");
        EXPECT_EQ(f.Label2.Caption.Get(), u"09:05");
        EXPECT_EQ(f.Label3.Caption.Get(), u"[ 02 ]");
        f.Close();
    });
}

TEST_F(ShowTimerTest, TicksTenTimesInASecond) {
    InClock([](frmShowTimer& f) {
        EXPECT_EQ(f.frmTimer.Interval(), milliseconds(100));
        EXPECT_TRUE(f.frmTimer.Enabled);
        f.Close();
    });
}

TEST_F(ShowTimerTest, FollowsTheClockThroughSecondsMinutesAndHours) {
    t.clock.Set({2026, 3, 7, 22, 58, 58});
    InClock([this](frmShowTimer& f) {
        Pass(f, milliseconds(900));
        EXPECT_EQ(f.Label3.Caption.Get(), u"[ 58 ]");
        Pass(f, milliseconds(100));
        EXPECT_EQ(f.Label3.Caption.Get(), u"[ 59 ]");
        EXPECT_EQ(f.Label2.Caption.Get(), u"22:58");
        Pass(f, milliseconds(1000));
        EXPECT_EQ(f.Label3.Caption.Get(), u"[ 00 ]");
        EXPECT_EQ(f.Label2.Caption.Get(), u"22:59");
        Pass(f, std::chrono::minutes(1));
        EXPECT_EQ(f.Label2.Caption.Get(), u"23:00");
        f.Close();
    });
}

/// Counts what the widget of a label would have to paint.
class Paints final : public View {
public:
    explicit Paints(Observed& shown) : shown_(shown) { shown_.SetView(this); }
    ~Paints() override { shown_.SetView(nullptr); }
    Paints(const Paints&) = delete;
    Paints& operator=(const Paints&) = delete;
    void Follow(Observed&, Aspect) override { ++count; }
    int count = 0;

private:
    Observed& shown_;
};

TEST_F(ShowTimerTest, PaintsTheSecondsOncePerSecond) {
    InClock([this](frmShowTimer& f) {
        {
            const Paints seconds(f.Label3);
            for (int tick = 0; tick < 100; ++tick)
                Pass(f, milliseconds(100));
            EXPECT_EQ(seconds.count, 10);
        }
        f.Close();
    });
}

// Kept for compatibility: clock-date-at-midnight.
TEST_F(ShowTimerTest, TheDateStaysWhenMidnightPasses) {
    t.clock.Set({2026, 12, 31, 23, 59, 59});
    InClock([this](frmShowTimer& f) {
        Pass(f, milliseconds(1000));
        EXPECT_EQ(f.Label2.Caption.Get(), u"00:00");
        EXPECT_EQ(f.Label1.Caption.Get(), u"Thursday, 31 December 2026");
        f.Close();
    });
    InClock([](frmShowTimer& f) {
        EXPECT_EQ(f.Label1.Caption.Get(), u"Friday, 1 January 2027");
        f.Close();
    });
}

class AnyKeyTest : public ShowTimerTest, public testing::WithParamInterface<KeyEvent> {};

TEST_P(AnyKeyTest, ClosesTheClock) {
    InClock([](frmShowTimer& f) {
        KeyEvent key = GetParam();
        f.KeyDown(key);
        EXPECT_TRUE(key.consumed);
        EXPECT_FALSE(f.Shown());
    });
}

INSTANTIATE_TEST_SUITE_P(Keys, AnyKeyTest,
                         testing::Values(KeyEvent{'A'}, KeyEvent{Key::Escape}, KeyEvent{Key::Return},
                                         KeyEvent{Key::F(11), Mask::Ctrl}, KeyEvent{Key::Space},
                                         // A letter of another alphabet has no code.
                                         KeyEvent{0}),
                         [](const auto& key) { return "Code" + std::to_string(key.param.code); });

// Kept for compatibility: modifiers-alone-are-no-keys.
TEST_F(ShowTimerTest, StaysWhileOnlyAModifierIsHeld) {
    InClock([](frmShowTimer& f) {
        for (const int code : {Key::Shift, Key::Control, Key::Alt}) {
            KeyEvent key{code};
            f.KeyDown(key);
            EXPECT_TRUE(f.Shown());
        }
        f.Close();
    });
}

TEST_F(ShowTimerTest, AClickClosesIt) {
    InClock([](frmShowTimer& f) {
        f.Clicked();
        EXPECT_FALSE(f.Shown());
    });
}

TEST_F(ShowTimerTest, IsLargeInTheMiddleOfTheWorkArea) {
    t.screen.SetWorkArea({Twips{1000}, Twips{500}, Twips{20000}, Twips{10000}});
    InClock([](frmShowTimer& f) {
        EXPECT_EQ(f.Width.Get(), Twips{14000});
        EXPECT_EQ(f.Height.Get(), Twips{7000});
        EXPECT_EQ(f.Left.Get(), Twips{4000});
        EXPECT_EQ(f.Top.Get(), Twips{2000});
        f.Close();
    });
}

TEST_F(ShowTimerTest, WaitsForNothing) {
    InClock([](frmShowTimer& f) { f.Close(); });
    EXPECT_TRUE(t.clock.Waits().empty());
}

} // namespace
} // namespace korvane
