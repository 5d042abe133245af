#include "text/formats/frmSetForegroundColour.h"

#include "context/App.h"
#include "context/WindowFitting.h"
#include "context/exchange/ColourMarks.h"
#include "context/exchange/TextWindowState.h"
#include "context/ports/ColourPicker.h"

namespace korvane {

namespace {

constexpr StoredCorner kPlace{&Settings::ForeColourLeft, &Settings::ForeColourTop};

struct Option {
    TextView text;
    Colour fore;
    Colour back;
};

constexpr Option kOptions[] = {
    {u" Blue", {0xFF0000}, {0xFFFFFF}},  {u" Red", {255}, {0xFFFFFF}},
    {u" Green", {49152}, {0xFFFFFF}},    {u" Brown", {0x404080}, {0xFFFFFF}},
    {u" Grey", {0xC0C0C0}, {0xFFFFFF}},  {u" Faded", {0xE0E0E0}, {0xFFFFFF}},
    {u" Black", {0}, {0xFFFFFF}},        {u" Yellow", {0}, {0x80FFFF}},
    {u" Burgundy", {0xFFFFFF}, {16576}}, {u" Blue", {0xFFFFFF}, {0xFF8080}},
    {u" Green", {0xFFFFFF}, {49152}},    {u" Grey", {0}, {0xC0C0C0}},
    {u" Orange", {0}, {0x80C0FF}},
};

} // namespace

/// The buttons whose colours are kept, and the settings that keep them.
struct frmSetForegroundColour::Tables {
    struct Mark {
        CommandButton frmSetForegroundColour::*button;
        std::int32_t Settings::*kept;
    };
    static constexpr Mark kMarks[] = {
        {&frmSetForegroundColour::cmdAltG_Fore, &Settings::ForeColour1},
        {&frmSetForegroundColour::cmdAltG_Back, &Settings::ForeColour2},
        {&frmSetForegroundColour::cmdAltY_Fore, &Settings::ForeColour3},
        {&frmSetForegroundColour::cmdAltY_Back, &Settings::ForeColour4},
    };
};

frmSetForegroundColour::frmSetForegroundColour(App& app)
    : Form(app.Forms(), "frmSetForegroundColour", u"Colours for selected text"), app_(app) {
    Wire();
}

void frmSetForegroundColour::Wire() {
    lstColourOptions.DblClick = [this] { cmdApply.Press(); };
    cmdApply.Click = [this] { cmdApply_Click(); };
    cmdApply.Default = true;
    cmdMoreColours.Click = [this] { ChooseFor(lblForeground); };
    cmdBackground.Click = [this] { ChooseFor(lblBackground); };
    cmdApplyCustomValues.Click = [this] { Accept(lblForeground.BackColor, lblBackground.BackColor); };
    cmdCancel.Click = [this] { Close(); };
    cmdCancel.Cancel = true;
    for (const auto& [button, kept] : Tables::kMarks) {
        CommandButton& pressed = this->*button;
        std::int32_t& colour = app_.Settings.*kept;
        pressed.Click = [this, &pressed, &colour] { ChooseFor(pressed, colour); };
    }
}

void frmSetForegroundColour::Load() {
    app_.DialogResult = 0;
    lstColourOptions.Clear();
    for (const Option& option : kOptions) {
        lstColourOptions.AddItem(option.text);
        lstColourOptions.SetSample(lstColourOptions.ListCount() - 1, option.back, option.fore);
    }
    lstColourOptions.SetListIndex(0);
    lstColourOptions.SetFocus();
    lblForeground.BackColor = Colour{app_.Settings.ColourChoiceA};
    lblBackground.BackColor = Colour{app_.Settings.ColourChoiceB};
    for (const auto& [button, kept] : Tables::kMarks)
        (this->*button).BackColor = Colour{app_.Settings.*kept};
    txtYellowMarkerSymbol.Text = app_.Settings.ForeColourText;
    chkAltY_Strikethru.Value = app_.Exchange<ColourMarks>().AltYStrikethru;
    chkPrintViewBackColour.Value = app_.Exchange<TextWindowState>().DarkPageBackground;
    RestoreCorner(app_, *this, kPlace);
}

void frmSetForegroundColour::Unload() {
    app_.Settings.ForeColourText = txtYellowMarkerSymbol.Text;
    app_.Exchange<ColourMarks>().AltYStrikethru = chkAltY_Strikethru.Value;
    app_.Exchange<TextWindowState>().DarkPageBackground = chkPrintViewBackColour.Value;
    StoreCorner(app_, *this, kPlace);
}

void frmSetForegroundColour::Accept(Colour fore, Colour back) {
    app_.Settings.ColourChoiceA = fore.value;
    app_.Settings.ColourChoiceB = back.value;
    app_.DialogResult = 1;
    Close();
}

void frmSetForegroundColour::cmdApply_Click() {
    const int row = lstColourOptions.ListIndex();
    if (row < 0) return;
    const Option& option = kOptions[row];
    Accept(option.fore, option.back);
}

void frmSetForegroundColour::ChooseFor(Label& label) {
    auto* picker = app_.Port<ColourPicker>();
    if (picker == nullptr) return;
    if (const auto chosen = picker->Choose(label.BackColor, ColourPicker::Extent::Full))
        label.BackColor = *chosen;
}

void frmSetForegroundColour::ChooseFor(CommandButton& button, std::int32_t& kept) {
    auto* picker = app_.Port<ColourPicker>();
    if (picker == nullptr) return;
    const auto chosen = picker->Choose(button.BackColor, ColourPicker::Extent::Full);
    if (!chosen) return;
    button.BackColor = *chosen;
    kept = chosen->value;
}

} // namespace korvane
