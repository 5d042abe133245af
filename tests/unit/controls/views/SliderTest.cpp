#include "controls/views/Slider.h"

#include "controls/Form.h"
#include "support/ScriptedUser.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

class SliderTest : public testing::Test {
protected:
    SliderTest() {
        slider.Change = [this] { ++changes; };
        slider.Scroll = [this] { ++scrolls; };
        slider.Released = [this] { ++releases; };
    }

    ScriptedUser user;
    Form window{user, "Window", u""};
    Slider slider{window, "ZoomSlider", 13, 360};
    int changes = 0;
    int scrolls = 0;
    int releases = 0;
};

TEST_F(SliderTest, TellsAUsersMoveFromOneOfTheProgram) {
    slider.Value = 20;
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(scrolls, 0);
    slider.MoveTo(30);
    EXPECT_EQ(slider.Value, 30);
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(scrolls, 1);
}

TEST_F(SliderTest, HasTakenTheValueWhenItTellsOfTheMove) {
    int seen = 0;
    slider.Scroll = [&] { seen = slider.Value; };
    slider.MoveTo(30);
    EXPECT_EQ(seen, 30);
}

TEST_F(SliderTest, AMoveToWhereItIsAlreadyIsNone) {
    slider.MoveTo(30);
    slider.MoveTo(30);
    EXPECT_EQ(scrolls, 1);
}

TEST_F(SliderTest, TellsThatItWasReleased) {
    slider.Release();
    EXPECT_EQ(releases, 1);
}

TEST_F(SliderTest, CannotBeMovedWhileItIsDisabledOrHidden) {
    slider.Enabled = false;
    slider.MoveTo(30);
    slider.Release();
    slider.Enabled = true;
    slider.Visible = false;
    slider.MoveTo(30);
    slider.Release();
    EXPECT_EQ(scrolls + releases + changes, 0);
}

TEST_F(SliderTest, WithoutAListenerItsValueChangesAllTheSame) {
    slider.Change = nullptr;
    slider.Scroll = nullptr;
    slider.Released = nullptr;
    slider.MoveTo(100);
    slider.Release();
    EXPECT_EQ(slider.Value, 100);
    EXPECT_EQ(changes + scrolls + releases, 0);
}

} // namespace
} // namespace korvane
