#include "text/commands/TextCommands.h"

#include "controls/KeyEvent.h"
#include "controls/text/TextControl.h"

#include <algorithm>
#include <array>

namespace korvane {

namespace {

constexpr Colour kBlack{0};
constexpr Colour kYellow{65535};

/// A character that is typed, and what is written instead.
struct Quote {
    char16_t typed;
    /// What is written after one of these characters or at the start of the text, and what otherwise.
    TextView before;
    char16_t opening;
    char16_t closing;
};

constexpr Quote kQuotes[] = {
    {u'"', u" (['\u2018\t\n\f\r", u'\u201C', u'\u201D'},
    {u'\'', u" ([\"\u201C\t\n\f\r", u'\u2018', u'\u2019'},
};

constexpr std::array kZoomSteps{30,  50,  62,  75,  82,  90,  95,  100, 105, 110,
                                115, 120, 125, 150, 175, 200, 250, 300, 400, 500};
constexpr int kNoZoom = 100;

/// These characters end an address in a text.
constexpr TextView kUrlEnds = u"\n\r\t \"'\u201C\u201D>";

void SetIndents(TextControl& control, int twips) {
    control.SetIndentR(twips);
    control.SetIndentFL(twips);
    control.SetIndentL(twips);
}

} // namespace

void IndentSelection(TextControl& control, int modifiers, int defaultStep) {
    const doc::Step together(control.Store());
    control.SetTabCurrent(1);
    const int step = control.TabPos() < 1 ? defaultStep : control.TabPos();
    if (modifiers == Mask::None) control.SetIndentL(control.IndentL() + step);
    if (modifiers == Mask::Shift) control.SetIndentL(control.IndentL() - step);
    if (modifiers == (Mask::Ctrl | Mask::Alt)) SetIndents(control, 0);
}

void ToggleBold(TextControl& control) {
    control.SetFontBold(control.FontBold() == 1 ? 0 : 1);
}

void ToggleItalic(TextControl& control) {
    control.SetFontItalic(control.FontItalic() == 1 ? 0 : 1);
}

void ToggleUnderline(TextControl& control) {
    control.SetFontUnderline(control.FontUnderline() == 1 ? 0 : 1);
}

void ClearCharFormat(TextControl& control) {
    const doc::Step together(control.Store());
    control.SetFontItalic(0);
    control.SetFontUnderline(0);
    control.SetFontStrikethru(0);
    control.SetFontBold(0);
    control.SetBaseLine(0);
}

void MarkYellow(TextControl& control) {
    const doc::Step together(control.Store());
    control.SetForeColor(kBlack);
    control.SetTextBkColor(kYellow);
}

void SwapCharacters(TextControl& control) {
    const int start = control.SelStart();
    const Text& all = control.All();
    const auto at = static_cast<std::size_t>(start);
    if (start < 1 || at >= all.size()) return;
    const Text swapped{all[at], all[at - 1]};
    control.SetSelection(start - 1, 2);
    control.SetSelText(swapped);
}

void WriteSingleQuotes(TextControl& control) {
    if (control.SelLength() > 0) return;
    control.SetFontItalic(0);
    control.SetFontUnderline(0);
    control.SetFontBold(0);
    control.SetSelText(u"\u2018\u2019");
    control.SetSelStart(control.SelStart() - 1);
}

std::optional<char16_t> SmartQuote(const TextControl& control, TextView typed) {
    if (typed.size() != 1) return std::nullopt;
    const auto quote = std::ranges::find(kQuotes, typed[0], &Quote::typed);
    if (quote == std::end(kQuotes)) return std::nullopt;
    const int start = control.SelStart();
    const bool opens = start == 0 || quote->before.find(control.All()[static_cast<std::size_t>(start - 1)]) !=
                                         TextView::npos;
    return opens ? quote->opening : quote->closing;
}

std::optional<Text> FindUrl(TextView text) {
    std::size_t begin = text.find(u"https://");
    if (begin == TextView::npos) begin = text.find(u"www.");
    if (begin == TextView::npos) return std::nullopt;
    return Text(text.substr(begin, text.find_first_of(kUrlEnds, begin) - begin));
}

int ZoomIn(int percent) {
    const auto step = std::ranges::find(kZoomSteps, percent);
    return step == kZoomSteps.end() || step + 1 == kZoomSteps.end() ? kNoZoom : *(step + 1);
}

int ZoomOut(int percent) {
    const auto step = std::ranges::find(kZoomSteps, percent);
    return step == kZoomSteps.end() || step == kZoomSteps.begin() ? kNoZoom : *(step - 1);
}

} // namespace korvane
