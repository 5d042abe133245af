#include "text/control/LengthBox.h"

#include "common/number/Number.h"
#include "common/text/CaseFold.h"
#include "controls/text/TextControl.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace korvane {

namespace {

/// More than any page has.
constexpr double kLongest = 100'000;
constexpr double kTwipsPerCentimetre = kTwipsPerInch / 2.54;

struct UnitName {
    TextView name;
    double twips;
};
/// The first three are in the order of `LengthUnit`.
constexpr UnitName kUnits[] = {
    {u"in", kTwipsPerInch}, {u"cm", kTwipsPerCentimetre},      {u"pt", 20},
    {u"\"", kTwipsPerInch}, {u"mm", kTwipsPerCentimetre / 10},
};

const UnitName& Named(LengthUnit unit) {
    return kUnits[static_cast<std::size_t>(unit)];
}

bool IsDigit(char16_t character) {
    return character >= u'0' && character <= u'9';
}

} // namespace

LengthUnit UnitOf(int scaleUnits) {
    return scaleUnits == TextControl::kInches ? LengthUnit::Inches : LengthUnit::Centimetres;
}

Text LengthText(int twips, LengthUnit unit) {
    const double length = std::round(twips / Named(unit).twips * 100) / 100;
    return NumberText(length) + u" " + Text(Named(unit).name);
}

std::optional<int> LengthIn(TextView text, LengthUnit unit) {
    Text number = ToLower(text);
    std::ranges::replace(number, u',', u'.');
    if (std::ranges::none_of(number, IsDigit)) return std::nullopt;
    const auto named = std::ranges::find_if(
        kUnits, [&number](const UnitName& name) { return number.find(name.name) != Text::npos; });
    const double factor = named == std::end(kUnits) ? Named(unit).twips : named->twips;
    return static_cast<int>(std::lround(std::clamp(Val(TextView(number)) * factor, -kLongest, kLongest)));
}

void LengthBox::ShowLength(int twips, LengthUnit unit) {
    unit_ = unit;
    twips_ = twips;
    shown_ = LengthText(twips, unit);
    Text = shown_;
}

std::optional<int> LengthBox::NewLength() const {
    return Text.Get() == shown_ ? std::nullopt : LengthIn(Text.Get(), unit_);
}

std::optional<int> LengthBox::Length() const {
    return Text.Get() == shown_ ? twips_ : LengthIn(Text.Get(), unit_);
}

} // namespace korvane
