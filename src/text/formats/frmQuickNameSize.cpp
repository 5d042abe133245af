#include "text/formats/frmQuickNameSize.h"

#include "common/number/Number.h"
#include "common/text/CaseFold.h"
#include "common/text/Names.h"
#include "context/App.h"
#include "context/WindowFitting.h"
#include "context/exchange/FontChoice.h"
#include "context/ports/SystemFontDialog.h"
#include "controls/UpdateScope.h"
#include "platform/InstalledFonts.h"
#include "text/formats/FontRows.h"
#include "text/formats/frmSetForegroundColour.h"
#include "text/insert/InsertWindows.h"
#include "text/paragraph/ParagraphTarget.h"

#include <algorithm>
#include <span>

namespace korvane {

namespace {

constexpr StoredCorner kPlace{&Settings::FontDialogLeft, &Settings::FontDialogTop};

constexpr TextView kSizes[] = {u"0",  u"6",  u"8",  u"9",  u"10", u"11", u"12", u"13", u"14", u"15", u"16",
                               u"17", u"18", u"20", u"24", u"28", u"32", u"36", u"48", u"56", u"64", u"72"};
constexpr TextView kOffsets[] = {u"00", u"36", u"48", u"64", u"72", u"84", u"96", u"108", u"120"};
constexpr TextView kStyles[] = {u"--------",  u"Normal",      u"Uppercase",
                                u"Lowercase", u"Smart Upper", u"Small CAPS"};

constexpr TextView kSample = u"AaBbCc DdEeFf GgHhIi\r\n ... XxYyZz";
/// From this size on, the sample has room for its first line alone.
constexpr int kLarge = 28;
/// How far the sample's characters are raised or lowered.
constexpr int kSampleOffset = 80;

// What draws a line below paragraphs, and what takes it away: the style, distance and width of their frame.
constexpr int kLine[] = {40, 140, 120};
constexpr int kNoLine[] = {2048, 100, 0};

int NumberOf(TextView text) {
    int number = 0;
    ReadNumber(text, number);
    return number;
}

int RowOf(const ListBox& list, const Text& text) {
    for (int row = 0; row < list.ListCount(); ++row) {
        if (ToLower(list.List(row)) == ToLower(text)) return row;
    }
    return -1;
}

/// What the list doesn't have comes into it.
void TakeRow(ListBox& list, const Text& text) {
    if (RowOf(list, text) < 0) list.AddItem(text);
    list.SetListIndex(RowOf(list, text));
}

/// Selects the row of what the caller has, or without that the row of the last time. If the list doesn't have
/// it any more, the first row is selected, which changes nothing.
void SelectFirst(ListBox& list, const Text& present, int last) {
    const int row = present.empty() ? last : RowOf(list, present);
    list.SetListIndex(row >= 0 && row < list.ListCount() ? row : 0);
}

void Fill(ListBox& list, std::span<const TextView> lines) {
    list.Clear();
    for (const TextView line : lines)
        list.AddItem(line);
}

} // namespace

/// The boxes in the order of the flags.
struct frmQuickNameSize::Tables {
    static constexpr CheckBox frmQuickNameSize::*kTicks[FontAttr::Count] = {
        &frmQuickNameSize::chkBold,       &frmQuickNameSize::chkItalic,      &frmQuickNameSize::chkUnderline,
        &frmQuickNameSize::chkStrikethru, &frmQuickNameSize::chkSuperscript, &frmQuickNameSize::chkSubscript};
};

frmQuickNameSize::frmQuickNameSize(App& app)
    : Form(app.Forms(), "frmQuickNameSize", u"Fonts and text styles"), app_(app) {
    lstName.NamesFonts = true;
    txtSample.Locked = true;
    WireChoices();
    WireButtons();
}

FontChoice& frmQuickNameSize::Choice() const {
    return app_.Exchange<FontChoice>();
}

void frmQuickNameSize::WireChoices() {
    for (ListBox* list : {&lstName, &lstSize, &lstAttr}) {
        list->Click = [this] { ShowSample(); };
        list->DblClick = [this] { cmdApply.Press(); };
    }
    for (CheckBox frmQuickNameSize::*tick : Tables::kTicks)
        (this->*tick).Click = [this] { ShowSample(); };
    chkNoChange.Click = [this] { ShowSample(); };
    const auto exclude = [this](CheckBox& box, CheckBox& other) {
        box.Click = [this, &box, &other] {
            if (box.Value == 1) other.Value = 0;
            ShowSample();
        };
    };
    exclude(chkSuperscript, chkSubscript);
    exclude(chkSubscript, chkSuperscript);
    cboSubSuper.Click = [this] { cboSubSuper_Click(); };
}

void frmQuickNameSize::WireButtons() {
    cmdZeroBaseline.Click = [this] { cmdZeroBaseline_Click(); };
    cmdColours.Click = [this] { cmdColours_Click(); };
    // Both draw a single line. Kept for compatibility: double-line-is-single.
    for (CommandButton* button : {&cmdDrawLine, &cmdDrawDoubleLine})
        button->Click = [this] { SetLine(kLine[0], kLine[1], kLine[2]); };
    cmdNoLine.Click = [this] { SetLine(kNoLine[0], kNoLine[1], kNoLine[2]); };
    cmdShapes.Click = [this] { ShowElements(app_, ParagraphTarget(app_)); };
    cmdSymbols.Click = [this] { ShowCharacters(app_, ParagraphTarget(app_)); };
    cmdAllSymbols.Click = [this] { ShowSymbolTables(app_, ParagraphTarget(app_)); };
    cmdAllFonts.Click = [this] { cmdAllFonts_Click(); };
    cmdApply.Click = [this] { cmdApply_Click(); };
    cmdApply.Default = true;
    cmdCancel.Click = [this] { Close(); };
    cmdCancel.Cancel = true;
}

void frmQuickNameSize::FillLists() {
    const UpdateScope update(lstName);
    lstName.Clear();
    lstName.AddItem(kNoFont);
    for (const Text& name : app_.Fonts() == nullptr ? std::vector<Text>() : app_.Fonts()->Names()) {
        // Fonts for vertical writing are listed twice, and this is the second time.
        if (!name.starts_with(u'@')) lstName.AddItem(name);
    }
    Fill(lstSize, kSizes);
    Fill(lstAttr, kStyles);
    Fill(cboSubSuper, kOffsets);
}

void frmQuickNameSize::ShowFirst() {
    const FontChoice& choice = Choice();
    const Settings& settings = app_.Settings;
    SelectFirst(lstName, choice.FontInits[0], settings.FontDialogOptionA);
    SelectFirst(lstSize, choice.FontInits[1], settings.FontDialogOptionB);
    lstAttr.SetListIndex(std::clamp<int>(choice.FontStyleIndex, 0, lstAttr.ListCount() - 1));
    for (std::size_t attr = 0; attr < FontAttr::Count; ++attr)
        (this->*Tables::kTicks[attr]).Value = choice.FontAttrs[attr];
    chkNoChange.Value = choice.FontNoChange;
    const auto* const offset = std::ranges::find_if(
        kOffsets, [&settings](TextView text) { return NumberOf(text) == settings.MarkupOption; });
    cboSubSuper.SetListIndex(offset == std::end(kOffsets) ? -1 : static_cast<int>(offset - kOffsets));
}

void frmQuickNameSize::Load() {
    Choice().FontAccepted = 0;
    Choice().FontColourChanged = 0;
    FillLists();
    ShowFirst();
    EnableLines();
    ready_ = true;
    ShowSample();
    lstName.SetFocus();
    RestoreCorner(app_, *this, kPlace);
}

void frmQuickNameSize::Unload() {
    StoreCorner(app_, *this, kPlace);
}

int frmQuickNameSize::ChosenSize() const {
    return NumberOf(lstSize.List(lstSize.ListIndex()));
}

/// The size of the choice, or the present one, which may be one that the list doesn't have; 0 when there is
/// neither.
int frmQuickNameSize::ShownHalfPoints() const {
    if (ChosenSize() > 0) return ChosenSize() * 2;
    return static_cast<int>(RoundHalfEven(Val(Choice().FontInits[1]) * 2));
}

/// The font of the choice, or the present one; empty when there is neither.
Text frmQuickNameSize::ShownName() const {
    const Text& present = Choice().FontInits[0];
    if (lstName.ListIndex() > 0) return lstName.List(lstName.ListIndex());
    return present == kNoFont ? Text() : present;
}

Text frmQuickNameSize::SampleText() const {
    const bool large = ShownHalfPoints() >= kLarge * 2;
    const Text text(large ? kSample.substr(0, kSample.find(u'\r')) : kSample);
    switch (lstAttr.ListIndex()) {
    case StyleRow::kUppercase:
        return ToUpper(text);
    case StyleRow::kLowercase:
        return ToLower(text);
    case StyleRow::kSmartUpper:
        return SmartUpper(text, 0);
    default:
        return text;
    }
}

void frmQuickNameSize::ShowSample() {
    if (!ready_) return;
    const int style = lstAttr.ListIndex();
    const bool marked = style != StyleRow::kNormal && chkNoChange.Value == 0;
    txtSample.SetAll(SampleText());
    txtSample.SetSelection(0, -1);
    if (!ShownName().empty()) txtSample.SetFontName(ShownName());
    if (ShownHalfPoints() > 0) txtSample.SetFontHalfPoints(ShownHalfPoints());
    txtSample.SetFontBold(marked && chkBold.Value == 1);
    txtSample.SetFontItalic(marked && chkItalic.Value == 1);
    txtSample.SetFontUnderline(marked && chkUnderline.Value == 1);
    txtSample.SetFontStrikethru(marked && chkStrikethru.Value == 1);
    if (marked) txtSample.SetBaseLine((chkSuperscript.Value - chkSubscript.Value) * kSampleOffset);
    if (style == StyleRow::kSmallCaps) txtSample.SetCharAttributes(TextControl::kSmallCaps);
    if (Choice().FontColourChanged == 1) {
        txtSample.SetForeColor(Colour{app_.Settings.ColourChoiceA});
        txtSample.SetTextBkColor(Colour{app_.Settings.ColourChoiceB});
    }
    txtSample.SetSelStart(0);
}

void frmQuickNameSize::cboSubSuper_Click() {
    const int row = cboSubSuper.ListIndex();
    if (row >= 0) app_.Settings.MarkupOption = static_cast<std::int16_t>(NumberOf(kOffsets[row]));
}

void frmQuickNameSize::EnableLines() {
    for (CommandButton* button : {&cmdZeroBaseline, &cmdDrawLine, &cmdDrawDoubleLine, &cmdNoLine})
        button->Enabled = ParagraphTarget(app_) != nullptr;
}

void frmQuickNameSize::cmdZeroBaseline_Click() {
    if (TextControl* const control = ParagraphTarget(app_)) control->SetBaseLine(0);
}

void frmQuickNameSize::SetLine(int style, int distance, int width) {
    ChangeParagraphs(app_, [&](TextControl& control) {
        control.SetFrameStyle(style);
        control.SetFrameDistance(distance);
        control.SetFrameLineWidth(width);
    });
}

void frmQuickNameSize::cmdColours_Click() {
    frmSetForegroundColour(app_).ShowModal();
    if (app_.DialogResult == 1) Choice().FontColourChanged = 1;
    ShowSample();
}

void frmQuickNameSize::cmdAllFonts_Click() {
    auto* dialog = app_.Port<SystemFontDialog>();
    if (dialog == nullptr) return;
    const FontSpec present{ShownName(), (ShownHalfPoints() + 1) / 2, chkBold.Value == 1};
    const auto font = dialog->Choose(present);
    if (!font) return;
    if (font->name != present.name) TakeRow(lstName, font->name);
    if (font->size != present.size) TakeRow(lstSize, NumberText(font->size));
    if (font->bold != present.bold) chkBold.Value = font->bold ? 1 : 0;
}

void frmQuickNameSize::cmdApply_Click() {
    FontChoice& choice = Choice();
    choice.FontAccepted = 1;
    choice.FontNameChosen = lstName.ListIndex() > 0 ? lstName.List(lstName.ListIndex()) : Text();
    choice.FontSizeChosen = static_cast<std::int16_t>(ChosenSize());
    choice.FontStyleChosen = static_cast<std::int16_t>(lstAttr.ListIndex());
    for (std::size_t attr = 0; attr < FontAttr::Count; ++attr)
        choice.FontAttrs[attr] = (this->*Tables::kTicks[attr]).Value;
    choice.FontBaseStyle = static_cast<std::int16_t>(chkSuperscript.Value + 2 * chkSubscript.Value);
    choice.FontNoChange = chkNoChange.Value;
    // Also a style that changes the text is chosen again. Kept for compatibility: font-style-comes-again.
    choice.FontStyleIndex = choice.FontStyleChosen;
    app_.Settings.FontDialogOptionA = static_cast<std::int16_t>(lstName.ListIndex());
    app_.Settings.FontDialogOptionB = static_cast<std::int16_t>(lstSize.ListIndex());
    Close();
}

} // namespace korvane
