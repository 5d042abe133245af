#include "files/lists/frmFindStingInList.h"

#include "support/DesignerFile.h"
#include "support/TestApp.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

class FindStingInListTest : public testing::Test {
protected:
    TestApp t;
};

// Kept for compatibility: find-window-misspelt.
TEST_F(FindStingInListTest, ItsNameIsMisspelt) {
    t.user.On<frmFindStingInList>([](frmFindStingInList& f) {
        EXPECT_EQ(f.Name(), "frmFindStingInList");
        f.cmdCancel.Press();
    });
    EXPECT_EQ(AskForStringInList(t.app), u"");
}

TEST_F(FindStingInListTest, GivesTheTextThatTheUserEnters) {
    t.user.On<frmFindStingInList>([](frmFindStingInList& f) {
        EXPECT_EQ(f.Focused(), &f.txtFindString);
        f.txtFindString.Type(u"abc");
        f.cmdOK.Press();
    });
    EXPECT_EQ(AskForStringInList(t.app), u"abc");
}

TEST_F(FindStingInListTest, OffersATextWithAllOfItSelected) {
    t.user.On<frmFindStingInList>([](frmFindStingInList& f) {
        EXPECT_EQ(f.txtFindString.SelText(), u"abc");
        f.cmdOK.Press();
    });
    EXPECT_EQ(AskForStringInList(t.app, u"abc"), u"abc");
}

TEST_F(FindStingInListTest, GivesNothingWhenTheUserGivesUp) {
    t.user.On<frmFindStingInList>([](frmFindStingInList& f) {
        f.txtFindString.Type(u"abc");
        f.cmdCancel.Press();
    });
    EXPECT_EQ(AskForStringInList(t.app, u"old"), u"");
}

TEST_F(FindStingInListTest, ReturnAcceptsAndEscapeGivesUp) {
    const frmFindStingInList f(t.app, u"");
    EXPECT_TRUE(f.cmdOK.Default);
    EXPECT_TRUE(f.cmdCancel.Cancel);
}

TEST_F(FindStingInListTest, EveryControlStandsInTheLook) {
    ExpectLook(frmFindStingInList(t.app, u""), "files/lists", {});
}

} // namespace
} // namespace korvane
