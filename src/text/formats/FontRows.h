#pragma once

#include "common/text/Text.h"

namespace korvane {

/// The row of the list of fonts that changes no font.
inline constexpr TextView kNoFont = u"-----";

/// The rows of the list of text styles.
namespace StyleRow {
inline constexpr int kNormal = 1;
inline constexpr int kUppercase = 2;
inline constexpr int kLowercase = 3;
inline constexpr int kSmartUpper = 4;
inline constexpr int kSmallCaps = 5;
} // namespace StyleRow

} // namespace korvane
