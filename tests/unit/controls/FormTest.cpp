#include "controls/Form.h"

#include "controls/CommandButton.h"
#include "support/ScriptedUser.h"

#include <gtest/gtest.h>

#include <string>

namespace korvane {
namespace {

class Recorded : public Form {
public:
    explicit Recorded(FormHost& host) : Form(host, "Recorded", u"Caption") {}
    CommandButton cmdOne{*this, "cmdOne"};
    CommandButton cmdTwo{*this, "cmdTwo"};

    std::string log;
    bool agrees = true;

    void Load() override { log += "load "; }
    bool QueryUnload() override {
        log += "query ";
        return agrees;
    }
    void Unload() override { log += "unload "; }
};

class FormTest : public testing::Test {
protected:
    ScriptedUser user;
};

TEST_F(FormTest, LoadsOnceAndBeforeItIsShown) {
    Recorded form(user);
    user.On<Recorded>([](Recorded& shown) { EXPECT_EQ(shown.log, "load "); });
    form.EnsureLoaded();
    form.Show();
    EXPECT_EQ(form.log, "load ");
}

TEST_F(FormTest, ClosesWhenItAgrees) {
    Recorded form(user);
    user.On<Recorded>([](Recorded& shown) { EXPECT_TRUE(shown.Close()); });
    form.ShowModal();
    EXPECT_EQ(form.log, "load query unload ");
    EXPECT_FALSE(form.Shown());
}

TEST_F(FormTest, StaysWhenItRefuses) {
    Recorded form(user);
    user.On<Recorded>([](Recorded&) {});
    form.Show();
    form.agrees = false;
    EXPECT_FALSE(form.Close());
    EXPECT_TRUE(form.Shown());
    EXPECT_EQ(form.log, "load query ");
}

TEST_F(FormTest, TheHostKnowsLoadedWindowsInTheOrderOfTheirLoading) {
    Recorded first(user);
    {
        Recorded second(user);
        second.EnsureLoaded();
        first.EnsureLoaded();
        EXPECT_EQ(user.LoadedForms(), (std::vector<Form*>{&second, &first}));
    }
    EXPECT_EQ(user.LoadedForms(), std::vector<Form*>{&first});
    first.Close();
    EXPECT_TRUE(user.LoadedForms().empty());
}

TEST_F(FormTest, AWindowThatIsClosedLoadsOnceMoreWhenItIsShownAgain) {
    Recorded form(user);
    user.On<Recorded>([](Recorded& shown) { shown.Close(); });
    user.On<Recorded>([](Recorded& shown) { shown.Close(); });
    form.ShowModal();
    form.ShowModal();
    EXPECT_EQ(form.log, "load query unload load query unload ");
}

TEST_F(FormTest, AWindowThatGoesAwayWhileItIsShownLeavesTheScreen) {
    user.On<Recorded>([](Recorded&) {});
    {
        Recorded form(user);
        form.Show();
        EXPECT_EQ(user.Shown(), std::vector<Form*>{&form});
    }
    EXPECT_TRUE(user.Shown().empty());
}

TEST_F(FormTest, AWindowIsFollowedUntilItHasGone) {
    class Follower : public View {
    public:
        void Follow(Observed&, Aspect aspect) override { aspects.push_back(aspect); }
        void Gone() override { gone = true; }
        std::vector<Aspect> aspects;
        bool gone = false;
    };
    Follower follower;
    {
        Form form(user, "Form", u"Caption");
        form.SetView(&follower);
        form.Caption = u"Other";
        EXPECT_FALSE(follower.gone);
    }
    EXPECT_EQ(follower.aspects, std::vector<Aspect>{Aspect::Caption});
    EXPECT_TRUE(follower.gone);
}

TEST_F(FormTest, TheControlThatWantsTheKeyboardIsTheFocusedOne) {
    Recorded form(user);
    EXPECT_EQ(form.Focused(), nullptr);
    form.cmdTwo.SetFocus();
    EXPECT_EQ(form.Focused(), &form.cmdTwo);
    form.FocusMoved(form.cmdOne);
    EXPECT_EQ(form.Focused(), &form.cmdOne);
}

TEST_F(FormTest, FindsControlsByName) {
    Recorded form(user);
    EXPECT_EQ(form.Find("cmdTwo"), &form.cmdTwo);
    EXPECT_EQ(form.Find("cmdThree"), nullptr);
    EXPECT_EQ(form.Controls(), (std::vector<Control*>{&form.cmdOne, &form.cmdTwo}));
}

TEST_F(FormTest, AButtonThatIsDisabledOrHiddenCannotBePressed) {
    Recorded form(user);
    int clicks = 0;
    form.cmdOne.Click = [&] { ++clicks; };
    form.cmdOne.Press();
    form.cmdOne.Enabled = false;
    form.cmdOne.Press();
    form.cmdOne.Enabled = true;
    form.cmdOne.Visible = false;
    form.cmdOne.Press();
    EXPECT_EQ(clicks, 1);
}

} // namespace
} // namespace korvane
