#include "text/markup/MarkupConversion.h"

#include "controls/Form.h"
#include "controls/text/TextControl.h"
#include "support/TestApp.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace korvane {
namespace {

class MarkupConversion : public testing::Test {
protected:
    MarkupConversion() { t.app.Settings.MarkupOption = 60; }

    void Direct(const Text& text) {
        control.SetAll(text);
        control.SetSelection(0, 1);
        t.user.Answer(
            {u"Convert HTML codes to formatting attributes?", MessageIcon::Question, MessageButtons::YesNo},
            Answer::Yes);
        ConvertMarkupDirect(t.app, control);
    }
    /// Converts by tags and says how many conversions are told.
    void ByTag(const Text& text, Answer which, int conversions, int selected = 1) {
        control.SetAll(text);
        t.user.Answer(kWhich, which);
        t.user.Answer(
            {u"Number of conversions: " + FromAscii(std::to_string(conversions)), MessageIcon::Information},
            Answer::Ok);
        ConvertMarkupByTag(t.app, control, false, selected);
    }
    template <class Value>
    Value Of(int start, int length, Value (doc::TextEditing::*value)() const) {
        control.SetSelection(start, length);
        return (control.*value)();
    }
    std::string All() const { return ToUtf8(control.All()); }

    const Message kWhich{
        u"Do conversion for all instances of markup?\r\n\r\n(otherwise just selected markup item)",
        MessageIcon::Question, MessageButtons::YesNoCancel};
    const Message kThisOne{u"Convert this instance?", MessageIcon::Question, MessageButtons::YesNoCancel};
    TestApp t;
    Form form{t.user, "Form", u""};
    TextControl control{form, "control"};
};

// The direct conversion.

// Kept for compatibility: conversion-takes-whole-text.
TEST_F(MarkupConversion, ConvertsTheWholeTextAndPutsTheCursorBack) {
    control.SetAll(u"<B>x</B> y");
    control.SetSelection(9, 1);
    t.user.Answer(Answer::Yes);
    Pointer during = Pointer::Default;
    control.Change = [&] { during = t.screen.CurrentPointer(); };
    ConvertMarkupDirect(t.app, control);
    control.Change = nullptr;
    EXPECT_EQ(during, Pointer::Hourglass);
    EXPECT_EQ(All(), "x y");
    EXPECT_EQ(control.SelStart(), 3);
    EXPECT_EQ(control.SelLength(), 0);
    EXPECT_EQ(form.Focused(), &control);
    EXPECT_EQ(Of(0, 1, &TextControl::FontBold), 1);
    EXPECT_EQ(Of(1, 2, &TextControl::FontBold), 0);
    EXPECT_EQ(t.screen.CurrentPointer(), Pointer::Default);
}

TEST_F(MarkupConversion, NeedsASelection) {
    control.SetAll(u"<B>x</B>");
    t.user.Answer({u"No text selected.", MessageIcon::Information}, Answer::Ok);
    ConvertMarkupDirect(t.app, control);
    EXPECT_EQ(All(), "<B>x</B>");
    EXPECT_EQ(form.Focused(), &control);
}

TEST_F(MarkupConversion, ANoLeavesTheText) {
    control.SetAll(u"<B>x</B>");
    control.SetSelection(2, 3);
    t.user.Answer(Answer::No);
    ConvertMarkupDirect(t.app, control);
    EXPECT_EQ(All(), "<B>x</B>");
    EXPECT_EQ(control.SelLength(), 0);
    EXPECT_FALSE(control.Undo());
}

TEST_F(MarkupConversion, IsOneStepToUndo) {
    Direct(u"<B>x</B> <I>y</I>");
    EXPECT_EQ(All(), "x y");
    EXPECT_TRUE(control.Undo());
    EXPECT_EQ(All(), "<B>x</B> <I>y</I>");
}

TEST_F(MarkupConversion, GivesEachTagItsLook) {
    Direct(u"<I>a</I> <U>b</U> <S>c</S> <SUP>d</SUP> <SUB>e</SUB>");
    EXPECT_EQ(All(), "a b c d e");
    EXPECT_EQ(Of(0, 1, &TextControl::FontItalic), 1);
    EXPECT_EQ(Of(2, 1, &TextControl::FontUnderline), 1);
    EXPECT_EQ(Of(4, 1, &TextControl::FontStrikethru), 1);
    EXPECT_EQ(Of(6, 1, &TextControl::BaseLine), 60);
    EXPECT_EQ(Of(8, 1, &TextControl::BaseLine), -60);
    EXPECT_EQ(Of(1, 1, &TextControl::FontItalic), 0);
}

// Kept for compatibility: heading-settings-by-tag-only.
TEST_F(MarkupConversion, HeadingsAreLargerAndBoldInTheFontOfTheText) {
    t.app.Settings.HtmlText = u"Courier New";
    t.app.Settings.HtmlOptionB = 0;
    control.SetAll(u"<H1>a</H1> <H2>b</H2> <H3>c</H3> <H4>d</H4>");
    control.SetSelection(0, -1);
    control.SetFontName(u"Times");
    control.SetFontSize(12);
    t.user.Answer(Answer::Yes);
    ConvertMarkupDirect(t.app, control);
    EXPECT_EQ(All(), "a b c d");
    for (int heading = 0; heading < 4; ++heading) {
        EXPECT_EQ(Of(heading * 2, 1, &TextControl::FontSize), 14 + heading * 2);
        EXPECT_EQ(Of(heading * 2, 1, &TextControl::FontBold), 1);
        EXPECT_EQ(Of(heading * 2, 1, &TextControl::FontName), u"Times");
    }
    EXPECT_EQ(Of(1, 1, &TextControl::FontSize), 12);
}

// Kept for compatibility: direct-conversion-skips.
TEST_F(MarkupConversion, OfTwoTagsSideBySideTheSecondStays) {
    Direct(u"<B><I>x</I></B>");
    EXPECT_EQ(All(), "<I>x</B>");
}

// Kept for compatibility: direct-conversion-has-no-pairs.
TEST_F(MarkupConversion, AClosingTagReachesBackToTheLastOpeningOne) {
    Direct(u"a <B>b <I>c d</B> e</I> f");
    EXPECT_EQ(All(), "a b c d e f");
    EXPECT_EQ(Of(2, 1, &TextControl::FontBold), 0);
    EXPECT_EQ(Of(4, 3, &TextControl::FontBold), 1);
    EXPECT_EQ(Of(4, 5, &TextControl::FontItalic), 1);
    Direct(u"a b</B> c");
    EXPECT_EQ(Of(0, 3, &TextControl::FontBold), 1);
    EXPECT_EQ(Of(3, 2, &TextControl::FontBold), 0);
    Direct(u"a <B>b");
    EXPECT_EQ(All(), "a b");
    EXPECT_EQ(Of(0, 3, &TextControl::FontBold), 0);
}

// Kept for compatibility: tags-in-capitals.
TEST_F(MarkupConversion, SmallLettersAreNoTags) {
    Direct(u"<b>x</b> <Sup>y</Sup>");
    EXPECT_EQ(All(), "<b>x</b> <Sup>y</Sup>");
    ByTag(u"<b>x</b>", Answer::Yes, 0);
    EXPECT_EQ(All(), "<b>x</b>");
}

TEST_F(MarkupConversion, GoesOverLineEnds) {
    Direct(u"<B>a\r\nb</B>\r\n<I>c</I>");
    EXPECT_EQ(All(), "a\r\nb\r\nc");
    EXPECT_EQ(Of(0, 4, &TextControl::FontBold), 1);
    EXPECT_EQ(Of(6, 1, &TextControl::FontItalic), 1);
    EXPECT_EQ(Of(6, 1, &TextControl::FontBold), 0);
}

TEST_F(MarkupConversion, TagsAtTheEndsOfATextAreNoTrouble) {
    Direct(u"<");
    EXPECT_EQ(All(), "<");
    Direct(u"</");
    EXPECT_EQ(All(), "</");
    Direct(u"<B>");
    EXPECT_EQ(All(), "");
    Direct(u"</B>");
    EXPECT_EQ(All(), "");
}

// The conversion by tags.

TEST_F(MarkupConversion, ConvertsAllTagsOrTheSelectedOne) {
    ByTag(u"<B>x <I>y</I></B>", Answer::Yes, 2);
    EXPECT_EQ(All(), "x y");
    EXPECT_EQ(Of(0, 3, &TextControl::FontBold), 1);
    EXPECT_EQ(Of(2, 1, &TextControl::FontItalic), 1);
    EXPECT_EQ(Of(0, 1, &TextControl::FontItalic), 0);
    ByTag(u"<B>x</B> <I>y</I>", Answer::No, 1, 1);
    EXPECT_EQ(All(), "x <I>y</I>");
    ByTag(u"<B>x</B>", Answer::No, 0, -1);
    EXPECT_EQ(All(), "<B>x</B>");
}

TEST_F(MarkupConversion, ACancelLeavesTheText) {
    control.SetAll(u"<B>x</B>");
    t.user.Answer(kWhich, Answer::Cancel);
    ConvertMarkupByTag(t.app, control, false, 1);
    EXPECT_EQ(All(), "<B>x</B>");
    EXPECT_TRUE(control.Visible);
}

TEST_F(MarkupConversion, HidesTheControlAndSelectsNothingAtTheEnd) {
    control.SetAll(u"<B>x</B>");
    bool hidden = false;
    t.user.Answer(Answer::Yes);
    t.user.AnswerAfter([&] { hidden = !control.Visible; }, Answer::Ok);
    ConvertMarkupByTag(t.app, control, false, 1);
    EXPECT_TRUE(hidden);
    EXPECT_TRUE(control.Visible);
    EXPECT_EQ(control.SelStart(), 0);
    EXPECT_EQ(control.SelLength(), 0);
}

TEST_F(MarkupConversion, ByTagIsOneStepToUndo) {
    ByTag(u"<B>x</B> <I>y</I>", Answer::Yes, 2);
    EXPECT_TRUE(control.Undo());
    EXPECT_EQ(All(), "<B>x</B> <I>y</I>");
}

// Kept for compatibility: heading-settings-by-tag-only.
TEST_F(MarkupConversion, ByTagAHeadingTakesFontAndWeightOfTheSettings) {
    t.app.Settings.HtmlText = u"Courier New";
    t.app.Settings.HtmlOptionB = 1;
    control.SetAll(u"<H1>a</H1>");
    control.SetSelection(0, -1);
    control.SetFontSize(12);
    t.user.Answer(Answer::Yes);
    t.user.Answer(Answer::Ok);
    ConvertMarkupByTag(t.app, control, false, 1);
    EXPECT_EQ(All(), "a");
    EXPECT_EQ(Of(0, 1, &TextControl::FontSize), 14);
    EXPECT_EQ(Of(0, 1, &TextControl::FontBold), 1);
    EXPECT_EQ(Of(0, 1, &TextControl::FontName), u"Courier New");
}

TEST_F(MarkupConversion, ByTagAHeadingIsNotBoldWhenTheSettingsSaySo) {
    t.app.Settings.HtmlOptionB = 0;
    ByTag(u"<B>x <H2>a</H2></B>", Answer::Yes, 2);
    EXPECT_EQ(Of(2, 1, &TextControl::FontBold), 0);
    EXPECT_EQ(Of(0, 1, &TextControl::FontBold), 1);
}

TEST_F(MarkupConversion, ByTagRaisedCharactersAreSmaller) {
    control.SetAll(u"x<SUP>2</SUP> y<SUB>1</SUB>");
    control.SetSelection(0, -1);
    control.SetFontSize(12);
    t.user.Answer(Answer::Yes);
    t.user.Answer(Answer::Ok);
    ConvertMarkupByTag(t.app, control, false, 0);
    EXPECT_EQ(All(), "x2 y1");
    EXPECT_EQ(Of(1, 1, &TextControl::FontSize), 10);
    EXPECT_EQ(Of(1, 1, &TextControl::BaseLine), 60);
    EXPECT_EQ(Of(4, 1, &TextControl::FontSize), 10);
    EXPECT_EQ(Of(4, 1, &TextControl::BaseLine), -60);
    EXPECT_EQ(Of(0, 1, &TextControl::FontSize), 12);
}

TEST_F(MarkupConversion, ByTagAnOpeningTagAloneStays) {
    ByTag(u"a <B>b", Answer::Yes, 0);
    EXPECT_EQ(All(), "a <B>b");
    ByTag(u"</B> <B>b", Answer::Yes, 0);
    EXPECT_EQ(All(), "</B> <B>b");
}

TEST_F(MarkupConversion, ByTagTagsOfOneKindNestWrongly) {
    ByTag(u"<B>a <B>b</B> c</B>", Answer::Yes, 2);
    EXPECT_EQ(All(), "a b c");
}

TEST_F(MarkupConversion, ByTagAnEmptyElementAtTheStartIsConverted) {
    ByTag(u"<B></B><B>x</B>", Answer::Yes, 2);
    EXPECT_EQ(All(), "x");
}

// Kept for compatibility: cancel-ends-one-tag.
TEST_F(MarkupConversion, ACancelAtAPlaceEndsThePassOfItsTagAlone) {
    control.SetAll(u"<I>a</I> <I>b</I> <B>c</B>");
    t.user.Answer(kWhich, Answer::Yes);
    t.user.Answer(kThisOne, Answer::Cancel);
    t.user.Answer(kThisOne, Answer::Yes);
    t.user.Answer({u"Number of conversions: 1", MessageIcon::Information}, Answer::Ok);
    ConvertMarkupByTag(t.app, control, true, 0);
    EXPECT_EQ(All(), "<I>a</I> <I>b</I> c");
}

TEST_F(MarkupConversion, ANoAtAPlaceGoesOnAfterIt) {
    control.SetAll(u"<I>a</I> <I>b</I>");
    t.user.Answer(kWhich, Answer::Yes);
    Text asked;
    t.user.AnswerAfter([&] { asked = control.SelText(); }, Answer::No);
    t.user.Answer(kThisOne, Answer::Yes);
    t.user.Answer(Answer::Ok);
    ConvertMarkupByTag(t.app, control, true, 0);
    EXPECT_EQ(asked, u"<I>a");
    EXPECT_EQ(All(), "<I>a</I> b");
}

TEST_F(MarkupConversion, TheSilentModeAsksNothingAndSetsTheHeightOfLines) {
    control.SetAll(u"<I>a</I> <B>b</B>");
    ConvertMarkupByTag(t.app, control, false, 0, MarkupMode::Silent);
    EXPECT_EQ(All(), "a b");
    EXPECT_EQ(control.LineSpacingT(), 320);
    EXPECT_EQ(control.SelLength(), 0);
}

} // namespace
} // namespace korvane
