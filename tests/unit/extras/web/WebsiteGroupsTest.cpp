// The groups in the list of websites.

#include "unit/extras/web/WebListStage.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class WebsiteGroupsTest : public WebListStage {
protected:
    /// With the group window open.
    void InGroups(const std::function<void(frmWebList&)>& act) {
        InWindow([&act](frmWebList& f) {
            f.cmdGroupWin.Press();
            act(f);
        });
    }
};

TEST_F(WebsiteGroupsTest, TheCheckedWebsitesBecomeAGroup) {
    InWindow([](frmWebList& f) {
        f.OfficeMenu1.Choose("mnuInsertSeparator");
        Check(f, {1, 3, 4});
        f.cmdAddToGroup.Press();
        EXPECT_THAT(Groups(f), ElementsAre(u"http://a http://b", u"http://c", u"http://a http://c "));
        EXPECT_EQ(f.lstGroup.ListIndex(), 2);
        EXPECT_TRUE(f.lstGroup.Selected(2));
        EXPECT_TRUE(f.frameGroup.Visible);
        EXPECT_EQ(f.Focused(), &f.lstGroup);
        EXPECT_EQ(f.ListDirty, 1);
    });
}

TEST_F(WebsiteGroupsTest, OneWebsiteIsNoGroup) {
    InWindow([this](frmWebList& f) {
        f.OfficeMenu1.Choose("mnuInsertSeparator");
        Check(f, {1, 4});
        f.ListDirty = 0;
        t.user.Answer(
            {u"You must select at least two items for a group list entry!", MessageIcon::Exclamation},
            Answer::Ok);
        f.OfficeMenu1.Choose("mnuAddToGroup");
        EXPECT_FALSE(f.frameGroup.Visible);
        EXPECT_EQ(f.ListDirty, 0);
    });
}

TEST_F(WebsiteGroupsTest, AreSavedTrimmed) {
    InWindow([this](frmWebList& f) {
        Check(f, {1, 2});
        f.cmdAddToGroup.Press();
        dialog.answer = kList;
        f.cmdSaveList.Press();
    });
    InGroups([](frmWebList& f) {
        EXPECT_EQ(f.lstGroup.List(2), u"http://a http://b");
        f.lstGroup.Select(2);
        Press(f, f.lstGroup, Key::Return);
    });
    EXPECT_THAT(t.shell.Starts(), ElementsAre(Browser({u"http://a", u"http://b"})));
}

TEST_F(WebsiteGroupsTest, AGroupIsLoadedWithOneCommandLineAndNoQuestion) {
    InGroups([](frmWebList& f) {
        f.lstGroup.SetList(0, u"a b c d e");
        f.lstGroup.DoubleClick(0);
        f.btnLoad.Press();
        f.lstGroup.Select(1);
        Press(f, f.lstGroup, Key::Return);
    });
    const ProgramStart five = Browser({u"a", u"b", u"c", u"d", u"e"});
    EXPECT_THAT(t.shell.Starts(), ElementsAre(five, five, Browser({u"http://c"})));
}

TEST_F(WebsiteGroupsTest, AGroupOfTenThousandIsLoaded) {
    InGroups([](frmWebList& f) {
        Text group;
        for (int number = 0; number < 10'000; ++number)
            group += u"http://www.example.org/ ";
        f.lstGroup.SetList(0, group);
        f.lstGroup.DoubleClick(0);
    });
    EXPECT_EQ(t.shell.Starts().front().arguments.size(), 10'000U);
}

TEST_F(WebsiteGroupsTest, WhatIsNoGroupLoadsNothing) {
    InGroups([this](frmWebList& f) {
        f.btnLoad.Press();
        f.lstGroup.SetList(0, kMarker + u" http://a");
        f.lstGroup.DoubleClick(0);
        f.lstGroup.SetList(0, u"");
        f.lstGroup.DoubleClick(0);
    });
    EXPECT_THAT(t.shell.Starts(), IsEmpty());
}

TEST_F(WebsiteGroupsTest, TakeTheListsPlaceUntilTheyAreClosed) {
    InGroups([](frmWebList& f) {
        EXPECT_TRUE(f.frameGroup.Visible);
        EXPECT_FALSE(f.ListView1.Visible);
        f.btnCloseGroup.Press();
        EXPECT_FALSE(f.frameGroup.Visible);
        EXPECT_TRUE(f.ListView1.Visible);
        EXPECT_EQ(f.Focused(), &f.ListView1);
        f.OfficeMenu1.Choose("mnuGroupWin");
        Press(f, f.lstGroup, Key::Escape);
        EXPECT_FALSE(f.frameGroup.Visible);
        EXPECT_TRUE(f.Shown());
    });
}

// Kept for compatibility: emptying-groups-is-no-change.
TEST_F(WebsiteGroupsTest, AreEmptiedAfterAQuestion) {
    InGroups([this](frmWebList& f) {
        const Message question{u"Empty list now?", MessageIcon::Question, MessageButtons::YesNo};
        t.user.Answer(question, Answer::No);
        f.btnEmptyList.Press();
        EXPECT_EQ(f.lstGroup.ListCount(), 2);
        t.user.Answer(question, Answer::Yes);
        f.btnEmptyList.Press();
        EXPECT_EQ(f.lstGroup.ListCount(), 0);
        EXPECT_EQ(f.ListDirty, 0);
    });
}

TEST_F(WebsiteGroupsTest, RefuseTheCommandsOfTheList) {
    InGroups([this](frmWebList& f) {
        for (CommandButton* const button : {&f.cmdAddItem, &f.cmdDuplicate}) {
            t.user.Answer(
                {u"Add items to group list by selecting them from the main list", MessageIcon::Information},
                Answer::Ok);
            button->Press();
        }
        t.user.Answer(Answer::Ok);
        f.OfficeMenu1.Choose("mnuInsertSeparator");
        EXPECT_EQ(f.ListView1.Count(), 3);
        EXPECT_EQ(f.ListDirty, 0);
    });
}

TEST_F(WebsiteGroupsTest, AGroupIsEditedAsOneText) {
    InGroups([](frmWebList& f) {
        f.OfficeMenu1.Choose("mnuEditItem");
        EXPECT_FALSE(f.Frame1.Visible);
        f.lstGroup.Select(0);
        f.OfficeMenu1.Choose("mnuEditItem");
        EXPECT_EQ(f.Frame1.Caption.Get(), u" Edit group of websites ");
        EXPECT_FALSE(f.txtName.Visible);
        EXPECT_FALSE(f.Label1.Visible);
        EXPECT_FALSE(f.frameGroup.Visible);
        EXPECT_FALSE(f.ListView1.Visible);
        EXPECT_EQ(f.txtSite.Text.Get(), u"http://a http://b");
        EXPECT_EQ(f.Focused(), &f.txtSite);
        f.txtSite.Text = u"http://z";
        f.btnAccept.Press();
        EXPECT_TRUE(f.frameGroup.Visible);
        EXPECT_THAT(Groups(f), ElementsAre(u"http://z", u"http://c"));
        EXPECT_THAT(Names(f), ElementsAre(u"A", u"B", u"C"));
        EXPECT_EQ(f.ListDirty, 1);
        f.btnCloseGroup.Press();
        f.OfficeMenu1.Choose("mnuEditItem");
        EXPECT_TRUE(f.txtName.Visible);
        EXPECT_TRUE(f.Label1.Visible);
    });
}

TEST_F(WebsiteGroupsTest, ClosingThemLeavesTheFieldsToo) {
    InGroups([](frmWebList& f) {
        f.lstGroup.Select(0);
        f.OfficeMenu1.Choose("mnuEditItem");
        f.btnCloseGroup.Press();
        EXPECT_FALSE(f.Frame1.Visible);
        f.OfficeMenu1.Choose("mnuEditItem");
        f.cmdGroupWin.Press();
        EXPECT_FALSE(f.Frame1.Visible);
        EXPECT_TRUE(f.frameGroup.Visible);
    });
}

TEST_F(WebsiteGroupsTest, AGroupIsDeletedAtOnce) {
    InGroups([this](frmWebList& f) {
        t.user.Answer({u"No items checked.", MessageIcon::Information}, Answer::Ok);
        f.cmdDelete.Press();
        f.lstGroup.SetSelected(1, true);
        t.user.Answer(Answer::No);
        f.cmdDelete.Press();
        EXPECT_EQ(f.ListDirty, 0);
        t.user.Answer({u"Delete 1 items from list ? ", MessageIcon::Question, MessageButtons::YesNo, 2},
                      Answer::Yes);
        EXPECT_TRUE(Press(f, f.lstGroup, Key::Delete));
        EXPECT_THAT(Groups(f), ElementsAre(u"http://a http://b"));
        EXPECT_THAT(Names(f), ElementsAre(u"A", u"B", u"C"));
        EXPECT_EQ(f.lstGroup.ListIndex(), 0);
        EXPECT_EQ(f.ListDirty, 1);
    });
}

TEST_F(WebsiteGroupsTest, AllSelectedGroupsAreDeleted) {
    With("***\r\na\r\nb\r\nc\r\nd\r\n", [this](frmWebList& f) {
        f.cmdGroupWin.Press();
        f.lstGroup.SetSelected(1, true);
        f.lstGroup.SetSelected(3, true);
        t.user.Answer(Question(u"Delete 2 items from list ? ", MessageButtons::YesNo, 2), Answer::Yes);
        f.cmdDelete.Press();
        EXPECT_THAT(Groups(f), ElementsAre(u"a", u"c"));
        EXPECT_EQ(f.lstGroup.ListIndex(), 1);
        EXPECT_TRUE(f.lstGroup.Selected(1));
        EXPECT_FALSE(f.lstGroup.Selected(0));
    });
}

TEST_F(WebsiteGroupsTest, AGroupMovesWithinTheGroups) {
    InGroups([](frmWebList& f) {
        f.cmdArrowDown.Press();
        f.lstGroup.Select(0);
        f.cmdArrowUp.Press();
        EXPECT_EQ(f.ListDirty, 0);
        f.cmdArrowDown.Press();
        EXPECT_THAT(Groups(f), ElementsAre(u"http://c", u"http://a http://b"));
        EXPECT_EQ(f.lstGroup.ListIndex(), 1);
        EXPECT_TRUE(f.lstGroup.Selected(1));
        EXPECT_FALSE(f.lstGroup.Selected(0));
        EXPECT_EQ(f.ListDirty, 1);
        f.ListDirty = 0;
        f.cmdArrowDown.Press();
        EXPECT_EQ(f.ListDirty, 0);
        f.OfficeMenu1.Choose("mnuMoveUp");
        EXPECT_THAT(Groups(f), ElementsAre(u"http://a http://b", u"http://c"));
        EXPECT_EQ(f.ListDirty, 1);
    });
}

} // namespace
} // namespace korvane
