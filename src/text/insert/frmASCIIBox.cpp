#include "text/insert/frmASCIIBox.h"

#include "common/number/Number.h"
#include "context/App.h"
#include "context/WindowFitting.h"
#include "context/exchange/InsertChoices.h"
#include "controls/KeyTable.h"
#include "controls/UpdateScope.h"
#include "platform/InstalledFonts.h"
#include "text/insert/InsertTarget.h"

#include <algorithm>

namespace korvane {

namespace {

constexpr StoredPlace kPlace{&Settings::AsciiLeft, &Settings::AsciiTop, &Settings::AsciiWidth,
                             &Settings::AsciiHeight};

constexpr int kCharacters = 256;
/// From this code on, a code is typed with a leading 0.
constexpr int kFirstWithZero = 127;

Text KeyStroke(int code) {
    Text keys = code < kFirstWithZero ? u" Alt+" : u" Alt+0";
    return keys + NumberText(code) + u" ";
}

/// Some codes of a code page have a control character of the second kind, as nothing else is there.
bool IsControl(char16_t character) {
    return character < u' ' || (character >= u'\x7F' && character < u'\xA0');
}

/// A control character shows nothing.
Tiles::Tile TileOf(int code, char16_t character) {
    const Text text = IsControl(character) ? Text() : Text(1, character);
    return {text, text + KeyStroke(code)};
}

} // namespace

struct frmASCIIBox::Tables {
    using Window = frmASCIIBox;
    static constexpr WindowKey<Window> kKeys[] = {{"Esc", &Window::Close}};
    static constexpr WindowKey<Window> kGridKeys[] = {{"Return", &Window::cmdInsert}};
};

frmASCIIBox::frmASCIIBox(App& app, InsertTarget* target)
    : Form(app.Forms(), "frmASCIIBox", u"Insert symbols / characters"), app_(app), target_(target) {
    cboFont.Click = [this] { Grid1.Font = FontSpec{cboFont.Chosen()}; };
    Grid1.Click = [this] { ShowKeyStroke(Grid1.Current()); };
    Grid1.PointedAt = [this](int code) { ShowKeyStroke(code); };
    Grid1.DblClick = [this] { cmdInsert.Press(); };
    Grid1.KeyDown = KeysOf(*this, Tables::kGridKeys);
    cmdInsert.Click = [this] { cmdInsert_Click(); };
    cmdInsert.Enabled = target != nullptr;
    cmdMakeDefault.Click = [this] { cmdMakeDefault_Click(); };
}

/// The default font is in the list also where it isn't installed, so that the text can have it.
void frmASCIIBox::FillFonts() {
    const Text& wanted = app_.Exchange<InsertChoices>().AsciiFontName;
    const UpdateScope update(cboFont);
    cboFont.Clear();
    std::vector<Text> names = app_.Fonts() == nullptr ? std::vector<Text>() : app_.Fonts()->Names();
    if (std::ranges::find(names, wanted) == names.end()) names.insert(names.begin(), wanted);
    for (const Text& name : names)
        cboFont.AddItem(name);
    cboFont.SetListIndex(static_cast<int>(std::ranges::find(names, wanted) - names.begin()));
}

void frmASCIIBox::FillCharacters() {
    std::vector<Tiles::Tile> tiles;
    tiles.reserve(kCharacters);
    for (int code = 0; code < kCharacters; ++code)
        tiles.push_back(TileOf(code, app_.Page().Decode(static_cast<unsigned char>(code))));
    Grid1.Items = std::move(tiles);
}

void frmASCIIBox::Load() {
    const InsertChoices& choices = app_.Exchange<InsertChoices>();
    FillFonts();
    FillCharacters();
    Grid1.SetCurrent(choices.AsciiRow * Grid1.Columns() + choices.AsciiCol);
    Grid1.SetFocus();
    RestorePlace(app_, *this, kPlace);
}

void frmASCIIBox::Unload() {
    StorePlace(app_, *this, kPlace);
    if (Grid1.Current() < 0) return;
    InsertChoices& choices = app_.Exchange<InsertChoices>();
    choices.AsciiRow = static_cast<std::int16_t>(Grid1.Current() / Grid1.Columns());
    choices.AsciiCol = static_cast<std::int16_t>(Grid1.Current() % Grid1.Columns());
}

void frmASCIIBox::KeyDown(KeyEvent& key) {
    RunKey(Tables::kKeys, *this, key);
}

void frmASCIIBox::ShowKeyStroke(int code) {
    lblKeyStroke.Caption = KeyStroke(code);
}

void frmASCIIBox::cmdInsert_Click() {
    // No text can have the character 0.
    if (target_ == nullptr || Grid1.Current() <= 0) return;
    const char16_t character = app_.Page().Decode(static_cast<unsigned char>(Grid1.Current()));
    target_->WriteIn(cboFont.Chosen(), 0, TextView(&character, 1));
}

void frmASCIIBox::cmdMakeDefault_Click() {
    app_.Exchange<InsertChoices>().AsciiFontName = cboFont.Chosen();
}

} // namespace korvane
