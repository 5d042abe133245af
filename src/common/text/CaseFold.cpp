#include "common/text/CaseFold.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace korvane {

namespace {

/// Small letters, every `step`th unit of the range, and the distance from each to its capital.
struct CaseRange {
    char16_t first;
    char16_t last;
    int step;
    int toCapital;
};

// Where a capital has two small letters, the later line gives the one that it is turned into. The dotted and
// dotless i, the long s and the micro sign have no line: their partners belong to other letters.
constexpr CaseRange kCaseRanges[] = {
    {u'a', u'z', 1, -32},           {u'\u00E0', u'\u00F6', 1, -32}, {u'\u00F8', u'\u00FE', 1, -32},
    {u'\u00FF', u'\u00FF', 1, 121}, {u'\u0101', u'\u012F', 2, -1},  {u'\u0133', u'\u0137', 2, -1},
    {u'\u013A', u'\u0148', 2, -1},  {u'\u014B', u'\u0177', 2, -1},  {u'\u017A', u'\u017E', 2, -1},
    {u'\u01A1', u'\u01A5', 2, -1},  {u'\u01B0', u'\u01B0', 1, -1},  {u'\u01CE', u'\u01DC', 2, -1},
    {u'\u01DF', u'\u01EF', 2, -1},  {u'\u01F9', u'\u021F', 2, -1},  {u'\u0223', u'\u0233', 2, -1},
    {u'\u03AC', u'\u03AC', 1, -38}, {u'\u03AD', u'\u03AF', 1, -37}, {u'\u03B1', u'\u03C1', 1, -32},
    {u'\u03C2', u'\u03C2', 1, -31}, {u'\u03C3', u'\u03CB', 1, -32}, {u'\u03CC', u'\u03CC', 1, -64},
    {u'\u03CD', u'\u03CE', 1, -63}, {u'\u0430', u'\u044F', 1, -32}, {u'\u0450', u'\u045F', 1, -80},
    {u'\u0461', u'\u0481', 2, -1},  {u'\u048B', u'\u04BF', 2, -1},  {u'\u04C2', u'\u04CE', 2, -1},
    {u'\u04CF', u'\u04CF', 1, -15}, {u'\u04D1', u'\u052F', 2, -1},  {u'\u1E01', u'\u1E95', 2, -1},
    {u'\u1EA1', u'\u1EFF', 2, -1},
};

/// What to add to each character, in blocks of 256. Few blocks hold changes, and block 0 changes nothing.
class CaseMap {
public:
    constexpr void Set(char16_t from, char16_t to) {
        std::uint8_t& block = blockOf_[from >> 8];
        if (block == 0) block = blocksUsed_++;
        steps_[block][from & 0xFF] = static_cast<char16_t>(to - from);
    }

    constexpr char16_t operator()(char16_t character) const {
        return static_cast<char16_t>(character + steps_[blockOf_[character >> 8]][character & 0xFF]);
    }

private:
    std::array<std::uint8_t, 256> blockOf_{};
    std::array<std::array<char16_t, 256>, 8> steps_{};
    std::uint8_t blocksUsed_ = 1;
};

enum class Direction { kToCapital, kToSmall };

constexpr CaseMap MakeCaseMap(Direction direction) {
    CaseMap map;
    for (const CaseRange& range : kCaseRanges) {
        for (int unit = range.first; unit <= range.last; unit += range.step) {
            const auto small = static_cast<char16_t>(unit);
            const auto capital = static_cast<char16_t>(unit + range.toCapital);
            if (direction == Direction::kToCapital) {
                map.Set(small, capital);
            } else {
                map.Set(capital, small);
            }
        }
    }
    return map;
}

constexpr CaseMap kToCapital = MakeCaseMap(Direction::kToCapital);
constexpr CaseMap kToSmall = MakeCaseMap(Direction::kToSmall);

Text Mapped(TextView text, const CaseMap& map) {
    Text mapped(text);
    std::ranges::transform(mapped, mapped.begin(), map);
    return mapped;
}

} // namespace

char16_t ToUpper(char16_t character) {
    return kToCapital(character);
}

char16_t ToLower(char16_t character) {
    return kToSmall(character);
}

Text ToUpper(TextView text) {
    return Mapped(text, kToCapital);
}

Text ToLower(TextView text) {
    return Mapped(text, kToSmall);
}

bool SameLetter(char16_t a, char16_t b) {
    return kToCapital(a) == kToCapital(b);
}

Text LettersLike(char16_t character) {
    const char16_t capital = kToCapital(character);
    Text alike(1, capital);
    for (const CaseRange& range : kCaseRanges) {
        const int small = capital - range.toCapital;
        const bool within = small >= range.first && small <= range.last;
        if (within && (small - range.first) % range.step == 0) alike += static_cast<char16_t>(small);
    }
    return alike;
}

bool EqualIgnoringCase(TextView a, TextView b) {
    return std::ranges::equal(a, b, SameLetter);
}

bool EndsWithIgnoringCase(TextView text, TextView end) {
    return text.size() >= end.size() && EqualIgnoringCase(Right(text, end.size()), end);
}

std::size_t InStrIgnoringCase(TextView text, TextView part, std::size_t start) {
    if (start == 0 || start > text.size() + 1) return 0;
    const auto from = text.begin() + static_cast<std::ptrdiff_t>(start - 1);
    const auto found = std::search(from, text.end(), part.begin(), part.end(), SameLetter);
    if (found == text.end() && !part.empty()) return 0;
    return static_cast<std::size_t>(found - text.begin()) + 1;
}

bool ContainsIgnoringCase(TextView text, TextView part) {
    return InStrIgnoringCase(text, part) != 0;
}

} // namespace korvane
