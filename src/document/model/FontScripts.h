#pragma once

#include "common/text/Text.h"

#include <algorithm>
#include <utility>

namespace korvane::doc {

/// The characters for which other programs have a font of their own. The last range are the first halves of
/// the rarer ones.
inline bool IsEastAsian(char16_t c) {
    static constexpr std::pair<char16_t, char16_t> kRanges[] = {
        {0x1100, 0x11FF}, {0x2E80, 0x9FFF}, {0xA960, 0xA97F}, {0xAC00, 0xD7FF},
        {0xF900, 0xFAFF}, {0xFE30, 0xFE4F}, {0xFF00, 0xFFEF}, {0xD840, 0xD8BF}};
    return c >= kRanges[0].first && std::ranges::any_of(kRanges, [c](const auto& range) {
               return c >= range.first && c <= range.second;
           });
}

} // namespace korvane::doc
