#include "controls/views/TabStrip.h"

#include "controls/Form.h"
#include "support/ScriptedUser.h"

#include <gtest/gtest.h>

#include <vector>

namespace korvane {
namespace {

class Child : public Form {
public:
    explicit Child(FormHost& host) : Form(host, "Child", u"") {}
    void Activate() override { ++activations; }
    int activations = 0;
};

class TabStripTest : public testing::Test, public View {
protected:
    TabStripTest() { strip.SetView(this); }
    ~TabStripTest() override { strip.SetView(nullptr); }
    void Follow(Observed&, Aspect aspect) override { followed.push_back(aspect); }

    ScriptedUser user;
    Form form{user, "Form", u""};
    TabStrip strip{form, "MDITabs1"};
    Child a{user}, b{user}, c{user};
    std::vector<Aspect> followed;
};

TEST_F(TabStripTest, ANewTabIsTheActiveOne) {
    strip.Add(a);
    strip.Add(b);
    EXPECT_EQ(strip.Children(), (std::vector<Form*>{&a, &b}));
    EXPECT_EQ(strip.ActiveChild(), &b);
    EXPECT_EQ(a.activations, 1);
    EXPECT_EQ(b.activations, 1);
}

TEST_F(TabStripTest, TheViewHearsOfTheTabBeforeItsSelection) {
    strip.Add(a);
    EXPECT_EQ(followed, (std::vector<Aspect>{Aspect::Items, Aspect::Selection}));
}

TEST_F(TabStripTest, TheTabAfterAClosedOneBecomesActiveAndAtTheEndTheOneBefore) {
    for (Child* child : {&a, &b, &c})
        strip.Add(*child);
    strip.Select(b);
    strip.Remove(b);
    EXPECT_EQ(strip.ActiveChild(), &c);
    strip.Remove(c);
    EXPECT_EQ(strip.ActiveChild(), &a);
    strip.Remove(a);
    EXPECT_EQ(strip.ActiveChild(), nullptr);
}

TEST_F(TabStripTest, AClosedTabThatWasntActiveLeavesTheActiveOne) {
    strip.Add(a);
    strip.Add(b);
    strip.Remove(a);
    EXPECT_EQ(strip.ActiveChild(), &b);
    EXPECT_EQ(b.activations, 1);
}

TEST_F(TabStripTest, AWindowThatIsNoTabCannotBeSelected) {
    strip.Add(a);
    strip.Select(b);
    strip.Remove(b);
    EXPECT_EQ(strip.ActiveChild(), &a);
    EXPECT_EQ(b.activations, 0);
}

TEST_F(TabStripTest, SelectingTheActiveTabActivatesItAgainWithoutAChangeOfSelection) {
    strip.Add(a);
    followed.clear();
    strip.Select(a);
    EXPECT_TRUE(followed.empty());
    EXPECT_EQ(a.activations, 2);
}

} // namespace
} // namespace korvane
