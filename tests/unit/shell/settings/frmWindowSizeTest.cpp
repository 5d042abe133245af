#include "shell/settings/frmWindowSize.h"

#include "grid/GridStore.h"
#include "shell/main/frmMDIParent.h"
#include "shell/tabs/frmMDIChild.h"
#include "support/TestProgram.h"

#include <gtest/gtest.h>

#include <vector>

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

std::vector<Text> Lines(const ListBox& list) {
    std::vector<Text> lines;
    for (int i = 0; i < list.ListCount(); ++i)
        lines.push_back(list.List(i));
    return lines;
}

class WindowSizeTest : public testing::Test {
protected:
    WindowSizeTest() {
        t.screen.SetWorkArea(MakeRect(0, 0, 20000, 10001));
        main.Parts().tabs.AddNewTab();
        PutAt(main, MakeRect(100, 200, 6000, 4001));
    }

    void ChooseLayout(int index) {
        t.user.On<frmWindowSize>([index](frmWindowSize& f) {
            f.List1.Select(index);
            f.cmdOk.Press();
        });
        main.RunCommand("mnuWindowSize");
    }
    void ChoosePercent(int index) {
        t.user.On<frmWindowSize>([index](frmWindowSize& f) {
            f.lstSize.Select(index);
            f.cmdPercent.Press();
        });
        main.RunCommand("mnuWindowSize");
    }

    TestApp t;
    frmMDIParent main{t.app, u""};
};

TEST_F(WindowSizeTest, HasItsTextsAndItsFirstEntriesChosen) {
    t.user.On<frmWindowSize>([](frmWindowSize& f) {
        EXPECT_EQ(f.Caption.Get(), u"Program window size");
        EXPECT_EQ(f.cmdOk.Caption.Get(), u"&Size");
        EXPECT_EQ(f.cmdPercent.Caption.Get(), u"&Percent");
        EXPECT_EQ(f.cmdCancel.Caption.Get(), u"&Cancel");
        EXPECT_EQ(Lines(f.List1), (std::vector<Text>{u" Same size as screen", u" Vertical half, left",
                                                     u" Horizontal half, top", u" Vertical half, right",
                                                     u" Horizontal half, below", u" Centre on screen",
                                                     u" Centre with max height"}));
        EXPECT_EQ(Lines(f.lstSize), (std::vector<Text>{u"  30%", u"  40%", u"  50%", u"  60%", u"  70%",
                                                       u"  80%", u"  85%", u"  90%", u"  95%"}));
        EXPECT_EQ(f.List1.ListIndex(), 0);
        EXPECT_EQ(f.lstSize.ListIndex(), 0);
        f.cmdCancel.Press();
    });
    main.RunCommand("mnuWindowSize");
}

TEST_F(WindowSizeTest, NeedsATab) {
    main.MDITabs1.CloseWanted(*main.Parts().tabs.Active());
    main.RunCommand("mnuWindowSize");
    EXPECT_EQ(PlaceOf(main), MakeRect(100, 200, 6000, 4001));
}

TEST_F(WindowSizeTest, ACancelChangesNothing) {
    main.State = FormState::Maximised;
    t.user.On<frmWindowSize>([](frmWindowSize& f) {
        f.List1.Select(2);
        f.cmdCancel.Press();
    });
    main.RunCommand("mnuWindowSize");
    EXPECT_EQ(t.app.DialogResult, 0);
    EXPECT_EQ(PlaceOf(main), MakeRect(100, 200, 6000, 4001));
    EXPECT_EQ(main.State.Get(), FormState::Maximised);
}

TEST_F(WindowSizeTest, EachLayoutHasItsPlace) {
    const std::vector<Rect> expected{
        MakeRect(0, 0, 20000, 10001),     MakeRect(0, 0, 10000, 10001),   MakeRect(0, 0, 20000, 5000),
        MakeRect(10000, 0, 10000, 10001), MakeRect(0, 5000, 20000, 5000), MakeRect(7000, 3000, 6000, 4001),
        MakeRect(7000, 0, 6000, 10001),
    };
    for (std::size_t i = 0; i < expected.size(); ++i) {
        PutAt(main, MakeRect(100, 200, 6000, 4001));
        ChooseLayout(static_cast<int>(i));
        EXPECT_EQ(t.app.DialogResult, 1);
        EXPECT_EQ(PlaceOf(main), expected[i]) << i;
    }
}

// Kept for compatibility: half-sizes-overshoot.
TEST_F(WindowSizeTest, HalvesAddTheOffsetToTheSizeAndOvershoot) {
    t.screen.SetWorkArea(MakeRect(1000, 600, 19000, 9600));
    ChooseLayout(3);
    EXPECT_EQ(PlaceOf(main), MakeRect(10000, 600, 10000, 9600));
    ChooseLayout(4);
    EXPECT_EQ(PlaceOf(main), MakeRect(1000, 5100, 19000, 5100));
}

// Kept for compatibility: window-sizes-one-ahead.
TEST_F(WindowSizeTest, ThePercentagesRunAheadOfTheirNamesFrom85On) {
    t.screen.SetWorkArea(MakeRect(0, 0, 20000, 10000));
    const std::vector<Rect> expected{
        MakeRect(7000, 3500, 6000, 3000),  MakeRect(6000, 3000, 8000, 4000),
        MakeRect(5000, 2500, 10000, 5000), MakeRect(4000, 2000, 12000, 6000),
        MakeRect(3000, 1500, 14000, 7000), MakeRect(2000, 1000, 16000, 8000),
        MakeRect(1000, 500, 18000, 9000),  MakeRect(500, 250, 19000, 9500),
    };
    for (std::size_t i = 0; i < expected.size(); ++i) {
        ChoosePercent(static_cast<int>(i));
        EXPECT_EQ(t.app.DialogResult, 2);
        EXPECT_EQ(PlaceOf(main), expected[i]) << i;
    }
}

// Kept for compatibility: window-sizes-one-ahead.
TEST_F(WindowSizeTest, TheLastPercentageOnlyCentres) {
    ChoosePercent(8);
    EXPECT_EQ(PlaceOf(main), MakeRect(7000, 3000, 6000, 4001));
}

TEST_F(WindowSizeTest, ThePlaceIsForAWindowOfNormalState) {
    main.State = FormState::Maximised;
    ChooseLayout(0);
    EXPECT_EQ(main.State.Get(), FormState::Normal);
}

TEST_F(WindowSizeTest, SizesAreExactUntilTheNearestTwip) {
    t.screen.SetWorkArea(MakeRect(0, 0, 19999, 10001));
    ChoosePercent(7);
    // 18999.05 by 9500.95, then half of what is left, towards zero.
    EXPECT_EQ(PlaceOf(main), MakeRect(500, 250, 18999, 9501));
    ChooseLayout(1);
    EXPECT_EQ(PlaceOf(main), MakeRect(0, 0, 10000, 10001));
}

TEST_F(WindowSizeTest, AWindowLargerThanTheScreenIsCentredOverItsEdges) {
    PutAt(main, MakeRect(100, 200, 20003, 10004));
    ChooseLayout(5);
    EXPECT_EQ(PlaceOf(main), MakeRect(-1, -1, 20003, 10004));
}

TEST_F(WindowSizeTest, AListWithoutASelectionLeavesTheWindowAlone) {
    ChooseLayout(-1);
    ChoosePercent(-1);
    EXPECT_EQ(PlaceOf(main), MakeRect(100, 200, 6000, 4001));
}

TEST_F(WindowSizeTest, TheGridHasTheKeyboardAfterwards) {
    FocusCounter focus(main.Parts().tabs.Active()->GridStore());
    ChooseLayout(0);
    EXPECT_EQ(focus.Count(), 1);
    t.user.On<frmWindowSize>([](frmWindowSize& f) { f.cmdCancel.Press(); });
    main.RunCommand("mnuWindowSize");
    EXPECT_EQ(focus.Count(), 1);
}

TEST_F(WindowSizeTest, ADoubleClickAndReturnPickFromEitherList) {
    t.user.On<frmWindowSize>([](frmWindowSize& f) { f.List1.DoubleClick(5); });
    main.RunCommand("mnuWindowSize");
    EXPECT_EQ(t.app.DialogResult, 1);
    t.user.On<frmWindowSize>([](frmWindowSize& f) { f.lstSize.DoubleClick(8); });
    main.RunCommand("mnuWindowSize");
    EXPECT_EQ(t.app.DialogResult, 2);
    KeyEvent enter{Key::Return};
    t.user.On<frmWindowSize>([&enter](frmWindowSize& f) { f.List1.KeyDown(enter); });
    main.RunCommand("mnuWindowSize");
    EXPECT_EQ(t.app.DialogResult, 1);
    EXPECT_TRUE(enter.consumed);
    t.user.On<frmWindowSize>([&enter](frmWindowSize& f) { f.lstSize.KeyDown(enter); });
    main.RunCommand("mnuWindowSize");
    EXPECT_EQ(t.app.DialogResult, 2);
}

TEST_F(WindowSizeTest, TheChoicesAreKeptAsLongAsTheProgramRuns) {
    ChooseLayout(4);
    ChoosePercent(6);
    t.user.On<frmWindowSize>([](frmWindowSize& f) {
        EXPECT_EQ(f.List1.ListIndex(), 4);
        EXPECT_EQ(f.lstSize.ListIndex(), 6);
        f.cmdCancel.Press();
    });
    main.RunCommand("mnuWindowSize");
}

} // namespace
} // namespace korvane
