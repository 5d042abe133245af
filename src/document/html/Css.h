#pragma once

#include "common/number/Units.h"
#include "common/text/Text.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>

namespace korvane::doc::html {

/// Takes the next declaration of a style away: its property and value, without the blanks around them. False
/// at the end.
bool TakeDeclaration(std::string_view& style, std::string_view& property, std::string_view& value);

/// Takes the next word of a value away; empty at the end.
std::string_view TakeWord(std::string_view& value);

/// A length in twips. A length in `em` is counted in the size of the letters. Nothing for a percentage, a
/// number without a unit other than 0, and a word.
std::optional<std::int32_t> LengthOf(std::string_view value, std::int32_t emTwips = 240);

/// A percentage, or a number without a unit as one.
std::optional<std::int32_t> PercentOf(std::string_view value);

/// `#rgb`, `#rrggbb`, `rgb(r, g, b)` or a name.
std::optional<Colour> ColourOf(std::string_view value);

/// The first name of a list of fonts.
Text FirstFont(std::string_view value);

bool SameWord(std::string_view a, std::string_view lower);

} // namespace korvane::doc::html
