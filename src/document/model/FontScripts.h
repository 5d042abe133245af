#pragma once

#include "common/text/Text.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace korvane::doc {

template <std::size_t Count>
bool IsWithin(const std::pair<char16_t, char16_t> (&ranges)[Count], char16_t c) {
    return c >= ranges[0].first && std::ranges::any_of(ranges, [c](const auto& range) {
               return c >= range.first && c <= range.second;
           });
}

/// Whether other programs have a font of their own for a character, the one for East Asia. The last range are
/// the first halves of the rarer ones.
inline bool IsEastAsian(char16_t c) {
    static constexpr std::pair<char16_t, char16_t> kRanges[] = {
        {0x1100, 0x11FF}, {0x2E80, 0x9FFF}, {0xA960, 0xA97F}, {0xAC00, 0xD7FF},
        {0xF900, 0xFAFF}, {0xFE30, 0xFE4F}, {0xFF00, 0xFFEF}, {0xD840, 0xD8BF}};
    return IsWithin(kRanges, c);
}

/// The same for the writings whose letters join or stack, most of them from the right or from India.
inline bool IsComplex(char16_t c) {
    static constexpr std::pair<char16_t, char16_t> kRanges[] = {
        {0x0590, 0x109F}, {0x1780, 0x18AF}, {0xFB1D, 0xFDFF}, {0xFE70, 0xFEFE}};
    return IsWithin(kRanges, c);
}

} // namespace korvane::doc
