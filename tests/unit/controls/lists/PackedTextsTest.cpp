#include "controls/lists/PackedTexts.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace korvane {
namespace {

TEST(PackedTextsTest, HoldsNothingAtFirst) {
    const PackedTexts none;
    EXPECT_EQ(none.Size(), 0U);
    EXPECT_EQ(none.At(0), u"");
}

TEST(PackedTextsTest, HoldsItsTextsWithTheEmptyOnes) {
    const std::vector<TextView> texts{u"", u"one", u"", u"three", u""};
    const PackedTexts packed(texts);
    ASSERT_EQ(packed.Size(), texts.size());
    for (std::size_t index = 0; index < texts.size(); ++index)
        EXPECT_EQ(packed.At(index), texts[index]);
    EXPECT_EQ(packed.At(5), u"");
}

TEST(PackedTextsTest, HoldsTextsOfAnyLengthAndWithAnyUnits) {
    const Text longer(100'000, u'x');
    const Text nulls(3, u'\0');
    const PackedTexts packed(std::vector<TextView>{longer, nulls, u"\xFFFF", longer});
    EXPECT_EQ(packed.At(0), longer);
    EXPECT_EQ(packed.At(1), nulls);
    EXPECT_EQ(packed.At(2), u"\xFFFF");
    EXPECT_EQ(packed.At(3), longer);
}

TEST(PackedTextsTest, CanBeHandedOn) {
    PackedTexts packed(std::vector<TextView>{u"one", u"two"});
    const PackedTexts other = std::move(packed);
    EXPECT_EQ(other.At(1), u"two");
}

} // namespace
} // namespace korvane
