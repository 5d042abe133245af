#include "controls/TextBox.h"

#include "controls/Form.h"
#include "support/ScriptedUser.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

class TextBoxTest : public testing::Test {
protected:
    void Select(int start, int length) {
        box.SelStart = start;
        box.SelLength = length;
    }

    ScriptedUser user;
    Form form{user, "Form", u""};
    TextBox box{form, "box", u"one two"};
};

TEST_F(TextBoxTest, TellsItsSelectedText) {
    EXPECT_EQ(box.SelText(), u"");
    Select(4, 3);
    EXPECT_EQ(box.SelText(), u"two");
    box.SelectAll();
    EXPECT_EQ(box.SelText(), u"one two");
}

TEST_F(TextBoxTest, PutsATextInPlaceOfTheSelectionWithTheCursorAfterIt) {
    Select(0, 3);
    box.SetSelText(u"three");
    EXPECT_EQ(box.Text.Get(), u"three two");
    EXPECT_EQ(box.SelStart, 5);
    EXPECT_EQ(box.SelLength, 0);
}

TEST_F(TextBoxTest, InsertsAtTheCursorWithoutASelection) {
    Select(3, 0);
    box.SetSelText(u"!");
    EXPECT_EQ(box.Text.Get(), u"one! two");
    EXPECT_EQ(box.SelStart, 4);
}

TEST_F(TextBoxTest, DeletesTheSelectionByAnEmptyText) {
    Select(3, 4);
    box.SetSelText(u"");
    EXPECT_EQ(box.Text.Get(), u"one");
    EXPECT_EQ(box.SelStart, 3);
}

TEST_F(TextBoxTest, ASelectionPastTheTextIsAtItsEnd) {
    Select(99, 99);
    box.SetSelText(u"!");
    EXPECT_EQ(box.Text.Get(), u"one two!");
    Select(-5, 0);
    box.SetSelText(u">");
    EXPECT_EQ(box.Text.Get(), u">one two!");
}

TEST_F(TextBoxTest, AWriteAtTheSelectionIsAChange) {
    int changes = 0;
    box.Change = [&changes] { ++changes; };
    box.SetSelText(u"x");
    EXPECT_EQ(changes, 1);
}

TEST_F(TextBoxTest, NothingIsTypedWhereTheUserMayNot) {
    box.Locked = true;
    box.Type(u"x");
    box.Locked = false;
    box.Enabled = false;
    box.Type(u"x");
    EXPECT_EQ(box.Text.Get(), u"one two");
    box.Enabled = true;
    box.Type(u"x");
    EXPECT_EQ(box.Text.Get(), u"x");
}

} // namespace
} // namespace korvane
