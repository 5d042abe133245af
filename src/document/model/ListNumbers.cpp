#include "document/model/ListNumbers.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>

namespace korvane::doc {

namespace {

constexpr std::size_t kLevels = 10;

} // namespace

std::vector<int> ListNumbers(const Document& document) {
    std::vector<int> numbers(document.paragraphs.size());
    std::map<std::uint32_t, std::array<int, kLevels>> counts;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const ListMark& mark = document.FormatOf(document.paragraphs[i]).list;
        if (mark.kind == ListKind::None) continue;
        std::array<int, kLevels>& levels = counts[mark.list];
        const std::size_t level = std::min<std::size_t>(mark.level, kLevels - 1);
        numbers[i] = mark.start + levels[level]++;
        // What is below this paragraph counts from its start.
        std::fill(levels.begin() + static_cast<std::ptrdiff_t>(level) + 1, levels.end(), 0);
    }
    return numbers;
}

} // namespace korvane::doc
