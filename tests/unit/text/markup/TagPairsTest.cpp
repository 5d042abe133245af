#include "text/markup/TagPairs.h"

#include "controls/Form.h"
#include "controls/TextBox.h"
#include "controls/text/TextControl.h"
#include "support/TestApp.h"
#include "text/markup/MarkupTags.h"
#include "text/markup/frmHTMLCodes.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

class TagPairsTest : public testing::Test {
protected:
    void Choose(int index) {
        t.user.On<frmHTMLCodes>([index](frmHTMLCodes& window) {
            window.lstClient.Select(index);
            window.cmdOk.Press();
        });
    }

    TestApp t;
    Form form{t.user, "Form", u""};
    TextControl control{form, "control"};
    TextBox box{form, "box", u"one two"};
    TagPairs pairs{t.app};
};

TEST_F(TagPairsTest, TheChosenPairGoesRoundTheSelection) {
    control.SetAll(u"one two three");
    control.SetSelection(4, 3);
    Choose(6);
    InsertTagPair(t.app, control);
    EXPECT_EQ(control.All(), u"one <H1>two</H1> three");
    EXPECT_EQ(form.Focused(), &control);
    EXPECT_TRUE(control.Undo());
    EXPECT_EQ(control.All(), u"one two three");
}

TEST_F(TagPairsTest, NothingGoesRoundAnEmptySelectionOrAfterACancel) {
    control.SetAll(u"one");
    Choose(0);
    InsertTagPair(t.app, control);
    control.SetSelection(0, 3);
    t.user.On<frmHTMLCodes>([](frmHTMLCodes& window) { window.cmdCancel.Press(); });
    InsertTagPair(t.app, control);
    EXPECT_EQ(control.All(), u"one");
    EXPECT_EQ(form.Focused(), &control);
}

TEST_F(TagPairsTest, TheSameIsForATextBox) {
    MarkupPicker* const picker = t.app.Port<MarkupPicker>();
    ASSERT_EQ(picker, &pairs);
    box.SelStart = 4;
    box.SelLength = 3;
    Choose(1);
    picker->InsertTagPair(box);
    EXPECT_EQ(box.Text.Get(), u"one <B>two</B>");
    EXPECT_EQ(form.Focused(), &box);
    box.SelLength = 0;
    Choose(1);
    picker->InsertTagPair(box);
    EXPECT_EQ(box.Text.Get(), u"one <B>two</B>");
}

TEST(MarkupTags, HaveEmptyPairsOutsideOfTheList) {
    EXPECT_EQ(GetTagPair(4).HtmlTagOpen, u"<SUP>");
    EXPECT_EQ(GetTagPair(4).HtmlTagClose, u"</SUP>");
    EXPECT_EQ(GetTagPair(10).HtmlTagOpen, u"");
    EXPECT_EQ(GetTagPair(-1).HtmlTagClose, u"");
}

} // namespace
} // namespace korvane
