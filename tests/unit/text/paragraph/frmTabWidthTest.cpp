#include "text/paragraph/frmTabWidth.h"

#include "unit/text/paragraph/ParagraphStage.h"

namespace korvane {
namespace {

class TabWidthTest : public ParagraphStage {
protected:
    frmTabWidth& Open() {
        window.EnsureLoaded();
        return window;
    }
    int TypeOf(int tab) {
        control.SetTabCurrent(tab);
        return control.TabType();
    }
    const Message kUnits{
        u"Use metric units of measurement?\r\n(\"No\" = Imperial system)\r\nCurrent value = NO",
        MessageIcon::Question, MessageButtons::YesNo};

    frmTabWidth window{t.app};
};

TEST_F(TabWidthTest, TheListOfTheUnitsGivesTheWidth) {
    t.app.Settings.TabUnitKind = 1;
    Open();
    EXPECT_TRUE(window.lstTabsCm.Visible);
    EXPECT_FALSE(window.lstTabsIns.Visible);
    const TextView kCm[] = {u"284", u"567", u"851", u"1134", u"1418", u"1701", u"1985", u"2268"};
    const TextView kInches[] = {u"360", u"720", u"1080", u"1440", u"1800", u"2160", u"2520", u"2880"};
    // The first row may be the current one already.
    window.lstTabsCm.Select(7);
    for (int row = 0; row < 8; ++row) {
        window.lstTabsCm.Select(row);
        EXPECT_EQ(window.txtTabWidth.Text.Get(), kCm[row]);
        window.lstTabsIns.Select(row);
        EXPECT_EQ(window.txtTabWidth.Text.Get(), kInches[row]);
    }
}

TEST_F(TabWidthTest, TheListsHaveTheirRows) {
    Open();
    EXPECT_EQ(RowsOf(window.lstTabsCm),
              (std::vector<Text>{u" \u00BD cm", u" 1 cm", u" 1\u00BD cm", u" 2 cm", u" 2\u00BD cm", u" 3 cm",
                                 u" 3\u00BD cm", u" 4 cm"}));
    EXPECT_EQ(RowsOf(window.lstTabsIns),
              (std::vector<Text>{u" \u00BC ins", u" \u00BD ins", u" \u00BE ins", u" 1 ins", u" 1\u00BC ins",
                                 u" 1\u00BD ins", u" 1\u00BE ins", u" 2 ins"}));
    EXPECT_EQ(RowsOf(window.lstTabType), (std::vector<Text>{u" 1  Left tab", u" 2  Right tab",
                                                            u" 3  Centered tab", u" 4  Decimal tab"}));
}

TEST_F(TabWidthTest, HasItsCaptions) {
    EXPECT_EQ(window.Caption.Get(), u"Set tab width");
    EXPECT_EQ(CaptionsOf(window),
              (std::vector<Text>{u"Delete tabs before re-setting?", u"Undo indents on reset?",
                                 u"Use this value as default", u"&Apply", u"&Units", u"&Show"}));
}

TEST_F(TabWidthTest, TheTextIsHiddenWhileItsTabsAreSet) {
    std::vector<bool> seen;
    control.Change = [&] { seen.push_back(control.Visible); };
    Open().cmdApply.Press();
    ASSERT_FALSE(seen.empty());
    EXPECT_FALSE(seen.front());
    EXPECT_TRUE(control.Visible);
}

TEST_F(TabWidthTest, TheWidthIsTheNumberAtTheBeginningOfItsText) {
    Open();
    window.txtTabWidth.Type(u"567 twips");
    window.cmdApply.Press();
    EXPECT_EQ(Tabs(), Multiples(567));
    window.txtTabWidth.Type(u"none");
    window.cmdApply.Press();
    EXPECT_EQ(t.app.Settings.TabUnitTwips, 0);
}

TEST_F(TabWidthTest, ApplySetsAllTabsOfTheKind) {
    Open();
    window.txtTabWidth.Type(u"400");
    window.lstTabType.Select(1);
    window.cmdApply.Press();
    EXPECT_EQ(t.app.Settings.TabUnitTwips, 400);
    EXPECT_EQ(Tabs(), Multiples(400));
    EXPECT_EQ(TypeOf(1), 2);
    EXPECT_EQ(TypeOf(14), 2);
    EXPECT_TRUE(control.DataChanged());
    EXPECT_TRUE(control.Visible);
    EXPECT_TRUE(control.Undo());
    EXPECT_EQ(Tabs(), Multiples(0));
}

TEST_F(TabWidthTest, OldTabsAndIndentsGoWhenTheBoxesSaySo) {
    control.SetTabCurrent(1);
    control.SetTabPos(5);
    control.SetIndentL(300);
    Open();
    window.txtTabWidth.Type(u"500");
    window.chkDeleteTabs.Press();
    window.cmdApply.Press();
    EXPECT_EQ(Tabs(), Multiples(500));
    EXPECT_EQ(control.IndentL(), 300);
    window.chkUndoIndents.Press();
    window.cmdApply.Press();
    EXPECT_EQ(control.IndentL(), 0);
    EXPECT_EQ(t.app.Settings.TabWidthOptionA, 1);
}

TEST_F(TabWidthTest, AWidthThatIsTooLargeLeavesTheStep) {
    t.app.Settings.TabUnitTwips = 720;
    Open();
    window.txtTabWidth.Type(u"40000");
    window.cmdApply.Press();
    EXPECT_EQ(t.app.Settings.TabUnitTwips, 720);
}

TEST_F(TabWidthTest, UnitsAreAskedForAndGoToTheRuler) {
    Open();
    t.user.Answer(kUnits, Answer::Yes);
    window.cmdUnits.Press();
    EXPECT_EQ(t.app.Settings.TabUnitKind, 1);
    EXPECT_EQ(control.ScaleUnits, TextControl::kMillimetres);
    EXPECT_TRUE(window.lstTabsCm.Visible);
    t.user.Answer(Answer::No);
    window.cmdUnits.Press();
    EXPECT_TRUE(t.user.Messages().back().text.ends_with(u"Current value = YES"));
    EXPECT_EQ(t.app.Settings.TabUnitKind, 2);
    EXPECT_EQ(control.ScaleUnits, TextControl::kInches);
    EXPECT_TRUE(window.lstTabsIns.Visible);
}

TEST_F(TabWidthTest, TheControlCharactersAreShownOnlyMeanwhile) {
    Open();
    window.cmdShow.Press();
    EXPECT_TRUE(control.ControlChars);
    window.cmdShow.Press();
    EXPECT_FALSE(control.ControlChars);
    window.cmdShow.Press();
    window.Close();
    EXPECT_FALSE(control.ControlChars);
}

TEST_F(TabWidthTest, ComesUpWithItsLastChoices) {
    t.app.Settings.TabUnitTwips = 720;
    Open();
    EXPECT_EQ(window.txtTabWidth.Text.Get(), u"720");
    window.lstTabsIns.Select(3);
    window.txtTabWidth.Type(u"1500");
    window.chkDefault.Press();
    window.Close();
    frmTabWidth again(t.app);
    again.EnsureLoaded();
    EXPECT_EQ(again.lstTabsIns.ListIndex(), 3);
    EXPECT_EQ(again.txtTabWidth.Text.Get(), u"1500");
    EXPECT_EQ(again.chkDefault.Value, 1);
    EXPECT_EQ(again.chkDeleteTabs.Value, 0);
}

TEST_F(TabWidthTest, KeepsTheStepWithoutTheTextWindow) {
    t.app.SetPort<OpenText>(nullptr);
    Open();
    window.txtTabWidth.Type(u"400");
    window.cmdApply.Press();
    window.cmdShow.Press();
    t.user.Answer(Answer::Yes);
    window.cmdUnits.Press();
    EXPECT_EQ(t.app.Settings.TabUnitTwips, 400);
    EXPECT_FALSE(control.DataChanged());
    EXPECT_FALSE(control.ControlChars);
}

} // namespace
} // namespace korvane
