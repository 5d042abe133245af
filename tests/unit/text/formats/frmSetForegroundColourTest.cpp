#include "text/formats/frmSetForegroundColour.h"

#include "context/ports/ColourPicker.h"
#include "support/DesignerFile.h"
#include "support/ScriptedPickers.h"
#include "unit/text/formats/FormatsStage.h"

#include <memory>
#include <tuple>

namespace korvane {
namespace {

class SetForegroundColourTest : public FormatsStage {
protected:
    frmSetForegroundColour& Open() {
        window = std::make_unique<frmSetForegroundColour>(t.app);
        window->EnsureLoaded();
        return *window;
    }
    std::pair<int, int> Taken() { return {t.app.Settings.ColourChoiceA, t.app.Settings.ColourChoiceB}; }

    std::unique_ptr<frmSetForegroundColour> window;
};

TEST_F(SetForegroundColourTest, EachRowIsAPairOfColours) {
    const std::tuple<Text, int, int> kRows[] = {
        {u" Blue", 0xFF0000, 0xFFFFFF},  {u" Red", 255, 0xFFFFFF},       {u" Green", 49152, 0xFFFFFF},
        {u" Brown", 0x404080, 0xFFFFFF}, {u" Grey", 0xC0C0C0, 0xFFFFFF}, {u" Faded", 0xE0E0E0, 0xFFFFFF},
        {u" Black", 0, 0xFFFFFF},        {u" Yellow", 0, 0x80FFFF},      {u" Burgundy", 0xFFFFFF, 16576},
        {u" Blue", 0xFFFFFF, 0xFF8080},  {u" Green", 0xFFFFFF, 49152},   {u" Grey", 0, 0xC0C0C0},
        {u" Orange", 0, 0x80C0FF}};
    int row = 0;
    for (const auto& [text, fore, back] : kRows) {
        Open();
        EXPECT_EQ(window->lstColourOptions.List(row), text);
        EXPECT_EQ(window->lstColourOptions.SampleAt(row)->text, Colour{fore});
        EXPECT_EQ(window->lstColourOptions.SampleAt(row)->back, Colour{back});
        window->lstColourOptions.Select(row);
        window->cmdApply.Press();
        EXPECT_EQ(Taken(), std::pair(fore, back)) << row;
        EXPECT_EQ(t.app.DialogResult, 1);
        ++row;
    }
    EXPECT_EQ(Open().lstColourOptions.ListCount(), row);
}

TEST_F(SetForegroundColourTest, HasItsCaptions) {
    static constexpr std::pair<std::string_view, TextView> kCaptions[] = {
        {"cmdApply", u"&Apply"},
        {"cmdMoreColours", u"&Foreground"},
        {"cmdBackground", u"Backgroun&d"},
        {"cmdApplyCustomValues", u"Apply custom &values"},
        {"cmdCancel", u"&Close"},
        {"chkPrintViewBackColour", u"Dark background for page view"},
        {"chkAltY_Strikethru", u"Use strikethrough"},
    };
    const frmSetForegroundColour f(t.app);
    EXPECT_EQ(f.Caption.Get(), u"Colours for selected text");
    const auto caption = [&f](std::string_view name) {
        const Control* control = f.Find(name);
        if (const auto* box = dynamic_cast<const CheckBox*>(control)) return box->Caption.Get();
        return dynamic_cast<const CommandButton&>(*control).Caption.Get();
    };
    for (const auto& [name, text] : kCaptions)
        EXPECT_EQ(caption(name), text) << name;
    ExpectLook(f, "text/formats",
               {"Determine colour for Alt-G", "this colour marking, &lt;Alt-Y&gt;",
                "N.B.: Alt-Z clears highlighting from text", "Symbol(s) put before + after"});
}

TEST_F(SetForegroundColourTest, ADoubleClickAppliesARow) {
    Open().lstColourOptions.DoubleClick(12);
    EXPECT_EQ(Taken(), std::pair(0, 0x80C0FF));
}

TEST_F(SetForegroundColourTest, CloseTakesNothing) {
    t.app.Settings.ColourChoiceA = 7;
    t.app.DialogResult = 1;
    Open().lstColourOptions.Select(3);
    window->cmdCancel.Press();
    EXPECT_EQ(t.app.Settings.ColourChoiceA, 7);
    EXPECT_EQ(t.app.DialogResult, 0);
}

TEST_F(SetForegroundColourTest, OtherColoursAreShownAndTakenAsTheyAre) {
    t.app.Settings.ColourChoiceA = 7;
    t.app.Settings.ColourChoiceB = 8;
    Open();
    t.user.ChooseColour(Colour{0x112233});
    window->cmdMoreColours.Press();
    t.user.ChooseColour(std::nullopt);
    window->cmdBackground.Press();
    EXPECT_EQ(t.user.ColourRequests()[0].start, Colour{7});
    EXPECT_EQ(t.user.ColourRequests()[1].start, Colour{8});
    EXPECT_EQ(window->lblForeground.BackColor.Get(), Colour{0x112233});
    EXPECT_EQ(Taken(), std::pair(7, 8));
    window->cmdApplyCustomValues.Press();
    EXPECT_EQ(Taken(), std::pair(0x112233, 8));
    EXPECT_EQ(t.app.DialogResult, 1);
    Open();
    t.user.ChooseColour(Colour{0x445566});
    window->cmdBackground.Press();
    EXPECT_EQ(window->lblBackground.BackColor.Get(), Colour{0x445566});
    window->cmdApplyCustomValues.Press();
    EXPECT_EQ(Taken(), std::pair(0x112233, 0x445566));
}

// Kept for compatibility: highlight-colours-unused.
TEST_F(SetForegroundColourTest, TheColoursForHighlightingAreOnlyKept) {
    Settings& settings = t.app.Settings;
    settings.ForeColour2 = 5;
    settings.ForeColourText = u"##";
    Open();
    EXPECT_EQ(window->cmdAltG_Back.BackColor.Get(), Colour{5});
    EXPECT_EQ(window->txtYellowMarkerSymbol.Text.Get(), u"##");
    int colour = 10;
    for (CommandButton* button :
         {&window->cmdAltG_Fore, &window->cmdAltG_Back, &window->cmdAltY_Fore, &window->cmdAltY_Back}) {
        t.user.ChooseColour(Colour{++colour});
        button->Press();
        EXPECT_EQ(button->BackColor.Get(), Colour{colour});
    }
    t.user.ChooseColour(std::nullopt);
    window->cmdAltG_Fore.Press();
    window->txtYellowMarkerSymbol.Type(u"**");
    window->chkAltY_Strikethru.Press();
    window->Close();
    EXPECT_EQ(settings.ForeColour1, 11);
    EXPECT_EQ(settings.ForeColour2, 12);
    EXPECT_EQ(settings.ForeColour3, 13);
    EXPECT_EQ(settings.ForeColour4, 14);
    EXPECT_EQ(settings.ForeColourText, u"**");
    EXPECT_EQ(Open().chkAltY_Strikethru.Value, 1);
    EXPECT_FALSE(control.DataChanged());
}

TEST_F(SetForegroundColourTest, TheGroundOfPagesIsASetting) {
    Open().chkPrintViewBackColour.Press();
    window->Close();
    EXPECT_EQ(t.app.Exchange<TextWindowState>().DarkPageBackground, 1);
    EXPECT_EQ(Open().chkPrintViewBackColour.Value, 1);
}

TEST_F(SetForegroundColourTest, WithoutAColourDialogNothingIsMixed) {
    t.app.SetPort<ColourPicker>(nullptr);
    Open().cmdMoreColours.Press();
    window->cmdAltG_Fore.Press();
    EXPECT_EQ(t.app.Settings.ForeColour1, 0);
}

TEST_F(SetForegroundColourTest, KeepsItsPlace) {
    t.app.Settings.ForeColourLeft = 1000;
    t.app.Settings.ForeColourTop = 2000;
    t.user.On<frmSetForegroundColour>([](frmSetForegroundColour& colours) {
        EXPECT_EQ(colours.Left.Get(), Twips{1000});
        EXPECT_EQ(colours.Top.Get(), Twips{2000});
        colours.Left = Twips{1700};
        colours.Top = Twips{1800};
        colours.Close();
    });
    EXPECT_EQ(windows.Choose(ColourPair{}), std::nullopt);
    EXPECT_EQ(t.app.Settings.ForeColourLeft, 1700);
    EXPECT_EQ(t.app.Settings.ForeColourTop, 1800);
}

} // namespace
} // namespace korvane
