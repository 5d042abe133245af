#include "shell/WindowFitting.h"

#include "controls/Form.h"
#include "support/ScriptedUser.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

Rect Place(int left, int top, int width, int height) {
    return {Twips{left}, Twips{top}, Twips{width}, Twips{height}};
}

class WindowFitting : public testing::Test {
protected:
    /// The place of a window that was stored at `stored`, after the fitting.
    Rect Fit(Form& window, Rect stored) {
        window.Left = stored.left;
        window.Top = stored.top;
        window.Width = stored.width;
        window.Height = stored.height;
        place = stored;
        FitWindowToWorkArea(area, main, window, place);
        return {window.Left, window.Top, window.Width, window.Height};
    }

    ScriptedUser user;
    Form main{user, "frmMDIParent", u""};
    Form other{user, "frmLoadList", u""};
    Rect area = Place(150, 60, 20000, 15000);
    Rect place;
};

TEST_F(WindowFitting, AFirstRunStands300TwipsInsideTheWorkArea) {
    EXPECT_EQ(Fit(main, Place(0, 0, 0, 0)), Place(450, 360, 4800, 3200));
}

TEST_F(WindowFitting, OtherWindowsStand600TwipsInside) {
    EXPECT_EQ(Fit(other, Place(0, 0, 0, 0)), Place(750, 660, 4800, 3200));
}

TEST_F(WindowFitting, TheDefaultsDoNotReachTheStoredValues) {
    Fit(main, Place(0, 0, 0, 0));
    EXPECT_EQ(place, Place(0, 0, 0, 0));
}

TEST_F(WindowFitting, AWindowThatFitsStaysWhereItIs) {
    EXPECT_EQ(Fit(main, Place(1000, 2000, 9000, 8000)), Place(1000, 2000, 9000, 8000));
}

TEST_F(WindowFitting, AWindowLargerThanTheWorkAreaShrinksByTheGapOnEachSide) {
    EXPECT_EQ(Fit(main, Place(10, 10, 20001, 15001)), Place(450, 360, 19400, 14400));
    EXPECT_EQ(place, Place(450, 360, 19400, 14400));
    EXPECT_EQ(Fit(other, Place(10, 10, 20001, 15001)), Place(750, 660, 18800, 13800));
}

TEST_F(WindowFitting, AWindowPartlyOffTheEdgeMovesBackWithItsSize) {
    EXPECT_EQ(Fit(main, Place(15000, 2000, 9000, 8000)), Place(10850, 2000, 9000, 8000));
    EXPECT_EQ(Fit(other, Place(1000, 9000, 9000, 8000)), Place(1000, 6460, 9000, 8000));
}

TEST_F(WindowFitting, TheEdgeIsCountedWithoutTheStartOfTheWorkArea) {
    // Its right edge lies inside the work area, and yet it moves.
    EXPECT_EQ(Fit(main, Place(11001, 2000, 9000, 8000)), Place(10850, 2000, 9000, 8000));
}

} // namespace
} // namespace korvane
