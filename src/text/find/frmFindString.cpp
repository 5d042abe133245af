#include "text/find/frmFindString.h"

#include "context/App.h"
#include "context/WindowFitting.h"
#include "context/exchange/WordEnds.h"
#include "context/ports/MainWindow.h"
#include "context/ports/TextTools.h"
#include "context/ports/WordList.h"
#include "controls/KeyTable.h"
#include "dialogs/Docking.h"
#include "dialogs/Questions.h"
#include "platform/Screen.h"
#include "text/find/WordSearch.h"

namespace korvane {

namespace {

constexpr int kPercentOfMainWindow = 90;
/// The height isn't stored.
constexpr Twips kHeight{3600};
/// What `DialogResult` becomes.
constexpr std::int16_t kOutset = 9;
constexpr std::int16_t kUnicode = 20;

std::int16_t Flag(bool set) {
    return set ? 1 : 0;
}

} // namespace

struct frmFindString::Tables {
    using Window = frmFindString;

    static constexpr MenuRow<Window> kMenu[] = {
        {0, "mnuExit", u"E&xit", "", &Window::Close},
        {0, "mnuTop", u"&Top", "", &Window::mnuTop_Click},
        {0, "mnuOutset", u"&Outset", "", &Window::mnuOutset_Click},
        {0, "mnuUnicode", u"&Unicode", "", &Window::mnuUnicode_Click},
        {0, "mnuCharacters", u"C&hars", "", &Window::mnuCharacters_Click},
        {0, "mnuFind", u"&Find", "", &Window::mnuFind_Click},
    };
    static constexpr WindowKey<Window> kKeys[] = {
        {"Return", &Window::mnuFind_Click},
        {"Ctrl+K", &Window::TakeFromWordList},
        {"Ctrl+Shift+F2", &Window::Enlarge},
    };
    static constexpr WindowKey<Window> kWindowKeys[] = {{"Esc", &Window::Close}};
};

frmFindString::frmFindString(App& app, TextControl& target)
    : Form(app.Forms(), "frmFindString", u"Find string"),
      OfficeMenu1(*this, "OfficeMenu1", Tables::kMenu),
      app_(app),
      target_(target) {
    txtFindString.KeyDown = KeysOf(*this, Tables::kKeys);
    cboFindString.Click = [this] { TakeFromHistory(); };
    txtWordDelimiters.Change = [this] { BuildDelimiterTable(); };
}

FindState& frmFindString::State() const {
    return app_.Exchange<FindState>();
}

LetterCase frmFindString::Case() const {
    return chkCase.Value == 1 ? LetterCase::Counts : LetterCase::Ignored;
}

// Opening and closing.

void frmFindString::Load() {
    RestoreFindPlace();
    FillHistory();
    // The selection of the text isn't proposed. Kept for compatibility: find-proposes-last-text.
    txtFindString.SetAll(State().LastFindText);
    txtFindString.SetSelection(0, -1);
    ShowOptions();
    txtFindString.SetFocus();
}

void frmFindString::Unload() {
    StoreFindPlace();
    if (!txtFindString.All().empty()) State().LastFindText = txtFindString.All();
    State().FindHistory.clear();
    for (int entry = 0; entry < cboFindString.ListCount(); ++entry)
        State().FindHistory += cboFindString.List(entry) + u'\r';
    TakeOptions();
    app_.Settings.FindOptionA = Flag(optUp.Value);
    app_.Settings.FindOptionCopy = app_.Settings.FindOptionC;
}

void frmFindString::KeyDown(KeyEvent& key) {
    RunKey(Tables::kWindowKeys, *this, key);
}

void frmFindString::FillHistory() {
    const TextView history = State().FindHistory;
    for (std::size_t start = 0, end = 0; (end = history.find(u'\r', start)) != TextView::npos;
         start = end + 1)
        cboFindString.AddItem(history.substr(start, end - start));
}

void frmFindString::AddToHistory(TextView wanted) {
    for (int entry = 0; entry < cboFindString.ListCount(); ++entry)
        if (cboFindString.List(entry) == wanted) return;
    cboFindString.AddItem(wanted);
}

void frmFindString::ShowOptions() {
    const Settings& settings = app_.Settings;
    const bool up = settings.FindOptionA == 1;
    (up ? optUp : optDown).Value = true;
    chkCase.Value = Flag(settings.FindOptionB == 1);
    chkWholeWord.Value = Flag(settings.FindOptionC == 1);
    txtWordDelimiters.Text = settings.WordDelimiters;
    // No delimiters are no change of the box.
    if (chkWholeWord.Value == 1) BuildDelimiterTable();
}

void frmFindString::TakeOptions() {
    Settings& settings = app_.Settings;
    settings.FindOptionB = chkCase.Value;
    settings.FindOptionC = chkWholeWord.Value;
    // Whole words are only searched downwards.
    settings.FindOptionA = Flag(optUp.Value && chkWholeWord.Value == 0);
}

void frmFindString::BuildDelimiterTable() {
    app_.Settings.WordDelimiters = txtWordDelimiters.Text;
    app_.Exchange<WordEnds>().DelimiterTable = MakeDelimiterTable(txtWordDelimiters.Text.Get(), app_.Page());
}

// The search.

void frmFindString::mnuFind_Click() {
    const Text wanted = txtFindString.All();
    txtFindString.SetFocus();
    if (wanted.empty()) return;
    // The tick isn't put back. Kept for compatibility: blank-ends-word-search.
    if (wanted.find_first_of(u" \t") != Text::npos) chkWholeWord.Value = 0;
    AddToHistory(wanted);
    TakeOptions();
    const auto place = chkWholeWord.Value == 1 ? FindWord(wanted) : FindInText(wanted);
    if (place)
        ShowFoundLine(*place, wanted.size());
    else
        ReportNoFind(wanted);
}

/// Starts at the beginning of the selection, so a hit is found again as long as the user leaves the cursor
/// there. Kept for compatibility: word-search-finds-hit-again.
std::optional<std::size_t> frmFindString::FindWord(TextView wanted) {
    BuildDelimiterTable();
    const WordSearch search(target_.All(), wanted, Case() == LetterCase::Ignored, app_.Page());
    const auto place = search.NextWord(target_.SelStart(), app_.Exchange<WordEnds>().DelimiterTable);
    return place < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(place));
}

std::optional<std::size_t> frmFindString::FindInText(TextView wanted) const {
    const auto start = static_cast<std::size_t>(target_.SelStart());
    if (app_.Settings.FindOptionA == 1) return FindUp(target_.All(), wanted, start, Case());
    return FindDown(target_.All(), wanted, start + static_cast<std::size_t>(target_.SelLength()), Case());
}

void frmFindString::ShowFoundLine(std::size_t place, std::size_t length) {
    target_.Redraw = false;
    target_.SetSelection(static_cast<int>(place), static_cast<int>(length));
    target_.ShowSelectionHigh();
    target_.Redraw = true;
}

void frmFindString::ReportNoFind(TextView wanted) {
    Inform(app_, u"No (further) find for :\r\n\t\"" + Text(wanted) + u"\"\t");
}

// Commands.

void frmFindString::mnuTop_Click() {
    target_.SetSelStart(0);
    txtFindString.SetFocus();
}

/// The cursor stays where it is. Kept for compatibility: outset-only-closes.
void frmFindString::mnuOutset_Click() {
    app_.DialogResult = kOutset;
    Close();
}

void frmFindString::mnuUnicode_Click() {
    app_.DialogResult = kUnicode;
    if (auto* tools = app_.Port<TextTools>()) tools->ShowUnicode(txtFindString);
    txtFindString.SetFocus();
}

void frmFindString::mnuCharacters_Click() {
    if (auto* tools = app_.Port<TextTools>()) tools->ShowCharacters(txtFindString);
    txtFindString.SetFocus();
}

void frmFindString::TakeFromHistory() {
    txtFindString.SetAll(cboFindString.Chosen());
    txtFindString.SetSelection(0, -1);
    txtFindString.SetFocus();
}

void frmFindString::TakeFromWordList() {
    auto* list = app_.Port<WordList>();
    if (list == nullptr) return;
    if (const auto words = list->Choose()) txtFindString.SetSelText(*words);
    txtFindString.SetFocus();
}

void frmFindString::Enlarge() {
    auto* main = app_.Port<MainWindow>();
    if (main != nullptr) CentreWithin(main->Window(), *this, kPercentOfMainWindow);
}

// The place.

void frmFindString::RestoreFindPlace() {
    const Settings& settings = app_.Settings;
    Rect place{Twips{settings.FindStringLeft}, Twips{settings.FindStringTop}, Twips{settings.FindStringWidth},
               kHeight};
    Left = place.left;
    Top = place.top;
    Width = place.width;
    Height = place.height;
    FitWindowToWorkArea(app_.Screen().WorkArea(), *this, place);
}

void frmFindString::StoreFindPlace() {
    app_.Settings.FindStringLeft = Left.Get().Number();
    app_.Settings.FindStringTop = Top.Get().Number();
    app_.Settings.FindStringWidth = Width.Get().Number();
}

} // namespace korvane
