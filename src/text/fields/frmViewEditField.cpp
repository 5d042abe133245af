#include "text/fields/frmViewEditField.h"

#include "common/number/Number.h"
#include "context/App.h"
#include "context/WindowFitting.h"
#include "context/exchange/FieldInTransit.h"
#include "context/exchange/FontChoice.h"
#include "context/ports/ClipboardView.h"
#include "context/ports/ColourPairPicker.h"
#include "context/ports/FontPicker.h"
#include "context/ports/SystemFileDialog.h"
#include "controls/KeyTable.h"
#include "dialogs/Questions.h"
#include "platform/FileSystem.h"
#include "platform/MessageBoxes.h"
#include "text/commands/TextCommands.h"
#include "text/commands/TextFileTypes.h"
#include "text/fields/FieldNotes.h"

#include <algorithm>

namespace korvane {

namespace {

constexpr StoredPlace kPlace{&Settings::ViewEditLeft, &Settings::ViewEditTop, &Settings::ViewEditWidth,
                             &Settings::ViewEditHeight};
constexpr Twips kLeastWidth{8430};
constexpr Twips kLeastHeight{5000};

constexpr int kNote = 0;
constexpr int kHyperlink = 1;

/// The colours of fields as long as none is chosen: links are blue, notes black, and both are on white.
constexpr std::int32_t kFirstLinkColour = 0xFF0000;
constexpr std::int32_t kWhite = 0xFFFFFF;

constexpr int kRaised = 1;
constexpr int kLowered = 2;

/// Goes through the fields in their order and makes each the current one for `visit`. Afterwards the field
/// that was the current one before is it again.
template <class Visit>
void ForEachField(TextControl& control, const Visit& visit) {
    const int current = control.FieldCurrent();
    for (int field = control.FieldNext(0); field != 0; field = control.FieldNext(field)) {
        control.SetFieldCurrent(field);
        visit(field);
    }
    control.SetFieldCurrent(current);
}

/// Selects the text of the current field.
void SelectField(TextControl& control) {
    control.SetSelection(control.FieldStart() - 1, static_cast<int>(control.FieldText().size()));
}

} // namespace

struct frmViewEditField::Tables {
    using Window = frmViewEditField;

    static constexpr MenuRow<Window> kMenu[] = {
        {0, "mnuFile", u"&File", ""},
        {1, "mnuWriteBack", u"&Write back changes", "", &Window::cmdWriteBack},
        {1, "mnuNewField", u"Create &new field", "", &Window::cmdCreateField},
        {1, "mnuSave", u"&Save to disk", "", &Window::cmdSave},
        {1, "mnuExit", u"E&xit", "", &Window::cmdExit},
        {0, "mnuViewMenu", u"&View", ""},
        {1, "mnuAllFields", u"&All fields", "", &Window::cmdAllFields},
        {1, "mnuHideAllFieldsPane", u"Hi&de fields", "", &Window::cmdHide},
        {1, "mnuHelp", u"&Help note", "", &Window::cmdHelp},
        {0, "mnuFormat", u"F&ormat", ""},
        {1, "mnuFont", u"&Font for link", "", &Window::cmdFont},
        {1, "mnuFontEdit", u"Font for &edit window", "", &Window::cmdFontEdit},
        {1, "mnuHyperlinkColour", u"&Hyperlink colours", "", &Window::cmdHyperColour},
        {1, "mnuTextlinkColour", u"&Text field colours", "", &Window::cmdTextColour},
        {1, "mnuUpdateColours", u"&Update colours in text", "", &Window::mnuUpdateColours_Click},
    };
    static constexpr WindowKey<Window> kKeys[] = {{"Esc", &Window::Close}};
    static constexpr WindowKey<Window> kBothKeys[] = {
        {"Ctrl+S", &Window::cmdSave},   {"Ctrl+F12", &Window::cmdSave},
        {"Ctrl+A", &Window::SelectAll}, {"Ctrl+F", &Window::Find},
        {"Ctrl+R", &Window::Replace},   {"Ctrl+F3", &Window::ToggleControlChars},
        {"Alt+S", &Window::Swap},       {"Delete", &Window::DeleteKey},
    };
    static constexpr WindowKey<Window> kNoteKeys[] = {
        {"Ctrl+Shift+Return", &Window::WritePlusSigns},
        {"Ctrl+V", &Window::NoteChange, KeyUse::Passes},
        {"Any+Alt+V", &Window::PasteView},
        {"Ctrl+Shift+V", &Window::PasteView},
    };
    static constexpr WindowKey<Window> kPaneKeys[] = {{"Shift+Tab", &Window::GoToUrl}};
};

frmViewEditField::frmViewEditField(App& app, TextControl& document)
    : Form(app.Forms(), "frmViewEditField", u"View and edit field"),
      OfficeMenu1(*this, "OfficeMenu1", Tables::kMenu),
      app_(app),
      document_(document) {
    Wire();
}

void frmViewEditField::Wire() {
    const auto note = [this] { NoteChange(); };
    for (TextBox* const box : {&txtFieldLabel, &txtFieldURL})
        box->Change = note;
    txtFieldEntry.Change = note;
    for (OptionButton* const kind : {&optHyperLink, &optTextField}) {
        kind->Click = [this] {
            NoteChange();
            ShowKind();
        };
    }
    txtFieldEntry.KeyDown = [this](KeyEvent& key) {
        if (!RunKey(Tables::kBothKeys, *this, key)) RunKey(Tables::kNoteKeys, *this, key);
    };
    txtAllFields.KeyDown = [this](KeyEvent& key) {
        if (!RunKey(Tables::kBothKeys, *this, key)) RunKey(Tables::kPaneKeys, *this, key);
    };
    for (TextControl* const control : {&txtFieldEntry, &txtAllFields}) {
        control->Files = app_.Port<TextFiles>();
        control->Dialogs = app_.Port<TextDialogs>();
    }
    cmdWriteBack.Click = [this] { cmdWriteBack_Click(); };
    cmdCreateField.Click = [this] { cmdCreateField_Click(); };
    cmdAllFields.Click = [this] { cmdAllFields_Click(); };
    cmdHide.Click = [this] { cmdHide_Click(); };
    cmdSave.Click = [this] { cmdSave_Click(); };
    cmdFont.Click = [this] { cmdFont_Click(); };
    cmdFontEdit.Click = [this] { cmdFontEdit_Click(); };
    cmdHyperColour.Click = [this] { cmdHyperColour_Click(); };
    cmdTextColour.Click = [this] { cmdTextColour_Click(); };
    cmdHelp.Click = [this] { cmdHelp_Click(); };
    cmdGetFile.Click = [this] { cmdGetFile_Click(); };
    cmdExit.Click = [this] { Close(); };
}

// Opening and closing.

void frmViewEditField::Load() {
    RestorePlace(app_, *this, kPlace);
    Width = std::max(Width.Get(), kLeastWidth);
    Height = std::max(Height.Get(), kLeastHeight);
    TakeFirstColours();
    ShowColours();
    ShowPane(false);
    ShowField();
    ShowKind();
    altered_ = false;
}

void frmViewEditField::ShowField() {
    const FieldInTransit& transit = app_.Exchange<FieldInTransit>();
    const bool existing = transit.EditingExisting == 1;
    const bool hyperlink = app_.Settings.ViewEditOption == kHyperlink;
    (hyperlink ? optHyperLink : optTextField).Value = true;
    ShowEditFont();
    if (existing) {
        txtFieldLabel.Text = transit.FieldLabelText;
        txtFieldURL.Text = hyperlink ? transit.FieldLinkData : Text();
        if (!hyperlink) WriteNote(txtFieldEntry, transit.FieldLinkData);
        txtFieldEntry.SetSelStart(0);
    } else {
        if (hyperlink && txtFieldURL.Text.Get().empty()) txtFieldURL.Text = u"http://www.";
        txtFieldLabel.Text = transit.LastFieldLabel.empty() ? u"(enter name)" : transit.LastFieldLabel;
        txtFieldLabel.SelectAll();
    }
    // Nothing opens the window to make a field.
    cmdCreateField.Enabled = false;
    cmdWriteBack.Enabled = existing;
}

void frmViewEditField::ShowKind() {
    const bool hyperlink = optHyperLink.Value;
    txtFieldURL.Enabled = hyperlink;
    cmdGetFile.Enabled = hyperlink;
    txtFieldEntry.Enabled = !hyperlink;
}

/// Where nobody has chosen colours yet, all four are black.
void frmViewEditField::TakeFirstColours() {
    Settings& settings = app_.Settings;
    if (settings.Spare106 != 0 || settings.Spare107 != 0 || settings.Spare108 != 0 || settings.Spare109 != 0)
        return;
    settings.Spare106 = kFirstLinkColour;
    settings.Spare107 = kWhite;
    settings.Spare109 = kWhite;
}

void frmViewEditField::ShowColours() {
    lblText.ForeColor = Colour{app_.Settings.Spare108};
    lblText.BackColor = Colour{app_.Settings.Spare109};
    lblURL.ForeColor = Colour{app_.Settings.Spare106};
    lblURL.BackColor = Colour{app_.Settings.Spare107};
}

void frmViewEditField::ShowPane(bool all) {
    allShown_ = all;
    txtFieldEntry.Visible = !all;
    txtAllFields.Visible = all;
}

/// Gives the note the font of the editor, where one was chosen.
void frmViewEditField::ShowEditFont() {
    const FieldInTransit& transit = app_.Exchange<FieldInTransit>();
    txtFieldEntry.SetSelection(0, -1);
    txtFieldEntry.SetFontName(transit.FieldEditFontName);
    txtFieldEntry.SetFontSize(transit.FieldEditFontSize);
    txtFieldEntry.SetSelStart(0);
}

bool frmViewEditField::QueryUnload() {
    if (!altered_) return true;
    ShowPane(false);
    txtAllFields.Visible = true;
    const Answer answer = app_.Messages().Show(
        {u"Write back changes to field?", MessageIcon::Question, MessageButtons::YesNoCancel});
    if (answer == Answer::Yes) WriteFields();
    return answer != Answer::Cancel;
}

void frmViewEditField::Unload() {
    app_.Settings.ViewEditOption = optHyperLink.Value ? kHyperlink : kNote;
    StorePlace(app_, *this, kPlace);
}

void frmViewEditField::KeyDown(KeyEvent& key) {
    RunKey(Tables::kKeys, *this, key);
}

// Writing back.

bool frmViewEditField::RefusedForAll() {
    if (allShown_) Warn(app_, u"Option only available when editing a single field.");
    return allShown_;
}

void frmViewEditField::cmdWriteBack_Click() {
    if (RefusedForAll()) return;
    WriteFields();
    Close();
}

/// Without a current field the document stays as it is. Kept for compatibility: write-back-without-field.
void frmViewEditField::WriteFields() {
    FieldInTransit& transit = app_.Exchange<FieldInTransit>();
    transit.FieldNumber = static_cast<std::int16_t>(document_.FieldCurrent());
    if (transit.FieldNumber >= 1) PutNewField();
    transit.LastFieldLabel = txtFieldLabel.Text;
    altered_ = false;
}

void frmViewEditField::PutNewField() {
    const Settings& settings = app_.Settings;
    const doc::Step together(document_.Store());
    SelectField(document_);
    document_.SetSelText({});
    document_.SetFontName(settings.ViewEditFontName);
    document_.SetFontSize(settings.ViewEditFontSize);
    document_.SetFontBold(app_.Exchange<FieldInTransit>().FieldFontBold);
    document_.FieldInsert({});
    document_.SetFieldCurrent(document_.FieldAtInputPos());
    document_.SetFieldText(txtFieldLabel.Text.Get());
    SelectField(document_);
    FillNewField(document_.FieldCurrent());
    const int offset = settings.MarkupOption;
    const int style = settings.ViewEditFontStyle;
    document_.SetBaseLine(style == kRaised ? offset : style == kLowered ? -offset : 0);
}

void frmViewEditField::FillNewField(int field) {
    if (optHyperLink.Value) {
        const Text url = txtFieldURL.Text;
        document_.SetFieldType(field, kHyperlink);
        document_.SetFieldTypeData(field, url);
        if (!url.empty() && app_.Files().FileExists(url)) document_.SetFieldData(field, url);
        PaintField(kHyperlink);
    } else {
        document_.SetFieldType(field, kNote);
        document_.SetFieldTypeData(field, document_.FieldText());
        document_.SetFieldData(field, NoteOf(txtFieldEntry));
        PaintField(kNote);
    }
}

/// Gives the selection the colours of fields of that kind.
void frmViewEditField::PaintField(int kind) {
    const Settings& settings = app_.Settings;
    document_.SetTextBkColor({kind == kNote ? settings.Spare109 : settings.Spare107});
    document_.SetForeColor({kind == kNote ? settings.Spare108 : settings.Spare106});
}

void frmViewEditField::cmdCreateField_Click() {
    RefusedForAll();
}

void frmViewEditField::mnuUpdateColours_Click() {
    const int start = document_.SelStart();
    int count = 0;
    document_.Redraw = false;
    {
        const doc::Step together(document_.Store());
        ForEachField(document_, [&](int field) {
            SelectField(document_);
            PaintField(document_.FieldType(field));
            ++count;
        });
    }
    document_.SetSelStart(start);
    document_.Redraw = true;
    Inform(app_, u"Colours updated for " + FormatGrouped(count) + u" fields");
}

// All fields.

void frmViewEditField::cmdAllFields_Click() {
    txtFieldEntry.Visible = false;
    txtAllFields.SetAll(u"");
    ForEachField(document_, [this](int field) {
        txtAllFields.SetSelStart(static_cast<int>(txtAllFields.All().size()));
        txtAllFields.SetFontName(u"Calibri");
        txtAllFields.SetFontSize(12);
        txtAllFields.SetFontBold(0);
        txtAllFields.SetFontItalic(0);
        txtAllFields.SetSelText(u"\n- - - [ Field: " + NumberText(field) + u":  \"" + document_.FieldText() +
                                u"\"  ] - - - - - - -\n\n");
        if (document_.FieldType(field) == kNote)
            WriteNote(txtAllFields, document_.FieldData(field));
        else
            txtAllFields.SetSelText(document_.FieldTypeData(field));
    });
    ShowPane(true);
}

void frmViewEditField::cmdHide_Click() {
    ShowPane(false);
}

void frmViewEditField::cmdSave_Click() {
    auto* dialog = app_.Port<SystemFileDialog>();
    if (dialog == nullptr) return;
    Text title = u"Save text to disk ";
    title += allShown_ ? u" (all fields)" : u" (single field)";
    const auto path = dialog->Choose(
        {SystemFileDialog::Purpose::Save, u"All files (*.*)|*.*|RTF files (*.rtf)|*.rtf", title, {}, {}, {}});
    if (!path) return;
    SaveByName(Pane(), *path);
    altered_ = false;
    Caption = u"File: " + *path;
}

// Fonts, colours and files.

void frmViewEditField::cmdFont_Click() {
    auto* picker = app_.Port<FontPicker>();
    if (RefusedForAll() || picker == nullptr) return;
    Settings& settings = app_.Settings;
    FieldInTransit& transit = app_.Exchange<FieldInTransit>();
    FontChoice& choice = app_.Exchange<FontChoice>();
    auto& attrs = choice.FontAttrs;
    attrs[FontAttr::Superscript] = settings.ViewEditFontStyle == kRaised ? 1 : 0;
    attrs[FontAttr::Subscript] = settings.ViewEditFontStyle == kLowered ? 1 : 0;
    const auto font =
        picker->Choose({settings.ViewEditFontName, settings.ViewEditFontSize, transit.FieldFontBold == 1});
    if (!font) return;
    if (choice.FontNoChange == 0) settings.ViewEditFontStyle = choice.FontBaseStyle;
    settings.ViewEditFontName = font->name;
    settings.ViewEditFontSize = static_cast<std::int16_t>(font->size);
    transit.FieldFontBold = font->bold ? 1 : 0;
}

void frmViewEditField::cmdFontEdit_Click() {
    auto* picker = app_.Port<FontPicker>();
    if (RefusedForAll() || picker == nullptr) return;
    FieldInTransit& transit = app_.Exchange<FieldInTransit>();
    const auto font = picker->Choose({transit.FieldEditFontName, transit.FieldEditFontSize});
    if (!font) return;
    transit.FieldEditFontName = font->name;
    transit.FieldEditFontSize = static_cast<std::int16_t>(font->size);
    ShowEditFont();
}

void frmViewEditField::ChooseColours(std::int32_t& fore, std::int32_t& back) {
    auto* picker = app_.Port<ColourPairPicker>();
    if (picker == nullptr) return;
    const auto pair = picker->Choose({Colour{fore}, Colour{back}});
    if (!pair) return;
    fore = pair->fore.value;
    back = pair->back.value;
    ShowColours();
}

void frmViewEditField::cmdHyperColour_Click() {
    ChooseColours(app_.Settings.Spare106, app_.Settings.Spare107);
}

void frmViewEditField::cmdTextColour_Click() {
    ChooseColours(app_.Settings.Spare108, app_.Settings.Spare109);
}

/// Kept for compatibility: help-note-on-fields.
void frmViewEditField::cmdHelp_Click() {
    Inform(app_, u"N.B.: Text fields are only be saved in RTF files.\r\n"
                 u"Hyperlink fields are saved in RTF, DOC, DOCX and HTML files.\r\n"
                 u"These fields can point to a file which can loaded when clicking on the field.");
}

void frmViewEditField::cmdGetFile_Click() {
    auto* dialog = app_.Port<SystemFileDialog>();
    if (dialog == nullptr) return;
    const auto path = dialog->Choose({SystemFileDialog::Purpose::Open,
                                      u"All files (*.*)|*.*",
                                      u"Get file name for link entry",
                                      {},
                                      {},
                                      {}});
    if (path) txtFieldURL.Text = *path;
}

// Keys of the two texts.

void frmViewEditField::SelectAll() {
    Pane().SetSelection(0, -1);
}

void frmViewEditField::Find() {
    Pane().FindReplaceDialog(1);
}

void frmViewEditField::Replace() {
    Pane().FindReplaceDialog(2);
}

void frmViewEditField::ToggleControlChars() {
    Pane().ControlChars = !Pane().ControlChars;
}

void frmViewEditField::Swap() {
    SwapCharacters(Pane());
}

/// Without a selection the key deletes the next character, as everywhere.
void frmViewEditField::DeleteKey(KeyEvent& key) {
    key.consumed = Pane().SelLength() > 0;
    if (key.consumed) Pane().DeleteSelection();
}

void frmViewEditField::WritePlusSigns() {
    txtFieldEntry.SetSelText(Text(36, u'+') + Text(kCrLf));
}

void frmViewEditField::NoteChange() {
    altered_ = true;
}

void frmViewEditField::PasteView() {
    if (auto* view = app_.Port<ClipboardView>()) view->Show();
    altered_ = true;
}

void frmViewEditField::GoToUrl() {
    txtFieldURL.SetFocus();
}

} // namespace korvane
