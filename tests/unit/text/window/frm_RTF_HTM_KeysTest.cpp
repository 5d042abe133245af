#include "dialogs/frmMyInputBox.h"
#include "text/markup/frmHTMLCodes.h"
#include "unit/text/FakeTextPorts.h"
#include "unit/text/window/TextWindowStage.h"

#include <set>
#include <tuple>

namespace korvane {
namespace {

constexpr int kCtrlShift = Mask::Ctrl | Mask::Shift;
constexpr int kCtrlAlt = Mask::Ctrl | Mask::Alt;

class TextWindowKeys : public TextWindowStage {
protected:
    TextWindowKeys() { Open(); }
    ~TextWindowKeys() override { CloseUnsaved(); }
};

TEST_F(TextWindowKeys, EscGoesToTheTextAndPasses) {
    window->cmdSave.SetFocus();
    EXPECT_FALSE(Press(Key::Escape));
    EXPECT_EQ(window->Focused(), &Control());
}

TEST_F(TextWindowKeys, ATabIsWrittenForASelectionOfLessThanTwo) {
    SelectAll(u"x");
    EXPECT_TRUE(Press(Key::Tab));
    EXPECT_EQ(Control().All(), u"\t");
    EXPECT_TRUE(Press(Key::Tab, Mask::Shift));
    EXPECT_EQ(Control().All(), u"\t\t");
}

TEST_F(TextWindowKeys, ATabIndentsALongerSelection) {
    t.app.Settings.TabUnitTwips = 700;
    SelectAll(u"xy");
    EXPECT_TRUE(Press(Key::Tab));
    EXPECT_EQ(Control().IndentL(), 700);
    EXPECT_TRUE(Press(Key::Tab, Mask::Shift));
    EXPECT_EQ(Control().IndentL(), 0);
    EXPECT_EQ(Control().All(), u"xy");
}

// Kept for compatibility: indent-always-alters.
TEST_F(TextWindowKeys, AnIndentAltersAlsoWhenItDidNothing) {
    SelectAll(u"xy");
    window->TextAltered = 0;
    EXPECT_TRUE(Press(Key::Tab, Mask::Ctrl));
    EXPECT_EQ(Control().IndentL(), 0);
    EXPECT_EQ(window->TextAltered, 1);
}

TEST_F(TextWindowKeys, TheZoomKeysGoOneStepAndAreKept) {
    EXPECT_TRUE(Press(Key::NumPlus, Mask::Ctrl));
    EXPECT_EQ(Control().ZoomFactor, 105);
    EXPECT_EQ(t.app.Settings.RtfZoom, 105);
    EXPECT_TRUE(Press(Key::NumMinus, Mask::Ctrl));
    EXPECT_EQ(Control().ZoomFactor, 100);
    EXPECT_FALSE(Press(Key::NumPlus, kCtrlShift));
}

TEST_F(TextWindowKeys, TwoKeysSave) {
    for (const auto& [code, name] : {std::pair{int{'S'}, u"C:\\a.txt"}, {Key::F(12), u"C:\\b.txt"}}) {
        window->ThisFileName = name;
        EXPECT_TRUE(Press(code, Mask::Ctrl));
        EXPECT_TRUE(t.files.FileExists(name));
    }
    window->ThisFileName = u"C:\\c.txt";
    EXPECT_FALSE(Press('S', kCtrlShift));
    EXPECT_FALSE(t.files.FileExists(u"C:\\c.txt"));
}

TEST_F(TextWindowKeys, TheReturnKeysWriteTheirStrings) {
    t.app.Settings.CtrlShiftReturnString = u"one";
    t.app.Settings.AltReturnString = u"two";
    EXPECT_TRUE(Press(Key::Return, kCtrlShift));
    EXPECT_TRUE(Press(Key::Return, Mask::Alt));
    EXPECT_EQ(Control().All(), u"one\r\ntwo\r\n");
}

TEST_F(TextWindowKeys, AltSSwapsTwoCharacters) {
    Control().SetAll(u"abc");
    Control().SetSelStart(1);
    EXPECT_TRUE(Press('S', Mask::Alt));
    EXPECT_EQ(Control().All(), u"bac");
}

TEST_F(TextWindowKeys, AltF3ShowsPagesAndBack) {
    EXPECT_TRUE(Press(Key::F(3), Mask::Alt));
    EXPECT_EQ(Control().ViewMode, 2);
    EXPECT_TRUE(Press(Key::F(3), Mask::Alt));
    EXPECT_EQ(Control().ViewMode, 0);
}

TEST_F(TextWindowKeys, TheKeysOfTheControlsDialogsAreTaken) {
    const std::tuple<int, int, TextDialog> kKeys[] = {
        {'7', Mask::Ctrl, TextDialog::Page},      {'T', Mask::Ctrl, TextDialog::InsertTable},
        {'0', Mask::Ctrl, TextDialog::Tabs},      {'2', Mask::Ctrl, TextDialog::Paragraph},
        {'4', Mask::Ctrl, TextDialog::Paragraph},
    };
    for (const auto& [code, mask, dialog] : kKeys) {
        EXPECT_TRUE(Press(code, mask));
        EXPECT_EQ(dialogs.shown.back(), dialog);
    }
    EXPECT_EQ(dialogs.shown.size(), 5U);
}

TEST_F(TextWindowKeys, Ctrl8NeedsATableAtTheCursor) {
    t.user.Answer({u"Cursor not within a table or more than one cell is selected.", MessageIcon::Exclamation},
                  Answer::Ok);
    EXPECT_TRUE(Press('8', Mask::Ctrl));
    EXPECT_TRUE(dialogs.shown.empty());
    const int table = Control().InsertTable(2, 2);
    Control().SetSelStart(Control().CellStart(table, 1, 1) - 1);
    EXPECT_TRUE(Press('8', Mask::Ctrl));
    EXPECT_EQ(dialogs.shown, (std::vector<TextDialog>{TextDialog::Table}));
}

TEST_F(TextWindowKeys, AKeyWithoutACommandIsTakenAllTheSame) {
    EXPECT_TRUE(Press('Y', kCtrlAlt));
    EXPECT_FALSE(window->Altered());
}

TEST_F(TextWindowKeys, Ctrl1ChoosesTheFont) {
    EXPECT_TRUE(Press('1', Mask::Ctrl));
    FakeTextTools tools(t.app);
    EXPECT_TRUE(Press('1', Mask::Ctrl));
    EXPECT_EQ(tools.fonts, 1);
}

TEST_F(TextWindowKeys, CutAndPasteAlterAndPass) {
    for (const int code : {'X', 'V'}) {
        window->TextAltered = 0;
        EXPECT_FALSE(Press(code, Mask::Ctrl));
        EXPECT_EQ(window->TextAltered, 1);
    }
}

TEST_F(TextWindowKeys, CtrlASelectsAll) {
    Control().SetAll(u"abc");
    EXPECT_TRUE(Press('A', Mask::Ctrl));
    EXPECT_EQ(Control().SelText(), u"abc");
}

TEST_F(TextWindowKeys, TheAttributesAreToggledAndCleared) {
    SelectAll(u"abc");
    EXPECT_TRUE(Press('B', kCtrlShift));
    EXPECT_TRUE(Press('U', kCtrlShift));
    EXPECT_TRUE(Press('I', kCtrlShift));
    EXPECT_EQ(Control().FontBold() + Control().FontUnderline() + Control().FontItalic(), 3);
    EXPECT_TRUE(Press('B', kCtrlShift));
    EXPECT_EQ(Control().FontBold(), 0);
    EXPECT_TRUE(Press(Key::Home, kCtrlShift));
    EXPECT_EQ(Control().FontUnderline() + Control().FontItalic(), 0);
    EXPECT_TRUE(Press('Y', Mask::Alt));
    EXPECT_EQ(Control().TextBkColor(), Colour{65535});
}

TEST_F(TextWindowKeys, TheWindowGoesBesideTheMainWindow) {
    t.screen.SetWorkArea({Twips{0}, Twips{0}, Twips{30000}, Twips{12000}});
    main.window.Left = Twips{8000};
    window->Width = Twips{4000};
    EXPECT_TRUE(Press('L', kCtrlShift));
    EXPECT_EQ(window->Left.Get(), Twips{4000});
    EXPECT_EQ(window->Height.Get(), main.window.Height.Get());
    EXPECT_TRUE(Press('R', kCtrlShift));
    EXPECT_EQ(window->Left.Get(), Twips{18000});
    EXPECT_EQ(window->Width.Get(), Twips{4000});
    EXPECT_TRUE(Press('R', kCtrlAlt));
    EXPECT_EQ(window->Width.Get(), Twips{12000});
    EXPECT_TRUE(Press(Key::F(2), kCtrlShift));
    EXPECT_EQ(window->Width.Get(), Twips{9000});
    EXPECT_EQ(window->Left.Get(), Twips{8500});
}

TEST_F(TextWindowKeys, CtrlAltF5AsksForTheAddressOfTheMail) {
    t.app.Settings.WebmailUrl = u"https://old";
    t.app.Settings.CustomBrowserPath = u"C:\\browser.exe";
    t.files.AddFile(u"C:\\browser.exe");
    t.user.On<frmMyInputBox>([](frmMyInputBox& box) {
        EXPECT_EQ(box.txtBoxCaption.Caption.Get(), u"Enter URL for webmail interface");
        EXPECT_EQ(box.txtBoxText.Text.Get(), u"https://old");
        box.txtBoxText.Type(u"https://new");
        box.cmdOk.Press();
    });
    EXPECT_TRUE(Press(Key::F(5), kCtrlAlt));
    EXPECT_EQ(t.app.Settings.WebmailUrl, u"https://new");
    ASSERT_EQ(t.shell.Starts().size(), 1U);
    EXPECT_EQ(t.shell.Starts()[0].arguments, (std::vector<Text>{u"https://new"}));
    t.user.On<frmMyInputBox>([](frmMyInputBox& box) { box.cmdCancel.Press(); });
    EXPECT_TRUE(Press(Key::F(5), kCtrlAlt));
    EXPECT_EQ(t.app.Settings.WebmailUrl, u"https://new");
    EXPECT_EQ(t.shell.Starts().size(), 1U);
}

TEST_F(TextWindowKeys, KeysOpenTheDesktopTheExplorerTheBrowserAndLorrit) {
    t.files.AddDir(u"C:\\data");
    window->ThisFileName = u"C:\\data\\a.txt";
    t.app.Settings.CustomBrowserPath = u"C:\\browser.exe";
    t.files.AddFile(u"C:\\browser.exe");
    EXPECT_TRUE(Press('D', kCtrlAlt));
    EXPECT_TRUE(Press('X', kCtrlAlt));
    EXPECT_EQ(t.shell.Calls(), (std::vector<ShellCall>{{ShellCall::Kind::ToggleDesktop, {}},
                                                       {ShellCall::Kind::Explore, u"C:\\data"}}));
    EXPECT_TRUE(Press('B', Mask::Alt));
    ASSERT_EQ(t.shell.Starts().size(), 1U);
    EXPECT_EQ(t.shell.Starts()[0], ProgramStart{u"C:\\browser.exe"});
    EXPECT_TRUE(Press(Key::F(1), kCtrlShift));
    ASSERT_EQ(t.shell.Starts().size(), 2U);
    EXPECT_NE(t.shell.Starts()[1].program.find(u"Lorrit"), Text::npos);
    EXPECT_EQ(t.shell.Starts()[1].arguments, std::vector<Text>{u"C:\\data"});
}

TEST_F(TextWindowKeys, F11WithAModifierShowsTheClock) {
    EXPECT_FALSE(Press(Key::F(11)));
    for (const int mask : {Mask::Shift, Mask::Ctrl, Mask::Alt, kCtrlAlt, kCtrlShift})
        EXPECT_TRUE(Press(Key::F(11), mask)) << mask;
    EXPECT_EQ(main.commands, std::vector<std::string>(5, "mnuMisc_Clock"));
}

// Kept for compatibility: ctrl-alt-l-opens-tags.
TEST_F(TextWindowKeys, CtrlAltLOpensTheTagsAndMovesNothing) {
    SelectAll(u"abc");
    const Twips left = window->Left;
    t.user.On<frmHTMLCodes>([](frmHTMLCodes& tags) {
        tags.lstClient.Select(1);
        tags.cmdOk.Press();
    });
    EXPECT_TRUE(Press('L', kCtrlAlt));
    EXPECT_EQ(Control().All(), u"<B>abc</B>");
    EXPECT_EQ(window->Left.Get(), left);
}

TEST_F(TextWindowKeys, TheMenuHasTheTagsAndTheConversion) {
    SelectAll(u"<B>x</B>");
    t.user.On<frmHTMLCodes>([](frmHTMLCodes& tags) { tags.cmdCancel.Press(); });
    window->OfficeMenu1.Choose("mnuEdit_GetHTML");
    t.user.Answer(Answer::Yes);
    window->OfficeMenu1.Choose("mnuEdit_ConvertHTML");
    EXPECT_EQ(Control().All(), u"x");
}

// Kept for compatibility: ctrl-f-clears-altered.
TEST_F(TextWindowKeys, CtrlFClearsOneFlagAndPasses) {
    Control().SetSelText(u"x");
    EXPECT_FALSE(Press('F', Mask::Ctrl));
    EXPECT_EQ(window->TextAltered, 0);
    EXPECT_TRUE(Control().DataChanged());
}

// Kept for compatibility: text-keys-without-handler.
TEST_F(TextWindowKeys, OtherKeysPass) {
    EXPECT_FALSE(Press(Key::F(5), Mask::Ctrl));
    EXPECT_FALSE(Press('G', Mask::Alt));
    EXPECT_FALSE(Press('Z', Mask::Alt));
    EXPECT_FALSE(Press('A'));
    EXPECT_FALSE(Press('C', Mask::Ctrl));
    EXPECT_FALSE(window->Altered());
}

/// The keys that the window acts on, each with its modifiers.
const std::set<std::pair<int, int>>& OwnKeys() {
    static const std::set<std::pair<int, int>> keys = [] {
        std::set<std::pair<int, int>> own{
            {Key::NumMinus, Mask::Ctrl},
            {Key::NumPlus, Mask::Ctrl},
            {'S', Mask::Ctrl},
            {Key::F(12), Mask::Ctrl},
            {Key::Return, kCtrlShift},
            {'L', kCtrlAlt},
            {Key::Return, Mask::Alt},
            {'S', Mask::Alt},
            {Key::F(3), Mask::Alt},
            {'7', Mask::Ctrl},
            {'8', Mask::Ctrl},
            {'T', Mask::Ctrl},
            {'0', Mask::Ctrl},
            {'Y', kCtrlAlt},
            {'1', Mask::Ctrl},
            {'2', Mask::Ctrl},
            {'4', Mask::Ctrl},
            {'X', Mask::Ctrl},
            {'V', Mask::Ctrl},
            {'A', Mask::Ctrl},
            {'B', kCtrlShift},
            {'U', kCtrlShift},
            {'I', kCtrlShift},
            {Key::Home, kCtrlShift},
            {'V', kCtrlAlt},
            {'Y', Mask::Alt},
            {'L', kCtrlShift},
            {'R', kCtrlShift},
            {'R', kCtrlAlt},
            {Key::F(2), kCtrlShift},
            {Key::F(5), kCtrlAlt},
            {'D', kCtrlAlt},
            {'X', kCtrlAlt},
            {'B', Mask::Alt},
            {Key::F(1), kCtrlShift},
            {'U', Mask::Alt},
            {'F', Mask::Ctrl},
            {Key::Escape, Mask::None},
        };
        for (int mask = Mask::None; mask <= (kCtrlAlt | kCtrlShift); ++mask) {
            own.insert({Key::Tab, mask});
            if (mask != Mask::None) own.insert({Key::F(11), mask});
        }
        return own;
    }();
    return keys;
}

TEST_F(TextWindowKeys, EveryOtherKeyWithAnyModifiersPassesAndDoesNothing) {
    std::vector<int> codes{Key::Tab,    Key::Return, Key::Escape,  Key::Home,    Key::Space,
                           Key::Delete, Key::Insert, Key::NumPlus, Key::NumMinus};
    for (int code = '0'; code <= '9'; ++code)
        codes.push_back(code);
    for (int code = 'A'; code <= 'Z'; ++code)
        codes.push_back(code);
    for (int number = 1; number <= 12; ++number)
        codes.push_back(Key::F(number));
    SelectAll(u"abc");
    window->TextAltered = 0;
    Control().SetDataChanged(false);
    for (const int code : codes)
        for (int mask = Mask::None; mask <= (kCtrlAlt | kCtrlShift); ++mask)
            if (!OwnKeys().contains({code, mask}))
                EXPECT_FALSE(Press(code, mask)) << "key " << code << " with " << mask;
    EXPECT_EQ(Control().All(), u"abc");
    EXPECT_EQ(Control().SelLength(), 3);
    EXPECT_FALSE(window->Altered());
    EXPECT_TRUE(dialogs.shown.empty());
    EXPECT_TRUE(main.commands.empty());
    EXPECT_TRUE(t.shell.Starts().empty());
}

TEST_F(TextWindowKeys, ATabWithAnyModifiersIsTaken) {
    for (int mask = Mask::None; mask <= (kCtrlAlt | kCtrlShift); ++mask) {
        SelectAll(u"x");
        EXPECT_TRUE(Press(Key::Tab, mask));
        EXPECT_EQ(Control().All(), u"\t") << mask;
        SelectAll(u"xy");
        EXPECT_TRUE(Press(Key::Tab, mask));
        EXPECT_EQ(Control().All(), u"xy") << mask;
    }
}

TEST_F(TextWindowKeys, ATabWithCtrlAndAltTakesTheIndentsAway) {
    SelectAll(u"xy");
    Control().SetIndentL(500);
    Control().SetIndentR(400);
    Control().SetIndentFL(-300);
    EXPECT_TRUE(Press(Key::Tab, kCtrlAlt));
    EXPECT_EQ(Control().IndentL(), 0);
    EXPECT_EQ(Control().IndentR(), 0);
    EXPECT_EQ(Control().IndentFL(), 0);
}

// Typing.

TEST_F(TextWindowKeys, OnlyFiveCharactersDoNotAlterTheTextWhenTheyAreTyped) {
    for (char16_t character = 1; character <= 255; ++character) {
        window->TextAltered = 0;
        TypedText typed{Text(1, character)};
        Control().KeyPress(typed);
        const bool alters = TextView(u"\x03\x13\x19\x1B ").find(character) == TextView::npos;
        EXPECT_EQ(window->TextAltered, alters ? 1 : 0) << static_cast<int>(character);
        EXPECT_FALSE(typed.consumed) << static_cast<int>(character);
    }
    EXPECT_EQ(Control().All(), u"");
}

TEST_F(TextWindowKeys, ATabOverASelectionAltersNothing) {
    SelectAll(u"a");
    window->TextAltered = 0;
    TypedText typed{u"\t"};
    Control().KeyPress(typed);
    EXPECT_TRUE(typed.consumed);
    EXPECT_EQ(window->TextAltered, 0);
}

TEST_F(TextWindowKeys, ATypedSpaceLeavesTheTextUnalteredAndALetterDoesNot) {
    Type(u" ");
    EXPECT_EQ(Control().All(), u" ");
    EXPECT_FALSE(window->Altered());
    Type(u"x");
    EXPECT_EQ(window->TextAltered, 1);
    EXPECT_TRUE(Control().DataChanged());
}

TEST_F(TextWindowKeys, ATypedTabOverASelectionIsDropped) {
    SelectAll(u"abc");
    Type(u"\t");
    EXPECT_EQ(Control().All(), u"abc");
}

TEST_F(TextWindowKeys, QuotesAreTypographicOnlyWhenTheSettingSaysSo) {
    Type(u"\"a\"");
    EXPECT_EQ(Control().All(), u"\"a\"");
    Control().SetAll(u"");
    t.app.Settings.SmartQuotes = 1;
    Type(u"\"a\" 'b' it's '\"c\"'");
    EXPECT_EQ(Control().All(), u"\u201Ca\u201D \u2018b\u2019 it\u2019s \u2018\u201Cc\u201D\u2019");
    EXPECT_TRUE(window->Altered());
}

TEST_F(TextWindowKeys, AQuoteTakesThePlaceOfTheSelection) {
    t.app.Settings.SmartQuotes = 1;
    SelectAll(u"abc");
    Type(u"'");
    EXPECT_EQ(Control().All(), u"\u2018");
}

// Kept for compatibility: text-operations-without-key.
TEST_F(TextWindowKeys, SixOperationsAreThereWithoutAKey) {
    t.app.Settings.MarkupOption = 60;
    SelectAll(u"aBc");
    window->DoUppercase();
    EXPECT_EQ(Control().All(), u"ABC");
    Control().SetSelection(0, -1);
    window->DoLowercase();
    EXPECT_EQ(Control().All(), u"abc");
    Control().SetSelection(0, -1);
    window->DoSmallCaps();
    EXPECT_EQ(Control().CharAttributes(), 32);
    window->DoSuperScript();
    EXPECT_EQ(Control().BaseLine(), 60);
    window->DoSubScript();
    EXPECT_EQ(Control().BaseLine(), -60);
    window->cmdSave.SetFocus();
    window->AssignAltAKey();
    EXPECT_EQ(Control().All(), u"abc");
    EXPECT_EQ(window->Focused(), &Control());
}

} // namespace
} // namespace korvane
