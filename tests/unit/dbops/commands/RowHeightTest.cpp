#include "dbops/commands/RowHeight.h"

#include "common/number/Number.h"
#include "dbops/windows/frmSetRowHeight.h"
#include "unit/dbops/TestTab.h"

#include <gtest/gtest.h>

#include <optional>

namespace korvane {
namespace {

using Numbers = std::vector<int>;
using Shown = std::vector<std::int16_t>;

class RowHeight : public testing::Test {
protected:
    RowHeight() {
        t.Fill({{u"a"}, {u"b"}, {u"c"}});
        t.Hide({2});
    }
    /// Runs `script` in the dialog and then presses Proceed.
    template <class Script>
    void Proceed(const Script& script) {
        t.user.On<frmSetRowHeight>([&script](frmSetRowHeight& window) {
            script(window);
            window.cmdProceed.Press();
        });
        mnuEdit_SetRowHeight_Clack(t.tab);
    }

    TestTab t;
};

TEST_F(RowHeight, TheCommandSetsAllRowsToTheChosenHeight) {
    Proceed([](frmSetRowHeight& window) { window.cboRowHeight.Select(39); });
    EXPECT_EQ(t.table.SetRowHeight, 40);
    EXPECT_EQ(t.Heights(), (Numbers{40, 40, 40}));
    EXPECT_EQ(t.app.DialogResult, 1);
    EXPECT_EQ(t.table.TableAltered, 1);
}

TEST_F(RowHeight, TheBoxAndTheSliderFollowTheDialog) {
    Proceed([](frmSetRowHeight& window) { window.cboRowHeight.Select(39); });
    EXPECT_EQ(t.host.heights, Shown{40});
}

// Kept for compatibility: row-height-counts-after-cancel.
TEST_F(RowHeight, CountsAsAChangeEvenAfterACancel) {
    t.table.SetRowHeight = 50;
    t.app.DialogResult = 1;
    t.user.On<frmSetRowHeight>([](frmSetRowHeight& window) {
        window.cboRowHeight.Select(39);
        window.cmdCancel.Press();
    });
    mnuEdit_SetRowHeight_Clack(t.tab);
    EXPECT_EQ(t.table.SetRowHeight, 50);
    EXPECT_EQ(t.Heights(), (Numbers{24, 24, 24}));
    EXPECT_EQ(t.app.DialogResult, 0);
    EXPECT_EQ(t.table.TableAltered, 1);
}

TEST_F(RowHeight, TheDialogOffersOneTo128AndSelectsThePresentHeight) {
    t.table.SetRowHeight = 128;
    Proceed([](frmSetRowHeight& window) {
        const ComboBox& combo = window.cboRowHeight;
        ASSERT_EQ(combo.ListCount(), 128);
        for (int index = 0; index < combo.ListCount(); ++index)
            EXPECT_EQ(combo.List(index), NumberText(index + 1));
        EXPECT_EQ(combo.Chosen(), u"128");
        EXPECT_EQ(window.cmdProceed.Caption.Get(), u"&Proceed");
        EXPECT_EQ(window.cmdCancel.Caption.Get(), u"&Cancel");
        EXPECT_TRUE(window.cmdProceed.Default);
        EXPECT_TRUE(window.cmdCancel.Cancel);
    });
    EXPECT_EQ(t.table.SetRowHeight, 128);
}

TEST_F(RowHeight, TheDialogSelectsNothingForAHeightItDoesNotOffer) {
    for (const int height : {0, -3, 129, 360}) {
        t.table.SetRowHeight = static_cast<std::int16_t>(height);
        Proceed([](frmSetRowHeight& window) {
            EXPECT_EQ(window.cboRowHeight.ListIndex(), -1);
            window.cboRowHeight.Select(0);
        });
    }
}

TEST_F(RowHeight, ProceedingWithNothingChosenLeavesAllHeightsAsTheyAre) {
    t.grid.SetRowHeight(Row{1}, 31);
    for (const std::optional<std::int16_t> height : {std::optional<std::int16_t>(200), {}}) {
        t.table.SetRowHeight = height;
        t.table.TableAltered = 0;
        Proceed([](frmSetRowHeight&) {});
        EXPECT_EQ(t.table.SetRowHeight, height);
        EXPECT_EQ(t.Heights(), (Numbers{31, 24, 24}));
        EXPECT_EQ(t.app.DialogResult, 0);
        EXPECT_EQ(t.table.TableAltered, 1);
    }
}

TEST_F(RowHeight, TheMovingSliderTakesTheHeightOverAndLeavesTheRows) {
    for (const int height : {13, 14, 200, 360}) {
        t.table.TableAltered = 0;
        t.host.heights.clear();
        MoveRowHeight(t.tab, height);
        EXPECT_EQ(t.table.SetRowHeight, height);
        EXPECT_EQ(t.host.heights, (Shown{static_cast<std::int16_t>(height)}));
        EXPECT_EQ(t.table.TableAltered, 1);
        EXPECT_EQ(t.Heights(), (Numbers{24, 24, 24}));
    }
}

// Kept for compatibility: row-height-box-goes-further.
TEST_F(RowHeight, TheSliderIgnoresHeightsOutsideItsRange) {
    t.table.SetRowHeight = 30;
    for (const int height : {-1, 0, 12, 361, 70000}) {
        MoveRowHeight(t.tab, height);
        EXPECT_EQ(t.table.SetRowHeight, 30);
        EXPECT_TRUE(t.host.heights.empty());
        EXPECT_EQ(t.table.TableAltered, 0);
    }
}

TEST_F(RowHeight, TheReleasedSliderSetsAllRowsAtOnce) {
    t.table.SetRowHeight = 31;
    t.watcher.refreshes = 0;
    ApplyRowHeight(t.tab);
    EXPECT_EQ(t.Heights(), (Numbers{31, 31, 31}));
    EXPECT_EQ(t.watcher.refreshes, 1);
    EXPECT_EQ(t.watcher.focusWanted, 1);
    EXPECT_EQ(t.table.TableAltered, 1);
}

TEST_F(RowHeight, ARowHeightThatWasNeverSetIsNotApplied) {
    ApplyRowHeight(t.tab);
    EXPECT_EQ(t.Heights(), (Numbers{24, 24, 24}));
    EXPECT_EQ(t.table.TableAltered, 1);
}

TEST_F(RowHeight, TheTypedHeightIsShownAndAppliedToAllRows) {
    ApplyTypedRowHeight(t.tab, u" 42 px");
    EXPECT_EQ(t.table.SetRowHeight, 42);
    EXPECT_EQ(t.host.heights, (Shown{42}));
    EXPECT_EQ(t.Heights(), (Numbers{42, 42, 42}));
    EXPECT_EQ(t.watcher.focusWanted, 1);
    EXPECT_EQ(t.table.TableAltered, 1);
}

// Kept for compatibility: row-height-box-goes-further.
TEST_F(RowHeight, TheBoxReachesHeightsThatTheSliderRefuses) {
    for (const int height : {5, 12, 361, 500}) {
        ApplyTypedRowHeight(t.tab, NumberText(height));
        EXPECT_EQ(t.table.SetRowHeight, height);
        EXPECT_EQ(t.host.heights.back(), height);
        EXPECT_EQ(t.Heights(), (Numbers{height, height, height}));
    }
}

TEST_F(RowHeight, ATypedTextHasTheHeightOfTheNumberItBeginsWith) {
    struct Typed {
        TextView text;
        std::int16_t height;
    };
    for (const auto& [text, height] :
         {Typed{u"tall", 0}, {u"", 0}, {u"-5", -5}, {u"30.5", 30}, {u"31.5", 32}, {u"1 2 rows", 12}}) {
        ApplyTypedRowHeight(t.tab, text);
        EXPECT_EQ(t.table.SetRowHeight, height);
        EXPECT_EQ(t.host.heights.back(), height);
        EXPECT_EQ(t.Heights(), (Numbers{height, height, height}));
    }
}

TEST_F(RowHeight, ATypedHeightTooLargeForItsFieldLeavesItAsItWas) {
    t.table.SetRowHeight = 30;
    ApplyTypedRowHeight(t.tab, u"40000");
    EXPECT_EQ(t.table.SetRowHeight, 30);
    EXPECT_EQ(t.host.heights, (Shown{30}));
    EXPECT_EQ(t.Heights(), (Numbers{30, 30, 30}));
}

TEST_F(RowHeight, ATypedHeightTooLargeForItsFieldIsNoHeightForATableThatHasNone) {
    ApplyTypedRowHeight(t.tab, u"40000");
    EXPECT_EQ(t.table.SetRowHeight, std::nullopt);
    EXPECT_EQ(t.host.heights, (Shown{0}));
    EXPECT_EQ(t.Heights(), (Numbers{24, 24, 24}));
}

} // namespace
} // namespace korvane
