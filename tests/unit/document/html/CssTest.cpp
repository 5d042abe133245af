#include "document/html/Css.h"

#include <gtest/gtest.h>

namespace korvane::doc::html {
namespace {

TEST(Css, DeclarationsEndAtASemicolon) {
    std::string_view style = "color : red ;; font-family:'a;b\\'c' ; broken; width:1pt";
    std::string_view property;
    std::string_view value;
    ASSERT_TRUE(TakeDeclaration(style, property, value));
    EXPECT_EQ(property, "color");
    EXPECT_EQ(value, "red");
    ASSERT_TRUE(TakeDeclaration(style, property, value));
    EXPECT_EQ(value, "'a;b\\'c'");
    ASSERT_TRUE(TakeDeclaration(style, property, value));
    EXPECT_EQ(property, "width");
    EXPECT_FALSE(TakeDeclaration(style, property, value));
}

TEST(Css, LengthsAreInTwips) {
    EXPECT_EQ(LengthOf("1pt"), 20);
    EXPECT_EQ(LengthOf("0.05PT"), 1);
    EXPECT_EQ(LengthOf("-2px"), -30);
    EXPECT_EQ(LengthOf("1in"), 1440);
    EXPECT_EQ(LengthOf("2.54cm"), 1440);
    EXPECT_EQ(LengthOf("0"), 0);
    EXPECT_EQ(LengthOf("1.5em", 200), 300);
    EXPECT_EQ(LengthOf("5"), std::nullopt);
    EXPECT_EQ(LengthOf("50%"), std::nullopt);
    EXPECT_EQ(LengthOf("auto"), std::nullopt);
    EXPECT_EQ(LengthOf("1e999pt"), std::nullopt);
    EXPECT_EQ(LengthOf("99999999999pt"), 1'000'000);
}

TEST(Css, PercentagesMayBeNumbers) {
    EXPECT_EQ(PercentOf("150%"), 150);
    EXPECT_EQ(PercentOf("1.5"), 150);
    EXPECT_EQ(PercentOf("1.5pt"), std::nullopt);
}

TEST(Css, ColoursHaveRedInTheLowByte) {
    EXPECT_EQ(ColourOf("#010203"), Colour{0x030201});
    EXPECT_EQ(ColourOf("#123"), Colour{0x332211});
    EXPECT_EQ(ColourOf("rgb(1, 2,3)"), Colour{0x030201});
    EXPECT_EQ(ColourOf("Red"), Colour{0x0000FF});
    EXPECT_EQ(ColourOf("#12345"), std::nullopt);
    EXPECT_EQ(ColourOf("inherit"), std::nullopt);
}

TEST(Css, TheFirstFontOfAListCounts) {
    EXPECT_EQ(FirstFont("Times New Roman, serif"), u"Times New Roman");
    EXPECT_EQ(FirstFont("'It\\'s', x"), u"It's");
    EXPECT_EQ(FirstFont(""), u"");
}

} // namespace
} // namespace korvane::doc::html
