#include "shell/tabs/Tabs.h"

#include "grid/Grid.h"
#include "grid/GridStore.h"
#include "shell/commands/frmAbout.h"
#include "support/HandlerFailure.h"
#include "support/TestProgram.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

class TabsTest : public testing::Test {
protected:
    /// Starts with so many empty tabs.
    void Start(int tabs, const Settings& settings = {}) {
        p.StartWith(settings);
        for (int i = 0; i < tabs; ++i)
            p.AllTabs().AddNewTab();
    }
    void CloseTab(int slot) { p.Main().MDITabs1.CloseWanted(p.Tab(slot)); }
    int ActiveSlot() { return p.AllTabs().Active()->Slot(); }

    TestProgram p;
};

// Kept for compatibility: untitled-by-slot.
TEST_F(TabsTest, ANewTabIsUntitledByItsSlot) {
    Start(2);
    EXPECT_EQ(p.Captions(), (std::vector<Text>{u"Untitled_1.tbx", u"Untitled_2.tbx"}));
    EXPECT_EQ(p.AllTabs().TabState[2].Path, u"Untitled_2.tbx");
    EXPECT_EQ(p.Tab(2).Tag, u"2");
    EXPECT_EQ(p.AllTabs().CurrentTabIndex, 2);
}

TEST_F(TabsTest, TheFirstFreeSlotIsTakenAgain) {
    Start(3);
    CloseTab(2);
    CloseTab(1);
    p.AllTabs().AddNewTab();
    EXPECT_EQ(p.Captions(), (std::vector<Text>{u"Untitled_3.tbx", u"Untitled_1.tbx"}));
    p.AllTabs().AddNewTab();
    EXPECT_EQ(p.AllTabs().CurrentTabIndex, 2);
    EXPECT_EQ(p.AllTabs().TabState.UpperBound(), 3);
}

TEST_F(TabsTest, AReusedSlotIsNeitherDeletedNorDiscarded) {
    Start(1);
    CloseTab(1);
    EXPECT_EQ(p.AllTabs().TabState[1].Deleted, -1);
    p.AllTabs().TabState[1].Discard = -1;
    p.AllTabs().AddNewTab();
    EXPECT_EQ(p.AllTabs().TabState[1].Deleted, 0);
    EXPECT_EQ(p.AllTabs().TabState[1].Discard, 0);
}

TEST_F(TabsTest, NothingOfATabLeaksToTheNextUseOfItsSlot) {
    Start(1);
    p.Tab(1).GridStore().AddCol(u"1no", u"Name");
    p.Tab(1).Table().TxtDbFile = u"C:\\x.tbx";
    CloseTab(1);
    p.AllTabs().AddNewTab();
    EXPECT_EQ(p.Tab(1).GridStore().ColCount(), Col{0});
    EXPECT_EQ(p.Tab(1).Table().TxtDbFile, u"");
}

TEST_F(TabsTest, ATabThatClosesFromItsOwnHandlerLivesToTheEndOfIt) {
    Start(1);
    frmMDIChild& tab = p.Tab(1);
    p.user.ChooseFromPopUp("mnuFile_Exit");
    tab.iGrid1.MouseUp(MouseButton::Right);
    EXPECT_TRUE(p.Captions().empty());
    EXPECT_EQ(tab.Caption.Get(), u"Untitled_1.tbx");
}

/// Tells when a window is gone.
class Watch final : public View {
public:
    explicit Watch(Form& form) : form_(form) { form_.SetView(this); }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;
    ~Watch() override {
        if (!gone) form_.SetView(nullptr);
    }
    bool gone = false;

    void Follow(Observed&, Aspect) override {}
    void Gone() override { gone = true; }

private:
    Form& form_;
};

TEST_F(TabsTest, AClosedTabIsReleasedByTheNextCommandThatStartsOnItsOwn) {
    Start(2);
    const Watch first(p.Tab(1));
    p.Main().MDITabs1.CloseWanted(p.Tab(1));
    EXPECT_FALSE(first.gone);
    p.Choose("mnuFile_SwitchTabsForward");
    EXPECT_TRUE(first.gone);
}

TEST_F(TabsTest, AClosedTabIsReleasedWhenTheNextOneClosesByItsBox) {
    Start(2);
    const Watch first(p.Tab(1));
    const Watch second(p.Tab(2));
    p.Main().MDITabs1.CloseWanted(p.Tab(1));
    p.Main().MDITabs1.CloseWanted(p.Tab(2));
    EXPECT_TRUE(first.gone);
    EXPECT_FALSE(second.gone);
}

TEST_F(TabsTest, ACommandWithinAnotherReleasesNoTabThatThisOneClosed) {
    Start(2);
    const Watch first(p.Tab(1));
    p.Tab(2).Table().TableAltered = 1;
    bool alive = false;
    p.user.AnswerAfter(
        [&] {
            p.Main().RunCommand("mnuFile_SwitchTabsForward");
            alive = !first.gone;
        },
        Answer::No);
    p.Choose("mnuFile_Exit");
    EXPECT_TRUE(alive);
}

TEST_F(TabsTest, AFailureInACommandHoldsNoClosedTabForEver) {
    Start(2);
    p.user.On<frmAbout>([](frmAbout&) { FailInHandler(); });
    EXPECT_THROW(p.Choose("mnuMisc_About"), HandlerFailure);
    const Watch first(p.Tab(1));
    p.Main().MDITabs1.CloseWanted(p.Tab(1));
    p.Choose("mnuFile_SwitchTabsForward");
    EXPECT_TRUE(first.gone);
}

TEST_F(TabsTest, AFailureWhileATabIsMadeLeavesTheStripPaintingAndNoHalfTab) {
    Start(1);
    p.beforeGrid = FailInHandler;
    EXPECT_THROW(p.AllTabs().AddNewTab(), HandlerFailure);
    EXPECT_TRUE(p.Main().MDITabs1.AllowDrawing);
    EXPECT_EQ(p.AllTabs().TabState.CountInUse(), 1);
    p.beforeGrid = [] {};
    p.AllTabs().AddNewTab();
    EXPECT_EQ(p.Captions(), (std::vector<Text>{u"Untitled_1.tbx", u"Untitled_2.tbx"}));
}

// Kept for compatibility: tabs-switch-by-slot.
TEST_F(TabsTest, TheNextTabIsTheNextSlotWhateverTheStripShows) {
    Start(3);
    CloseTab(1);
    p.AllTabs().AddNewTab();
    // Along the strip: 2, 3, 1.
    ASSERT_EQ(ActiveSlot(), 1);
    p.PressKey(Key::F(12));
    EXPECT_EQ(ActiveSlot(), 2);
    p.PressKey(Key::F(12));
    EXPECT_EQ(ActiveSlot(), 3);
    p.PressKey(Key::F(12));
    EXPECT_EQ(ActiveSlot(), 1);
}

TEST_F(TabsTest, ThePreviousTabIsThePreviousSlot) {
    Start(3);
    p.PressKey(Key::F(12), Mask::Shift);
    EXPECT_EQ(ActiveSlot(), 2);
    p.PressKey(Key::F(12), Mask::Shift);
    p.PressKey(Key::F(12), Mask::Shift);
    EXPECT_EQ(ActiveSlot(), 3);
}

TEST_F(TabsTest, SwitchingPassesOverFreeSlots) {
    Start(5);
    CloseTab(1);
    CloseTab(3);
    CloseTab(5);
    p.AllTabs().Show(4);
    p.AllTabs().SwitchForward();
    EXPECT_EQ(ActiveSlot(), 2);
    p.AllTabs().SwitchForward();
    EXPECT_EQ(ActiveSlot(), 4);
    p.AllTabs().SwitchBack();
    EXPECT_EQ(ActiveSlot(), 2);
    p.AllTabs().SwitchBack();
    EXPECT_EQ(ActiveSlot(), 4);
}

TEST_F(TabsTest, SwitchingAmongOneTabStaysThereAndGivesItTheFocus) {
    Start(1);
    FocusCounter focus(p.Tab(1).GridStore());
    p.AllTabs().SwitchForward();
    EXPECT_EQ(ActiveSlot(), 1);
    EXPECT_GE(focus.Count(), 1);
}

TEST_F(TabsTest, SwitchingWithoutTabsDoesNothing) {
    Start(0);
    p.AllTabs().SwitchForward();
    p.AllTabs().SwitchBack();
    EXPECT_EQ(p.AllTabs().Active(), nullptr);
    Start(1);
    CloseTab(1);
    p.AllTabs().SwitchForward();
    EXPECT_EQ(p.AllTabs().Active(), nullptr);
}

TEST_F(TabsTest, SwitchingLetsPendingMessagesRunFirst) {
    Start(2);
    int active = 0;
    p.screen.QueueMessage([&] { active = ActiveSlot(); });
    p.AllTabs().SwitchForward();
    EXPECT_EQ(active, 2);
    EXPECT_EQ(ActiveSlot(), 1);
}

// Kept for compatibility: page-size-unused.
TEST_F(TabsTest, ThePaperSizeIsLookedUpByTheSettingsNameForNobody) {
    struct Case {
        TextView name;
        int width;
        int height;
    };
    const std::vector<Case> cases{
        {u"A4", 11906, 16837},
        {u"A4_Landscape", 16837, 11906},
        {u"A5", 8418, 11906},
        {u"A5_Landscape", 11906, 8418},
        {u"B5", 9978, 14174},
        {u"LETTER", 12240, 15840},
        {u"LETTER_Landscape", 15840, 12240},
        {u"LEGAL", 12240, 20160},
        // Any other name leaves the two as they are. Reading the settings turns every name into "0".
        {u"0", 12240, 20160},
        {u"a4", 12240, 20160},
    };
    Start(0);
    for (const Case& size : cases) {
        p.app.Settings.PageSizeName = Text(size.name);
        p.AllTabs().AddNewTab();
        EXPECT_EQ(p.AllTabs().PageWidth, size.width) << ToUtf8(size.name);
        EXPECT_EQ(p.AllTabs().PageHeight, size.height) << ToUtf8(size.name);
    }
}

TEST_F(TabsTest, AfterTheFirstOfTwoTabsIsClosedTheNextOneHasItsNumber) {
    Start(2);
    CloseTab(1);
    p.AllTabs().AddNewTab();
    EXPECT_EQ(p.Captions(), (std::vector<Text>{u"Untitled_2.tbx", u"Untitled_1.tbx"}));
}

TEST_F(TabsTest, TheCrossOfATabClosesIt) {
    Start(2);
    p.Main().MDITabs1.CloseWanted(p.Tab(1));
    EXPECT_EQ(p.Captions(), std::vector<Text>{u"Untitled_2.tbx"});
    EXPECT_EQ(ActiveSlot(), 2);
}

TEST(TabStates, EntryZeroAndWhatIsPastTheEndBelongToNoTab) {
    TabStates states;
    states[0].Path = u"nowhere";
    states[7].Name = u"nowhere";
    EXPECT_EQ(states.UpperBound(), 0);
    EXPECT_FALSE(states.InUse(0));
    EXPECT_FALSE(states.InUse(7));
    EXPECT_EQ(states.FindFreeIndex(), 1);
    EXPECT_EQ(states[1].Path, u"");
}

} // namespace
} // namespace korvane
