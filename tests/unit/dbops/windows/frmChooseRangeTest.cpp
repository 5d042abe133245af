#include "dbops/windows/frmChooseRange.h"

#include "unit/dbops/TestTab.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

class ChooseRangeTest : public testing::Test {
protected:
    TestTab t;
};

TEST_F(ChooseRangeTest, HasItsCaptions) {
    const frmChooseRange form(t.app);
    EXPECT_EQ(form.Option1.Caption.Get(), u"All rows in table");
    EXPECT_EQ(form.Option2.Caption.Get(), u"Only rows with ticks in box on left");
    EXPECT_EQ(form.cmdProceed.Caption.Get(), u"&Proceed");
    EXPECT_EQ(form.cmdCancel.Caption.Get(), u"&Cancel");
}

TEST_F(ChooseRangeTest, KeepsTheChoiceAndPreselectsIt) {
    t.user.On<frmChooseRange>([](frmChooseRange& f) {
        EXPECT_TRUE(f.Option1.Value);
        f.Option2.Press();
        f.cmdProceed.Press();
    });
    EXPECT_TRUE(ChooseRange(t.app));
    EXPECT_EQ(t.app.DialogResult, 1);
    EXPECT_EQ(t.app.Settings.ChooseRangeOption, 1);
    t.user.On<frmChooseRange>([](frmChooseRange& f) {
        EXPECT_TRUE(f.Option2.Value);
        f.Option1.Press();
        f.cmdProceed.Press();
    });
    EXPECT_TRUE(ChooseRange(t.app));
    EXPECT_EQ(t.app.Settings.ChooseRangeOption, 0);
}

TEST_F(ChooseRangeTest, ACancelGivesZeroAndLeavesTheChoice) {
    t.app.DialogResult = 1;
    t.user.On<frmChooseRange>([](frmChooseRange& f) {
        f.Option2.Press();
        f.cmdCancel.Press();
    });
    EXPECT_FALSE(ChooseRange(t.app));
    EXPECT_EQ(t.app.DialogResult, 0);
    EXPECT_EQ(t.app.Settings.ChooseRangeOption, 0);
}

TEST_F(ChooseRangeTest, AllRowsOrTheTickedOnesAreInTheRange) {
    t.Fill({{u"a"}, {u"b"}});
    t.Tick({2});
    EXPECT_TRUE(IsInChosenRange(t.app, t.grid, Row{1}));
    EXPECT_TRUE(IsInChosenRange(t.app, t.grid, Row{2}));
    t.app.Settings.ChooseRangeOption = 1;
    EXPECT_FALSE(IsInChosenRange(t.app, t.grid, Row{1}));
    EXPECT_TRUE(IsInChosenRange(t.app, t.grid, Row{2}));
}

TEST_F(ChooseRangeTest, AStoredChoiceThatIsNoneBecomesAllRows) {
    t.app.Settings.ChooseRangeOption = 7;
    t.user.On<frmChooseRange>([](frmChooseRange& f) {
        EXPECT_TRUE(f.Option1.Value);
        f.cmdProceed.Press();
    });
    EXPECT_TRUE(ChooseRange(t.app));
    EXPECT_EQ(t.app.Settings.ChooseRangeOption, 0);
}

} // namespace
} // namespace korvane
