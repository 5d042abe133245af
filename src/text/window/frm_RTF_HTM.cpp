#include "text/window/frm_RTF_HTM.h"

#include "common/path/PathStyle.h"
#include "common/text/CaseFold.h"
#include "context/App.h"
#include "context/FileChooser.h"
#include "context/StandardMessages.h"
#include "context/WindowFitting.h"
#include "context/exchange/ListerRequest.h"
#include "context/exchange/MessageQuestion.h"
#include "context/exchange/TextWindowState.h"
#include "context/ports/ColourPicker.h"
#include "context/ports/TextKeeper.h"
#include "controls/KeyTable.h"
#include "dialogs/Questions.h"
#include "dialogs/frmMyMsgBox.h"
#include "dialogs/frmTxtInfo.h"
#include "platform/Clock.h"
#include "platform/FileSystem.h"
#include "platform/Screen.h"
#include "text/commands/TextCommands.h"
#include "text/commands/TextFileTypes.h"
#include "text/fields/FieldEvents.h"
#include "text/paragraph/ParagraphTarget.h"

#include <chrono>
#include <utility>

namespace korvane {

namespace {

constexpr StoredPlace kPlace{&Settings::RtfLeft, &Settings::RtfTop, &Settings::RtfWidth,
                             &Settings::RtfHeight};

constexpr TextView kUntitled = u"Untitled.rtf";
constexpr std::int32_t kMargin = 240;
constexpr Twips kLeftOfText{320};
/// How long the name of the saved file can be read.
constexpr std::chrono::milliseconds kSavedNote{500};
/// What another window leaves in `DialogResult` when the text counts as unchanged.
constexpr std::int16_t kUnchanged = 99;
constexpr Colour kWhite{0xFFFFFF};

/// These characters don't alter a text when they are typed: Ctrl-C, Ctrl-S, Ctrl-Y, Esc and a space.
constexpr TextView kWithoutChange = u"\u0003\u0013\u0019\u001B ";

bool IsUntitled(std::int16_t opening) {
    return opening == 1 || opening == -1;
}

} // namespace

struct frm_RTF_HTM::Tables {
    using Window = frm_RTF_HTM;

    static constexpr MenuRow<Window> kMenu[] = {
        {0, "mnuFile", u"&File", ""},
        {1, "mnuFile_Open", u"&Open text file", "", &Window::cmdOpen},
        {1, "mnuFile_New", u"&New text", "", &Window::cmdNew},
        {1, "", u"", ""},
        {1, "mnuSave", u"&Save", "", &Window::cmdSave},
        {1, "mnuFile_SaveAs", u"Sa&ve as... ", "", &Window::cmdSaveAs},
        {1, "mnuInfo", u"&Info on file", "", &Window::cmdInfo},
        {1, "", u"", ""},
        {1, "mnuExit", u"E&xit    ( Alt--F4 )", "", &Window::cmdExit},
        {0, "mnuEdit", u"&Edit", ""},
        {1, "mnuFind", u"&Find string", "", &Window::cmdFind},
        {1, "mnuReplace", u"Find and &replace", "", &Window::cmdReplace},
        {1, "", u"", ""},
        {1, "mnuEdit_ViewAndPaste", u"Copy-&Paste", "", &Window::cmdViewAndPaste},
        {1, "mnuWordList", u"&Word list", "", &Window::cmdWordList},
        {1, "", u"", ""},
        {1, "mnuAlign", u"&Align and indent", "", &Window::cmdAlign},
        {1, "mnuEdit_Unicode", u"&Unicode characters", "", &Window::mnuEdit_Unicode_Click},
        {1, "mnuCharacters", u"AS&CII table", "", &Window::mnuCharacters_Click},
        {1, "mnuSymbols", u"Sym&bols", "", &Window::mnuSymbols_Click},
        {1, "mnuFonts", u"F&onts", "", &Window::cmdFonts},
        {1, "", u"", ""},
        {1, "mnuParagraphFormatting", u"Paragrap&h formatting", "", &Window::cmdParagraph},
        {1, "mnuBulletsNumbering", u"Bu&llets and numbering", "", &Window::cmdBulletsNumbering},
        {1, "", u"", ""},
        {1, "mnuEdit_GetHTML", u"Get &HTML code", "", &Window::mnuEdit_GetHTML_Click},
        {1, "mnuEdit_ConvertHTML", u"Convert HT&ML to formatting", "", &Window::DoConvertHTML},
        {0, "mnuView_Menu", u"&View", ""},
        {1, "mnuView_ZoomIn", u"Zoom &in    ( Ctrl+NumPlus )", "", &Window::cmdZoomIn},
        {1, "mnuView_ZoomOut", u"Zoom &out    ( Ctrl+NumMinus )", "", &Window::cmdZoomOut},
        {1, "", u"", ""},
        {1, "mnuPageSetup", u"Page set&up", "", &Window::cmdPageSetup},
        {1, "", u"", ""},
        {1, "mnuView", u"&View mode    ( Alt-F3 )", "", &Window::cmdViewMode},
        {1, "mnuFormatting", u"&Control characters", "", &Window::cmdFormatting},
        {1, "mnuColours", u"Set co&lours", "", &Window::mnuColours_Click},
        {0, "mnuMisc", u"&Misc", ""},
        {1, "mnuExplorer", u"Windows E&xplorer", "", &Window::mnuExplorer_Click},
        {1, "", u"", ""},
        {1, "mnuDateInsert", u"Insert &date", "", &Window::mnuDateInsert_Click},
        {1, "mnuTimer", u"Show time and date", "", &Window::mnuTimer_Click},
    };

    // The rows are tested from top to bottom.
    static constexpr WindowKey<Window> kKeys[] = {
        {"Esc", &Window::FocusText, KeyUse::Passes},
        {"Any+Tab", &Window::TabKey},
        {"Ctrl+NumMinus", &Window::DoThisZoomOut},
        {"Ctrl+NumPlus", &Window::DoThisZoomIn},
        {"Ctrl+S", &Window::SaveThisFile},
        {"Ctrl+F12", &Window::SaveThisFile},
        {"Ctrl+Shift+Return", &Window::WriteCtrlShiftReturn},
        {"Ctrl+Alt+L", &Window::mnuEdit_GetHTML_Click},
        {"Alt+Return", &Window::WriteAltReturn},
        {"Alt+S", &Window::Swap},
        {"Alt+F3", &Window::mnuView_Click},
        {"Ctrl+7", &Window::mnuPageSetup_Click},
        {"Ctrl+8", &Window::TableAttributes},
        {"Ctrl+T", &Window::InsertTable},
        {"Ctrl+0", &Window::SetTabs},
        // The key is taken and starts nothing.
        {"Ctrl+Alt+Y", {}},
        {"Ctrl+1", &Window::mnuFonts_Click},
        {"Ctrl+2", &Window::mnuParagraphFormatting_Click},
        {"Ctrl+4", &Window::mnuParagraphFormatting_Click},
        {"Ctrl+X", &Window::NoteEdit, KeyUse::Passes},
        {"Ctrl+V", &Window::NoteEdit, KeyUse::Passes},
        {"Ctrl+A", &Window::SelectAll},
        {"Ctrl+Shift+B", &Window::Bold},
        {"Ctrl+Shift+U", &Window::Underline},
        {"Ctrl+Shift+I", &Window::Italic},
        {"Ctrl+Shift+Home", &Window::ClearFormat},
        {"Ctrl+Alt+V", &Window::mnuEdit_ViewAndPaste_Click},
        {"Alt+Y", &Window::Yellow},
        {"Ctrl+Shift+L", &Window::DockLeft},
        {"Ctrl+Shift+R", &Window::DockRight},
        // An earlier row has this key. Kept for compatibility: ctrl-alt-l-opens-tags.
        {"Ctrl+Alt+L", &Window::DockLeftFilling},
        {"Ctrl+Alt+R", &Window::DockRightFilling},
        {"Ctrl+Shift+F2", &Window::CentreAt90},
        {"Ctrl+Alt+F5", &Window::Webmail},
        {"Ctrl+Alt+D", &Window::Desktop},
        {"Ctrl+Alt+X", &Window::mnuExplorer_Click},
        {"Alt+B", &Window::StartBrowser},
        {"Any+Shift+F11", &Window::mnuTimer_Click},
        {"Any+Ctrl+F11", &Window::mnuTimer_Click},
        {"Any+Alt+F11", &Window::mnuTimer_Click},
        {"Ctrl+Shift+F1", &Window::StartLorrit},
        {"Alt+U", &Window::OpenUrl},
        {"Ctrl+F", &Window::NoteFind, KeyUse::Passes},
    };
};

frm_RTF_HTM::frm_RTF_HTM(App& app)
    : TextToolsForm(app, "frm_RTF_HTM"), OfficeMenu1(*this, "OfficeMenu1", Tables::kMenu) {
    Wire();
    WireButtons();
}

frm_RTF_HTM::~frm_RTF_HTM() {
    if (Context().Port<OpenText>() == &openText_) Context().SetPort<OpenText>(nullptr);
}

void frm_RTF_HTM::Wire() {
    ThisTextCtrl.KeyDown = KeysOf(*this, Tables::kKeys);
    ThisTextCtrl.KeyPress = [this](TypedText& typed) { Typed(typed); };
    ThisTextCtrl.Change = [this] { TextAltered = 1; };
    ThisTextCtrl.Error = [this](const Text& reason) { ThisTextCtrl_Error(reason); };
    const auto showLine = [this](Twips at) {
        tabHairline.Left = at - ThisTextCtrl.Left.Get().Number();
        tabHairline.Visible = true;
    };
    TXRuler1.MouseDown = showLine;
    TXRuler1.MouseMove = [this, showLine](Twips at) {
        showLine(at);
        TextAltered = 1;
    };
    TXRuler1.MouseUp = [this] { tabHairline.Visible = false; };
    tabHairline.Visible = false;
    lblFileName.Visible = false;
    rtfTempText.Visible = false;
    ThisTextCtrl.FieldEntered = [this](int field) {
        ThisTextCtrl.ToolTipText = FieldTip(ThisTextCtrl, field);
    };
    ThisTextCtrl.FieldLeft = [this] { ThisTextCtrl.ToolTipText = Text(); };
    ThisTextCtrl.FieldClicked = [this](int) {
        ThisTextCtrl.ToolTipText = Text();
        EditThisField();
    };
    ThisTextCtrl.HyperlinkClicked = [this](int field, int, const Text& link) {
        ShowHyperlink(Context(), ThisTextCtrl, rtfTempText, field, link);
    };
    for (TextControl* control : {&ThisTextCtrl, &rtfTempText}) {
        control->Files = Context().Port<TextFiles>();
        control->Dialogs = Context().Port<TextDialogs>();
    }
}

void frm_RTF_HTM::WireButtons() {
    cmdNew.Click = [this] { mnuFile_New_Click(); };
    cmdOpen.Click = [this] { mnuFile_Open_Click(); };
    cmdSave.Click = [this] { SaveThisFile(); };
    cmdSaveAs.Click = [this] { mnuFile_SaveAs_Click(); };
    cmdInfo.Click = [this] { mnuInfo_Click(); };
    cmdWordList.Click = [this] { mnuWordList_Click(); };
    cmdViewAndPaste.Click = [this] { mnuEdit_ViewAndPaste_Click(); };
    cmdFind.Click = [this] { mnuFind_Click(); };
    cmdReplace.Click = [this] { mnuReplace_Click(); };
    cmdFonts.Click = [this] { mnuFonts_Click(); };
    cmdAlign.Click = [this] { mnuAlign_Click(); };
    cmdParagraph.Click = [this] { mnuParagraphFormatting_Click(); };
    cmdPageSetup.Click = [this] { mnuPageSetup_Click(); };
    cmdBulletsNumbering.Click = [this] { mnuBulletsNumbering_Click(); };
    cmdFormatting.Click = [this] { mnuFormatting_Click(); };
    cmdViewMode.Click = [this] { mnuView_Click(); };
    cmdZoomIn.Click = [this] { DoThisZoomIn(); };
    cmdZoomOut.Click = [this] { DoThisZoomOut(); };
    cmdCentreOnScreen.Click = [this] { cmdCentreOnScreen_Click(); };
    cmdExit.Click = [this] { Close(); };
}

void frm_RTF_HTM::ClearAltered() {
    TextAltered = 0;
    ThisTextCtrl.SetDataChanged(false);
    ForgetKept();
}

void frm_RTF_HTM::ForgetKept() {
    auto* const keeper = Context().Port<TextKeeper>();
    if (keeper != nullptr) keeper->Forget(std::exchange(keptIn_, {}));
}

// Opening and closing.

void frm_RTF_HTM::Load() {
    TextWindowState& state = Context().Exchange<TextWindowState>();
    RestorePlace(Context(), *this, kPlace);
    ThisFileName = IsUntitled(state.TextWindowUntitled) ? Text(kUntitled) : state.TextWindowFile;
    Caption = ThisFileName;
    ClearAltered();
    TXRuler1.Target = &ThisTextCtrl;
    TXButtonBar1.Target = &ThisTextCtrl;
    TXStatusBar1.Target = &ThisTextCtrl;
    ApplyUnits(Context(), ThisTextCtrl);
    ThisTextCtrl.Left = kLeftOfText;
    LoadThisFile();
    state.TextWindowOpen = 1;
    Context().SetPort<OpenText>(&openText_);
    // Before the first zoom of all, there is none in the settings.
    if (Context().Settings.RtfZoom > 0) ThisTextCtrl.ZoomFactor = Context().Settings.RtfZoom;
    ClearAltered();
}

bool frm_RTF_HTM::MayClose() {
    if (!Altered()) return true;
    switch (AskSaveChanges()) {
    case MsgAnswer::SaveDirectly:
        SaveThisFile();
        return true;
    case MsgAnswer::SaveUnderAName:
        mnuFile_SaveAs_Click();
        // The user may have cancelled this too.
        return !Altered();
    case MsgAnswer::DoNotSave:
        return true;
    case MsgAnswer::Cancel:
        break;
    }
    ThisTextCtrl.SetFocus();
    return false;
}

bool frm_RTF_HTM::QueryUnload() {
    return MayClose();
}

void frm_RTF_HTM::Unload() {
    Context().Settings.RtfZoom = static_cast<std::int16_t>(ThisTextCtrl.ZoomFactor.Get());
    Context().Exchange<TextWindowState>().TextWindowOpen = 0;
    Context().SetPort<OpenText>(nullptr);
    ForgetKept();
    StorePlace(Context(), *this, kPlace);
}

void frm_RTF_HTM::Activate() {
    ThisTextCtrl.SetFocus();
    // Kept for compatibility: text-window-result-99.
    if (Context().DialogResult == kUnchanged) TextAltered = 0;
}

void frm_RTF_HTM::Resize() {
    if (State != FormState::Minimised) ThisTextCtrl.Left = kLeftOfText;
}

void frm_RTF_HTM::View(TextView path) {
    if (!MayClose()) return;
    ThisFileName = Text(path);
    Context().Exchange<TextWindowState>().TextWindowUntitled = 0;
    LoadThisFile();
    ClearAltered();
}

void frm_RTF_HTM::ViewUnsaved(const UnsavedText& text) {
    if (!MayClose()) return;
    if (!ThisTextCtrl.Load(text.file, TextFormat::Rtf)) return;
    TakePage();
    ThisFileName = text.name;
    NoteCut();
    Caption = ThisFileName;
    const bool hasFile = Context().Files().Style().IsFullPath(text.name);
    Context().Exchange<TextWindowState>().TextWindowUntitled = hasFile ? 0 : 1;
    ClearAltered();
    TextAltered = 1;
    keptIn_ = text.file;
    // The list has the text that is given here.
    if (auto* const keeper = Context().Port<TextKeeper>()) keeper->Adopt(Text(keptIn_));
}

void frm_RTF_HTM::KeepUnsaved() {
    auto* const keeper = Context().Port<TextKeeper>();
    if (keeper != nullptr && Altered())
        keptIn_ = keeper->Keep(keptIn_, ThisFileName, ThisTextCtrl.SaveToMemory(TextFormat::Rtf));
}

// Files.

void frm_RTF_HTM::TakePage() {
    for (int index = 0; index < static_cast<int>(doc::Page::kSizes); ++index) {
        const int value = ThisTextCtrl.LoadSaveAttribute(index);
        if (value > 0) ThisTextCtrl.SetPageSize(static_cast<doc::Page::Size>(index), value);
    }
}

void frm_RTF_HTM::LoadThisFile() {
    FileSystem& files = Context().Files();
    if (ThisFileName.empty() || !files.FileExists(ThisFileName)) return;
    ThisTextCtrl.SetPageSize(doc::Page::Width, Width.Get().Number());
    for (const auto margin :
         {doc::Page::MarginLeft, doc::Page::MarginTop, doc::Page::MarginRight, doc::Page::MarginBottom})
        ThisTextCtrl.SetPageSize(margin, kMargin);
    // An "Untitled.rtf" that is there isn't read. Kept for compatibility: untitled-text-not-read.
    if (Context().Exchange<TextWindowState>().TextWindowUntitled == 0) {
        if (!files.Style().IsFullPath(ThisFileName))
            ThisFileName = files.Style().JoinPath(files.CurrentDir(), ThisFileName);
        if (files.FileExists(ThisFileName)) {
            LoadFile();
        } else {
            Text missing = ThisFileName;
            ShowCannotLocate(Context(), missing);
        }
        TakePage();
    }
    Caption = ThisFileName;
}

void frm_RTF_HTM::LoadFile() {
    const int format = FileTypeForLoad(ThisFileName);
    SetLoadSaveAttributes(ThisTextCtrl, format);
    if (!ThisTextCtrl.Load(ThisFileName, format)) return TellNeeded(format, FileUse::Reading);
    NoteCut();
    if (IsCut()) Warn(Context(), u"The file is larger than a text can be. Only its beginning is shown.");
}

/// After a load.
void frm_RTF_HTM::NoteCut() {
    cutFile_ = ThisTextCtrl.CutAtLoad() ? ThisFileName : Text();
}

/// Nothing takes the place of a file whose end isn't in the text.
bool frm_RTF_HTM::SaveFile() {
    if (!IsCut()) return SaveByName(ThisTextCtrl, ThisFileName);
    ThisTextCtrl_Error(Text(TextControl::kNotWritten));
    return false;
}

void frm_RTF_HTM::ShowButtons(bool visible) {
    for (Control* const control : Controls()) {
        if (dynamic_cast<CommandButton*>(control) != nullptr) control->Visible = visible;
    }
}

void frm_RTF_HTM::SaveThisFile() {
    Context().Screen().ProcessMessages();
    ShowButtons(false);
    lblFileName.Caption = u" Saving:  " + ThisFileName;
    lblFileName.Visible = true;
    {
        const Hourglass hourglass(Context().Screen());
        Context().Screen().ProcessMessages();
        if (!SaveFile()) {
            TellNeeded(FileTypeForSave(ThisFileName), FileUse::Writing);
            // What is kept is all there is of the text then.
            keptIn_.clear();
        }
        Context().Clock().Wait(kSavedNote);
        ShowButtons(true);
        lblFileName.Visible = false;
        // The text counts as saved even after a failure. Kept for compatibility: failed-text-save-counts.
        ClearAltered();
    }
}

void frm_RTF_HTM::ThisTextCtrl_Error(const Text& reason) {
    const bool saving = reason.find(TextControl::kNotWritten) != Text::npos;
    Warn(Context(), saving ? u"Error saving file directly.\r\n\r\nPlease use \"Save as\" function."
                           : u"Error executing command just now.\r\n\r\nTry again in a moment.");
}

/// Tells the user what to install, where that is what the step failed for.
void frm_RTF_HTM::TellNeeded(int format, FileUse use) {
    const Text program = ThisTextCtrl.Files == nullptr ? Text() : ThisTextCtrl.Files->Needed(format, use);
    if (!program.empty())
        Warn(Context(), u"Files of this kind need the program " + program + u", which is not installed.");
}

MsgAnswer frm_RTF_HTM::AskSaveChanges() {
    MessageQuestion& question = Context().Exchange<MessageQuestion>();
    question.MsgAnswer = MsgAnswer::Cancel;
    question.MsgFilePath = Caption;
    frmMyMsgBox(Context()).ShowModal();
    const bool needsName = Caption.Get().find(u"Untitled") != Text::npos || IsCut();
    if (question.MsgAnswer == MsgAnswer::SaveDirectly && needsName)
        question.MsgAnswer = MsgAnswer::SaveUnderAName;
    ThisTextCtrl.SetFocus();
    return question.MsgAnswer;
}

// The answers to save do not save. Kept for compatibility: new-text-saves-nothing.

void frm_RTF_HTM::mnuFile_New_Click() {
    if (Altered() && AskSaveChanges() == MsgAnswer::Cancel) return;
    ThisTextCtrl.SetAll(u"");
    cutFile_.clear();
    ThisFileName = Text(kUntitled);
    Caption = ThisFileName;
    ClearAltered();
}

void frm_RTF_HTM::mnuFile_Open_Click() {
    if (Altered() && AskSaveChanges() == MsgAnswer::Cancel) return;
    const KeepCurrentDir keep(Context());
    ShowFileChooser(Context(), ChooserMode::Load, u"*.*", u"Load a file into text window");
    const Text& path = Context().Exchange<ListerRequest>().ChosenFilePath;
    if (path.empty()) return;
    ThisFileName = path;
    Context().Exchange<TextWindowState>().TextWindowUntitled = 0;
    LoadThisFile();
    ClearAltered();
}

void frm_RTF_HTM::mnuFile_SaveAs_Click() {
    const Text directory = Context().Files().CurrentDir();
    ShowFileChooser(Context(), ChooserMode::Save, u"*.*", u"Save text to disk", Caption.Get());
    ListerRequest& request = Context().Exchange<ListerRequest>();
    if (request.ChosenFilePath.empty()) {
        // The save mode and the directory stay. Kept for compatibility: cancelled-save-as-stays.
        request.ListerMode = static_cast<std::int16_t>(ChooserMode::Save);
        return;
    }
    ThisFileName = request.ChosenFilePath;
    Caption = ThisFileName;
    SaveThisFile();
    Context().Files().ChangeDir(directory);
}

void frm_RTF_HTM::mnuInfo_Click() {
    FileFacts facts = FactsOfFile(Context(), ThisFileName);
    if (!ThisFileName.empty() && Context().Files().FileExists(ThisFileName)) facts.size += u" bytes";
    frmTxtInfo(Context(), facts).ShowModal();
}

// The view.

void frm_RTF_HTM::SetZoom(int percent) {
    ThisTextCtrl.ZoomFactor = percent;
    ThisTextCtrl.SetFocus();
    Context().Settings.RtfZoom = static_cast<std::int16_t>(percent);
}

void frm_RTF_HTM::DoThisZoomIn() {
    SetZoom(ZoomIn(ThisTextCtrl.ZoomFactor));
}

void frm_RTF_HTM::DoThisZoomOut() {
    SetZoom(ZoomOut(ThisTextCtrl.ZoomFactor));
}

void frm_RTF_HTM::mnuView_Click() {
    if (ThisTextCtrl.ViewMode == TextControl::kFlow) {
        ThisTextCtrl.PageViewStyle = Context().Exchange<TextWindowState>().DarkPageBackground == 1 ? 0 : 1;
        ThisTextCtrl.ViewMode = TextControl::kPages;
        ThisTextCtrl.Left = Twips{0};
    } else {
        ThisTextCtrl.ViewMode = TextControl::kFlow;
        ThisTextCtrl.Left = kLeftOfText;
    }
}

void frm_RTF_HTM::mnuFormatting_Click() {
    ThisTextCtrl.ControlChars = !ThisTextCtrl.ControlChars;
}

void frm_RTF_HTM::mnuColours_Click() {
    auto* picker = Context().Port<ColourPicker>();
    if (picker == nullptr) return;
    const Colour start = ThisTextCtrl.BackColor == kNoColour ? kWhite : ThisTextCtrl.BackColor.Get();
    const auto chosen = picker->Choose(start, ColourPicker::Extent::Full);
    if (!chosen) return;
    // One colour is for the page and for the characters. Kept for compatibility:
    // one-colour-for-page-and-text.
    ThisTextCtrl.BackColor = *chosen;
    ThisTextCtrl.SetTextBkColor(*chosen);
}

// Keys and commands on the text.

void frm_RTF_HTM::Typed(TypedText& typed) {
    if (typed.Is(u'\t') && ThisTextCtrl.SelLength() > 0) {
        typed.consumed = true;
        return;
    }
    const bool counts = typed.text.size() != 1 || kWithoutChange.find(typed.text[0]) == TextView::npos;
    if (counts) TextAltered = 1;
    const auto quote =
        Context().Settings.SmartQuotes == 1 ? SmartQuote(ThisTextCtrl, typed.text) : std::nullopt;
    if (!quote) return;
    typed.consumed = true;
    ThisTextCtrl.SetSelText(TextView(&*quote, 1));
}

void frm_RTF_HTM::mnuView_EditField_Clack() {
    EditThisField();
}

void frm_RTF_HTM::EditThisField() {
    if (!EditField(Context(), ThisTextCtrl)) return;
    TextAltered = 1;
    ThisTextCtrl.SetFocus();
}

void frm_RTF_HTM::FocusText() {
    ThisTextCtrl.SetFocus();
}

void frm_RTF_HTM::TabKey(KeyEvent& key) {
    if (ThisTextCtrl.SelLength() < 2) return ThisTextCtrl.SetSelText(u"\t");
    IndentSelection(ThisTextCtrl, key.mask, Context().Settings.TabUnitTwips);
    // This is so too when nothing was indented. Kept for compatibility: indent-always-alters.
    TextAltered = 1;
}

void frm_RTF_HTM::WriteCtrlShiftReturn() {
    ThisTextCtrl.SetSelText(Context().Settings.CtrlShiftReturnString + Text(kCrLf));
}

void frm_RTF_HTM::WriteAltReturn() {
    ThisTextCtrl.SetSelText(Context().Settings.AltReturnString + Text(kCrLf));
}

void frm_RTF_HTM::Swap() {
    SwapCharacters(ThisTextCtrl);
}

void frm_RTF_HTM::TableAttributes() {
    if (ThisTextCtrl.TableAtInputPos() > 0) return ThisTextCtrl.TableAttrDialog();
    Warn(Context(), u"Cursor not within a table or more than one cell is selected.");
}

void frm_RTF_HTM::InsertTable() {
    ThisTextCtrl.TableInsertDialog();
}

void frm_RTF_HTM::SetTabs() {
    ThisTextCtrl.TabDialog();
}

void frm_RTF_HTM::NoteEdit() {
    TextAltered = 1;
}

void frm_RTF_HTM::SelectAll() {
    ThisTextCtrl.SetSelection(0, -1);
}

void frm_RTF_HTM::Bold() {
    ToggleBold(ThisTextCtrl);
}

void frm_RTF_HTM::Underline() {
    ToggleUnderline(ThisTextCtrl);
}

void frm_RTF_HTM::Italic() {
    ToggleItalic(ThisTextCtrl);
}

void frm_RTF_HTM::ClearFormat() {
    ClearCharFormat(ThisTextCtrl);
}

void frm_RTF_HTM::Yellow() {
    MarkYellow(ThisTextCtrl);
}

/// The control's own mark stays. Kept for compatibility: ctrl-f-clears-altered.
void frm_RTF_HTM::NoteFind() {
    TextAltered = 0;
}

void frm_RTF_HTM::DoUppercase() {
    ThisTextCtrl.SetSelText(ToUpper(ThisTextCtrl.SelText()));
}

void frm_RTF_HTM::DoLowercase() {
    ThisTextCtrl.SetSelText(ToLower(ThisTextCtrl.SelText()));
}

void frm_RTF_HTM::DoSmallCaps() {
    ThisTextCtrl.SetCharAttributes(TextControl::kSmallCaps);
}

void frm_RTF_HTM::DoSuperScript() {
    ThisTextCtrl.SetBaseLine(Context().Settings.MarkupOption);
}

void frm_RTF_HTM::DoSubScript() {
    ThisTextCtrl.SetBaseLine(-Context().Settings.MarkupOption);
}

void frm_RTF_HTM::AssignAltAKey() {
    WriteSingleQuotes(ThisTextCtrl);
    ThisTextCtrl.SetFocus();
}

} // namespace korvane
