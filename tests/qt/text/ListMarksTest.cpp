#include "platform/qt/text/ListMarks.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

using doc::ListKind;

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
