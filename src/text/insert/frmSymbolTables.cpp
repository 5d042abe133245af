#include "text/insert/frmSymbolTables.h"

#include "common/number/Number.h"
#include "common/path/PathStyle.h"
#include "context/App.h"
#include "context/FileChooser.h"
#include "context/WindowFitting.h"
#include "context/exchange/ListerRequest.h"
#include "controls/KeyTable.h"
#include "dialogs/Questions.h"
#include "platform/FileSystem.h"
#include "platform/Screen.h"
#include "text/commands/TextFileTypes.h"
#include "text/insert/InsertTarget.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace korvane {

namespace {

constexpr StoredPlace kPlace{&Settings::SymbolsLeft, &Settings::SymbolsTop, &Settings::SymbolsWidth,
                             &Settings::SymbolsHeight};

constexpr int kZoomStep = 25;
constexpr int kLargest = 375;
constexpr int kUsual = 100;

constexpr TextView kFormatted[] = {u".RTF", u".DOC", u".DOCX"};

int FormatOf(TextView path) {
    const bool formatted =
        std::ranges::any_of(kFormatted, [path](TextView extension) { return HasExtension(path, extension); });
    return formatted ? FileTypeForLoad(path) : TextFormat::Plain;
}

/// The ends of paragraphs belong to the stretch before them.
std::vector<FontStretch> Selected(const TextControl& control) {
    const auto start = static_cast<std::size_t>(control.SelStart());
    const std::size_t end = start + static_cast<std::size_t>(control.SelLength());
    std::vector<std::pair<std::size_t, Text>> fonts;
    control.Store().Runs(start, end, [&](doc::Pos at, std::size_t, const doc::Look& look) {
        if (fonts.empty() || fonts.back().second != look.font)
            fonts.emplace_back(fonts.empty() ? start : at, look.font);
    });
    if (fonts.empty()) fonts.emplace_back(start, control.FontName());
    std::vector<FontStretch> stretches;
    for (std::size_t i = 0; i < fonts.size(); ++i) {
        const auto& [from, font] = fonts[i];
        const std::size_t to = i + 1 < fonts.size() ? fonts[i + 1].first : end;
        stretches.push_back({font, control.All().substr(from, to - from)});
    }
    return stretches;
}

} // namespace

struct frmSymbolTables::Tables {
    using Window = frmSymbolTables;
    static constexpr MenuRow<Window> kMenu[] = {
        {0, "mnuExit", u"E&xit", "", &Window::Close},
        {0, "mnuCentreScreen", u"Centre scree&n", "", &Window::mnuCentreScreen_Click},
        {0, "mnuInfo", u"In&fo", "", &Window::mnuInfo_Click},
        {0, "mnuGetFile", u"&Get file", "", &Window::mnuGetFile_Click},
        {0, "mnuZoomIn", u"Zoom &in", "", &Window::mnuZoomIn_Click},
        {0, "mnuZoomOut", u"Zoom &out", "", &Window::mnuZoomOut_Click},
        {0, "mnuInsertSymbol", u"Insert &symbol", "", &Window::mnuInsertSymbol_Click},
    };
    static constexpr WindowKey<Window> kKeys[] = {{"Esc", &Window::Close}};
    static constexpr WindowKey<Window> kTextKeys[] = {{"Return", &Window::mnuInsertSymbol_Click}};
};

frmSymbolTables::frmSymbolTables(App& app, ControlTarget* target)
    : Form(app.Forms(), "frmSymbolTables", u"Symbol tables"),
      OfficeMenu1(*this, "OfficeMenu1", Tables::kMenu),
      app_(app),
      target_(target) {
    ThisTextCtrl.Files = app_.Port<TextFiles>();
    ThisTextCtrl.Locked = true;
    ThisTextCtrl.KeyDown = KeysOf(*this, Tables::kTextKeys);
}

void frmSymbolTables::Load() {
    const Text& path = app_.Settings.SymbolListFile;
    if (!path.empty() && app_.Files().FileExists(path)) LoadThisFile(path);
    const int zoom = app_.Settings.SymbolCellSize;
    ThisTextCtrl.ZoomFactor = zoom >= kZoomStep && zoom <= kLargest ? zoom : kUsual;
    ThisTextCtrl.SetFocus();
    RestorePlace(app_, *this, kPlace);
}

void frmSymbolTables::Unload() {
    StorePlace(app_, *this, kPlace);
}

void frmSymbolTables::KeyDown(KeyEvent& key) {
    RunKey(Tables::kKeys, *this, key);
}

bool frmSymbolTables::LoadThisFile(const Text& path) {
    const Hourglass hourglass(app_.Screen());
    const int format = FormatOf(path);
    SetLoadSaveAttributes(ThisTextCtrl, format);
    return ThisTextCtrl.Load(path, format);
}

void frmSymbolTables::SetZoom(int percent) {
    ThisTextCtrl.ZoomFactor = std::clamp(percent, kZoomStep, kLargest);
    app_.Settings.SymbolCellSize = static_cast<std::int16_t>(ThisTextCtrl.ZoomFactor);
}

void frmSymbolTables::mnuCentreScreen_Click() {
    const Rect work = app_.Screen().WorkArea();
    Left = work.left + (work.width - Width.Get()) / 2;
    Top = work.top + (work.height - Height.Get()) / 2;
}

void frmSymbolTables::mnuInfo_Click() {
    const Text& path = app_.Settings.SymbolListFile;
    const auto size = path.empty() ? std::nullopt : app_.Files().Size(path);
    if (size) Inform(app_, u"File:  " + path + u"\r\nSize:  " + FormatGrouped(*size) + u" bytes");
}

void frmSymbolTables::mnuGetFile_Click() {
    const KeepCurrentDir keep(app_);
    ShowFileChooser(app_, ChooserMode::Load, u"*.lst;*.txt;*.asc", u"File with symbols in a table");
    const Text path = app_.Exchange<ListerRequest>().ChosenFilePath;
    if (!path.empty() && LoadThisFile(path)) app_.Settings.SymbolListFile = path;
    ThisTextCtrl.SetFocus();
}

void frmSymbolTables::mnuZoomIn_Click() {
    SetZoom(ThisTextCtrl.ZoomFactor + kZoomStep);
}

void frmSymbolTables::mnuZoomOut_Click() {
    SetZoom(ThisTextCtrl.ZoomFactor - kZoomStep);
}

void frmSymbolTables::mnuInsertSymbol_Click() {
    if (target_ != nullptr && ThisTextCtrl.SelLength() > 0) target_->WriteStretches(Selected(ThisTextCtrl));
}

} // namespace korvane
