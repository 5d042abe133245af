#include "text/frmViewAndPaste.h"

#include "context/App.h"
#include "context/Companions.h"
#include "context/Desktop.h"
#include "context/Launching.h"
#include "context/WindowFitting.h"
#include "context/exchange/TextWindowState.h"
#include "context/ports/MainWindow.h"
#include "context/ports/OpenText.h"
#include "context/ports/SystemFileDialog.h"
#include "controls/KeyTable.h"
#include "platform/Clipboard.h"
#include "platform/Screen.h"
#include "text/commands/TextFileTypes.h"

#include <algorithm>

namespace korvane {

namespace {

constexpr Twips kMinWidth{5856};
constexpr Twips kMinHeight{4000};

constexpr StoredPlace kPlace{&Settings::PasteLeft, &Settings::PasteTop, &Settings::PasteWidth,
                             &Settings::PasteHeight};

constexpr std::int16_t kFullText = 0;
constexpr std::int16_t kSimpleText = 1;
constexpr std::int16_t kPlainText = 2;

constexpr TextView kCaptions[] = {u"> full RTF <", u"> basic RTF <", u"> plain text <"};

constexpr TextView kNoText = u"\r\n( Windows clipboard does not contain text )\r\n";

} // namespace

struct frmViewAndPaste::Tables {
    static constexpr MenuRow<frmViewAndPaste> kMenu[] = {
        {0, "mnuMisc", u"&File >>", ""},
        {1, "mnuSave", u"&Save contents to disk", "", &frmViewAndPaste::mnuSave_Click},
        {1, "mnuPinsey", u"&Pinsey", "", &frmViewAndPaste::mnuPinsey_Click},
        {1, "mnuYourProgram", u"&Your program", "", &frmViewAndPaste::mnuYourProgram_Click},
        {1, "mnuExplorer", u"&Explorer", "", &frmViewAndPaste::mnuExplorer_Click},
        {1, "mnuBrowser", u"&Browser", "", &frmViewAndPaste::mnuBrowser_Click},
        {1, "mnuDesktop", u"&Desktop", "", &frmViewAndPaste::mnuDesktop_Click},
        {1, "mnuExit", u"E&xit", "", &frmViewAndPaste::Close},
        {0, "mnuClipViewer", u"Clipboard &viewer", "", &frmViewAndPaste::mnuClipViewer_Click},
        {0, "mnuToggle", u"&Text styles", "", &frmViewAndPaste::mnuToggle_Click},
        {0, "mnuRetrieve", u"&Retrieve", "", &frmViewAndPaste::mnuRetrieve_Click},
    };
    static constexpr WindowKey<frmViewAndPaste> kKeys[] = {{"Esc", &frmViewAndPaste::Close}};
    static constexpr WindowKey<frmViewAndPaste> kListKeys[] = {{"Return", &frmViewAndPaste::RunListed}};

    struct ListRow {
        TextView text;
        Handler<frmViewAndPaste> starts;
    };
    static constexpr ListRow kList[] = {
        {u"Retrieve", &frmViewAndPaste::mnuRetrieve_Click},
        {u"Text style", &frmViewAndPaste::mnuToggle_Click},
        {u"Viewer", &frmViewAndPaste::mnuClipViewer_Click},
        {u"Save to disk", &frmViewAndPaste::mnuSave_Click},
        {u"Explorer", &frmViewAndPaste::mnuExplorer_Click},
        {u"Desktop", &frmViewAndPaste::mnuDesktop_Click},
        {u"Exit", &frmViewAndPaste::Close},
    };
};

frmViewAndPaste::frmViewAndPaste(App& app)
    : Form(app.Forms(), "frmViewAndPaste",
           u"Contents of Windows clipboard  (use [Shift-]Tab to select item in toolbar on left)"),
      OfficeMenu1(*this, "OfficeMenu1", Tables::kMenu),
      app_(app) {
    iGridListBar.DblClick = [this] { RunListed(); };
    iGridListBar.KeyDown = KeysOf(*this, Tables::kListKeys);
    TmpTextCtrl.Visible = false;
    for (TextControl* const rendering : Formatted()) {
        rendering->Locked = true;
        rendering->Files = app_.Port<TextFiles>();
    }
    // Of a locked text, the view gets only as much as anyone would read, however long the text is.
    Text1.Locked = true;
}

/// Opens on the plain text. Kept for compatibility: clipboard-view-opens-plain.
void frmViewAndPaste::Load() {
    activated_ = false;
    RestorePlace(app_, *this, kPlace);
    Width = std::max(Width.Get(), kMinWidth);
    Height = std::max(Height.Get(), kMinHeight);
    ShowMode();
}

void frmViewAndPaste::Unload() {
    StorePlace(app_, *this, kPlace);
}

void frmViewAndPaste::Activate() {
    if (activated_) return;
    activated_ = true;
    const Hourglass hourglass(app_.Screen());
    app_.Screen().ProcessMessages();
    if (app_.Clipboard().HasText() || app_.Clipboard().GetRtf()) {
        // Some programs make their contents only when they are asked for them, which happens here, before the
        // renderings are filled.
        TmpTextCtrl.SetAll(app_.Clipboard().GetText());
        TmpTextCtrl.SetAll({});
    }
    FillList();
    FillRenderings();
    ClipViewMode = kPlainText;
    ShowMode();
    app_.DialogResult = 0;
    iGridListBar.SetFocus();
}

void frmViewAndPaste::KeyDown(KeyEvent& key) {
    RunKey(Tables::kKeys, *this, key);
}

std::int16_t frmViewAndPaste::Mode() const {
    const bool known = ClipViewMode >= kFullText && ClipViewMode <= kPlainText;
    return known ? ClipViewMode : kFullText;
}

void frmViewAndPaste::FillList() {
    iGridListBar.Clear();
    for (const Tables::ListRow& row : Tables::kList)
        iGridListBar.AddItem(row.text);
    iGridListBar.SetListIndex(0);
}

void frmViewAndPaste::FillWith(const std::function<void(TextControl&)>& fill) {
    for (TextControl* const rendering : Formatted()) {
        fill(*rendering);
        rendering->SetSelStart(0);
        app_.Screen().ProcessMessages();
    }
    Text1.Text = app_.Clipboard().GetText();
    app_.Screen().ProcessMessages();
}

void frmViewAndPaste::FillRenderings() {
    for (TextControl* const rendering : Formatted())
        rendering->SetAll({});
    Text1.Text = Text();
    if (const auto rtf = app_.Clipboard().GetRtf())
        FillWith([&rtf](TextControl& rendering) { rendering.SetSelTextRtf(*rtf); });
    else if (app_.Clipboard().HasText())
        FillWith([text = app_.Clipboard().GetText()](TextControl& rendering) { rendering.SetAll(text); });
    if (TXTextControl1.All().empty()) TXTextControl1.SetAll(kNoText);
}

void frmViewAndPaste::ShowMode() {
    const std::int16_t mode = Mode();
    TXTextControl1.Visible = mode == kFullText;
    RichTextBox1.Visible = mode == kSimpleText;
    Text1.Visible = mode == kPlainText;
    lblLeftMargin.BackColor = mode == kPlainText ? Text1.BackColor : FormattedInUse().BackColor;
    Frame1.Caption = Text(kCaptions[mode]);
}

void frmViewAndPaste::RunListed() {
    const int index = iGridListBar.ListIndex();
    if (index >= 0) Tables::kList[index].starts.Run(*this);
}

void frmViewAndPaste::PutIntoTextWindow() {
    const auto* open = app_.Port<OpenText>();
    if (open == nullptr) return;
    if (Mode() == kPlainText) return open->ThisTextCtrl.SetSelText(Text1.Text.Get());
    // Of a formatted rendering only the selected text is taken. Kept for compatibility:
    // retrieve-takes-selection.
    const std::string selected = FormattedInUse().SelTextRtf();
    if (!selected.empty()) open->ThisTextCtrl.SetSelTextRtf(selected);
}

void frmViewAndPaste::mnuRetrieve_Click() {
    if (app_.Exchange<TextWindowState>().TextWindowOpen == 1) PutIntoTextWindow();
    app_.DialogResult = 1;
    Close();
}

void frmViewAndPaste::mnuToggle_Click() {
    const std::int16_t mode = Mode();
    ClipViewMode = mode == kPlainText ? kFullText : static_cast<std::int16_t>(mode + 1);
    ShowMode();
}

void frmViewAndPaste::mnuClipViewer_Click() {
    LaunchCompanion(app_, Companion::Wexley);
}

void frmViewAndPaste::mnuSave_Click() {
    const Text folder =
        app_.Port<MainWindow>() == nullptr ? Text() : app_.Port<MainWindow>()->GetActiveFolder();
    auto* systemFileDialog = app_.Port<SystemFileDialog>();
    if (systemFileDialog == nullptr) return;
    const auto path = systemFileDialog->Choose({SystemFileDialog::Purpose::Save,
                                                u"All files (*.*)|*.*",
                                                u"Save clipboard contents to file",
                                                {},
                                                {},
                                                folder});
    if (!path) return;
    // Nobody hears of a failure. Kept for compatibility: clipboard-save-is-silent.
    SaveByName(TXTextControl1, *path);
}

void frmViewAndPaste::mnuPinsey_Click() {
    LaunchDunmark(app_, {});
}

void frmViewAndPaste::mnuYourProgram_Click() {
    if (auto* mainWindow = app_.Port<MainWindow>()) mainWindow->RunCommand(CommandName::mnuMisc_YourProgram);
}

void frmViewAndPaste::mnuExplorer_Click() {
    RunExplorer(app_);
}

void frmViewAndPaste::mnuBrowser_Click() {
    LaunchProgram(app_, app_.Settings.CustomBrowserPath);
}

void frmViewAndPaste::mnuDesktop_Click() {
    ShowDesktop(app_);
}

} // namespace korvane
