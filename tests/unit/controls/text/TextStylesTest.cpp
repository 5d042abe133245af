#include "controls/text/TextStyles.h"

#include "controls/Form.h"
#include "controls/text/TextControl.h"
#include "support/ScriptedUser.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace korvane {
namespace {

class TextStylesTest : public testing::Test {
protected:
    static const TextStyle& Named(TextView name) {
        return *std::ranges::find(TextStyles(), name, &TextStyle::name);
    }
    Text NameAt(int position) {
        control.SetSelStart(position);
        const TextStyle* const style = StyleOf(control);
        return style == nullptr ? u"(none)" : Text(style->name);
    }

    ScriptedUser user;
    Form form{user, "Form", u""};
    TextControl control{form, "control"};
};

TEST_F(TextStylesTest, EachStyleIsKnownByItsLook) {
    control.SetAll(u"one\r\ntwo\r\nthree");
    EXPECT_EQ(NameAt(0), u"Normal");
    for (const TextStyle& style : TextStyles()) {
        control.SetSelStart(6);
        ApplyStyle(control, style);
        EXPECT_EQ(NameAt(5), Text(style.name));
        EXPECT_EQ(NameAt(0), u"Normal");
        EXPECT_EQ(NameAt(10), u"Normal");
    }
}

TEST_F(TextStylesTest, AStyleIsGivenToWholeParagraphsInOneStep) {
    control.SetAll(u"one\r\ntwo\r\nthree");
    control.SetSelection(2, 5);
    ApplyStyle(control, Named(u"Heading 1"));
    EXPECT_EQ(control.SelStart(), 2);
    EXPECT_EQ(control.SelLength(), 5);
    control.SetSelection(0, 8);
    EXPECT_EQ(control.FontBold(), 1);
    EXPECT_EQ(control.FontSize(), 18);
    EXPECT_EQ(control.IndentT(), 240);
    ASSERT_TRUE(control.Undo());
    EXPECT_EQ(NameAt(0), u"Normal");
    EXPECT_FALSE(control.Undo());
}

TEST_F(TextStylesTest, AnotherLookHasNoStyle) {
    control.SetAll(u"one");
    control.SetSelection(0, 3);
    control.SetFontSize(13);
    EXPECT_EQ(NameAt(0), u"(none)");
}

TEST_F(TextStylesTest, AParagraphOfAListStaysInIt) {
    control.SetAll(u"one");
    control.SetListMark({.kind = doc::ListKind::Bullet});
    ApplyStyle(control, Named(u"Quotation"));
    EXPECT_EQ(control.IndentL(), 360);
}

} // namespace
} // namespace korvane
