#include "text/commands/TextCommands.h"

#include "controls/Form.h"
#include "controls/KeyEvent.h"
#include "controls/text/TextControl.h"
#include "support/ScriptedUser.h"

#include <gtest/gtest.h>

#include <vector>

namespace korvane {
namespace {

class TextCommands : public testing::Test {
protected:
    Text QuoteAfter(const Text& before, const Text& typed) {
        control.SetAll(before);
        control.SetSelStart(static_cast<int>(before.size()));
        const auto quote = SmartQuote(control, typed);
        return quote ? Text(1, *quote) : u"(none)";
    }
    Text SwappedAt(const Text& all, int position) {
        control.SetAll(all);
        control.SetSelStart(position);
        SwapCharacters(control);
        return control.All();
    }

    ScriptedUser user;
    Form form{user, "Form", u""};
    TextControl control{form, "control"};
};

TEST_F(TextCommands, AnIndentGoesByTheFirstTabOrByTheDefault) {
    control.SetAll(u"text");
    IndentSelection(control, Mask::None, 567);
    EXPECT_EQ(control.IndentL(), 567);
    control.SetTabCurrent(1);
    control.SetTabPos(300);
    IndentSelection(control, Mask::None, 567);
    EXPECT_EQ(control.IndentL(), 867);
    IndentSelection(control, Mask::Shift, 567);
    EXPECT_EQ(control.IndentL(), 567);
}

TEST_F(TextCommands, AnIndentWithCtrlAndAltTakesAllIndentsAway) {
    control.SetAll(u"text");
    control.SetIndentL(500);
    control.SetIndentR(400);
    control.SetIndentFL(-300);
    IndentSelection(control, Mask::Ctrl, 567);
    EXPECT_EQ(control.IndentL(), 500);
    IndentSelection(control, Mask::Ctrl | Mask::Alt, 567);
    EXPECT_EQ(control.IndentL(), 0);
    EXPECT_EQ(control.IndentR(), 0);
    EXPECT_EQ(control.IndentFL(), 0);
    EXPECT_TRUE(control.Undo());
    EXPECT_EQ(control.IndentL(), 500);
    EXPECT_EQ(control.IndentFL(), -300);
}

TEST_F(TextCommands, AnAttributeOfAMixedSelectionIsTurnedOn) {
    control.SetAll(u"abcd");
    control.SetSelection(0, 2);
    ToggleBold(control);
    EXPECT_EQ(control.FontBold(), 1);
    control.SetSelection(0, 4);
    ToggleBold(control);
    EXPECT_EQ(control.FontBold(), 1);
    ToggleBold(control);
    EXPECT_EQ(control.FontBold(), 0);
    ToggleItalic(control);
    EXPECT_EQ(control.FontItalic(), 1);
    ToggleUnderline(control);
    EXPECT_EQ(control.FontUnderline(), 1);
}

TEST_F(TextCommands, ClearingTakesFiveAttributesAwayInOneStep) {
    control.SetAll(u"abcd");
    control.SetSelection(0, 4);
    control.SetFontBold(1);
    control.SetFontItalic(1);
    control.SetFontUnderline(1);
    control.SetFontStrikethru(1);
    control.SetBaseLine(60);
    control.SetFontSize(30);
    ClearCharFormat(control);
    EXPECT_EQ(control.FontBold(), 0);
    EXPECT_EQ(control.FontItalic(), 0);
    EXPECT_EQ(control.FontUnderline(), 0);
    EXPECT_EQ(control.FontStrikethru(), 0);
    EXPECT_EQ(control.BaseLine(), 0);
    EXPECT_EQ(control.FontSize(), 30);
    EXPECT_TRUE(control.Undo());
    EXPECT_EQ(control.FontBold(), 1);
    EXPECT_EQ(control.BaseLine(), 60);
}

TEST_F(TextCommands, TheMarkerIsBlackOnYellow) {
    control.SetAll(u"abcd");
    control.SetSelection(0, 2);
    MarkYellow(control);
    EXPECT_EQ(control.ForeColor(), Colour{0});
    EXPECT_EQ(control.TextBkColor(), Colour{65535});
}

TEST_F(TextCommands, TheCharactersOnBothSidesOfTheCursorAreSwapped) {
    EXPECT_EQ(SwappedAt(u"abcd", 2), u"acbd");
    EXPECT_EQ(SwappedAt(u"abcd", 0), u"abcd");
    EXPECT_EQ(SwappedAt(u"abcd", 4), u"abcd");
    EXPECT_EQ(SwappedAt(u"", 0), u"");
}

TEST_F(TextCommands, ASwapAtALineEndLosesNothing) {
    EXPECT_EQ(SwappedAt(u"ab\r\ncd", 2), u"a\r\nbcd");
}

TEST_F(TextCommands, ThePairOfQuotesIsPlainWithTheCursorWithin) {
    control.SetFontBold(1);
    WriteSingleQuotes(control);
    EXPECT_EQ(control.All(), u"\u2018\u2019");
    EXPECT_EQ(control.SelStart(), 1);
    EXPECT_EQ(control.FontBold(), 0);
    control.SetSelection(0, 1);
    WriteSingleQuotes(control);
    EXPECT_EQ(control.All(), u"\u2018\u2019");
}

TEST_F(TextCommands, ADoubleQuoteOpensAtTheStartAndAfterCertainCharacters) {
    EXPECT_EQ(QuoteAfter(u"", u"\""), u"\u201C");
    for (const char16_t before : TextView(u" (['\u2018\t\f\r\n"))
        EXPECT_EQ(QuoteAfter(Text(1, before), u"\""), u"\u201C") << static_cast<int>(before);
    EXPECT_EQ(QuoteAfter(u"x\r\n", u"\""), u"\u201C");
    for (const char16_t before : TextView(u"x.)]\"\u201C\u2019"))
        EXPECT_EQ(QuoteAfter(Text(1, before), u"\""), u"\u201D") << static_cast<int>(before);
}

TEST_F(TextCommands, AnApostropheOpensAtTheStartAndAfterCertainCharacters) {
    EXPECT_EQ(QuoteAfter(u"", u"'"), u"\u2018");
    for (const char16_t before : TextView(u" ([\"\u201C\t\f\r\n"))
        EXPECT_EQ(QuoteAfter(Text(1, before), u"'"), u"\u2018") << static_cast<int>(before);
    EXPECT_EQ(QuoteAfter(u"x\r\n", u"'"), u"\u2018");
    for (const char16_t before : TextView(u"x.)]'\u2018"))
        EXPECT_EQ(QuoteAfter(Text(1, before), u"'"), u"\u2019") << static_cast<int>(before);
}

TEST_F(TextCommands, OtherCharactersAreNoQuotes) {
    EXPECT_EQ(QuoteAfter(u"", u"a"), u"(none)");
    EXPECT_EQ(QuoteAfter(u"", u"\"\""), u"(none)");
    EXPECT_EQ(QuoteAfter(u"", u""), u"(none)");
}

TEST_F(TextCommands, AnAddressEndsAtTheFirstCharacterThatCantBeInIt) {
    EXPECT_EQ(FindUrl(u"see https://a.b/c d"), u"https://a.b/c");
    EXPECT_EQ(FindUrl(u"<https://a.b>"), u"https://a.b");
    EXPECT_EQ(FindUrl(u"www.a.b\r\nwww.c"), u"www.a.b");
    EXPECT_EQ(FindUrl(u"www.a.b\u201D"), u"www.a.b");
    EXPECT_EQ(FindUrl(u"www.a.b'x"), u"www.a.b");
    for (const char16_t end : TextView(u"\n\r\t \"'\u201C\u201D>"))
        EXPECT_EQ(FindUrl(u"www.a.b" + Text(1, end) + u"c"), u"www.a.b") << static_cast<int>(end);
    for (const char16_t inside : TextView(u".,;)]<|\u2019"))
        EXPECT_EQ(FindUrl(u"www.a.b" + Text(1, inside) + u"c"), u"www.a.b" + Text(1, inside) + u"c");
    EXPECT_EQ(FindUrl(u"at www.a.b."), u"www.a.b.");
    EXPECT_EQ(FindUrl(u"www.a https://b"), u"https://b");
    EXPECT_EQ(FindUrl(u"WWW.a HTTPS://b"), std::nullopt);
    EXPECT_EQ(FindUrl(u"http://a"), std::nullopt);
}

// Kept for compatibility: zoom-without-ends.
TEST_F(TextCommands, TheZoomGoesOverItsStepsAndFromEachEndToTheMiddle) {
    const std::vector<int> steps{30,  50,  62,  75,  82,  90,  95,  100, 105, 110,
                                 115, 120, 125, 150, 175, 200, 250, 300, 400, 500};
    for (std::size_t i = 0; i + 1 < steps.size(); ++i) {
        EXPECT_EQ(ZoomIn(steps[i]), steps[i + 1]);
        EXPECT_EQ(ZoomOut(steps[i + 1]), steps[i]);
    }
    EXPECT_EQ(ZoomIn(500), 100);
    EXPECT_EQ(ZoomOut(30), 100);
    EXPECT_EQ(ZoomIn(101), 100);
    EXPECT_EQ(ZoomOut(0), 100);
}

} // namespace
} // namespace korvane
