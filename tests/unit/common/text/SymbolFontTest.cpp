#include "common/text/SymbolFont.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

TEST(SymbolFontTest, APictureHasACharacterOfItsOwn) {
    EXPECT_EQ(WingdingsLike(74), u'\u263A');
    EXPECT_EQ(WingdingsLike(224), u'\u2192');
    EXPECT_EQ(WingdingsLike(252), u'\u2714');
}

TEST(SymbolFontTest, ACodeOnThePageOfPicturesIsTheSame) {
    EXPECT_EQ(WingdingsLike(0xF0E0), WingdingsLike(0xE0));
}

TEST(SymbolFontTest, OtherCodesHaveNone) {
    EXPECT_EQ(WingdingsLike(0), std::nullopt);
    EXPECT_EQ(WingdingsLike(73), std::nullopt);
    EXPECT_EQ(WingdingsLike(0xF000), std::nullopt);
    EXPECT_EQ(WingdingsLike(0xE1E0), std::nullopt);
}

} // namespace
} // namespace korvane
