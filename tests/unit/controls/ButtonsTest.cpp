#include "controls/Buttons.h"

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "support/ScriptedUser.h"

#include <gtest/gtest.h>

#include <string>

namespace korvane {
namespace {

class ButtonsTest : public testing::Test {
protected:
    ButtonsTest() {
        box.Click = [this] { log += "box "; };
        left.Click = [this] { log += "left "; };
        right.Click = [this] { log += "right "; };
        other.Click = [this] { log += "other "; };
    }

    ScriptedUser user;
    Form window{user, "Window", u""};
    CheckBox box{window, "Check1", u"&Keep", u"Keeps it"};
    OptionButton left{window, "Option1", "side", u"&Left"};
    OptionButton right{window, "Option2", "side", u"&Right"};
    OptionButton other{window, "Option3", "size", u"&Other"};
    std::string log;
};

TEST_F(ButtonsTest, HaveTheirCaptionsAndToolTips) {
    const CommandButton button(window, "cmdOk", u"&Ok", u"Goes on");
    EXPECT_EQ(button.Caption.Get(), u"&Ok");
    EXPECT_EQ(button.ToolTipText.Get(), u"Goes on");
    EXPECT_EQ(box.Caption.Get(), u"&Keep");
    EXPECT_EQ(box.ToolTipText.Get(), u"Keeps it");
    EXPECT_EQ(left.Caption.Get(), u"&Left");
    EXPECT_EQ(left.Group(), "side");
}

TEST_F(ButtonsTest, APressTurnsACheckBoxOver) {
    box.Press();
    EXPECT_EQ(box.Value, 1);
    box.Press();
    EXPECT_EQ(box.Value, 0);
    EXPECT_EQ(log, "box box ");
}

TEST_F(ButtonsTest, ACheckBoxClicksWhenTheProgramTurnsItOverToo) {
    box.Value = 1;
    box.Value = 1;
    EXPECT_EQ(log, "box ");
}

TEST_F(ButtonsTest, AnotherChangeOfACheckBoxIsNoClick) {
    box.Caption = u"Other";
    box.Enabled = false;
    EXPECT_EQ(log, "");
}

TEST_F(ButtonsTest, APressTicksABoxThatHoldsNeitherOneNorNought) {
    for (const std::int16_t value : {std::int16_t{7}, CheckBox::kMixed}) {
        box.Value = value;
        box.Press();
        EXPECT_EQ(box.Value, 1);
        box.Press();
        EXPECT_EQ(box.Value, 0);
    }
}

TEST_F(ButtonsTest, ABoxOrOptionThatIsDisabledOrHiddenCannotBePressed) {
    box.Enabled = false;
    left.Enabled = false;
    box.Press();
    left.Press();
    box.Enabled = true;
    left.Enabled = true;
    box.Visible = false;
    left.Visible = false;
    box.Press();
    left.Press();
    EXPECT_EQ(box.Value, 0);
    EXPECT_FALSE(left.Value);
    EXPECT_EQ(log, "");
}

TEST_F(ButtonsTest, AnOptionThatComesOnTurnsTheOthersOfItsGroupOff) {
    other.Press();
    left.Press();
    right.Press();
    EXPECT_FALSE(left.Value);
    EXPECT_TRUE(right.Value);
    EXPECT_TRUE(other.Value);
}

TEST_F(ButtonsTest, OnlyTheOptionThatComesOnClicks) {
    left.Press();
    right.Value = true;
    EXPECT_EQ(log, "left right ");
    right.Value = false;
    EXPECT_EQ(log, "left right ");
}

TEST_F(ButtonsTest, TheOthersAreOffBeforeAnOptionClicks) {
    left.Press();
    bool leftWasOn = true;
    right.Click = [&] { leftWasOn = left.Value; };
    right.Press();
    EXPECT_FALSE(leftWasOn);
}

TEST_F(ButtonsTest, APressOnAnOptionThatIsOnIsNoClick) {
    left.Press();
    left.Press();
    EXPECT_TRUE(left.Value);
    EXPECT_EQ(log, "left ");
}

TEST_F(ButtonsTest, AnotherChangeOfAnOptionThatIsOnIsNoClick) {
    left.Press();
    log.clear();
    left.Caption = u"Other";
    EXPECT_EQ(log, "");
}

TEST_F(ButtonsTest, WithoutAListenerTheyChangeAllTheSame) {
    box.Click = nullptr;
    left.Click = nullptr;
    right.Click = nullptr;
    box.Press();
    left.Press();
    right.Press();
    EXPECT_EQ(box.Value, 1);
    EXPECT_FALSE(left.Value);
    EXPECT_TRUE(right.Value);
    CommandButton button(window, "cmdOk", u"&Ok");
    button.Press();
    EXPECT_EQ(log, "");
}

} // namespace
} // namespace korvane
