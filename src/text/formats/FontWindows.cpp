#include "text/formats/FontWindows.h"

#include "common/number/Number.h"
#include "common/text/CaseFold.h"
#include "common/text/Names.h"
#include "context/App.h"
#include "context/exchange/FontChoice.h"
#include "controls/text/TextControl.h"
#include "text/commands/TextCommands.h"
#include "text/formats/FontRows.h"
#include "text/formats/frmQuickNameSize.h"
#include "text/formats/frmSetForegroundColour.h"
#include "text/insert/InsertWindows.h"

#include <utility>

namespace korvane {

namespace {

std::int16_t Flag(bool on) {
    return on ? 1 : 0;
}

/// An attribute of characters, and how it is read and set.
struct Attribute {
    std::size_t flag;
    int (TextControl::*read)() const;
    void (TextControl::*set)(int);
};

constexpr Attribute kAttributes[] = {
    {FontAttr::Bold, &TextControl::FontBold, &TextControl::SetFontBold},
    {FontAttr::Italic, &TextControl::FontItalic, &TextControl::SetFontItalic},
    {FontAttr::Underline, &TextControl::FontUnderline, &TextControl::SetFontUnderline},
    {FontAttr::Strikethru, &TextControl::FontStrikethru, &TextControl::SetFontStrikethru},
};

/// What differs within the selection is told as nothing, which leaves it as it is.
void Describe(const TextControl& control, FontChoice& choice) {
    for (const auto& [flag, read, set] : kAttributes)
        choice.FontAttrs[flag] = static_cast<std::int16_t>((control.*read)());
    const int offset = control.BaseLineDiffers() ? 0 : control.BaseLine();
    choice.FontAttrs[FontAttr::Superscript] = Flag(offset > 0);
    choice.FontAttrs[FontAttr::Subscript] = Flag(offset < 0);
    choice.FontInits = {control.FontNameDiffers() ? Text(kNoFont) : control.FontName(),
                        control.FontSizeDiffers() ? u"0" : NumberText(control.FontHalfPoints() / 2.0)};
}

/// Neither flag leaves the characters where they are. Kept for compatibility: offset-goes-by-button-alone.
void ApplyAttrs(TextControl& control, const FontChoice& choice, int offset) {
    for (const auto& [flag, read, set] : kAttributes) {
        if (choice.FontAttrs[flag] != TextControl::kMixed) (control.*set)(choice.FontAttrs[flag]);
    }
    if (choice.FontAttrs[FontAttr::Superscript] == 1) control.SetBaseLine(offset);
    if (choice.FontAttrs[FontAttr::Subscript] == 1) control.SetBaseLine(-offset);
}

void Rewrite(TextControl& control, const Text& text) {
    if (!text.empty()) control.SetSelText(text);
}

void RewriteSmartly(TextControl& control) {
    const auto start = static_cast<std::size_t>(control.SelStart());
    const char16_t before = start == 0 ? u'\0' : control.All()[start - 1];
    Rewrite(control, SmartUpper(control.SelText(), before));
}

/// A row of the styles that changes the selection.
struct Style {
    int row;
    void (*apply)(TextControl&);
};

constexpr Style kStyles[] = {
    {StyleRow::kUppercase, [](TextControl& control) { Rewrite(control, ToUpper(control.SelText())); }},
    {StyleRow::kLowercase, [](TextControl& control) { Rewrite(control, ToLower(control.SelText())); }},
    {StyleRow::kSmartUpper, RewriteSmartly},
    {StyleRow::kSmallCaps, [](TextControl& control) { control.SetCharAttributes(TextControl::kSmallCaps); }},
};

void ApplyChoice(TextControl& control, const FontChoice& choice, const Settings& settings) {
    const doc::Step together(control.Store());
    // Colours that weren't chosen stay as they are.
    if (choice.FontColourChanged == 1) {
        control.SetForeColor(Colour{settings.ColourChoiceA});
        control.SetTextBkColor(Colour{settings.ColourChoiceB});
    }
    if (!choice.FontNameChosen.empty()) control.SetFontName(choice.FontNameChosen);
    if (choice.FontSizeChosen > 0) control.SetFontSize(choice.FontSizeChosen);
    if (choice.FontStyleChosen == StyleRow::kNormal) return ClearCharFormat(control);
    if (choice.FontNoChange == 0) ApplyAttrs(control, choice, settings.MarkupOption);
    for (const Style& style : kStyles) {
        if (style.row == choice.FontStyleChosen) style.apply(control);
    }
}

} // namespace

FontWindows::FontWindows(App& app) : app_(app) {
    app_.SetPort<FontPicker>(this);
    app_.SetPort<ColourPairPicker>(this);
    app_.SetPort<TextTools>(this);
}

FontWindows::~FontWindows() {
    if (app_.Port<FontPicker>() == this) app_.SetPort<FontPicker>(nullptr);
    if (app_.Port<ColourPairPicker>() == this) app_.SetPort<ColourPairPicker>(nullptr);
    if (app_.Port<TextTools>() == this) app_.SetPort<TextTools>(nullptr);
}

std::optional<FontSpec> FontWindows::Choose(const FontSpec& present) {
    FontChoice& choice = app_.Exchange<FontChoice>();
    choice.FontInits = {present.name.empty() ? Text(kNoFont) : present.name, NumberText(present.size)};
    choice.FontAttrs[FontAttr::Bold] = Flag(present.bold);
    frmQuickNameSize(app_).ShowModal();
    const auto chosenAttrs = std::exchange(choice.FontAttrs, {});
    if (choice.FontAccepted != 1) return std::nullopt;
    FontSpec chosen = present;
    if (!choice.FontNameChosen.empty()) chosen.name = choice.FontNameChosen;
    if (choice.FontSizeChosen > 0) chosen.size = choice.FontSizeChosen;
    if (choice.FontNoChange == 0) chosen.bold = chosenAttrs[FontAttr::Bold] == 1;
    return chosen;
}

std::optional<ColourPair> FontWindows::Choose(const ColourPair& present) {
    Settings& settings = app_.Settings;
    const auto lastA = settings.ColourChoiceA;
    const auto lastB = settings.ColourChoiceB;
    settings.ColourChoiceA = present.fore.value;
    settings.ColourChoiceB = present.back.value;
    frmSetForegroundColour(app_).ShowModal();
    if (app_.DialogResult != 1) {
        settings.ColourChoiceA = lastA;
        settings.ColourChoiceB = lastB;
        return std::nullopt;
    }
    return ColourPair{Colour{settings.ColourChoiceA}, Colour{settings.ColourChoiceB}};
}

bool FontWindows::ChooseFont(TextControl& target) {
    FontChoice& choice = app_.Exchange<FontChoice>();
    Describe(target, choice);
    frmQuickNameSize(app_).ShowModal();
    const bool accepted = choice.FontAccepted == 1;
    if (accepted) ApplyChoice(target, choice, app_.Settings);
    choice.FontAttrs = {};
    return accepted;
}

void FontWindows::ShowUnicode(TextControl& target) {
    ShowSymbolTables(app_, &target);
}

void FontWindows::ShowCharacters(TextControl& target) {
    korvane::ShowCharacters(app_, &target);
}

void FontWindows::ShowElements(TextControl& target) {
    korvane::ShowElements(app_, &target);
}

} // namespace korvane
