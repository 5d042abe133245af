#include "context/ports/ClipboardView.h"
#include "context/ports/ColourPicker.h"
#include "context/ports/InsertTools.h"
#include "context/ports/TextFinder.h"
#include "context/ports/TextTools.h"
#include "context/ports/WordList.h"
#include "support/ScriptedPickers.h"
#include "text/fields/frmShowFieldContents.h"
#include "text/fields/frmViewEditField.h"
#include "text/paragraph/frmIndent.h"
#include "unit/text/FakeTextPorts.h"
#include "unit/text/window/TextWindowStage.h"

#include <string>

namespace korvane {
namespace {

class TextWindowView : public TextWindowStage {
protected:
    TextWindowView() { Open(); }
    ~TextWindowView() override { CloseUnsaved(); }

    void Choose(std::string_view entry) { window->OfficeMenu1.Choose(entry); }
};

TEST_F(TextWindowView, TheMenuHasItsEntriesInTheirOrder) {
    std::string menu;
    for (const MenuEntry& entry : window->OfficeMenu1.Entries())
        menu +=
            std::to_string(entry.level) + " " + std::string(entry.name) + " " + ToUtf8(entry.caption) + "\n";
    EXPECT_EQ(menu, R"(0 mnuFile &File
1 mnuFile_Open &Open text file
1 mnuFile_New &New text
1  
1 mnuSave &Save
1 mnuFile_SaveAs Sa&ve as... 
1 mnuInfo &Info on file
1  
1 mnuExit E&xit    ( Alt--F4 )
0 mnuEdit &Edit
1 mnuFind &Find string
1 mnuReplace Find and &replace
1  
1 mnuEdit_ViewAndPaste Copy-&Paste
1 mnuWordList &Word list
1  
1 mnuAlign &Align and indent
1 mnuEdit_Unicode &Unicode characters
1 mnuCharacters AS&CII table
1 mnuSymbols Sym&bols
1 mnuFonts F&onts
1  
1 mnuParagraphFormatting Paragrap&h formatting
1 mnuBulletsNumbering Bu&llets and numbering
1  
1 mnuEdit_GetHTML Get &HTML code
1 mnuEdit_ConvertHTML Convert HT&ML to formatting
0 mnuView_Menu &View
1 mnuView_ZoomIn Zoom &in    ( Ctrl+NumPlus )
1 mnuView_ZoomOut Zoom &out    ( Ctrl+NumMinus )
1  
1 mnuPageSetup Page set&up
1  
1 mnuView &View mode    ( Alt-F3 )
1 mnuFormatting &Control characters
1 mnuColours Set co&lours
0 mnuMisc &Misc
1 mnuExplorer Windows E&xplorer
1  
1 mnuDateInsert Insert &date
1 mnuTimer Show time and date
)");
}

TEST_F(TextWindowView, TheButtonsHaveTheirTips) {
    const std::pair<const CommandButton&, TextView> kTips[] = {
        {window->cmdNew, u"Start new text"},
        {window->cmdOpen, u"Open file on disk"},
        {window->cmdSave, u"Save text to disk"},
        {window->cmdSaveAs, u"Save text as ..."},
        {window->cmdInfo, u"Info on file"},
        {window->cmdWordList, u"Open list of shortcuts"},
        {window->cmdClipTmp, u"Put selection in cumulative clipboard"},
        {window->cmdViewAndPaste, u"View Windows clipboard and paste to text"},
        {window->cmdFind, u"Find string in text"},
        // Kept for compatibility: replace-has-tip-of-find.
        {window->cmdReplace, u"Find string in text"},
        {window->cmdFonts, u"Specify font"},
        {window->cmdAlign, u"Text alignment"},
        {window->cmdParagraph, u"Paragraph dialog (Ctrl-4)"},
        {window->cmdPageSetup, u"Page setup (Ctrl-7)"},
        {window->cmdBulletsNumbering, u"Bullets/numbering (Ctrl-F5)"},
        {window->cmdFormatting, u"Show control characters"},
        {window->cmdViewMode, u"View mode"},
        {window->cmdZoomIn, u"Zoom in"},
        {window->cmdZoomOut, u"Zoom out"},
        {window->cmdCentreOnScreen, u"Centre window on screen"},
        {window->cmdExit, u"Exit text editor"},
    };
    for (const auto& [button, tip] : kTips)
        EXPECT_EQ(button.ToolTipText.Get(), tip) << button.Name();
}

// Kept for compatibility: text-clip-button-does-nothing.
TEST_F(TextWindowView, TheButtonOfTheCumulativeClipboardDoesNothing) {
    SelectAll(u"abc");
    window->cmdClipTmp.Press();
    EXPECT_FALSE(t.clipboard.HasText());
}

TEST_F(TextWindowView, TheZoomStepsGiveTheTextTheFocus) {
    window->cmdZoomIn.SetFocus();
    window->cmdZoomIn.Press();
    EXPECT_EQ(Control().ZoomFactor, 105);
    EXPECT_EQ(window->Focused(), &Control());
    Choose("mnuView_ZoomOut");
    EXPECT_EQ(t.app.Settings.RtfZoom, 100);
}

// Kept for compatibility: zoom-without-ends.
TEST_F(TextWindowView, TheLargestZoomGoesInToTheMiddle) {
    Control().ZoomFactor = 500;
    window->cmdZoomIn.Press();
    EXPECT_EQ(Control().ZoomFactor, 100);
}

TEST_F(TextWindowView, PagesHaveNoSpaceAtTheLeftAndAGroundByTheSetting) {
    EXPECT_EQ(Control().Left.Get(), Twips{320});
    Choose("mnuView");
    EXPECT_EQ(Control().ViewMode, 2);
    EXPECT_EQ(Control().PageViewStyle, 1);
    EXPECT_EQ(Control().Left.Get(), Twips{0});
    window->cmdViewMode.Press();
    EXPECT_EQ(Control().ViewMode, 0);
    EXPECT_EQ(Control().Left.Get(), Twips{320});
    State().DarkPageBackground = 1;
    Choose("mnuView");
    EXPECT_EQ(Control().PageViewStyle, 0);
}

TEST_F(TextWindowView, AResizeLeavesSpaceAtTheLeftUnlessTheWindowIsMinimised) {
    Choose("mnuView");
    window->State = FormState::Minimised;
    window->Resize();
    EXPECT_EQ(Control().Left.Get(), Twips{0});
    window->State = FormState::Normal;
    window->Resize();
    EXPECT_EQ(Control().Left.Get(), Twips{320});
}

TEST_F(TextWindowView, TheControlCharactersAreToggled) {
    Choose("mnuFormatting");
    EXPECT_TRUE(Control().ControlChars);
    window->cmdFormatting.Press();
    EXPECT_FALSE(Control().ControlChars);
}

// Kept for compatibility: one-colour-for-page-and-text.
TEST_F(TextWindowView, OneColourIsForThePageAndTheText) {
    SelectAll(u"abc");
    t.user.ChooseColour(Colour{0x112233});
    Choose("mnuColours");
    EXPECT_EQ(Control().BackColor.Get(), Colour{0x112233});
    EXPECT_EQ(Control().TextBkColor(), Colour{0x112233});
    t.user.ChooseColour(std::nullopt);
    Choose("mnuColours");
    EXPECT_EQ(t.user.ColourRequests()[0], (ColourRequest{Colour{0xFFFFFF}, ColourPicker::Extent::Full}));
    EXPECT_EQ(t.user.ColourRequests()[1].start, Colour{0x112233});
    EXPECT_EQ(Control().BackColor.Get(), Colour{0x112233});
}

TEST_F(TextWindowView, CentringTakesMostOfTheMainWindow) {
    window->State = FormState::Maximised;
    window->cmdCentreOnScreen.Press();
    EXPECT_EQ(window->State, FormState::Normal);
    EXPECT_EQ(window->Width.Get(), Twips{9500});
    EXPECT_EQ(window->Height.Get(), Twips{7600});
    EXPECT_EQ(window->Left.Get(), Twips{1250});
    EXPECT_EQ(window->Top.Get(), Twips{700});
}

TEST_F(TextWindowView, ALineIsOverTheTextWhileTheRulerIsHeld) {
    EXPECT_FALSE(window->tabHairline.Visible);
    window->TXRuler1.MouseDown(Twips{1000});
    EXPECT_TRUE(window->tabHairline.Visible);
    EXPECT_EQ(window->tabHairline.Left.Get(), Twips{680});
    EXPECT_EQ(window->TextAltered, 0);
    window->TXRuler1.MouseMove(Twips{1200});
    EXPECT_EQ(window->tabHairline.Left.Get(), Twips{880});
    EXPECT_EQ(window->TextAltered, 1);
    window->TXRuler1.MouseUp();
    EXPECT_FALSE(window->tabHairline.Visible);
}

TEST_F(TextWindowView, ActivationGivesTheTextTheFocus) {
    window->cmdSave.SetFocus();
    window->TextAltered = 1;
    window->Activate();
    EXPECT_EQ(window->Focused(), &Control());
    EXPECT_EQ(window->TextAltered, 1);
}

// Kept for compatibility: text-window-result-99.
TEST_F(TextWindowView, ActivationAfterAResultOf99ClearsAFlag) {
    window->TextAltered = 1;
    t.app.DialogResult = 99;
    window->Activate();
    EXPECT_EQ(window->TextAltered, 0);
}

class FakeClipboardView final : public ClipboardView {
public:
    FakeClipboardView(App& app, std::int16_t result) : app_(app), result_(result) {
        app_.SetPort<ClipboardView>(this);
    }
    void Show() override { app_.DialogResult = result_; }
    bool Choose() override { return false; }

private:
    App& app_;
    std::int16_t result_;
};

// Kept for compatibility: closed-paste-view-clears.
TEST_F(TextWindowView, TheFlagIsWhatTheViewOfTheClipboardLeaves) {
    window->TextAltered = 1;
    FakeClipboardView closed(t.app, 0);
    Choose("mnuEdit_ViewAndPaste");
    EXPECT_EQ(window->TextAltered, 0);
    FakeClipboardView retrieved(t.app, 1);
    window->cmdViewAndPaste.Press();
    EXPECT_EQ(window->TextAltered, 1);
}

TEST_F(TextWindowView, AKeyShowsTheClipboardAndTheTextHasTheKeyboardAfterThat) {
    const FakeClipboardView retrieved(t.app, 1);
    window->FocusMoved(window->cmdNew);
    EXPECT_TRUE(Press('V', Mask::Ctrl | Mask::Alt));
    EXPECT_EQ(window->TextAltered, 1);
    EXPECT_EQ(window->Focused(), &Control());
}

TEST_F(TextWindowView, TheListAndTheDateAreWrittenAtTheCursor) {
    class List final : public WordList {
    public:
        std::optional<Text> Choose() override { return u"word "; }
        void Collect(TextView) override { ADD_FAILURE() << "nothing is selected"; }
    };
    class Tools final : public InsertTools {
    public:
        std::optional<Text> ChooseDateTime() override { return u"4 March"; }
        void ShowCharacters(TextBox&) override {}
        void ShowElements(TextBox&) override {}
    };
    Choose("mnuWordList");
    Choose("mnuDateInsert");
    EXPECT_EQ(Control().All(), u"");
    List list;
    Tools tools;
    t.app.SetPort<WordList>(&list);
    t.app.SetPort<InsertTools>(&tools);
    Choose("mnuWordList");
    Choose("mnuDateInsert");
    EXPECT_EQ(Control().All(), u"word 4 March");
}

TEST_F(TextWindowView, ASelectionGoesToTheListAndNothingComesBack) {
    class List final : public WordList {
    public:
        Text collected;
        std::optional<Text> Choose() override { return u"word"; }
        void Collect(TextView selection) override { collected = Text(selection); }
    } list;
    t.app.SetPort<WordList>(&list);
    SelectAll(u"one\r\ntwo");
    window->cmdWordList.Press();
    EXPECT_EQ(list.collected, u"one\r\ntwo");
    EXPECT_EQ(Control().All(), u"one\r\ntwo");
    EXPECT_EQ(window->Focused(), &Control());
}

TEST_F(TextWindowView, TheToolsGetTheTextControl) {
    class Tools final : public TextTools, public TextFinder {
    public:
        std::string asked;
        void FindString(TextControl&) override { asked += "find "; }
        bool ChooseFont(TextControl&) override {
            asked += "font ";
            return false;
        }
        void ShowUnicode(TextControl&) override { asked += "unicode "; }
        void ShowCharacters(TextControl&) override { asked += "characters "; }
        void ShowElements(TextControl&) override { asked += "elements "; }
    };
    Tools tools;
    t.app.SetPort<TextTools>(&tools);
    t.app.SetPort<TextFinder>(&tools);
    for (const char* entry : {"mnuFind", "mnuFonts", "mnuEdit_Unicode", "mnuCharacters", "mnuSymbols"})
        Choose(entry);
    EXPECT_EQ(tools.asked, "find font unicode characters elements ");
}

/// Kept for compatibility: character-table-alters.
TEST_F(TextWindowView, TheTableOfCharactersAlwaysAltersTheText) {
    FakeTextTools tools(t.app);
    for (const char* entry : {"mnuFonts", "mnuEdit_Unicode", "mnuSymbols"})
        Choose(entry);
    EXPECT_EQ(window->TextAltered, 0);
    Choose("mnuCharacters");
    EXPECT_EQ(window->TextAltered, 1);
}

TEST_F(TextWindowView, TheKeyboardComesBackFromTheTools) {
    FakeTextTools tools(t.app);
    for (const char* entry : {"mnuFonts", "mnuEdit_Unicode", "mnuCharacters", "mnuSymbols"}) {
        window->FocusMoved(window->cmdNew);
        Choose(entry);
        EXPECT_EQ(window->Focused(), &Control()) << entry;
    }
}

TEST_F(TextWindowView, AChosenFontAltersTheText) {
    FakeTextTools tools(t.app);
    tools.takesFont = true;
    Choose("mnuFonts");
    EXPECT_EQ(window->TextAltered, 1);
    EXPECT_EQ(window->Focused(), &Control());
}

TEST_F(TextWindowView, TheControlsOwnDialogsAreShown) {
    for (const char* entry : {"mnuReplace", "mnuParagraphFormatting", "mnuBulletsNumbering", "mnuPageSetup"})
        Choose(entry);
    EXPECT_EQ(dialogs.shown, (std::vector<TextDialog>{TextDialog::Replace, TextDialog::Paragraph,
                                                      TextDialog::List, TextDialog::Page}));
}

TEST_F(TextWindowView, AlignmentAndIndentsAreForItsText) {
    SelectAll(u"abc");
    t.user.On<frmIndent>([](frmIndent& indent) {
        indent.lstClient.Select(2);
        indent.cmdAccept.Press();
        indent.Close();
    });
    Choose("mnuAlign");
    EXPECT_EQ(Control().Alignment(), 2);
    EXPECT_TRUE(window->Altered());
}

TEST_F(TextWindowView, FieldsHaveTipsAndAreOpenedByAClick) {
    Control().FieldInsert(u"note");
    Control().SetFieldData(1, u"data");
    Control().FieldInsert(u"link");
    Control().SetFieldType(2, 1);
    Control().SetFieldTypeData(2, u"www.a.b");
    Control().Hover(1);
    EXPECT_EQ(Control().ToolTipText.Get(), u"Field No. 1: data");
    Control().Hover(0);
    EXPECT_EQ(Control().ToolTipText.Get(), u"");
    t.user.On<frmShowFieldContents>([](frmShowFieldContents& shown) {
        EXPECT_EQ(shown.txtHyperLink.Text.Get(), u"www.a.b");
        shown.cmdExit.Press();
    });
    Control().Click(2);
    Control().SetSelStart(1);
    Control().Hover(1);
    window->TextAltered = 0;
    t.user.On<frmViewEditField>([this](frmViewEditField& editor) {
        EXPECT_EQ(Control().ToolTipText.Get(), u"");
        EXPECT_EQ(editor.txtFieldLabel.Text.Get(), u"note");
        editor.Close();
    });
    Control().Click(1);
    EXPECT_EQ(window->TextAltered, 1);
}

TEST_F(TextWindowView, AltUOpensAnAddress) {
    SelectAll(u"www.a.b");
    t.user.On<frmShowFieldContents>([](frmShowFieldContents& shown) { shown.cmdExit.Press(); });
    EXPECT_TRUE(Press('U', Mask::Alt));
}

TEST_F(TextWindowView, TheExplorerAndTheClockAreOpened) {
    t.files.AddDir(u"C:\\data");
    t.files.ChangeDir(u"C:\\data");
    Choose("mnuExplorer");
    Choose("mnuTimer");
    window->ThisFileName = u"C:\\other\\a.txt";
    t.files.AddFile(window->ThisFileName);
    Choose("mnuExplorer");
    EXPECT_EQ(t.shell.Calls(), (std::vector<ShellCall>{{ShellCall::Kind::Explore, u"C:\\data"},
                                                       {ShellCall::Kind::Explore, u"C:\\other"}}));
    EXPECT_EQ(main.commands, (std::vector<std::string>{"mnuMisc_Clock"}));
}

TEST_F(TextWindowView, ExitClosesTheWindow) {
    Choose("mnuExit");
    EXPECT_FALSE(window->Shown());
}

} // namespace
} // namespace korvane
