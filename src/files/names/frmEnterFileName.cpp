#include "files/names/frmEnterFileName.h"

#include "common/number/Number.h"
#include "common/text/Names.h"
#include "context/App.h"
#include "context/Companions.h"
#include "context/exchange/ListerRequest.h"
#include "files/names/FieldKeys.h"
#include "files/names/NameLine.h"
#include "files/names/NameTyping.h"

#include <algorithm>
#include <array>

namespace korvane {

namespace {

constexpr int kDesignedFontSize = 10;

constexpr std::array kMenu{
    MenuEntry{0, "mnuReject", u"&Reject", ""},
    MenuEntry{0, "mnuAccept", u"&Accept", ""},
    MenuEntry{0, "mnuAcceptSave", u"Accept and &Save", ""},
};

} // namespace

frmEnterFileName::frmEnterFileName(App& app, NameLine& line)
    : Form(app.Forms(), "frmEnterFileName", u"Name length: 0 chars."),
      OfficeMenu1(*this, "OfficeMenu1", kMenu),
      app_(app),
      line_(line) {
    Frame1.Caption = u" Enter name of file to save    ( F5 = increase font; Ctrl-F5 = descrease font ) ";
    OfficeMenu1.Chosen = [this](std::string_view entry) {
        if (entry == "mnuReject") Reject();
        if (entry == "mnuAccept") Accept();
        if (entry == "mnuAcceptSave") AcceptAndSave();
    };
    txtFileName.Change = [this] { txtFileName_Change(); };
    txtFileName.KeyDown = [this](KeyEvent& key) { txtFileName_KeyDown(key); };
}

void frmEnterFileName::Load() {
    const auto& settings = app_.Settings;
    if (settings.EnterNameA > 0) Width = Twips{settings.EnterNameA};
    txtFileName.Font =
        FontSpec{.name = {}, .size = settings.EnterNameB > 0 ? settings.EnterNameB : kDesignedFontSize};
    atOpening_ = line_.FileName();
    txtFileName.Text = atOpening_;
    txtFileName.SelStart = static_cast<int>(atOpening_.size());
    txtFileName.SetFocus();
}

void frmEnterFileName::Unload() {
    app_.Settings.EnterNameA = Width.Get().Number();
    app_.Settings.EnterNameB = static_cast<std::int16_t>(txtFileName.Font.Get().size);
}

void frmEnterFileName::Finish(std::int16_t outcome) {
    app_.DialogResult = outcome;
    Close();
}

void frmEnterFileName::Reject() {
    line_.SetFileName(atOpening_);
    Finish(0);
}

void frmEnterFileName::txtFileName_Change() {
    Caption = u"Name length: " + NumberText(txtFileName.Text.Get().size()) + u" chars.";
    line_.SetFileName(txtFileName.Text.Get());
}

void frmEnterFileName::txtFileName_KeyDown(KeyEvent& key) {
    struct NameKey {
        int code;
        int mask;
        Handler run;
    };
    static constexpr std::array<NameKey, 11> kKeys{{
        {Key::Return, Mask::None, &frmEnterFileName::Accept},
        {Key::Escape, Mask::None, &frmEnterFileName::Reject},
        {'S', Mask::Ctrl, &frmEnterFileName::AcceptAndSave},
        {Key::F(3), Mask::None, &frmEnterFileName::ToggleExtension},
        {Key::F(3), Mask::Ctrl, &frmEnterFileName::CapsAndDocx},
        {'T', Mask::Ctrl, &frmEnterFileName::AddToday},
        {'U', Mask::Ctrl, &frmEnterFileName::Tidy},
        {'U', Mask::Ctrl | Mask::Shift, &frmEnterFileName::TidyWithCaps},
        {Key::F(5), Mask::None, &frmEnterFileName::EnlargeFont},
        {Key::F(5), Mask::Ctrl, &frmEnterFileName::ReduceFont},
        {Key::F(1), Mask::Ctrl | Mask::Shift, &frmEnterFileName::StartLorrit},
    }};
    const auto* found =
        std::ranges::find_if(kKeys, [&key](const NameKey& each) { return key.Is(each.code, each.mask); });
    if (found == kKeys.end()) return;
    key.consumed = true;
    (this->*found->run)();
}

void frmEnterFileName::ToggleExtension() {
    const Text name = WithNextExtension(txtFileName.Text.Get());
    if (name == txtFileName.Text.Get()) return;
    txtFileName.Text = name;
    line_.SetPattern(PatternOf(name));
}

void frmEnterFileName::CapsAndDocx() {
    TidyWithCaps();
    txtFileName.Text = AsDocx(txtFileName.Text.Get());
    line_.SetPattern(PatternOf(txtFileName.Text.Get()));
}

void frmEnterFileName::AddToday() {
    AddDate(app_, txtFileName);
}

void frmEnterFileName::Tidy() {
    txtFileName.Text = Tidied(txtFileName.Text.Get());
}

void frmEnterFileName::TidyWithCaps() {
    Text name = Tidied(txtFileName.Text.Get());
    txtFileName.Text = MakeFileName(name, NameCase::Title);
}

/// Kept for compatibility: file-name-font-without-limits.
void frmEnterFileName::ChangeFontSize(int step) {
    FontSpec font = txtFileName.Font;
    font.size += step;
    txtFileName.Font = font;
}

void frmEnterFileName::StartLorrit() {
    LaunchLorrit(app_, app_.Exchange<ListerRequest>().ListerFolder);
}

} // namespace korvane
