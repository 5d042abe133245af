#include "context/WindowFitting.h"

#include "controls/Form.h"
#include "support/TestApp.h"

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
        FitWindowToWorkArea(area, window, place, &window == &main ? kMainWindowGap : kWindowGap);
        return {window.Left, window.Top, window.Width, window.Height};
    }

    TestApp t;
    Form main{t.user, "frmMDIParent", u""};
    Form other{t.user, "frmLoadList", u""};
    Rect area = Place(150, 60, 20000, 15000);
    Rect place;
};

TEST_F(WindowFitting, AFirstRunIs300TwipsInsideTheWorkArea) {
    EXPECT_EQ(Fit(main, Place(0, 0, 0, 0)), Place(450, 360, 4800, 3200));
}

TEST_F(WindowFitting, OtherWindowsAre600TwipsInside) {
    EXPECT_EQ(Fit(other, Place(0, 0, 0, 0)), Place(750, 660, 4800, 3200));
}

// Kept for compatibility: fit-keeps-stored-zeros.
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

// Kept for compatibility: fit-without-area-start.
TEST_F(WindowFitting, TheEdgeIsCountedWithoutTheStartOfTheWorkArea) {
    // Its right edge is inside the work area, and yet it moves.
    EXPECT_EQ(Fit(main, Place(11001, 2000, 9000, 8000)), Place(10850, 2000, 9000, 8000));
}

TEST_F(WindowFitting, EachValueThatWasNeverStoredHasItsOwnDefault) {
    EXPECT_EQ(Fit(main, Place(0, 2000, 9000, 8000)), Place(450, 2000, 9000, 8000));
    EXPECT_EQ(Fit(main, Place(1000, 0, 9000, 8000)), Place(1000, 360, 9000, 8000));
    EXPECT_EQ(Fit(main, Place(1000, 2000, 0, 8000)), Place(1000, 2000, 4800, 8000));
    EXPECT_EQ(Fit(main, Place(1000, 2000, 9000, 0)), Place(1000, 2000, 9000, 3200));
}

TEST_F(WindowFitting, AWindowExactlyAsLargeAsTheWorkAreaIsNotMadeSmaller) {
    EXPECT_EQ(Fit(main, Place(10, 10, 20000, 15000)), Place(-150, -240, 20000, 15000));
    EXPECT_EQ(place, Place(10, 10, 20000, 15000));
}

// Kept for compatibility: fit-keeps-stored-zeros.
TEST_F(WindowFitting, AStoredZeroLeavesTheWindowOverTheEdge) {
    EXPECT_EQ(Fit(main, Place(0, 0, 20000, 15000)), Place(450, 360, 20000, 15000));
}

constexpr StoredPlace kLoadList{&Settings::LoadListLeft, &Settings::LoadListTop, &Settings::LoadListWidth,
                                &Settings::LoadListHeight};

TEST_F(WindowFitting, AWindowKeepsItsPlaceInTheSettings) {
    other.Left = Twips{11};
    other.Top = Twips{12};
    other.Width = Twips{5000};
    other.Height = Twips{4000};
    StorePlace(t.app, other, kLoadList);
    EXPECT_EQ(t.app.Settings.LoadListLeft, 11);
    EXPECT_EQ(t.app.Settings.LoadListTop, 12);
    EXPECT_EQ(t.app.Settings.LoadListWidth, 5000);
    EXPECT_EQ(t.app.Settings.LoadListHeight, 4000);
    Form again(t.user, "frmLoadList", u"");
    RestorePlace(t.app, again, kLoadList);
    EXPECT_EQ((Rect{again.Left, again.Top, again.Width, again.Height}), Place(11, 12, 5000, 4000));
}

TEST_F(WindowFitting, AWindowWithoutAStoredPlaceComesUpInsideTheWorkArea) {
    const Rect screen = t.app.Screen().WorkArea();
    RestorePlace(t.app, other, kLoadList);
    EXPECT_EQ((Rect{other.Left, other.Top, other.Width, other.Height}),
              (Rect{screen.left + 600, screen.top + 600, Twips{4800}, Twips{3200}}));
    EXPECT_EQ(t.app.Settings.LoadListWidth, 0);
}

} // namespace
} // namespace korvane
