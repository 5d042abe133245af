#include "document/model/ListNumbers.h"

#include <gtest/gtest.h>

#include <optional>

namespace korvane::doc {
namespace {

ListMark Mark(std::uint32_t list, std::uint8_t level, std::int32_t start = 1) {
    return {ListKind::Decimal, level, start, list};
}

TEST(ListNumbers, CountOnAndStartAgainBelow) {
    const std::optional<ListMark> marks[] = {Mark(1, 0), Mark(1, 1, 5), Mark(1, 1, 5), std::nullopt,
                                             Mark(1, 0), Mark(1, 1, 5), Mark(2, 0)};
    Document document;
    document.paragraphs.clear();
    for (const auto& mark : marks) {
        ParaFormat format;
        if (mark) format.list = *mark;
        document.paragraphs.push_back({.format = document.paras.Add(format)});
    }
    EXPECT_EQ(ListNumbers(document), (std::vector<int>{1, 5, 6, 0, 2, 5, 1}));
}

} // namespace
} // namespace korvane::doc
