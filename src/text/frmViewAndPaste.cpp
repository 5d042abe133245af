#include "text/frmViewAndPaste.h"

#include "common/text/LineEnds.h"
#include "context/App.h"
#include "context/Companions.h"
#include "context/Desktop.h"
#include "context/Launching.h"
#include "context/WindowFitting.h"
#include "context/exchange/TextWindowState.h"
#include "context/ports/MainWindow.h"
#include "context/ports/SystemFileDialog.h"
#include "context/ports/TextWindow.h"
#include "controls/KeyTable.h"
#include "platform/Clipboard.h"
#include "platform/FileSystem.h"
#include "platform/Screen.h"

#include <algorithm>

namespace korvane {

namespace {

constexpr Twips kMinWidth{5856};
constexpr Twips kMinHeight{4000};

constexpr StoredPlace kPlace{&Settings::PasteLeft, &Settings::PasteTop, &Settings::PasteWidth,
                             &Settings::PasteHeight};

constexpr std::int16_t kFullText = 0;
constexpr std::int16_t kPlainText = 2;

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

const frmViewAndPaste::Rendering frmViewAndPaste::kRenderings[] = {
    {&frmViewAndPaste::TXTextControl1, u"> full RTF <"},
    {&frmViewAndPaste::RichTextBox1, u"> basic RTF <"},
    {&frmViewAndPaste::Text1, u"> plain text <"},
};

frmViewAndPaste::frmViewAndPaste(App& app)
    : Form(app.Forms(), "frmViewAndPaste",
           u"Contents of Windows clipboard  (use [Shift-]Tab to select item in toolbar on left)"),
      OfficeMenu1(*this, "OfficeMenu1", Tables::kMenu),
      app_(app) {
    iGridListBar.DblClick = [this] { RunListed(); };
    iGridListBar.KeyDown = KeysOf(*this, Tables::kListKeys);
    TmpTextCtrl.Visible = false;
    // Of a locked text, the view gets only as much as anyone would read, however long the text is.
    TmpTextCtrl.Locked = true;
    for (const Rendering& rendering : kRenderings)
        (this->*rendering.view).Locked = true;
}

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
    if (app_.Clipboard().HasText()) {
        // Some programs make their contents only when they are asked for them, which happens here, before the
        // renderings are filled.
        TmpTextCtrl.Text = app_.Clipboard().GetText();
        TmpTextCtrl.Text = Text();
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

void frmViewAndPaste::FillRenderings() {
    for (const Rendering& rendering : kRenderings)
        (this->*rendering.view).Text = Text();
    if (app_.Clipboard().HasText()) {
        const Text contents = app_.Clipboard().GetText();
        for (const Rendering& rendering : kRenderings) {
            (this->*rendering.view).Text = contents;
            app_.Screen().ProcessMessages();
        }
    }
    if (TXTextControl1.Text.Get().empty()) TXTextControl1.Text = Text(kNoText);
}

void frmViewAndPaste::ShowMode() {
    const Rendering& current = Current();
    for (const Rendering& rendering : kRenderings)
        (this->*rendering.view).Visible = rendering.view == current.view;
    lblLeftMargin.BackColor = (this->*current.view).BackColor;
    Frame1.Caption = Text(current.caption);
}

void frmViewAndPaste::RunListed() {
    const int index = iGridListBar.ListIndex();
    if (index >= 0) Tables::kList[index].starts.Run(*this);
}

void frmViewAndPaste::PutIntoTextWindow() {
    auto* textWindow = app_.Port<TextWindow>();
    if (textWindow == nullptr) return;
    const TextBox& view = this->*Current().view;
    if (&view == &Text1) return textWindow->TextWindowInsert(Text1.Text.Get());
    // Of a formatted rendering only the selected text is taken. Kept for compatibility:
    // retrieve-takes-selection.
    const Text selected = view.SelText();
    if (!selected.empty()) textWindow->TextWindowInsert(selected);
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
    const auto file = app_.Files().OpenRaw(*path);
    if (!file) return;
    file->Write(app_.Page().ToBytes(WithCrLf(TXTextControl1.Text.Get())));
    file->Close();
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
