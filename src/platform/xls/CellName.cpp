#include "platform/xls/CellName.h"

#include <algorithm>

namespace korvane::xls {

namespace {

constexpr int kLetters = 26;

/// 1 for "A" or "a"; nothing when it isn't a letter.
std::optional<U32> LetterNumber(char16_t letter) {
    if (letter >= u'a' && letter <= u'z') return static_cast<U32>(letter - u'a' + 1);
    if (letter >= u'A' && letter <= u'Z') return static_cast<U32>(letter - u'A' + 1);
    return std::nullopt;
}

/// Takes the letters from the beginning of the name.
std::optional<U16> TakeColumn(TextView& name) {
    U32 number = 0;
    while (!name.empty() && number <= kSheetCols) {
        const auto letter = LetterNumber(name.front());
        if (!letter) break;
        number = number * kLetters + *letter;
        name.remove_prefix(1);
    }
    if (number == 0 || number > kSheetCols) return std::nullopt;
    return static_cast<U16>(number - 1);
}

std::optional<U16> ParseRow(TextView digits) {
    if (digits.empty() || digits.front() == u'0') return std::nullopt;
    U32 number = 0;
    for (const char16_t digit : digits) {
        if (digit < u'0' || digit > u'9') return std::nullopt;
        number = number * 10 + static_cast<U32>(digit - u'0');
        if (number > kSheetRows) return std::nullopt;
    }
    return static_cast<U16>(number - 1);
}

} // namespace

std::optional<CellPlace> ParseCellName(TextView name) {
    const auto col = TakeColumn(name);
    const auto row = ParseRow(name);
    if (!col || !row) return std::nullopt;
    return CellPlace{*row, *col};
}

std::optional<U16> ParseColumnName(TextView name) {
    const auto first = TakeColumn(name);
    if (!first || !name.starts_with(u':')) return std::nullopt;
    name.remove_prefix(1);
    const auto last = TakeColumn(name);
    return name.empty() && last == first ? first : std::nullopt;
}

} // namespace korvane::xls
