#include "text/words/frmHoldWordList.h"

#include "common/number/Number.h"
#include "common/path/PathStyle.h"
#include "context/App.h"
#include "context/Companions.h"
#include "context/Desktop.h"
#include "context/FileChooser.h"
#include "context/Launching.h"
#include "context/StandardMessages.h"
#include "context/WindowFitting.h"
#include "context/exchange/ListerRequest.h"
#include "context/ports/FontPicker.h"
#include "context/ports/MainWindow.h"
#include "context/ports/SystemFileDialog.h"
#include "controls/KeyTable.h"
#include "dialogs/Docking.h"
#include "dialogs/Questions.h"
#include "dialogs/Webmail.h"
#include "dialogs/frmMyInputBox.h"
#include "files/lists/ListFile.h"
#include "platform/Clipboard.h"
#include "platform/FileSystem.h"
#include "platform/MessageBoxes.h"
#include "text/words/AppendedText.h"

#include <algorithm>

namespace korvane {

namespace {

constexpr StoredPlace kPlace{&Settings::WordListLeft, &Settings::WordListTop, &Settings::WordListWidth,
                             &Settings::WordListHeight};

// A stored size below these is none.
constexpr int kLeastWidth = 1201;
constexpr int kLeastHeight = 1601;
constexpr Twips kUsualWidth{6600};
constexpr Twips kUsualHeight{7200};
/// The column fills the list.
constexpr Twips kColumn{1500};

constexpr TextView kListPatterns = u"*.lst;*.txt;*.asc";
constexpr TextView kListFilter = u"List files (*.lst)|*.lst|All files (*.*)|*.*";

/// Far more than a person collects.
constexpr std::int64_t kLargestWordList = 64'000'000;

/// From this shift mask on, U and D move a row.
constexpr int kLeastMoveMask = 3;

bool IsComment(TextView line) {
    return line.starts_with(u';');
}

Text Quoted(TextView text) {
    return u'"' + Text(text) + u'"';
}

Answer Ask(App& app, const Text& question, int defaultButton = 1) {
    return app.Messages().Show({question, MessageIcon::Question, MessageButtons::YesNoCancel, defaultButton});
}

Text WithoutLastLineEnd(Text lines) {
    if (lines.ends_with(kCrLf)) lines.resize(lines.size() - kCrLf.size());
    return lines;
}

} // namespace

struct frmHoldWordList::Tables {
    using Window = frmHoldWordList;

    static constexpr MenuRow<Window> kMenu[] = {
        {0, "mnuFile", u"&File", ""},
        {1, "mnuInfo", u"&Info on word list", "", &Window::cmdInfo},
        {1, "", u"", ""},
        {1, "mnuLoad", u"&Open", "", &Window::cmdLoad},
        {1, "mnuNew", u"&New list", "", &Window::cmdNewList},
        {1, "mnuAppendToFile", u"Append items to &file", "", &Window::cmdAppendToFile},
        {1, "mnuSave", u"&Save", "", &Window::cmdSave},
        {1, "mnuAutoSave", u"&Autosave", "", &Window::cmdAutoSave},
        {1, "", u"", ""},
        {1, "mnuCancel", u"E&xit", "", &Window::cmdCancel},
        {0, "mnuText", u"&Text", ""},
        {1, "mnuInsert", u"&Copy to text", "", &Window::cmdOk},
        {1, "mnuFindString", u"&Find string in text", "", &Window::cmdFind},
        {0, "mnuList", u"&List", ""},
        {1, "mnuEdit", u"&Edit entry", "", &Window::cmdEdit},
        {1, "mnuEntry", u"&Add entry", "", &Window::cmdEntry},
        {1, "mnuDelete", u"&Delete entry", "", &Window::cmdClear},
        {1, "", u"", ""},
        {1, "mnuSelectAll", u"Select a&ll", "", &Window::cmdSelectAll},
        {1, "mnuClip", u"&To clipboard", "", &Window::cmdClip},
        {1, "mnuSort", u"So&rt", "", &Window::cmdSort},
        {1, "", u"", ""},
        {1, "mnuArrowUp", u"Move item up    ( Alt-U )", "", &Window::mnuArrowUp_Click},
        {1, "mnuArrowDown", u"Move item down    ( Alt-D )", "", &Window::mnuArrowDown_Click},
        {0, "mnuMisc", u"&Misc", ""},
        // It starts Dunmark. Kept for compatibility: word-list-pinsey-starts-dunmark.
        {1, "mnuPinsey", u"Load &Pinsey", "", &Window::mnuPinsey_Click},
        {1, "mnuFont", u"&Font", "", &Window::mnuFont_Click},
        {1, "mnuLorrit", u"File &Lorrit", "", &Window::mnuLorrit_Click},
        {1, "mnuExplorer", u"&Windows Explorer", "", &Window::mnuExplorer_Click},
    };

    // The keys that dock the window are tested before these, from top to bottom.
    static constexpr WindowKey<Window> kKeys[] = {
        {"Esc", &Window::cmdCancel},
        {"Return", &Window::cmdOk},
        {"Ctrl+Shift+F2", &Window::CentreInMainWindow},
        {"Any+U", &Window::UpKey},
        // It takes Ctrl+Alt+D too, which shows the desktop elsewhere. Kept for compatibility:
        // word-list-takes-ctrl-alt-d.
        {"Any+D", &Window::DownKey},
        {"Alt+B", &Window::StartBrowser},
        {"Ctrl+Alt+F5", &Window::Webmail},
        {"Ctrl+Alt+X", &Window::mnuExplorer_Click},
        {"Insert", &Window::cmdEntry},
        {"Delete", &Window::cmdClear},
    };
};

frmHoldWordList::frmHoldWordList(App& app)
    : Form(app.Forms(), "frmHoldWordList", u""),
      OfficeMenu1(*this, "OfficeMenu1", Tables::kMenu),
      lstWordList(*this, "lstWordList", {{u"Words", kColumn}}),
      app_(app) {
    lstWordList.MultiSelect = true;
    Wire();
}

void frmHoldWordList::Wire() {
    cmdOk.Click = [this] { mnuInsert_Click(); };
    cmdEntry.Click = [this] { mnuEntry_Click(); };
    cmdEdit.Click = [this] { mnuEdit_Click(); };
    cmdClear.Click = [this] { mnuDelete_Click(); };
    cmdSelectAll.Click = [this] { mnuSelectAll_Click(); };
    cmdClip.Click = [this] { mnuClip_Click(); };
    cmdSort.Click = [this] { mnuSort_Click(); };
    cmdFind.Click = [this] { mnuFindString_Click(); };
    cmdNewList.Click = [this] { mnuNew_Click(); };
    cmdLoad.Click = [this] { mnuLoad_Click(); };
    cmdSave.Click = [this] { mnuSave_Click(); };
    cmdAutoSave.Click = [this] { mnuAutoSave_Click(); };
    cmdAppendToFile.Click = [this] { mnuAppendToFile_Click(); };
    cmdInfo.Click = [this] { mnuInfo_Click(); };
    cmdCancel.Click = [this] { Close(); };
    cmdCancel.Cancel = true;
    lstWordList.DblClick = [this] { mnuInsert_Click(); };
    lstWordList.KeyDown = [this](KeyEvent& key) { lstWordList_KeyDown(key); };
}

WordListState& frmHoldWordList::State() const {
    return app_.Exchange<WordListState>();
}

Form* frmHoldWordList::MainForm() const {
    auto* main = app_.Port<MainWindow>();
    return main == nullptr ? nullptr : &main->Window();
}

// Opening and closing.

void frmHoldWordList::Load() {
    FitPlace();
    rows_.ShowBuffer(State().WordListBuffer);
    if (State().WordListLoaded == 0) LoadListFile();
    State().WordListLoaded = 1;
    ShowStatus();
    if (lstWordList.Count() > 0)
        lstWordList.SetCurrent(std::clamp(State().WordListIndex, 1, lstWordList.Count()));
    ShowFont();
    State().WordListResult.clear();
    lstWordList.SetFocus();
}

void frmHoldWordList::Unload() {
    RebuildBuffer();
    if (State().WordListAutoSave == 1) SaveAtClosing();
    StorePlace(app_, *this, kPlace);
}

/// A file that couldn't be read keeps what is in it.
void frmHoldWordList::SaveAtClosing() {
    if (!State().fileUnread) {
        WriteListFile();
    } else if (lstWordList.Count() > 0) {
        Warn(app_, u"Can't open file: " + app_.Settings.WordListFile);
    }
}

void frmHoldWordList::FitPlace() {
    const Settings& settings = app_.Settings;
    if (settings.WordListWidth >= kLeastWidth && settings.WordListHeight >= kLeastHeight)
        return RestorePlace(app_, *this, kPlace);
    Width = kUsualWidth;
    Height = kUsualHeight;
    CentreInMainWindow();
}

void frmHoldWordList::ShowFont() {
    const WordListState& state = State();
    lstWordList.Font = {state.WordListFontName, state.WordListFontSize};
}

void frmHoldWordList::ShowStatus() {
    const Text& file = app_.Settings.WordListFile;
    const Text name = file.empty() ? u"(not yet saved!)" : Text(app_.Files().Style().NamePart(file));
    Caption = u"File: " + name + u"  | Items: " + NumberText(lstWordList.Count());
}

void frmHoldWordList::RebuildBuffer() {
    State().WordListBuffer = rows_.Buffer();
}

void frmHoldWordList::LoadListFile() {
    const Text& file = app_.Settings.WordListFile;
    State().fileUnread = false;
    if (file.empty() || !app_.Files().FileExists(file)) return;
    auto lines = ReadListFile(app_, file, kLargestWordList);
    State().fileUnread = !lines;
    if (!lines) return Warn(app_, u"Can't open file: " + file);
    // Comments are gone after a save. Kept for compatibility: word-list-drops-comments.
    std::erase_if(*lines, [](const Text& line) { return line.empty() || IsComment(line); });
    rows_.Show(*lines);
    ShowStatus();
    RebuildBuffer();
}

bool frmHoldWordList::WriteListFile() {
    if (!korvane::WriteListFile(app_, app_.Settings.WordListFile, rows_.All())) return false;
    State().fileUnread = false;
    ShowStatus();
    return true;
}

// The list's file.

Text frmHoldWordList::FolderOfList() const {
    const PathStyle style = app_.Files().Style();
    return style.DirectoryForChange(style.FolderPart(app_.Settings.WordListFile));
}

void frmHoldWordList::mnuInfo_Click() {
    const PathStyle style = app_.Files().Style();
    const Text& file = app_.Settings.WordListFile;
    Inform(app_, u"Current \"Word List\" file:\r\nFile:  " + Text(style.NamePart(file)) + u"\r\nFolder:  " +
                     Text(style.FolderPart(file)) + u"\r\nItem total:  " + NumberText(lstWordList.Count()) +
                     u"\r\nSelected:  " + NumberText(lstWordList.SelectedCount()));
}

void frmHoldWordList::mnuLoad_Click() {
    const KeepCurrentDir keep(app_);
    ShowFileChooser(app_, ChooserMode::Load, kListPatterns, {});
    const Text& chosen = app_.Exchange<ListerRequest>().ChosenFilePath;
    if (chosen.empty()) return;
    // The name stays after a cancel, and No does the same as Yes. Kept for compatibility:
    // word-list-names-file-first.
    app_.Settings.WordListFile = chosen;
    if (lstWordList.Count() > 0 && Ask(app_,
                                       u"Clear existing list of " + NumberText(lstWordList.Count()) +
                                           u" items before loading new list from disk?",
                                       2) == Answer::Cancel)
        return;
    LoadListFile();
}

void frmHoldWordList::mnuNew_Click() {
    Text& file = app_.Settings.WordListFile;
    if (!file.empty() && lstWordList.Count() > 0) {
        const Answer answer = Ask(app_, file + u"\r\n\r\nSave current list before starting a new one?");
        if (answer == Answer::Cancel) return;
        if (answer == Answer::Yes && !SaveUnderAName()) return;
    }
    rows_.Show({});
    file = u"New_WordList.lst";
    State().fileUnread = false;
    ShowStatus();
}

void frmHoldWordList::mnuSave_Click() {
    SaveUnderAName();
}

bool frmHoldWordList::SaveUnderAName() {
    auto* dialog = app_.Port<SystemFileDialog>();
    if (lstWordList.Count() == 0 || dialog == nullptr) return false;
    auto* main = app_.Port<MainWindow>();
    const KeepCurrentDir keep(app_);
    const auto path = dialog->Choose({SystemFileDialog::Purpose::Save,
                                      Text(kListFilter),
                                      u"Save Word List As",
                                      Text(app_.Files().Style().NamePart(app_.Settings.WordListFile)),
                                      {},
                                      main == nullptr ? Text() : main->GetActiveFolder()});
    if (!path) return false;
    app_.Settings.WordListFile = *path;
    return WriteListFile();
}

void frmHoldWordList::mnuAutoSave_Click() {
    const Text current = State().WordListAutoSave == 1 ? u"YES" : u"NO";
    State().WordListAutoSave =
        AskYesNo(app_, u"Automatically save word list on closing window ?\r\n\r\nCurrent value: " + current)
            ? 1
            : 0;
}

void frmHoldWordList::mnuAppendToFile_Click() {
    auto* dialog = app_.Port<SystemFileDialog>();
    auto* files = app_.Port<TextFiles>();
    if (lstWordList.Count() == 0 || dialog == nullptr || files == nullptr) return;
    const KeepCurrentDir keep(app_);
    const auto path = dialog->Choose(
        {SystemFileDialog::Purpose::Open, Text(kListFilter), u"Get file to append selected items to"});
    if (!path) return;
    AppendedText file(*files, *path);
    if (!file.Load()) return Warn(app_, u"Can't open file: " + *path);
    const Answer answer = Ask(app_, u"Append items to beginning (= YES) or end (= NO) of file?");
    if (answer == Answer::Cancel) return;
    const bool first = answer == Answer::Yes;
    file.Write(rows_.Selected(), first ? AppendedText::Place::Beginning : AppendedText::Place::End);
    if (!file.Save()) return ShowCannotAccess(app_, *path);
    Inform(app_, NumberText(lstWordList.SelectedCount()) + u" items appended to " +
                     (first ? u"beginning" : u"end") + u" of this file: \r\n\r\n" + *path);
}

// The words.

void frmHoldWordList::mnuInsert_Click() {
    const Text words = rows_.Selected();
    State().WordListResult = lstWordList.SelectedCount() == 1 ? WithoutLastLineEnd(words) : words;
    State().WordListIndex = lstWordList.Current();
    app_.DialogResult = 1;
    Close();
}

void frmHoldWordList::mnuFindString_Click() {
    // No window has the control that is to be searched, so there is neither a hit nor a text to go to the
    // beginning of. Kept for compatibility: word-list-finds-nothing.
    AskYesNo(app_, Quoted(rows_.At(lstWordList.Current())) +
                       u"\r\n\r\nNo (further) find for: \r\n\r\nGoto beginning of text?");
}

void frmHoldWordList::mnuEdit_Click() {
    const int row = lstWordList.Current();
    if (row < 1) return;
    const Text edited = AskForText(app_, u"Edit text line as required.", rows_.At(row));
    if (app_.DialogResult != 1) return;
    rows_.Replace(row, edited);
}

void frmHoldWordList::mnuEntry_Click() {
    const Text word = AskForText(app_, u"Enter string to put in list.");
    if (Trim(word).empty()) return;
    // The word comes first. Kept for compatibility: word-list-known-word-first.
    if (rows_.Holds(word)) return Inform(app_, Quoted(word) + u"\r\n\r\nString already in list: ");
    rows_.Add(word);
    lstWordList.SetCurrent(lstWordList.Count());
    ShowStatus();
}

void frmHoldWordList::mnuDelete_Click() {
    const std::vector<int> rows = lstWordList.SelectedRows();
    if (rows.empty() ||
        !AskYesNo(app_, u"Delete " + NumberText(lstWordList.SelectedCount()) + u" items from list ?",
                  YesNoDefault::No))
        return;
    rows_.RemoveSelected();
    lstWordList.SetCurrent(std::min(rows.front(), lstWordList.Count()));
    RebuildBuffer();
    ShowStatus();
}

void frmHoldWordList::mnuSelectAll_Click() {
    lstWordList.SetAllSelected(true);
}

void frmHoldWordList::mnuClip_Click() {
    if (lstWordList.SelectedCount() > 0) app_.Clipboard().SetText(WithoutLastLineEnd(rows_.Selected()));
}

void frmHoldWordList::mnuSort_Click() {
    if (!AskYesNo(app_, u"Sort list now?")) return;
    rows_.Sort();
    lstWordList.SetCurrent(1);
}

void frmHoldWordList::mnuArrowUp_Click() {
    rows_.Move(-1);
}

void frmHoldWordList::mnuArrowDown_Click() {
    rows_.Move(1);
}

void frmHoldWordList::mnuPinsey_Click() {
    const int count = lstWordList.SelectedCount();
    if (count == 0) return;
    const Answer answer =
        Ask(app_, u"Load Dunmark with " + NumberText(count) + u" items in Windows clipboard ?");
    if (answer == Answer::Cancel) return;
    if (answer == Answer::Yes) mnuClip_Click();
    LaunchDunmark(app_, {});
}

void frmHoldWordList::mnuFont_Click() {
    auto* fontPicker = app_.Port<FontPicker>();
    if (fontPicker == nullptr) return;
    const auto font = fontPicker->Choose(lstWordList.Font);
    if (!font) return;
    State().WordListFontName = font->name;
    State().WordListFontSize = font->size;
    ShowFont();
}

void frmHoldWordList::mnuLorrit_Click() {
    LaunchLorrit(app_, FolderOfList());
}

void frmHoldWordList::mnuExplorer_Click() {
    ExploreFolder(app_, FolderOfList());
}

// Keys.

void frmHoldWordList::lstWordList_KeyDown(KeyEvent& key) {
    if (key.typed == u'-') {
        key.consumed = true;
        return cmdOk.Press();
    }
    const Form* main = MainForm();
    if (main == nullptr || !DockByKey(app_, *main, *this, key)) RunKey(Tables::kKeys, *this, key);
}

void frmHoldWordList::UpKey(KeyEvent& key) {
    key.consumed = key.mask >= kLeastMoveMask;
    if (key.consumed) rows_.Move(-1);
}

void frmHoldWordList::DownKey(KeyEvent& key) {
    key.consumed = key.mask >= kLeastMoveMask;
    if (key.consumed) rows_.Move(1);
}

void frmHoldWordList::CentreInMainWindow() {
    if (const Form* main = MainForm()) CentreOn(*main, *this);
}

void frmHoldWordList::StartBrowser() {
    LaunchProgram(app_, Text(app_.Settings.CustomBrowserPath));
}

void frmHoldWordList::Webmail() {
    OpenWebmail(app_);
}

} // namespace korvane
