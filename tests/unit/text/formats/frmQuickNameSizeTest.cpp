#include "text/formats/frmQuickNameSize.h"

#include "common/text/Names.h"
#include "context/ports/SystemFontDialog.h"
#include "support/DesignerFile.h"
#include "testing/MemoryFonts.h"
#include "text/insert/frmASCIIBox.h"
#include "text/insert/frmElements.h"
#include "text/insert/frmSymbolTables.h"
#include "unit/text/formats/FormatsStage.h"

#include <memory>
#include <vector>

namespace korvane {
namespace {

class QuickNameSizeTest : public FormatsStage {
protected:
    frmQuickNameSize& Open() {
        window = std::make_unique<frmQuickNameSize>(t.app);
        window->EnsureLoaded();
        return *window;
    }
    static std::vector<Text> Lines(const ListBox& list) {
        std::vector<Text> lines;
        for (int row = 0; row < list.ListCount(); ++row)
            lines.push_back(list.List(row));
        return lines;
    }
    TextControl& Sample() {
        window->txtSample.SetSelection(0, -1);
        return window->txtSample;
    }

    std::unique_ptr<frmQuickNameSize> window;
};

TEST_F(QuickNameSizeTest, TheListsHaveTheirRows) {
    t.fonts.Set({u"@Batang", u"Arial", u"Batang"});
    Open();
    EXPECT_EQ(Lines(window->lstName), (std::vector<Text>{u"-----", u"Arial", u"Batang"}));
    EXPECT_TRUE(window->lstName.NamesFonts);
    EXPECT_EQ(
        Lines(window->lstSize),
        (std::vector<Text>{u"0",  u"6",  u"8",  u"9",  u"10", u"11", u"12", u"13", u"14", u"15", u"16",
                           u"17", u"18", u"20", u"24", u"28", u"32", u"36", u"48", u"56", u"64", u"72"}));
    EXPECT_EQ(Lines(window->lstAttr), (std::vector<Text>{u"--------", u"Normal", u"Uppercase", u"Lowercase",
                                                         u"Smart Upper", u"Small CAPS"}));
    EXPECT_EQ(Lines(window->cboSubSuper),
              (std::vector<Text>{u"00", u"36", u"48", u"64", u"72", u"84", u"96", u"108", u"120"}));
}

TEST_F(QuickNameSizeTest, HasItsCaptions) {
    static constexpr std::pair<std::string_view, TextView> kCaptions[] = {
        {"chkNoChange", u"&No change"},
        {"cmdZeroBaseline", u"Set to &zero"},
        {"cmdDrawLine", u"Single line"},
        {"cmdDrawDoubleLine", u"Doubleline"},
        {"cmdNoLine", u"No line"},
        {"cmdShapes", u"Shapes and symbols"},
        {"cmdSymbols", u"ASCII characters table"},
        {"cmdAllSymbols", u"All symbols"},
        {"cmdAllFonts", u"All fonts"},
        {"cmdApply", u"&Apply"},
    };
    const frmQuickNameSize f(t.app);
    const auto caption = [&f](std::string_view name) {
        const Control* control = f.Find(name);
        if (const auto* box = dynamic_cast<const CheckBox*>(control)) return box->Caption.Get();
        return dynamic_cast<const CommandButton&>(*control).Caption.Get();
    };
    for (const auto& [name, text] : kCaptions)
        EXPECT_EQ(caption(name), text) << name;
    ExpectLook(f, "text/formats", {"Superscript offset"});
}

TEST_F(QuickNameSizeTest, WithoutFontsThereIsOnlyTheFirstRow) {
    t.fonts.Set({});
    Choice().FontInits = {u"Arial", u"12"};
    EXPECT_EQ(Lines(Open().lstName), std::vector<Text>{u"-----"});
    EXPECT_EQ(window->lstName.ListIndex(), 0);
}

TEST_F(QuickNameSizeTest, SuperscriptAndSubscriptExcludeEachOther) {
    Open().chkSuperscript.Press();
    window->chkSubscript.Press();
    EXPECT_EQ(window->chkSuperscript.Value, 0);
    EXPECT_EQ(window->chkSubscript.Value, 1);
    window->chkSuperscript.Press();
    EXPECT_EQ(window->chkSubscript.Value, 0);
    window->chkSuperscript.Press();
    EXPECT_EQ(window->chkSuperscript.Value, 0);
    EXPECT_EQ(window->chkSubscript.Value, 0);
}

TEST_F(QuickNameSizeTest, TheSampleShowsTheChoice) {
    Choice().FontInits = {u"Arial", u"12"};
    Open();
    EXPECT_EQ(Sample().All(), u"AaBbCc DdEeFf GgHhIi\r\n ... XxYyZz");
    EXPECT_EQ(Sample().FontName(), u"Arial");
    EXPECT_EQ(Sample().FontSize(), 12);
    window->lstName.Select(2);
    window->chkItalic.Press();
    window->chkStrikethru.Press();
    window->chkSubscript.Press();
    EXPECT_EQ(Sample().FontName(), u"Cambria");
    EXPECT_EQ(Sample().FontItalic(), 1);
    EXPECT_EQ(Sample().FontStrikethru(), 1);
    EXPECT_LT(Sample().BaseLine(), 0);
    window->chkNoChange.Press();
    EXPECT_EQ(Sample().FontItalic(), 0);
    EXPECT_TRUE(window->txtSample.Locked);
}

TEST_F(QuickNameSizeTest, TheSampleIsUnderlinedAndRaised) {
    Open();
    window->chkUnderline.Press();
    window->chkSuperscript.Press();
    EXPECT_EQ(Sample().FontUnderline(), 1);
    EXPECT_GT(Sample().BaseLine(), 0);
    window->chkUnderline.Press();
    window->chkSuperscript.Press();
    EXPECT_EQ(Sample().FontUnderline(), 0);
    EXPECT_EQ(Sample().BaseLine(), 0);
}

TEST_F(QuickNameSizeTest, ALargeSampleHasItsFirstLineAlone) {
    Open().lstSize.Select(14);
    EXPECT_EQ(Sample().All(), u"AaBbCc DdEeFf GgHhIi\r\n ... XxYyZz");
    window->lstSize.Select(21);
    EXPECT_EQ(Sample().All(), u"AaBbCc DdEeFf GgHhIi");
    EXPECT_EQ(Sample().FontSize(), 72);
}

TEST_F(QuickNameSizeTest, TheSampleShowsTheStyle) {
    Open().lstAttr.Select(2);
    EXPECT_EQ(Sample().All(), u"AABBCC DDEEFF GGHHII\r\n ... XXYYZZ");
    window->lstAttr.Select(3);
    EXPECT_EQ(Sample().All(), u"aabbcc ddeeff gghhii\r\n ... xxyyzz");
    window->lstAttr.Select(4);
    EXPECT_EQ(Sample().All(), SmartUpper(u"AaBbCc DdEeFf GgHhIi\r\n ... XxYyZz", 0));
    window->lstAttr.Select(5);
    EXPECT_EQ(Sample().CharAttributes(), TextControl::kSmallCaps);
    window->chkBold.Press();
    window->lstAttr.Select(1);
    EXPECT_EQ(Sample().FontBold(), 0);
}

// Kept for compatibility: font-style-comes-again.
TEST_F(QuickNameSizeTest, TheRowsOfLastTimeComeAgain) {
    Open();
    window->lstName.Select(3);
    window->lstSize.Select(4);
    window->lstAttr.Select(2);
    window->chkNoChange.Press();
    window->cmdApply.Press();
    Open();
    EXPECT_EQ(window->lstName.ListIndex(), 3);
    EXPECT_EQ(window->lstSize.ListIndex(), 4);
    EXPECT_EQ(window->lstAttr.ListIndex(), 2);
    EXPECT_EQ(window->chkNoChange.Value, 1);
    Choice().FontInits = {u"arial", u"6"};
    Open();
    EXPECT_EQ(window->lstName.ListIndex(), 1);
    EXPECT_EQ(window->lstSize.ListIndex(), 1);
}

TEST_F(QuickNameSizeTest, RowsThatAreNoMoreAreTheFirst) {
    t.app.Settings.FontDialogOptionA = 99;
    t.app.Settings.FontDialogOptionB = -3;
    Choice().FontStyleIndex = 77;
    Open();
    EXPECT_EQ(window->lstName.ListIndex(), 0);
    EXPECT_EQ(window->lstSize.ListIndex(), 0);
    EXPECT_EQ(window->lstAttr.ListIndex(), 5);
}

TEST_F(QuickNameSizeTest, TheOffsetIsChosenFromTheList) {
    EXPECT_EQ(Open().cboSubSuper.Chosen(), u"72");
    window->cboSubSuper.Select(8);
    EXPECT_EQ(t.app.Settings.MarkupOption, 120);
    window->cboSubSuper.Select(0);
    EXPECT_EQ(t.app.Settings.MarkupOption, 0);
    t.app.Settings.MarkupOption = 61;
    EXPECT_EQ(Open().cboSubSuper.Chosen(), u"");
    EXPECT_EQ(t.app.Settings.MarkupOption, 61);
}

TEST_F(QuickNameSizeTest, ZeroPutsTheCharactersBackOnTheLine) {
    control.SetBaseLine(72);
    Open().cmdZeroBaseline.Press();
    EXPECT_EQ(control.BaseLine(), 0);
}

// Kept for compatibility: double-line-is-single.
TEST_F(QuickNameSizeTest, BothLineButtonsDrawTheSameLine) {
    Open();
    for (CommandButton* button : {&window->cmdDrawLine, &window->cmdDrawDoubleLine}) {
        window->cmdNoLine.Press();
        EXPECT_EQ(control.FrameStyle(), 2048);
        EXPECT_EQ(control.FrameDistance(), 100);
        EXPECT_EQ(control.FrameLineWidth(), 0);
        button->Press();
        EXPECT_EQ(control.FrameStyle(), 40);
        EXPECT_EQ(control.FrameDistance(), 140);
        EXPECT_EQ(control.FrameLineWidth(), 120);
    }
}

TEST_F(QuickNameSizeTest, WithoutATextTheButtonsForLinesAreDisabled) {
    for (const bool isOpen : {true, false}) {
        t.app.Exchange<TextWindowState>().TextWindowOpen = isOpen ? 1 : 0;
        Open();
        for (const CommandButton* button :
             {&window->cmdZeroBaseline, &window->cmdDrawLine, &window->cmdDrawDoubleLine, &window->cmdNoLine})
            EXPECT_EQ(button->Enabled, isOpen);
    }
    // The text can go while the window is open.
    window->cmdDrawLine.Enabled = true;
    window->cmdDrawLine.Press();
    window->cmdZeroBaseline.Enabled = true;
    window->cmdZeroBaseline.Press();
    EXPECT_FALSE(control.DataChanged());
}

TEST_F(QuickNameSizeTest, WithoutATextTheToolsOpenAndPutNothingIn) {
    t.app.SetPort<OpenText>(nullptr);
    Open();
    t.user.On<frmElements>([](frmElements& tool) {
        EXPECT_FALSE(tool.cmdAccept1.Enabled);
        tool.Close();
    });
    window->cmdShapes.Press();
    t.user.On<frmASCIIBox>([](frmASCIIBox& tool) {
        EXPECT_FALSE(tool.cmdInsert.Enabled);
        tool.Close();
    });
    window->cmdSymbols.Press();
    t.user.On<frmSymbolTables>([](frmSymbolTables& tool) { tool.Close(); });
    window->cmdAllSymbols.Press();
    EXPECT_FALSE(control.DataChanged());
}

TEST_F(QuickNameSizeTest, ItsButtonsOpenTheToolsOnTheText) {
    Open();
    control.SetSelStart(0);
    t.user.On<frmElements>([](frmElements& tool) {
        tool.cmdAccept2.Press();
        tool.Close();
    });
    window->cmdShapes.Press();
    t.user.On<frmASCIIBox>([](frmASCIIBox& tool) {
        tool.Grid1.DoubleClick(65);
        tool.Close();
    });
    window->cmdSymbols.Press();
    t.user.On<frmSymbolTables>([](frmSymbolTables& tool) {
        tool.ThisTextCtrl.SetAll(u"xyz");
        tool.ThisTextCtrl.SetSelection(1, 1);
        tool.OfficeMenu1.Choose("mnuInsertSymbol");
        tool.Close();
    });
    window->cmdAllSymbols.Press();
    EXPECT_EQ(control.All(), u"\u2013Ayone two");
}

class FakeFontDialog final : public SystemFontDialog {
public:
    explicit FakeFontDialog(App& app) { app.SetPort<SystemFontDialog>(this); }
    FontSpec asked;
    std::optional<FontSpec> answer;

    std::optional<FontSpec> Choose(const FontSpec& present) override {
        asked = present;
        return answer;
    }
};

TEST_F(QuickNameSizeTest, AFontOfTheSystemsDialogComesIntoTheLists) {
    Choice().FontInits = {u"Cambria", u"12"};
    Open().cmdAllFonts.Press();
    FakeFontDialog dialog(t.app);
    window->cmdAllFonts.Press();
    EXPECT_EQ(dialog.asked, (FontSpec{u"Cambria", 12}));
    EXPECT_EQ(window->lstName.ListIndex(), 2);
    dialog.answer = FontSpec{u"New Font", 19, true};
    window->cmdAllFonts.Press();
    window->cmdApply.Press();
    EXPECT_EQ(Choice().FontNameChosen, u"New Font");
    EXPECT_EQ(Choice().FontSizeChosen, 19);
    EXPECT_EQ(Choice().FontAttrs[FontAttr::Bold], 1);
}

TEST_F(QuickNameSizeTest, WhatTheSystemsDialogLeftAloneStaysOpen) {
    Choice().FontInits = {u"-----", u"10.5"};
    Choice().FontAttrs[FontAttr::Bold] = CheckBox::kMixed;
    FakeFontDialog dialog(t.app);
    Open();
    dialog.answer = FontSpec{u"", 11, false};
    window->cmdAllFonts.Press();
    EXPECT_EQ(dialog.asked, *dialog.answer);
    EXPECT_EQ(window->lstName.ListIndex(), 0);
    EXPECT_EQ(window->lstSize.ListIndex(), 0);
    EXPECT_EQ(window->chkBold.Value, CheckBox::kMixed);
}

TEST_F(QuickNameSizeTest, ASizeThatTheListDoesntHaveIsShownInTheSample) {
    Choice().FontInits = {u"Arial", u"10.5"};
    Open();
    EXPECT_EQ(window->lstSize.ListIndex(), 0);
    EXPECT_EQ(Sample().FontHalfPoints(), 21);
    Choice().FontInits = {u"Arial", u"80"};
    Open();
    EXPECT_EQ(Sample().FontSize(), 80);
    EXPECT_EQ(Sample().All(), u"AaBbCc DdEeFf GgHhIi");
}

TEST_F(QuickNameSizeTest, ABoxForWhatDiffersIsTickedByItsFirstPress) {
    Choice().FontAttrs[FontAttr::Italic] = CheckBox::kMixed;
    Open();
    EXPECT_EQ(window->chkItalic.Value, CheckBox::kMixed);
    EXPECT_EQ(Sample().FontItalic(), 0);
    window->chkItalic.Press();
    EXPECT_EQ(Sample().FontItalic(), 1);
    window->chkItalic.Press();
    EXPECT_EQ(window->chkItalic.Value, 0);
}

TEST_F(QuickNameSizeTest, AChosenColourIsSeenInTheSample) {
    Open();
    t.user.On<frmSetForegroundColour>([](frmSetForegroundColour& colours) { colours.Close(); });
    window->cmdColours.Press();
    EXPECT_EQ(Choice().FontColourChanged, 0);
    t.user.On<frmSetForegroundColour>(
        [](frmSetForegroundColour& colours) { colours.lstColourOptions.DoubleClick(1); });
    window->cmdColours.Press();
    EXPECT_EQ(Choice().FontColourChanged, 1);
    EXPECT_EQ(Sample().ForeColor(), Colour{255});
    EXPECT_EQ(Sample().TextBkColor(), Colour{0xFFFFFF});
}

TEST_F(QuickNameSizeTest, KeepsItsPlace) {
    t.app.Settings.FontDialogLeft = 1000;
    t.app.Settings.FontDialogTop = 2000;
    ChooseFont([](frmQuickNameSize& dialog) {
        EXPECT_EQ(dialog.Left.Get(), Twips{1000});
        EXPECT_EQ(dialog.Top.Get(), Twips{2000});
        dialog.Left = Twips{1500};
        dialog.Top = Twips{2500};
        dialog.cmdCancel.Press();
    });
    EXPECT_EQ(t.app.Settings.FontDialogLeft, 1500);
    EXPECT_EQ(t.app.Settings.FontDialogTop, 2500);
}

} // namespace
} // namespace korvane
