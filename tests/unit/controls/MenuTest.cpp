#include "controls/Menu.h"

#include "controls/Form.h"
#include "support/ScriptedUser.h"

#include <gtest/gtest.h>

#include <array>

namespace korvane {
namespace {

constexpr std::array kEntries{
    MenuEntry{0, "mnuFile", u"&File", ""},
    MenuEntry{1, "mnuFile_Open", u"&Open", "Ctrl+O"},
};

class MenuTest : public testing::Test, public View {
protected:
    void Follow(Observed&, Aspect aspect) override { itemsFollowed += aspect == Aspect::Items ? 1 : 0; }

    ScriptedUser user;
    Form form{user, "Form", u""};
    Menu menu{form, "mnuBar", kEntries};
    int itemsFollowed = 0;
};

TEST_F(MenuTest, TellsTheNameOfTheChosenEntry) {
    std::string chosen;
    menu.Chosen = [&](std::string_view name) { chosen += name; };
    menu.Choose("mnuFile_Open");
    menu.Choose("mnuFile_Close");
    EXPECT_EQ(chosen, "mnuFile_Open");
}

TEST_F(MenuTest, ChecksReachTheViewOnceEach) {
    menu.SetView(this);
    menu.SetChecked("mnuFile_Open", true);
    menu.SetChecked("mnuFile_Open", true);
    EXPECT_TRUE(menu.Checked("mnuFile_Open"));
    menu.SetChecked("mnuFile_Open", false);
    menu.SetChecked("mnuFile_Open", false);
    EXPECT_FALSE(menu.Checked("mnuFile_Open"));
    EXPECT_EQ(itemsFollowed, 2);
    menu.SetView(nullptr);
}

} // namespace
} // namespace korvane
