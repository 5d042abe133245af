#include "dialogs/Docking.h"

#include "controls/Form.h"
#include "support/TestApp.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

Rect MakeRect(int left, int top, int width, int height) {
    return {Twips{left}, Twips{top}, Twips{width}, Twips{height}};
}

Rect PlaceOf(const Form& form) {
    return {form.Left, form.Top, form.Width, form.Height};
}

void PutAt(Form& form, const Rect& place) {
    form.Left = place.left;
    form.Top = place.top;
    form.Width = place.width;
    form.Height = place.height;
}

const Message kNoRoom{u"Not enough space to move window as requested.\r\n\r\n"
                      u"Minimum required: 5,000 pixels.",
                      MessageIcon::Exclamation};

class DockingTest : public testing::Test {
protected:
    DockingTest() {
        t.screen.SetWorkArea(MakeRect(400, 0, 28000, 15600));
        PutAt(owner, MakeRect(6400, 700, 15000, 9000));
        PutAt(window, kBefore);
    }
    bool Press(int code, int mask) {
        KeyEvent key{code, mask};
        const bool docked = DockByKey(t.app, owner, window, key);
        EXPECT_EQ(key.consumed, docked);
        return docked;
    }

    const Rect kBefore = MakeRect(1, 2, 4000, 3000);
    TestApp t;
    Form owner{t.user, "frmMDIParent", u""};
    Form window{t.user, "frmFileList", u""};
};

TEST_F(DockingTest, LeftWithoutStretchKeepsTheWidth) {
    DockLeftOf(t.app, owner, window, Stretch::KeepWidth);
    EXPECT_EQ(PlaceOf(window), MakeRect(2400, 700, 4000, 9000));
}

TEST_F(DockingTest, LeftWithStretchFillsTheSpace) {
    DockLeftOf(t.app, owner, window, Stretch::FillSpace);
    EXPECT_EQ(PlaceOf(window), MakeRect(400, 700, 6000, 9000));
}

TEST_F(DockingTest, RightWithoutStretchKeepsTheWidth) {
    DockRightOf(t.app, owner, window, Stretch::KeepWidth);
    EXPECT_EQ(PlaceOf(window), MakeRect(21400, 700, 4000, 9000));
}

TEST_F(DockingTest, RightWithStretchFillsTheSpace) {
    DockRightOf(t.app, owner, window, Stretch::FillSpace);
    EXPECT_EQ(PlaceOf(window), MakeRect(21400, 700, 7000, 9000));
}

// Kept for compatibility: docking-needs-5000.
TEST_F(DockingTest, ExactlyFiveThousandOnTheLeftIsRefused) {
    owner.Left = Twips{5400};
    t.user.Answer(kNoRoom, Answer::Ok);
    DockLeftOf(t.app, owner, window, Stretch::FillSpace);
    EXPECT_EQ(PlaceOf(window), kBefore);
    owner.Left = Twips{5401};
    DockLeftOf(t.app, owner, window, Stretch::FillSpace);
    EXPECT_EQ(window.Width.Get(), Twips{5001});
}

// Kept for compatibility: docking-needs-5000.
TEST_F(DockingTest, ExactlyFiveThousandOnTheRightIsRefused) {
    owner.Width = Twips{28000 - 5000 - 6400};
    t.user.Answer(kNoRoom, Answer::Ok);
    DockRightOf(t.app, owner, window, Stretch::FillSpace);
    EXPECT_EQ(PlaceOf(window), kBefore);
    owner.Width = owner.Width.Get() - 1;
    DockRightOf(t.app, owner, window, Stretch::FillSpace);
    EXPECT_EQ(window.Left.Get(), Twips{22999});
}

TEST_F(DockingTest, TheKeysSayWhereAndWhetherToStretch) {
    EXPECT_TRUE(Press('L', Mask::Ctrl));
    EXPECT_EQ(PlaceOf(window), MakeRect(400, 700, 6000, 9000));
    EXPECT_TRUE(Press('R', Mask::Ctrl | Mask::Alt));
    EXPECT_EQ(PlaceOf(window), MakeRect(21400, 700, 7000, 9000));
    PutAt(window, kBefore);
    EXPECT_TRUE(Press('L', Mask::Ctrl | Mask::Shift));
    EXPECT_EQ(PlaceOf(window), MakeRect(2400, 700, 4000, 9000));
    EXPECT_TRUE(Press('R', Mask::Ctrl | Mask::Shift));
    EXPECT_EQ(PlaceOf(window), MakeRect(21400, 700, 4000, 9000));
    EXPECT_TRUE(Press('L', Mask::Ctrl | Mask::Alt));
    EXPECT_TRUE(Press('R', Mask::Ctrl));
}

TEST_F(DockingTest, OtherKeysAreLeftAlone) {
    EXPECT_FALSE(Press('L', Mask::None));
    EXPECT_FALSE(Press('L', Mask::Alt));
    EXPECT_FALSE(Press('X', Mask::Ctrl));
    EXPECT_EQ(PlaceOf(window), kBefore);
}

TEST_F(DockingTest, CentresAWindowWithinTheMainOne) {
    window.State = FormState::Maximised;
    CentreWithin(owner, window, 90);
    EXPECT_EQ(window.State.Get(), FormState::Normal);
    EXPECT_EQ(PlaceOf(window), MakeRect(7150, 1150, 13500, 8100));
}

TEST_F(DockingTest, ACentredWindowStandsAtTheNearestWholePlace) {
    PutAt(owner, MakeRect(0, 0, 1001, 1003));
    CentreWithin(owner, window, 95);
    EXPECT_EQ(PlaceOf(window), MakeRect(25, 25, 951, 953));
}

} // namespace
} // namespace korvane
