#include "controls/DropDown.h"

#include "controls/Form.h"
#include "support/ScriptedUser.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

struct DropDownTest : testing::Test {
    DropDownTest() {
        field.Items = std::vector<Text>{u"*.*", u"*.tbx"};
        field.Click = [this] { ++clicks; };
    }

    ScriptedUser user;
    Form form{user, "frmTest", u""};
    DropDown field{form, "txtPattern"};
    int clicks = 0;
};

TEST_F(DropDownTest, WhatIsChosenIsItsText) {
    field.Choose(1);
    EXPECT_EQ(field.Text.Get(), u"*.tbx");
    EXPECT_EQ(clicks, 1);
}

TEST_F(DropDownTest, AnyTextCanBeTyped) {
    field.Type(u"*.old");
    EXPECT_EQ(field.Text.Get(), u"*.old");
    EXPECT_EQ(clicks, 0);
}

TEST_F(DropDownTest, NothingIsChosenOutsideTheItems) {
    field.Choose(2);
    field.Choose(-1);
    EXPECT_EQ(field.Text.Get(), u"");
    EXPECT_EQ(clicks, 0);
}

TEST_F(DropDownTest, NothingIsChosenWhileItIsDisabled) {
    field.Enabled = false;
    field.Choose(0);
    EXPECT_EQ(clicks, 0);
}

} // namespace
} // namespace korvane
