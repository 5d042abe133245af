#include "text/markup/frmHTMLCodes.h"

#include "context/ports/OpenText.h"
#include "controls/text/TextControl.h"
#include "support/Captions.h"
#include "support/DesignerFile.h"
#include "support/TestApp.h"

#include <gtest/gtest.h>

#include <vector>

namespace korvane {
namespace {

class HtmlCodes : public testing::Test {
protected:
    TestApp t;
    frmHTMLCodes window{t.app};
};

TEST_F(HtmlCodes, HasItsCaptions) {
    ExpectLook(window, "text/markup", {});
    EXPECT_EQ(CaptionsOf(window),
              (std::vector<Text>{u"&Insert", u"&Cancel", u"Con&vert codes to formatting", u"&Header font",
                                 u"Use bold for heading", u"Confirm each instance"}));
}

TEST_F(HtmlCodes, ListsTheTagsWithTheLastOneCurrent) {
    t.app.Settings.HtmlOptionA = 3;
    window.EnsureLoaded();
    std::vector<Text> rows;
    for (int row = 0; row < window.lstClient.ListCount(); ++row)
        rows.push_back(window.lstClient.List(row));
    EXPECT_EQ(rows, (std::vector<Text>{u"  Italics  <I>, </I>", u"  Bold  <B>, </B>",
                                       u"  Underline  <U>, </U>", u"  Strikethru  <S>, </S>",
                                       u"  Superscript  <SUP>, </SUP>", u"  Subscript  <SUB>, </SUB>",
                                       u"  Heading 1  <H1>, </H1>", u"  Heading 2  <H2>, </H2>",
                                       u"  Heading 3  <H3>, </H3>", u"  Heading 4  <H4>, </H4>"}));
    EXPECT_EQ(window.lstClient.ListIndex(), 3);
    EXPECT_EQ(window.Focused(), &window.lstClient);
}

TEST_F(HtmlCodes, InsertKeepsTheRowAndTheDoubleClickIsTheSame) {
    window.EnsureLoaded();
    window.lstClient.Select(5);
    window.cmdOk.Press();
    EXPECT_EQ(t.app.DialogResult, 1);
    EXPECT_EQ(t.app.Settings.HtmlOptionA, 5);
    window.EnsureLoaded();
    EXPECT_EQ(t.app.DialogResult, 0);
    window.lstClient.DoubleClick(7);
    EXPECT_EQ(t.app.DialogResult, 1);
    EXPECT_EQ(t.app.Settings.HtmlOptionA, 7);
    EXPECT_TRUE(window.cmdOk.Default);
    EXPECT_TRUE(window.cmdCancel.Cancel);
}

TEST_F(HtmlCodes, TheBoxForHeadingsIsKeptAndTheOneForPlacesIsNot) {
    t.app.Settings.HtmlOptionB = 1;
    window.EnsureLoaded();
    EXPECT_EQ(window.chkHTMLHeaderBold.Value, 1);
    window.chkHTMLHeaderBold.Press();
    window.chkConfirmEachInstance.Press();
    window.cmdCancel.Press();
    EXPECT_EQ(t.app.DialogResult, 0);
    EXPECT_EQ(t.app.Settings.HtmlOptionB, 0);
    window.EnsureLoaded();
    EXPECT_EQ(window.chkConfirmEachInstance.Value, 0);
}

TEST_F(HtmlCodes, ShowsAndChoosesTheFontOfHeadings) {
    t.app.Settings.HtmlText = u"Times";
    window.EnsureLoaded();
    EXPECT_EQ(window.lblHTMLHeaderFont.Caption.Get(), u"Times");
    EXPECT_EQ(window.lblHTMLHeaderFont.Font.Get(), (FontSpec{u"Times", 12}));
    t.user.ChooseFont(FontSpec{u"Courier New", 20});
    window.cmdSetHTMLHeaderFont.Press();
    EXPECT_EQ(t.app.Settings.HtmlText, u"Courier New");
    EXPECT_EQ(window.lblHTMLHeaderFont.Font.Get(), (FontSpec{u"Courier New", 12}));
    t.user.ChooseFont(std::nullopt);
    window.cmdSetHTMLHeaderFont.Press();
    EXPECT_EQ(t.app.Settings.HtmlText, u"Courier New");
}

TEST_F(HtmlCodes, ConvertsTheTextWindowAndStaysOpen) {
    Form other(t.user, "Form", u"");
    TextControl text(other, "text");
    TextControl scratch(other, "scratch");
    OpenText open{text, scratch};
    window.EnsureLoaded();
    window.cmdConvert.Press();
    t.app.SetPort<OpenText>(&open);
    text.SetAll(u"<H1>x</H1> <I>y</I>");
    window.lstClient.Select(6);
    window.chkHTMLHeaderBold.Press();
    t.user.Answer(Answer::No);
    t.user.Answer(Answer::Ok);
    window.cmdConvert.Press();
    EXPECT_EQ(text.All(), u"x <I>y</I>");
    text.SetSelection(0, 1);
    EXPECT_EQ(text.FontBold(), 1);
    EXPECT_EQ(other.Focused(), &text);
    EXPECT_TRUE(window.cmdConvert.Enabled);
}

TEST_F(HtmlCodes, ItsPlaceIsKept) {
    t.app.Settings.HtmlLeft = 1500;
    t.app.Settings.HtmlTop = 900;
    window.EnsureLoaded();
    EXPECT_EQ(window.Left.Get(), Twips{1500});
    EXPECT_EQ(window.Top.Get(), Twips{900});
    window.Left = Twips{1600};
    window.Close();
    EXPECT_EQ(t.app.Settings.HtmlLeft, 1600);
    t.app.Settings.HtmlLeft = 900'000;
    window.EnsureLoaded();
    EXPECT_EQ(window.Left.Get(), Twips{0});
}

} // namespace
} // namespace korvane
