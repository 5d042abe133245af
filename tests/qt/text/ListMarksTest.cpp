#include "platform/qt/text/ListMarks.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

using doc::ListKind;

doc::ListMark Mark(std::uint32_t list, std::uint8_t level, std::int32_t start = 1) {
    return {ListKind::Decimal, level, start, list};
}

TEST(ListMarks, NumbersCountOnAndStartAgainBelow) {
    const std::optional<doc::ListMark> marks[] = {Mark(1, 0), Mark(1, 1, 5), Mark(1, 1, 5), std::nullopt,
                                                  Mark(1, 0), Mark(1, 1, 5), Mark(2, 0)};
    doc::Document document;
    document.paragraphs.clear();
    for (const auto& mark : marks) {
        doc::ParaFormat format;
        if (mark) format.list = *mark;
        document.paragraphs.push_back({.format = document.paras.Add(format)});
    }
    EXPECT_EQ(ListNumbers(document), (std::vector<int>{1, 5, 6, 0, 2, 5, 1}));
}

TEST(ListMarks, EachKindHasItsMark) {
    const auto text = [](ListKind kind, int number, std::uint8_t level = 0) {
        return ToUtf8(MarkText({kind, level}, number));
    };
    EXPECT_EQ(text(ListKind::Bullet, 3), "•");
    EXPECT_EQ(text(ListKind::Bullet, 3, 1), "◦");
    EXPECT_EQ(text(ListKind::Decimal, 12), "12.");
    EXPECT_EQ(text(ListKind::LowerLetter, 26), "z.");
    EXPECT_EQ(text(ListKind::LowerLetter, 28), "bb.");
    EXPECT_EQ(text(ListKind::UpperLetter, 2), "B.");
    EXPECT_EQ(text(ListKind::LowerRoman, 1994), "mcmxciv.");
    EXPECT_EQ(text(ListKind::UpperRoman, 4), "IV.");
    EXPECT_EQ(text(ListKind::UpperRoman, 0), "0.");
    EXPECT_EQ(text(ListKind::LowerLetter, 1000000), "1000000.");
}

} // namespace
} // namespace korvane
