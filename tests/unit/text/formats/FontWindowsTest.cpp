#include "text/formats/FontWindows.h"

#include "text/insert/frmASCIIBox.h"
#include "text/insert/frmElements.h"
#include "text/insert/frmSymbolTables.h"
#include "unit/text/formats/FormatsStage.h"

namespace korvane {
namespace {

constexpr int kNormalRow = 1;

class FontWindowsTest : public FormatsStage {};

TEST_F(FontWindowsTest, TheDialogOpensOnTheSelectionsFont) {
    control.SetFontBold(1);
    control.SetBaseLine(-50);
    ChooseFont([](frmQuickNameSize& dialog) {
        EXPECT_EQ(dialog.lstName.List(dialog.lstName.ListIndex()), u"Arial");
        EXPECT_EQ(dialog.lstSize.List(dialog.lstSize.ListIndex()), u"12");
        EXPECT_EQ(dialog.chkBold.Value, 1);
        EXPECT_EQ(dialog.chkItalic.Value, 0);
        EXPECT_EQ(dialog.chkSuperscript.Value, 0);
        EXPECT_EQ(dialog.chkSubscript.Value, 1);
        dialog.cmdCancel.Press();
    });
}

TEST_F(FontWindowsTest, ACancelChangesNothing) {
    EXPECT_FALSE(ChooseFont([](frmQuickNameSize& dialog) {
        dialog.lstName.Select(3);
        dialog.chkBold.Press();
        dialog.cmdCancel.Press();
    }));
    EXPECT_FALSE(control.DataChanged());
    EXPECT_EQ(control.FontName(), u"Arial");
}

TEST_F(FontWindowsTest, NameSizeAndAttributesGoToTheSelection) {
    EXPECT_TRUE(ChooseFont([](frmQuickNameSize& dialog) {
        dialog.lstName.Select(3);
        dialog.lstSize.Select(14);
        dialog.chkBold.Press();
        dialog.chkUnderline.Press();
        dialog.cmdApply.Press();
    }));
    EXPECT_EQ(control.FontName(), u"Courier New");
    EXPECT_EQ(control.FontSize(), 24);
    EXPECT_EQ(control.FontBold(), 1);
    EXPECT_EQ(control.FontUnderline(), 1);
    EXPECT_EQ(control.FontItalic(), 0);
    EXPECT_EQ(Choice().FontAttrs, (std::array<std::int16_t, FontAttr::Count>{}));
    EXPECT_TRUE(control.Undo());
    EXPECT_EQ(control.FontName(), u"Arial");
    EXPECT_EQ(control.FontBold(), 0);
}

TEST_F(FontWindowsTest, EachAttributeIsReadAndApplied) {
    struct Row {
        CheckBox frmQuickNameSize::*tick;
        int (TextControl::*read)() const;
        void (TextControl::*set)(int);
    };
    static constexpr Row kRows[] = {
        {&frmQuickNameSize::chkBold, &TextControl::FontBold, &TextControl::SetFontBold},
        {&frmQuickNameSize::chkItalic, &TextControl::FontItalic, &TextControl::SetFontItalic},
        {&frmQuickNameSize::chkUnderline, &TextControl::FontUnderline, &TextControl::SetFontUnderline},
        {&frmQuickNameSize::chkStrikethru, &TextControl::FontStrikethru, &TextControl::SetFontStrikethru},
    };
    for (const Row& row : kRows) {
        (control.*row.set)(1);
        ChooseFont([&row](frmQuickNameSize& dialog) {
            for (const Row& other : kRows)
                EXPECT_EQ((dialog.*other.tick).Value, &other == &row ? 1 : 0);
            (dialog.*row.tick).Press();
            dialog.cmdApply.Press();
        });
        EXPECT_EQ((control.*row.read)(), 0);
        ChooseFont([&row](frmQuickNameSize& dialog) {
            EXPECT_EQ((dialog.*row.tick).Value, 0);
            (dialog.*row.tick).Press();
            dialog.cmdApply.Press();
        });
        EXPECT_EQ((control.*row.read)(), 1);
        (control.*row.set)(0);
    }
}

TEST_F(FontWindowsTest, WhatDiffersWithinTheSelectionStaysAsItIs) {
    control.SetFontBold(1);
    control.SetFontStrikethru(1);
    control.SetFontName(u"Cambria");
    control.SetFontHalfPoints(21);
    control.SetBaseLine(72);
    control.SetSelection(0, -1);
    const auto before = control.SelTextRtf();
    ChooseFont([](frmQuickNameSize& dialog) {
        EXPECT_EQ(dialog.lstName.ListIndex(), 0);
        EXPECT_EQ(dialog.lstSize.ListIndex(), 0);
        EXPECT_EQ(dialog.chkBold.Value, CheckBox::kMixed);
        EXPECT_EQ(dialog.chkStrikethru.Value, CheckBox::kMixed);
        EXPECT_EQ(dialog.chkItalic.Value, 0);
        EXPECT_EQ(dialog.chkSuperscript.Value, 0);
        dialog.cmdApply.Press();
    });
    EXPECT_EQ(control.SelTextRtf(), before);
    ChooseFont([](frmQuickNameSize& dialog) {
        dialog.chkBold.Press();
        dialog.chkItalic.Press();
        dialog.cmdApply.Press();
    });
    EXPECT_EQ(control.FontBold(), 1);
    EXPECT_EQ(control.FontItalic(), 1);
    EXPECT_EQ(control.FontStrikethru(), TextControl::kMixed);
    EXPECT_TRUE(control.FontNameDiffers());
}

TEST_F(FontWindowsTest, ASizeWithAHalfPointStays) {
    control.SetFontHalfPoints(21);
    ChooseFont([](frmQuickNameSize& dialog) {
        EXPECT_EQ(dialog.lstSize.ListIndex(), 0);
        dialog.cmdApply.Press();
    });
    EXPECT_EQ(control.FontHalfPoints(), 21);
}

TEST_F(FontWindowsTest, TheFlagsDontComeToTheNextCaller) {
    const auto untouched = std::array<std::int16_t, FontAttr::Count>{};
    control.SetFontItalic(1);
    ChooseFont([](frmQuickNameSize& dialog) { dialog.cmdCancel.Press(); });
    EXPECT_EQ(Choice().FontAttrs, untouched);
    OnDialog([](frmQuickNameSize& dialog) {
        EXPECT_EQ(dialog.chkItalic.Value, 0);
        dialog.chkItalic.Press();
        dialog.chkSubscript.Press();
        dialog.cmdApply.Press();
    });
    EXPECT_TRUE(windows.Choose(FontSpec{u"Cambria", 11, true}));
    EXPECT_EQ(Choice().FontAttrs, untouched);
    EXPECT_EQ(Choice().FontBaseStyle, 2);
    OnDialog([](frmQuickNameSize& dialog) {
        for (const CheckBox* box : {&dialog.chkBold, &dialog.chkItalic, &dialog.chkSubscript})
            EXPECT_EQ(box->Value, 0);
        dialog.cmdCancel.Press();
    });
    EXPECT_EQ(windows.Choose(FontSpec{u"Cambria", 11}), std::nullopt);
    EXPECT_EQ(Choice().FontAttrs, untouched);
}

TEST_F(FontWindowsTest, TheFirstRowsChangeNeitherFontNorSize) {
    ChooseFont([](frmQuickNameSize& dialog) {
        dialog.lstName.Select(0);
        dialog.lstSize.Select(0);
        dialog.cmdApply.Press();
    });
    EXPECT_EQ(control.FontName(), u"Arial");
    EXPECT_EQ(control.FontSize(), 12);
}

TEST_F(FontWindowsTest, NoChangeLeavesTheAttributesButNotTheStyle) {
    control.SetFontItalic(1);
    ChooseFont([](frmQuickNameSize& dialog) {
        dialog.chkItalic.Press();
        dialog.chkBold.Press();
        dialog.chkSuperscript.Press();
        dialog.chkNoChange.Press();
        dialog.lstAttr.Select(2);
        dialog.cmdApply.Press();
    });
    EXPECT_EQ(control.All(), u"one TWO");
    control.SetSelection(4, 3);
    EXPECT_EQ(control.FontItalic(), 1);
    EXPECT_EQ(control.FontBold(), 0);
    EXPECT_EQ(control.BaseLine(), 0);
}

TEST_F(FontWindowsTest, NormalClearsTheFormattingAndNothingElseIsDone) {
    control.SetFontItalic(1);
    control.SetBaseLine(50);
    ChooseFont([](frmQuickNameSize& dialog) {
        dialog.lstName.Select(3);
        dialog.chkBold.Press();
        dialog.lstAttr.Select(kNormalRow);
        dialog.cmdApply.Press();
    });
    EXPECT_EQ(control.FontName(), u"Courier New");
    EXPECT_EQ(control.FontBold(), 0);
    EXPECT_EQ(control.FontItalic(), 0);
    EXPECT_EQ(control.BaseLine(), 0);
}

TEST_F(FontWindowsTest, NormalLeavesTheColoursThatWereChosen) {
    control.SetFontBold(1);
    control.SetCharAttributes(TextControl::kSmallCaps);
    ChooseFont([this](frmQuickNameSize& dialog) {
        t.user.On<frmSetForegroundColour>(
            [](frmSetForegroundColour& colours) { colours.lstColourOptions.DoubleClick(7); });
        dialog.cmdColours.Press();
        dialog.lstAttr.Select(kNormalRow);
        dialog.cmdApply.Press();
    });
    EXPECT_EQ(control.FontBold(), 0);
    EXPECT_EQ(control.ForeColor(), Colour{0});
    EXPECT_EQ(control.TextBkColor(), Colour{0x80FFFF});
}

TEST_F(FontWindowsTest, ColoursOfACancelledDialogAreNotTaken) {
    control.SetForeColor(Colour{255});
    ChooseFont([this](frmQuickNameSize& dialog) {
        t.user.On<frmSetForegroundColour>(
            [](frmSetForegroundColour& colours) { colours.lstColourOptions.DoubleClick(7); });
        dialog.cmdColours.Press();
        dialog.cmdCancel.Press();
    });
    EXPECT_EQ(control.ForeColor(), Colour{255});
    ChooseFont([](frmQuickNameSize& dialog) { dialog.cmdApply.Press(); });
    EXPECT_EQ(control.ForeColor(), Colour{255});
}

TEST_F(FontWindowsTest, RaisedAndLoweredCharactersTakeTheOffset) {
    ChooseFont([](frmQuickNameSize& dialog) {
        dialog.chkSuperscript.Press();
        dialog.cmdApply.Press();
    });
    EXPECT_EQ(control.BaseLine(), 72);
    ChooseFont([](frmQuickNameSize& dialog) {
        dialog.chkSubscript.Press();
        dialog.cmdApply.Press();
    });
    EXPECT_EQ(control.BaseLine(), -72);
}

// Kept for compatibility: offset-goes-by-button-alone.
TEST_F(FontWindowsTest, UntickedCharactersStayRaised) {
    control.SetBaseLine(72);
    ChooseFont([](frmQuickNameSize& dialog) {
        dialog.chkSuperscript.Press();
        EXPECT_EQ(dialog.chkSuperscript.Value, 0);
        dialog.cmdApply.Press();
    });
    EXPECT_EQ(control.BaseLine(), 72);
}

TEST_F(FontWindowsTest, TheStylesRewriteTheSelection) {
    const std::pair<int, Text> kRows[] = {
        {2, u"THE CAT, AND THE DOG"}, {3, u"the cat, and the dog"}, {4, u"The Cat, and the Dog"}};
    for (const auto& [row, text] : kRows) {
        control.SetAll(u" the cat, and the dog");
        control.SetSelection(1, -1);
        ChooseFont([row = row](frmQuickNameSize& dialog) {
            dialog.lstAttr.Select(row);
            dialog.cmdApply.Press();
        });
        EXPECT_EQ(control.All(), u" " + text);
    }
}

TEST_F(FontWindowsTest, AtTheBeginningOfTheTextNothingIsBefore) {
    control.SetAll(u"the cat");
    control.SetSelection(0, -1);
    ChooseFont([](frmQuickNameSize& dialog) {
        dialog.lstAttr.Select(4);
        dialog.cmdApply.Press();
    });
    EXPECT_EQ(control.All(), u"the Cat");
}

TEST_F(FontWindowsTest, SmallCapsAreAnAttribute) {
    ChooseFont([](frmQuickNameSize& dialog) {
        dialog.lstAttr.Select(5);
        dialog.cmdApply.Press();
    });
    EXPECT_EQ(control.CharAttributes(), TextControl::kSmallCaps);
    EXPECT_EQ(control.All(), u"one two");
}

TEST_F(FontWindowsTest, AStyleWithoutASelectionKeepsTheFontForTyping) {
    control.SetSelStart(3);
    ChooseFont([](frmQuickNameSize& dialog) {
        dialog.chkBold.Press();
        dialog.lstAttr.Select(2);
        dialog.cmdApply.Press();
    });
    EXPECT_EQ(control.All(), u"one two");
    control.Type(u"x");
    control.SetSelection(3, 1);
    EXPECT_EQ(control.FontBold(), 1);
}

TEST_F(FontWindowsTest, ColoursStayUnlessTheyWereChosen) {
    control.SetForeColor(Colour{255});
    t.app.Settings.ColourChoiceA = 0xFF0000;
    ChooseFont([](frmQuickNameSize& dialog) { dialog.cmdApply.Press(); });
    EXPECT_EQ(control.ForeColor(), Colour{255});
    ChooseFont([this](frmQuickNameSize& dialog) {
        t.user.On<frmSetForegroundColour>(
            [](frmSetForegroundColour& colours) { colours.lstColourOptions.DoubleClick(7); });
        dialog.cmdColours.Press();
        dialog.cmdApply.Press();
    });
    EXPECT_EQ(control.ForeColor(), Colour{0});
    EXPECT_EQ(control.TextBkColor(), Colour{0x80FFFF});
    ChooseFont([](frmQuickNameSize& dialog) { dialog.cmdApply.Press(); });
    EXPECT_EQ(control.TextBkColor(), Colour{0x80FFFF});
}

TEST_F(FontWindowsTest, ThePickerFillsWhatTheUserLeavesOpen) {
    OnDialog([](frmQuickNameSize& dialog) {
        EXPECT_EQ(dialog.lstName.ListIndex(), 2);
        EXPECT_EQ(dialog.chkBold.Value, 1);
        dialog.lstName.Select(0);
        dialog.lstSize.Select(0);
        dialog.chkBold.Press();
        dialog.cmdApply.Press();
    });
    EXPECT_EQ(windows.Choose(FontSpec{u"Cambria", 11, true}), (FontSpec{u"Cambria", 11, false}));
    OnDialog([](frmQuickNameSize& dialog) { dialog.cmdCancel.Press(); });
    EXPECT_EQ(windows.Choose(FontSpec{u"Cambria", 11}), std::nullopt);
    OnDialog([](frmQuickNameSize& dialog) {
        dialog.chkBold.Press();
        dialog.chkNoChange.Press();
        dialog.cmdApply.Press();
    });
    EXPECT_EQ(windows.Choose(FontSpec{u"Cambria", 11}), (FontSpec{u"Cambria", 11}));
}

TEST_F(FontWindowsTest, ACallerWithoutAFontChangesNoneUnlessAsked) {
    t.app.Settings.FontDialogOptionA = 2;
    t.app.Settings.FontDialogOptionB = 5;
    OnDialog([](frmQuickNameSize& dialog) { dialog.cmdApply.Press(); });
    EXPECT_EQ(windows.Choose(FontSpec{}), FontSpec{});
}

TEST_F(FontWindowsTest, AFontThatIsGoneStays) {
    OnDialog([](frmQuickNameSize& dialog) {
        EXPECT_EQ(dialog.lstName.ListIndex(), 0);
        EXPECT_EQ(dialog.lstSize.ListIndex(), 0);
        dialog.cmdApply.Press();
    });
    EXPECT_EQ(windows.Choose(FontSpec{u"A Font of Nobody", 19}), (FontSpec{u"A Font of Nobody", 19}));
}

TEST_F(FontWindowsTest, ThePairOfColoursIsGivenOut) {
    t.user.On<frmSetForegroundColour>([](frmSetForegroundColour& colours) {
        EXPECT_EQ(colours.lblForeground.BackColor.Get(), Colour{1});
        EXPECT_EQ(colours.lblBackground.BackColor.Get(), Colour{2});
        colours.lstColourOptions.Select(1);
        colours.cmdApply.Press();
    });
    EXPECT_EQ(windows.Choose(ColourPair{{1}, {2}}), (ColourPair{{255}, {0xFFFFFF}}));
    t.user.On<frmSetForegroundColour>([](frmSetForegroundColour& colours) { colours.cmdCancel.Press(); });
    EXPECT_EQ(windows.Choose(ColourPair{{1}, {2}}), std::nullopt);
    // The colours that were chosen last are still those of the first time.
    EXPECT_EQ(t.app.Settings.ColourChoiceA, 255);
    EXPECT_EQ(t.app.Settings.ColourChoiceB, 0xFFFFFF);
}

TEST_F(FontWindowsTest, TheToolsWriteIntoTheText) {
    control.SetSelStart(7);
    t.user.On<frmElements>([](frmElements& tool) {
        tool.cmdAccept2.Press();
        tool.Close();
    });
    windows.ShowElements(control);
    t.user.On<frmASCIIBox>([](frmASCIIBox& tool) {
        tool.Grid1.DoubleClick(65);
        tool.Close();
    });
    windows.ShowCharacters(control);
    t.user.On<frmSymbolTables>([](frmSymbolTables& tool) { tool.Close(); });
    windows.ShowUnicode(control);
    EXPECT_EQ(control.All(), u"one two\u2013A");
}

} // namespace
} // namespace korvane
