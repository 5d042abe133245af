#pragma once

#include "common/text/Text.h"

#include <cstdint>
#include <optional>

namespace korvane {

enum class LetterCase : std::uint8_t { Counts, Ignored };

/// The first place of `part` in the text from `start` on. Places count from 0. Nothing is found of an empty
/// part.
std::optional<std::size_t> FindDown(TextView text, TextView part, std::size_t start, LetterCase letterCase);

/// The last place of `part` that ends at `end` or before it.
std::optional<std::size_t> FindUp(TextView text, TextView part, std::size_t end, LetterCase letterCase);

} // namespace korvane
