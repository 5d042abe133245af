#pragma once

#include "controls/TextBox.h"

#include <cstdint>
#include <optional>

namespace korvane {

/// The units in which the windows of a text control show lengths.
enum class LengthUnit : std::uint8_t { Inches, Centimetres, Points };

/// What the unit of a text control's ruler means for lengths.
LengthUnit UnitOf(int scaleUnits);

/// A length with its unit, rounded to a hundredth.
Text LengthText(int twips, LengthUnit unit);
/// The length in twips of a text like "1.5 cm", "15 mm". Without a unit it counts in `unit`.
/// Nothing for a text that isn't a length.
std::optional<int> LengthIn(TextView text, LengthUnit unit);

/// A field for a length. It remembers what it showed, so that a length that nobody touched keeps its exact
/// value.
class LengthBox : public TextBox {
public:
    using TextBox::TextBox;

    void ShowLength(int twips, LengthUnit unit);
    /// Nothing when the length is as it was shown, or when there is none.
    std::optional<int> NewLength() const;
    /// Also a length that is as it was shown.
    std::optional<int> Length() const;

private:
    LengthUnit unit_ = LengthUnit::Inches;
    korvane::Text shown_;
    int twips_ = 0;
};

} // namespace korvane
