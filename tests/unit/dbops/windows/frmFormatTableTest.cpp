#include "dbops/windows/frmFormatTable.h"

#include "context/ports/ColourPicker.h"
#include "support/Captions.h"
#include "support/ScriptedPickers.h"
#include "support/TestApp.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

class FormatTable : public testing::Test {
protected:
    TestApp t;
    Settings& settings = t.app.Settings;
    frmFormatTable window{t.app};
};

TEST_F(FormatTable, ComesUpWithTheSettings) {
    settings.TableOptionA = 1;
    settings.TableOptionC = 1;
    settings.TableValueA = 0x112233;
    settings.TableValueB = 0x445566;
    settings.TableValueC = 0x778899;
    settings.TableOptionD = 120;
    settings.TableValueD = 15;
    settings.TableOptionE = 70;
    window.EnsureLoaded();
    EXPECT_EQ(window.chkColumnToFirstRow.Value, 1);
    EXPECT_EQ(window.chkTDB_FirstLineDark.Value, 0);
    EXPECT_EQ(window.chkTDB_AlternateLinesGrey.Value, 1);
    EXPECT_EQ(window.lblFirstLineBackColour.BackColor.Get(), Colour{0x112233});
    EXPECT_EQ(window.lblFirstLineForeColour.BackColor.Get(), Colour{0x445566});
    EXPECT_EQ(window.lblAlternateLinesColour.BackColor.Get(), Colour{0x778899});
    EXPECT_EQ(window.TableLeftMarginText.Text.Get(), u"120");
    EXPECT_EQ(window.cboCellBorderWidth.Chosen(), u"15");
    EXPECT_EQ(window.cboCellBorderWidth.ListCount(), 128);
    EXPECT_EQ(window.cboCellTextGap.Chosen(), u"70");
    EXPECT_EQ(window.cboCellTextGap.ListCount(), 160);
}

TEST_F(FormatTable, HasItsCaptions) {
    EXPECT_EQ(window.Caption.Get(), u"Format parameters");
    EXPECT_EQ(
        CaptionsOf(window),
        (std::vector<Text>{u"&Use column titles for first row of table",
                           u"&Display first line in a different background colour", u"Get &back colour",
                           u"Get &fore colour", u"D&isplay alternate lines with different background colour",
                           u"&Get colour", u"&Proceed", u"&Cancel"}));
}

TEST_F(FormatTable, TheMarginIsTheNumberAtTheBeginningOfItsText) {
    const std::pair<TextView, std::int16_t> kTexts[] = {{u"300 twips", 300}, {u"none", 0}, {u"40000", 0}};
    for (const auto& [text, margin] : kTexts) {
        window.EnsureLoaded();
        window.TableLeftMarginText.Type(Text(text));
        window.cmdProceed.Press();
        EXPECT_EQ(settings.TableOptionD, margin);
    }
}

TEST_F(FormatTable, ProceedKeepsTheChoices) {
    window.EnsureLoaded();
    window.chkColumnToFirstRow.Press();
    window.chkTDB_FirstLineDark.Press();
    window.TableLeftMarginText.Type(u"200");
    window.cboCellBorderWidth.Select(9);
    window.cboCellTextGap.Select(0);
    window.cmdProceed.Press();
    EXPECT_EQ(t.app.DialogResult, 1);
    EXPECT_EQ(settings.TableOptionA, 1);
    EXPECT_EQ(settings.TableOptionB, 1);
    EXPECT_EQ(settings.TableOptionC, 0);
    EXPECT_EQ(settings.TableOptionD, 200);
    EXPECT_EQ(settings.TableValueD, 10);
    EXPECT_EQ(settings.TableOptionE, 1);
}

TEST_F(FormatTable, NumbersThatAreNotChosenStay) {
    settings.TableValueD = 500;
    window.EnsureLoaded();
    window.cmdProceed.Press();
    EXPECT_EQ(settings.TableValueD, 500);
    EXPECT_EQ(settings.TableOptionE, 0);
}

TEST_F(FormatTable, ACancelKeepsNothingButColours) {
    window.EnsureLoaded();
    window.chkColumnToFirstRow.Press();
    t.user.ChooseColour(Colour{0x010203});
    window.cmdGetFirstLineBackColour.Press();
    t.user.ChooseColour(Colour{0x040506});
    window.cmdGetFirstLineForeColour.Press();
    t.user.ChooseColour(std::nullopt);
    window.cmdGetAlternateLinesColour.Press();
    EXPECT_EQ(window.lblFirstLineBackColour.BackColor.Get(), Colour{0x010203});
    EXPECT_EQ(t.user.ColourRequests()[0].extent, ColourPicker::Extent::Simple);
    window.cmdCancel.Press();
    EXPECT_EQ(t.app.DialogResult, 0);
    EXPECT_EQ(settings.TableOptionA, 0);
    EXPECT_EQ(settings.TableValueA, 0x010203);
    EXPECT_EQ(settings.TableValueB, 0x040506);
    EXPECT_EQ(settings.TableValueC, 0);
}

} // namespace
} // namespace korvane
