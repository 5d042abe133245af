#include "text/paragraph/frmIndent.h"

#include "context/App.h"
#include "context/WindowFitting.h"
#include "context/exchange/ParagraphChoices.h"
#include "controls/KeyTable.h"
#include "controls/text/TextControl.h"
#include "text/paragraph/ParagraphTarget.h"
#include "text/paragraph/frmFramesDlg.h"
#include "text/paragraph/frmParaSpacing.h"
#include "text/paragraph/frmTabWidth.h"

#include <algorithm>
#include <span>

namespace korvane {

namespace {

constexpr StoredCorner kPlace{&Settings::IndentLeft, &Settings::IndentTop};

/// A row of the list, and what it does with the paragraphs.
struct Alignment {
    TextView text;
    void (doc::TextEditing::*set)(int);
    int value;
};

constexpr Alignment kAlignments[] = {
    {u" Left align text", &TextControl::SetAlignment, 0},
    {u" Right align text", &TextControl::SetAlignment, 1},
    {u" Center text", &TextControl::SetAlignment, 2},
    {u" Justify text", &TextControl::SetAlignment, 3},
    {u" Single line spacing", &TextControl::SetLineSpacing, 100},
    {u" One and a half", &TextControl::SetLineSpacing, 150},
    {u" Double line spacing", &TextControl::SetLineSpacing, 200},
};

using Option = OptionButton frmIndent::*;

// Each option's place is the number of its tabs.
constexpr Option kLeft[] = {&frmIndent::optNoLeftTab, &frmIndent::Option1, &frmIndent::Option2,
                            &frmIndent::Option3,      &frmIndent::Option4, &frmIndent::Option5,
                            &frmIndent::Option6};
constexpr Option kRight[] = {&frmIndent::optNoRightIndent, &frmIndent::optOneRightIndent,
                             &frmIndent::optTwoRightIndent, &frmIndent::optThreeRightIndent};

void Choose(frmIndent& window, std::span<const Option> options, int tabs) {
    const int last = static_cast<int>(options.size()) - 1;
    (window.*options[static_cast<std::size_t>(std::clamp(tabs, 0, last))]).Value = true;
}

std::int16_t Chosen(const frmIndent& window, std::span<const Option> options) {
    const auto found =
        std::ranges::find_if(options, [&window](Option option) { return (window.*option).Value.Get(); });
    return found == options.end() ? std::int16_t{0} : static_cast<std::int16_t>(found - options.begin());
}

} // namespace

struct frmIndent::Tables {
    static constexpr WindowKey<frmIndent> kKeys[] = {{"Esc", &frmIndent::Close}};
};

frmIndent::frmIndent(App& app) : Form(app.Forms(), "frmIndent", u"Align and indent"), app_(app) {
    cmdAccept.Click = [this] { cmdAccept_Click(); };
    lstClient.DblClick = [this] { cmdAccept_Click(); };
    cmdIndent.Click = [this] { cmdIndent_Click(); };
    cmdDeleteIndent.Click = [this] { ChangeParagraphs(app_, ClearIndents); };
    cmdDelRightIndent.Click = [this] {
        ChangeParagraphs(app_, [](TextControl& control) { control.SetIndentR(0); });
    };
    cmdParagraph.Click = [this] {
        if (auto* control = ParagraphTarget(app_)) control->ParagraphDialog();
    };
    cmdBullets.Click = [this] {
        if (auto* control = ParagraphTarget(app_)) control->ListAttrDialog();
    };
    cmdFrames.Click = [this] { frmFramesDlg(app_).ShowModal(); };
    cmdParaSpacing.Click = [this] { frmParaSpacing(app_).ShowModal(); };
    cmdSetTabs.Click = [this] { frmTabWidth(app_).ShowModal(); };
}

void frmIndent::Load() {
    RestoreCorner(app_, *this, kPlace);
    lstClient.Clear();
    for (const Alignment& row : kAlignments)
        lstClient.AddItem(row.text);
    lstClient.SetListIndex(app_.Exchange<ParagraphChoices>().AlignListIndex);
    Choose(*this, kLeft, app_.Settings.IndentOptionA);
    Choose(*this, kRight, app_.Settings.IndentOptionB);
    chkHangingIndent.Value = app_.Settings.IndentOptionC == 1 ? 1 : 0;
    lstClient.SetFocus();
}

void frmIndent::Unload() {
    app_.Exchange<ParagraphChoices>().AlignListIndex = static_cast<std::int16_t>(lstClient.ListIndex());
    StoreCorner(app_, *this, kPlace);
}

void frmIndent::KeyDown(KeyEvent& key) {
    RunKey(Tables::kKeys, *this, key);
}

void frmIndent::cmdAccept_Click() {
    const int index = lstClient.ListIndex();
    if (index < 0) return;
    ChangeParagraphs(app_,
                     [&row = kAlignments[index]](TextControl& control) { (control.*row.set)(row.value); });
}

void frmIndent::ReadChoices() {
    Settings& settings = app_.Settings;
    settings.IndentOptionA = Chosen(*this, kLeft);
    settings.IndentOptionB = Chosen(*this, kRight);
    settings.IndentOptionC = chkHangingIndent.Value;
    app_.Exchange<ParagraphChoices>().RightIndentOn = settings.IndentOptionB > 0 ? 1 : 0;
}

void frmIndent::cmdIndent_Click() {
    ReadChoices();
    const Settings& settings = app_.Settings;
    const int left = settings.TabUnitTwips * settings.IndentOptionA;
    const int right = settings.TabUnitTwips * settings.IndentOptionB;
    ChangeParagraphs(app_, [&](TextControl& control) {
        ClearTabs(control);
        SetTabs(control, settings.TabUnitTwips);
        ClearIndents(control);
        control.SetIndentL(left);
        if (app_.Exchange<ParagraphChoices>().RightIndentOn == 1) control.SetIndentR(right);
        // The first line hangs back by the same length.
        if (settings.IndentOptionC == 1) control.SetIndentFL(-left);
    });
}

} // namespace korvane
