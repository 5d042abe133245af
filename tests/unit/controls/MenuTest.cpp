#include "controls/Menu.h"

#include "controls/CommandButton.h"
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

/// A window whose menu starts things.
class WithMenu : public Form {
public:
    explicit WithMenu(FormHost& host)
        : Form(host, "WithMenu", u""), OfficeMenu1(*this, "OfficeMenu1", kRows) {
        cmdPress.Click = [this] { done += "button "; };
    }
    Menu OfficeMenu1;
    CommandButton cmdPress{*this, "cmdPress"};
    std::string done;

private:
    void Open() { done += "open "; }
    void Look(KeyEvent& key) { done += std::to_string(key.code) + " "; }

    static const MenuRow<WithMenu> kRows[5];
};

const MenuRow<WithMenu> WithMenu::kRows[5] = {
    {0, "mnuFile", u"&File", ""},
    {1, "mnuFile_Open", u"&Open", "Ctrl+O", &WithMenu::Open},
    {1, "mnuFile_Press", u"&Press", "", &WithMenu::cmdPress},
    {1, "mnuFile_Look", u"&Look", "", &WithMenu::Look},
    {1, "mnuFile_Exit", u"E&xit", "", &WithMenu::Close},
};

TEST(MenuTableTest, AnEntryStartsWhatItsRowSays) {
    ScriptedUser user;
    WithMenu form(user);
    for (const char* entry : {"mnuFile", "mnuFile_Open", "mnuFile_Press", "mnuFile_Look", "mnuFile_Save"})
        form.OfficeMenu1.Choose(entry);
    EXPECT_EQ(form.done, "open button 0 ");
    user.On<WithMenu>([](WithMenu& shown) { shown.OfficeMenu1.Choose("mnuFile_Exit"); });
    form.ShowModal();
    EXPECT_FALSE(form.Shown());
}

TEST(MenuTableTest, TheEntriesAreThoseOfTheRows) {
    ScriptedUser user;
    const WithMenu form(user);
    ASSERT_EQ(form.OfficeMenu1.Entries().size(), 5u);
    const MenuEntry& open = form.OfficeMenu1.Entries()[1];
    EXPECT_EQ(open.level, 1);
    EXPECT_EQ(open.name, "mnuFile_Open");
    EXPECT_EQ(open.caption, u"&Open");
    EXPECT_EQ(open.shortcut.Name(), "Ctrl+O");
}

} // namespace
} // namespace korvane
