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
#include "platform/Clipboard.h"
#include "platform/FileSystem.h"
#include "platform/Screen.h"

#include <algorithm>
#include <array>

namespace korvane {

namespace {

constexpr Twips kMinWidth{5856};
constexpr Twips kMinHeight{4000};

constexpr StoredPlace kPlace{&Settings::PasteLeft, &Settings::PasteTop, &Settings::PasteWidth,
                             &Settings::PasteHeight};

constexpr std::int16_t kFullText = 0;
constexpr std::int16_t kPlainText = 2;

constexpr TextView kNoText = u"\r\n( Windows clipboard does not contain text )\r\n";

constexpr std::array kMenu{
    MenuEntry{0, "mnuMisc", u"&File >>", ""},
    MenuEntry{1, "mnuSave", u"&Save contents to disk", ""},
    MenuEntry{1, "mnuPinsey", u"&Pinsey", ""},
    MenuEntry{1, "mnuYourProgram", u"&Your program", ""},
    MenuEntry{1, "mnuExplorer", u"&Explorer", ""},
    MenuEntry{1, "mnuBrowser", u"&Browser", ""},
    MenuEntry{1, "mnuDesktop", u"&Desktop", ""},
    MenuEntry{1, "mnuExit", u"E&xit", ""},
    MenuEntry{0, "mnuClipViewer", u"Clipboard &viewer", ""},
    MenuEntry{0, "mnuToggle", u"&Text styles", ""},
    MenuEntry{0, "mnuRetrieve", u"&Retrieve", ""},
};

} // namespace

const frmViewAndPaste::Command frmViewAndPaste::kCommands[] = {
    {"mnuRetrieve", u"Retrieve", &frmViewAndPaste::mnuRetrieve_Click},
    {"mnuToggle", u"Text style", &frmViewAndPaste::mnuToggle_Click},
    {"mnuClipViewer", u"Viewer", &frmViewAndPaste::mnuClipViewer_Click},
    {"mnuSave", u"Save to disk", &frmViewAndPaste::mnuSave_Click},
    {"mnuExplorer", u"Explorer", &frmViewAndPaste::mnuExplorer_Click},
    {"mnuDesktop", u"Desktop", &frmViewAndPaste::mnuDesktop_Click},
    {"mnuExit", u"Exit", &frmViewAndPaste::mnuExit_Click},
    {"mnuPinsey", u"", &frmViewAndPaste::mnuPinsey_Click},
    {"mnuYourProgram", u"", &frmViewAndPaste::mnuYourProgram_Click},
    {"mnuBrowser", u"", &frmViewAndPaste::mnuBrowser_Click},
};

const frmViewAndPaste::Rendering frmViewAndPaste::kRenderings[] = {
    {&frmViewAndPaste::TXTextControl1, u"> full RTF <"},
    {&frmViewAndPaste::RichTextBox1, u"> basic RTF <"},
    {&frmViewAndPaste::Text1, u"> plain text <"},
};

frmViewAndPaste::frmViewAndPaste(App& app)
    : Form(app.Forms(), "frmViewAndPaste",
           u"Contents of Windows clipboard  (use [Shift-]Tab to select item in toolbar on left)"),
      OfficeMenu1(*this, "OfficeMenu1", kMenu),
      app_(app) {
    OfficeMenu1.Chosen = [this](std::string_view entry) {
        const auto* found = std::ranges::find(kCommands, entry, &Command::entry);
        if (found != std::end(kCommands)) (this->*found->run)();
    };
    iGridListBar.DblClick = [this] { RunListed(); };
    iGridListBar.KeyDown = [this](KeyEvent& key) { iGridListBar_KeyDown(key); };
    TmpTextCtrl.Visible = false;
    // A locked text is handed to the toolkit no further than anyone reads, however long it is.
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
        // A program that makes its contents only when they are asked for does so here.
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
    if (!key.Is(Key::Escape, Mask::None)) return;
    key.consumed = true;
    Close();
}

std::int16_t frmViewAndPaste::Mode() const {
    const bool known = ClipViewMode >= kFullText && ClipViewMode <= kPlainText;
    return known ? ClipViewMode : kFullText;
}

void frmViewAndPaste::FillList() {
    iGridListBar.Clear();
    for (const Command& command : kCommands) {
        if (!command.listed.empty()) iGridListBar.AddItem(command.listed);
    }
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
    const Text listed = iGridListBar.List(iGridListBar.ListIndex());
    const auto* found = std::ranges::find(kCommands, TextView(listed), &Command::listed);
    if (!listed.empty() && found != std::end(kCommands)) (this->*found->run)();
}

void frmViewAndPaste::iGridListBar_KeyDown(KeyEvent& key) {
    if (!key.Is(Key::Return, Mask::None)) return;
    key.consumed = true;
    RunListed();
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
    if (auto* mainWindow = app_.Port<MainWindow>()) mainWindow->RunCommand("mnuMisc_YourProgram");
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
