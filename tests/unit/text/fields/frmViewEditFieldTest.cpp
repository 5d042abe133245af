#include "text/fields/frmViewEditField.h"

#include "context/exchange/FontChoice.h"
#include "context/ports/ClipboardView.h"
#include "context/ports/ColourPairPicker.h"
#include "context/ports/FontPicker.h"
#include "support/Captions.h"
#include "support/DesignerFile.h"
#include "unit/text/fields/FieldStage.h"

namespace korvane {
namespace {

const Message kClosing{u"Write back changes to field?", MessageIcon::Question, MessageButtons::YesNoCancel};
const Message kSingleOnly{u"Option only available when editing a single field.", MessageIcon::Exclamation};

/// Gives out a pair of colours, unless it has none.
class FakeColourPairPicker final : public ColourPairPicker {
public:
    explicit FakeColourPairPicker(App& app) { app.SetPort<ColourPairPicker>(this); }
    ColourPair asked{};
    std::optional<ColourPair> answer;

    std::optional<ColourPair> Choose(const ColourPair& present) override {
        asked = present;
        return answer;
    }
};

class ViewEditField : public FieldStage {
protected:
    ViewEditField() {
        t.app.Settings.Spare106 = 0xFF0000;
        t.app.Settings.Spare107 = 0xFFFFFF;
        t.app.Settings.Spare108 = 0x00FF00;
        t.app.Settings.Spare109 = 0xEEEEEE;
        t.app.Settings.MarkupOption = 60;
    }

    /// Opens the editor on a field of the document.
    void Edit(int field) {
        document.SetFieldCurrent(field);
        Transit().EditingExisting = 1;
        Transit().FieldLabelText = document.FieldText();
        const bool hyperlink = document.FieldType(field) == 1;
        Transit().FieldLinkData = hyperlink ? document.FieldTypeData(field) : document.FieldData(field);
        t.app.Settings.ViewEditOption = hyperlink ? 1 : 0;
        editor.EnsureLoaded();
    }
    static bool Press(Control& control, int code, int mask = Mask::None) {
        KeyEvent key{code, mask};
        control.KeyDown(key);
        return key.consumed;
    }
    std::string All() const { return ToUtf8(document.All()); }

    frmViewEditField editor{t.app, document};
};

TEST_F(ViewEditField, HasItsCaptionsAndItsMenu) {
    ExpectLook(editor, "text/fields", {"Label", "Data", "All fields"});
    EXPECT_EQ(editor.optHyperLink.Caption.Get(), u"&Hyperlink (RTF, DOC(x), HTML files)");
    EXPECT_EQ(editor.optTextField.Caption.Get(), u"&Text field (RTF file)");
    std::string menu;
    for (const MenuEntry& entry : editor.OfficeMenu1.Entries())
        if (entry.level > 0) menu += std::string(entry.name) + " " + ToUtf8(entry.caption) + "\n";
    EXPECT_EQ(menu, R"(mnuWriteBack &Write back changes
mnuNewField Create &new field
mnuSave &Save to disk
mnuExit E&xit
mnuAllFields &All fields
mnuHideAllFieldsPane Hi&de fields
mnuHelp &Help note
mnuFont &Font for link
mnuFontEdit Font for &edit window
mnuHyperlinkColour &Hyperlink colours
mnuTextlinkColour &Text field colours
mnuUpdateColours &Update colours in text
)");
}

TEST_F(ViewEditField, TheButtonsHaveTheirTips) {
    const std::pair<const CommandButton&, TextView> kTips[] = {
        {editor.cmdGetFile, u"Get file name for link entry"},
        {editor.cmdWriteBack, u"Write back changes"},
        {editor.cmdCreateField, u"Create new field"},
        {editor.cmdAllFields, u"Show all fields in text"},
        {editor.cmdHide, u"Hide all fields"},
        {editor.cmdSave, u"Save list to disk"},
        {editor.cmdFont, u"Font for field in text"},
        {editor.cmdFontEdit, u"Font for edit window"},
        {editor.cmdHyperColour, u"Colour for hyperlink"},
        {editor.cmdTextColour, u"Colour for text field"},
        {editor.cmdHelp, u"Help note"},
        {editor.cmdExit, u"Close this window"},
    };
    for (const auto& [button, tip] : kTips)
        EXPECT_EQ(button.ToolTipText.Get(), tip) << button.Name();
}

TEST_F(ViewEditField, ShowsANote) {
    Edit(1);
    EXPECT_TRUE(editor.optTextField.Value);
    EXPECT_EQ(editor.txtFieldLabel.Text.Get(), u"mark");
    EXPECT_EQ(editor.txtFieldEntry.All(), u"my\r\nnote");
    EXPECT_EQ(editor.txtFieldURL.Text.Get(), u"");
    EXPECT_FALSE(editor.txtFieldURL.Enabled);
    EXPECT_FALSE(editor.cmdGetFile.Enabled);
    EXPECT_TRUE(editor.txtFieldEntry.Enabled);
    EXPECT_TRUE(editor.cmdWriteBack.Enabled);
    EXPECT_FALSE(editor.cmdCreateField.Enabled);
    EXPECT_FALSE(editor.txtAllFields.Visible);
    EXPECT_EQ(editor.lblText.BackColor.Get(), Colour{0xEEEEEE});
    EXPECT_EQ(editor.lblURL.BackColor.Get(), Colour{0xFFFFFF});
    EXPECT_EQ(editor.lblText.ForeColor.Get(), Colour{t.app.Settings.Spare108});
    EXPECT_EQ(editor.lblURL.ForeColor.Get(), Colour{t.app.Settings.Spare106});
    EXPECT_TRUE(editor.Close());
}

TEST_F(ViewEditField, ShowsAHyperlink) {
    Edit(2);
    EXPECT_TRUE(editor.optHyperLink.Value);
    EXPECT_EQ(editor.txtFieldURL.Text.Get(), u"www.a.b");
    EXPECT_EQ(editor.txtFieldEntry.All(), u"");
    EXPECT_TRUE(editor.txtFieldURL.Enabled);
    EXPECT_FALSE(editor.txtFieldEntry.Enabled);
}

TEST_F(ViewEditField, ProposesValuesWithoutAField) {
    t.app.Settings.ViewEditOption = 1;
    editor.EnsureLoaded();
    EXPECT_EQ(editor.txtFieldURL.Text.Get(), u"http://www.");
    EXPECT_EQ(editor.txtFieldLabel.Text.Get(), u"(enter name)");
    EXPECT_EQ(editor.txtFieldLabel.SelText(), u"(enter name)");
    EXPECT_FALSE(editor.cmdWriteBack.Enabled);
    EXPECT_FALSE(editor.cmdCreateField.Enabled);
    editor.Close();
    Transit().LastFieldLabel = u"label of before";
    editor.EnsureLoaded();
    EXPECT_EQ(editor.txtFieldLabel.SelText(), u"label of before");
}

TEST_F(ViewEditField, WritesANoteBackInItsColours) {
    t.app.Settings.ViewEditFontName = u"Courier New";
    t.app.Settings.ViewEditFontSize = 14;
    t.app.Settings.ViewEditFontStyle = 1;
    Transit().FieldFontBold = 1;
    Edit(1);
    editor.txtFieldLabel.Type(u"new label");
    editor.txtFieldEntry.SetAll(u"other");
    editor.cmdWriteBack.Press();
    EXPECT_EQ(All(), "one new label twolink");
    const int field = document.FieldCurrent();
    EXPECT_EQ(document.FieldText(), u"new label");
    EXPECT_EQ(document.FieldType(field), 0);
    EXPECT_EQ(document.FieldTypeData(field), u"new label");
    EXPECT_EQ(document.FieldData(field), u"other");
    document.SetSelection(4, 9);
    EXPECT_EQ(document.TextBkColor(), Colour{0xEEEEEE});
    EXPECT_EQ(document.ForeColor(), Colour{0x00FF00});
    EXPECT_EQ(document.FontName(), u"Courier New");
    EXPECT_EQ(document.FontSize(), 14);
    EXPECT_EQ(document.FontBold(), 1);
    EXPECT_EQ(document.BaseLine(), 60);
    EXPECT_EQ(Transit().LastFieldLabel, u"new label");
    EXPECT_TRUE(document.Undo());
    EXPECT_EQ(All(), "one mark twolink");
}

TEST_F(ViewEditField, WritesAHyperlinkBackWithItsFileIfThatExists) {
    t.app.Settings.ViewEditFontStyle = 2;
    Edit(2);
    editor.txtFieldURL.Type(u"C:\\a.txt");
    editor.cmdWriteBack.Press();
    int field = document.FieldCurrent();
    EXPECT_EQ(document.FieldType(field), 1);
    EXPECT_EQ(document.FieldTypeData(field), u"C:\\a.txt");
    EXPECT_EQ(document.FieldData(field), u"");
    document.SetSelection(document.FieldStart() - 1, 4);
    EXPECT_EQ(document.TextBkColor(), Colour{0xFFFFFF});
    EXPECT_EQ(document.ForeColor(), Colour{0xFF0000});
    EXPECT_EQ(document.BaseLine(), -60);
    t.files.AddFile(u"C:\\a.txt");
    Edit(field);
    editor.OfficeMenu1.Choose("mnuWriteBack");
    field = document.FieldCurrent();
    EXPECT_EQ(document.FieldData(field), u"C:\\a.txt");
    EXPECT_EQ(document.FieldTypeData(field), u"C:\\a.txt");
}

TEST_F(ViewEditField, ANoteCanBecomeAHyperlink) {
    Edit(1);
    editor.optHyperLink.Press();
    EXPECT_TRUE(editor.txtFieldURL.Enabled);
    editor.txtFieldURL.Type(u"www.x.y");
    editor.cmdWriteBack.Press();
    EXPECT_EQ(document.FieldType(document.FieldCurrent()), 1);
    EXPECT_EQ(t.app.Settings.ViewEditOption, 1);
}

// Kept for compatibility: write-back-without-field.
TEST_F(ViewEditField, WithoutACurrentFieldNothingIsWrittenAndTheWindowCloses) {
    Edit(1);
    document.SetFieldCurrent(0);
    editor.txtFieldLabel.Type(u"new");
    editor.Left = Twips{700};
    editor.cmdWriteBack.Press();
    // The closing keeps the place.
    EXPECT_EQ(t.app.Settings.ViewEditLeft, 700);
    EXPECT_FALSE(document.DataChanged());
    EXPECT_EQ(Transit().FieldNumber, 0);
    EXPECT_EQ(Transit().LastFieldLabel, u"new");
}

TEST_F(ViewEditField, ListsAllFieldsInThePane) {
    Edit(1);
    editor.cmdAllFields.Press();
    EXPECT_TRUE(editor.txtAllFields.Visible);
    EXPECT_FALSE(editor.txtFieldEntry.Visible);
    EXPECT_EQ(editor.txtAllFields.All(), u"\r\n- - - [ Field: 1:  \"mark\"  ] - - - - - - -\r\n\r\nmy\r\nnote"
                                         u"\r\n- - - [ Field: 2:  \"link\"  ] - - - - - - -\r\n\r\nwww.a.b");
    editor.txtAllFields.SetSelection(5, 3);
    EXPECT_EQ(editor.txtAllFields.FontName(), u"Calibri");
    EXPECT_EQ(editor.txtAllFields.FontSize(), 12);
    editor.OfficeMenu1.Choose("mnuHideAllFieldsPane");
    EXPECT_FALSE(editor.txtAllFields.Visible);
    EXPECT_TRUE(editor.txtFieldEntry.Visible);
}

TEST_F(ViewEditField, APaneOfAllFieldsIsForLookingOnly) {
    Edit(1);
    editor.cmdAllFields.Press();
    for (const char* entry : {"mnuWriteBack", "mnuFont", "mnuFontEdit"}) {
        t.user.Answer(kSingleOnly, Answer::Ok);
        editor.OfficeMenu1.Choose(entry);
    }
    EXPECT_FALSE(document.DataChanged());
}

TEST_F(ViewEditField, SavesThePaneThatIsSeen) {
    Edit(1);
    chooser.answer = u"C:\\note.txt";
    editor.txtFieldEntry.SetSelText(u"x");
    EXPECT_TRUE(Press(editor.txtFieldEntry, 'S', Mask::Ctrl));
    EXPECT_EQ(t.files.Contents(u"C:\\note.txt"), "xmy\r\nnote");
    EXPECT_EQ(chooser.requests[0].title, u"Save text to disk  (single field)");
    EXPECT_EQ(chooser.requests[0].filter, u"All files (*.*)|*.*|RTF files (*.rtf)|*.rtf");
    EXPECT_EQ(editor.Caption.Get(), u"File: C:\\note.txt");
    editor.cmdAllFields.Press();
    chooser.answer = u"C:\\all.rtf";
    EXPECT_TRUE(Press(editor.txtAllFields, Key::F(12), Mask::Ctrl));
    EXPECT_EQ(chooser.requests[1].title, u"Save text to disk  (all fields)");
    EXPECT_TRUE(t.files.Contents(u"C:\\all.rtf")->starts_with("{\\rtf1"));
    chooser.answer.reset();
    editor.cmdSave.Press();
    EXPECT_EQ(editor.Caption.Get(), u"File: C:\\all.rtf");
    EXPECT_TRUE(editor.Close());
}

TEST_F(ViewEditField, ClosingAsksOnlyAfterAChange) {
    Edit(1);
    EXPECT_TRUE(editor.Close());
    Edit(1);
    editor.txtFieldEntry.SetSelText(u"x");
    t.user.Answer(kClosing, Answer::Cancel);
    EXPECT_FALSE(editor.Close());
    t.user.Answer(kClosing, Answer::No);
    EXPECT_TRUE(editor.Close());
    EXPECT_FALSE(document.DataChanged());
    Edit(1);
    editor.cmdAllFields.Press();
    editor.txtFieldLabel.Type(u"new");
    t.user.Answer(kClosing, Answer::Yes);
    EXPECT_TRUE(editor.Close());
    EXPECT_EQ(All(), "one new twolink");
}

TEST_F(ViewEditField, TheQuestionAtClosingShowsBothPanes) {
    Edit(1);
    editor.txtFieldEntry.SetSelText(u"x");
    bool seen = false;
    t.user.AnswerAfter([&] { seen = editor.txtFieldEntry.Visible && editor.txtAllFields.Visible; },
                       Answer::Cancel);
    EXPECT_FALSE(editor.Close());
    EXPECT_TRUE(seen);
    t.user.Answer(kClosing, Answer::No);
    EXPECT_TRUE(editor.Close());
}

TEST_F(ViewEditField, PastingAsksAtClosing) {
    for (const int mask : {Mask::Ctrl, Mask::Ctrl | Mask::Alt}) {
        Edit(1);
        Press(editor.txtFieldEntry, 'V', mask);
        t.user.Answer(kClosing, Answer::No);
        EXPECT_TRUE(editor.Close());
    }
}

TEST_F(ViewEditField, UpdatesTheColoursOfAllFields) {
    Edit(1);
    document.SetSelStart(2);
    editor.txtFieldEntry.SetDataChanged(false);
    t.user.Answer({u"Colours updated for 2 fields", MessageIcon::Information}, Answer::Ok);
    editor.OfficeMenu1.Choose("mnuUpdateColours");
    EXPECT_EQ(document.SelStart(), 2);
    EXPECT_TRUE(document.Redraw);
    document.SetSelection(4, 4);
    EXPECT_EQ(document.ForeColor(), Colour{0x00FF00});
    document.SetSelection(12, 4);
    EXPECT_EQ(document.ForeColor(), Colour{0xFF0000});
    document.SetSelection(0, 3);
    EXPECT_NE(document.ForeColor(), Colour{0xFF0000});
}

TEST_F(ViewEditField, ColoursThatNobodyChoseCanBeRead) {
    t.app.Settings.Spare106 = t.app.Settings.Spare107 = t.app.Settings.Spare108 = t.app.Settings.Spare109 = 0;
    Edit(1);
    EXPECT_EQ(editor.lblURL.ForeColor, Colour{0xFF0000});
    EXPECT_EQ(editor.lblURL.BackColor, Colour{0xFFFFFF});
    EXPECT_EQ(editor.lblText.ForeColor, Colour{0});
    EXPECT_EQ(editor.lblText.BackColor, Colour{0xFFFFFF});
}

TEST_F(ViewEditField, ColoursOfWhichOneWasChosenStay) {
    t.app.Settings.Spare106 = t.app.Settings.Spare107 = t.app.Settings.Spare109 = 0;
    Edit(1);
    EXPECT_EQ(editor.lblURL.BackColor, Colour{0});
    EXPECT_EQ(editor.lblText.ForeColor, Colour{0x00FF00});
}

TEST_F(ViewEditField, ChoosesFontsAndColours) {
    Edit(1);
    t.user.ChooseFont(FontSpec{u"Arial", 20, true});
    editor.cmdFont.Press();
    EXPECT_EQ(t.app.Settings.ViewEditFontName, u"Arial");
    EXPECT_EQ(t.app.Settings.ViewEditFontSize, 20);
    EXPECT_EQ(Transit().FieldFontBold, 1);
    t.user.ChooseFont(FontSpec{u"Courier New", 16});
    editor.cmdFontEdit.Press();
    editor.txtFieldEntry.SetSelection(0, 2);
    EXPECT_EQ(editor.txtFieldEntry.FontName(), u"Courier New");
    FakeColourPairPicker pairs(t.app);
    pairs.answer = ColourPair{Colour{1}, Colour{2}};
    editor.cmdHyperColour.Press();
    EXPECT_EQ(t.app.Settings.Spare106, 1);
    EXPECT_EQ(t.app.Settings.Spare107, 2);
    EXPECT_EQ(editor.lblURL.ForeColor.Get(), Colour{1});
    EXPECT_EQ(editor.lblURL.BackColor.Get(), Colour{2});
    pairs.answer.reset();
    editor.cmdTextColour.Press();
    EXPECT_EQ(t.app.Settings.Spare108, pairs.asked.fore.value);
    EXPECT_EQ(pairs.asked.back, Colour{0xEEEEEE});
    EXPECT_EQ(t.app.Settings.Spare109, 0xEEEEEE);
}

TEST_F(ViewEditField, TheFontDialogTellsWhetherFieldsAreRaised) {
    class Picker final : public FontPicker {
    public:
        explicit Picker(FontChoice& exchange) : choice(exchange) {}
        std::optional<FontSpec> Choose(const FontSpec& present) override {
            before = choice.FontAttrs;
            choice.FontAttrs = {};
            choice.FontBaseStyle = 2;
            return present;
        }
        FontChoice& choice;
        std::array<std::int16_t, FontAttr::Count> before{};
    };
    Edit(1);
    Picker picker(t.app.Exchange<FontChoice>());
    t.app.SetPort<FontPicker>(&picker);
    t.app.Settings.ViewEditFontStyle = 1;
    editor.cmdFont.Press();
    EXPECT_EQ(picker.before[FontAttr::Superscript], 1);
    EXPECT_EQ(t.app.Settings.ViewEditFontStyle, 2);

    t.app.Settings.ViewEditFontStyle = 1;
    picker.choice.FontNoChange = 1;
    editor.cmdFont.Press();
    EXPECT_EQ(t.app.Settings.ViewEditFontStyle, 1);
}

// Kept for compatibility: help-note-on-fields.
TEST_F(ViewEditField, HasAHelpNote) {
    Edit(1);
    t.user.Answer(
        {u"N.B.: Text fields are only be saved in RTF files.\r\nHyperlink fields are saved in RTF, DOC, "
         u"DOCX and HTML files.\r\nThese fields can point to a file which can loaded when clicking on "
         u"the field.",
         MessageIcon::Information},
        Answer::Ok);
    editor.cmdHelp.Press();
}

TEST_F(ViewEditField, AFileIsChosenForTheLink) {
    Edit(2);
    chooser.answer = u"C:\\b.rtf";
    editor.cmdGetFile.Press();
    EXPECT_EQ(editor.txtFieldURL.Text.Get(), u"C:\\b.rtf");
}

TEST_F(ViewEditField, TheNoteHasItsKeys) {
    class Dialogs final : public TextDialogs {
    public:
        std::vector<TextDialog> shown;
        void Show(TextDialog dialog, TextControl&) override { shown.push_back(dialog); }
    };
    class Clip final : public ClipboardView {
    public:
        int shown = 0;
        void Show() override { ++shown; }
        bool Choose() override { return false; }
    };
    Edit(1);
    TextControl& note = editor.txtFieldEntry;
    Dialogs dialogs;
    note.Dialogs = &dialogs;
    Clip clip;
    t.app.SetPort<ClipboardView>(&clip);
    EXPECT_TRUE(Press(note, 'A', Mask::Ctrl));
    EXPECT_EQ(note.SelText(), u"my\r\nnote");
    EXPECT_TRUE(Press(note, Key::Delete));
    EXPECT_EQ(note.All(), u"");
    EXPECT_FALSE(Press(note, Key::Delete));
    EXPECT_TRUE(Press(note, 'F', Mask::Ctrl));
    EXPECT_TRUE(Press(note, 'R', Mask::Ctrl));
    EXPECT_EQ(dialogs.shown, (std::vector<TextDialog>{TextDialog::Find, TextDialog::Replace}));
    EXPECT_TRUE(Press(note, Key::F(3), Mask::Ctrl));
    EXPECT_TRUE(note.ControlChars);
    EXPECT_TRUE(Press(note, Key::Return, Mask::Ctrl | Mask::Shift));
    EXPECT_EQ(note.All(), u"++++++++++++++++++++++++++++++++++++\r\n");
    note.SetSelStart(1);
    note.SetSelText(u"x");
    EXPECT_TRUE(Press(note, 'S', Mask::Alt));
    EXPECT_EQ(note.All().substr(0, 3), u"++x");
    EXPECT_FALSE(Press(note, 'V', Mask::Ctrl));
    for (const int mask : {3, 4, 5, 6, 7})
        EXPECT_TRUE(Press(note, 'V', mask));
    EXPECT_EQ(clip.shown, 5);
}

TEST_F(ViewEditField, ThePaneHasItsKeys) {
    Edit(1);
    editor.cmdAllFields.Press();
    EXPECT_TRUE(Press(editor.txtAllFields, 'A', Mask::Ctrl));
    EXPECT_GT(editor.txtAllFields.SelLength(), 10);
    EXPECT_TRUE(Press(editor.txtAllFields, Key::Tab, Mask::Shift));
    EXPECT_EQ(editor.Focused(), &editor.txtFieldURL);
    EXPECT_FALSE(Press(editor.txtAllFields, Key::Return, Mask::Ctrl | Mask::Shift));
}

TEST_F(ViewEditField, IsNeverSmallerThanItsLeastSizeAndKeepsItsPlace) {
    t.app.Settings.ViewEditWidth = 100;
    t.app.Settings.ViewEditHeight = 100;
    Edit(1);
    EXPECT_EQ(editor.Width.Get(), Twips{8430});
    EXPECT_EQ(editor.Height.Get(), Twips{5000});
    editor.Left = Twips{900};
    editor.Close();
    EXPECT_EQ(t.app.Settings.ViewEditLeft, 900);
    EXPECT_EQ(t.app.Settings.ViewEditWidth, 8430);
}

} // namespace
} // namespace korvane
