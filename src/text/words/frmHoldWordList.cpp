#include "text/words/frmHoldWordList.h"

#include "common/number/Number.h"
#include "common/path/PathStyle.h"
#include "context/App.h"
#include "context/WindowFitting.h"
#include "context/ports/MainWindow.h"
#include "dialogs/Docking.h"
#include "dialogs/Questions.h"
#include "files/lists/ListFile.h"
#include "platform/FileSystem.h"

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

/// Far more than a person collects.
constexpr std::int64_t kLargestWordList = 64'000'000;

bool IsComment(TextView line) {
    return line.starts_with(u';');
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
        {1, "mnuCancel", u"E&xit", "", &Window::cmdCancel},
        {0, "mnuText", u"&Text", ""},
        {1, "mnuInsert", u"&Copy to text", "", &Window::cmdOk},
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
    cmdCancel.Click = [this] { Close(); };
    cmdCancel.Cancel = true;
    lstWordList.DblClick = [this] { mnuInsert_Click(); };
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
    if (State().WordListAutoSave == 1 && !State().fileUnread) WriteListFile();
    StorePlace(app_, *this, kPlace);
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

// The words.

void frmHoldWordList::mnuInsert_Click() {
    const Text words = rows_.Selected();
    State().WordListResult = lstWordList.SelectedCount() == 1 ? WithoutLastLineEnd(words) : words;
    State().WordListIndex = lstWordList.Current();
    app_.DialogResult = 1;
    Close();
}

void frmHoldWordList::CentreInMainWindow() {
    if (const Form* main = MainForm()) CentreOn(*main, *this);
}

} // namespace korvane
