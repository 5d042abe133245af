#include "common/number/Number.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>

namespace korvane {
namespace {

struct NumericValue {
    std::string_view text;
    double value;
};

constexpr NumericValue kNumericValues[] = {{"", 0},
                                           {"   ", 0},
                                           {"abc", 0},
                                           {"12", 12},
                                           {"12abc", 12},
                                           {"387.5", 387.5},
                                           {"1,5", 1},
                                           {" 12", 12},
                                           {"1 2 . 5", 12.5},
                                           {"- 7", -7},
                                           {"+7", 7},
                                           {"--7", 0},
                                           {"-+7", 0},
                                           {"7-3", 7},
                                           {"-", 0},
                                           {"---", 0},
                                           {".", 0},
                                           {"-.", 0},
                                           {".5", 0.5},
                                           {"5.", 5},
                                           {"1.2.3", 1.2},
                                           {"..5", 0},
                                           {".-5", 0},
                                           {"-0", 0},
                                           {"-0.0", 0},
                                           {"1e3", 1},
                                           {"1E3", 1},
                                           {"1d2", 1},
                                           {"&H10", 0},
                                           {"0x10", 0},
                                           {"inf", 0},
                                           {"nan", 0},
                                           {"\t5", 0},
                                           {"5\t6", 5},
                                           {"\r\n5", 0},
                                           {"007", 7},
                                           {"16777215", 16777215},
                                           {"-2147483648", -2147483648.0}};

TEST(Number, ValIsTheLeadingNumber) {
    for (const auto& [text, value] : kNumericValues) {
        EXPECT_EQ(Val(FromAscii(text)), value) << text;
        EXPECT_EQ(Val(text), value) << text;
    }
}

TEST(Number, ValKnowsNoNegativeZero) {
    for (const TextView text : {u"-0", u"-0.0", u"-", u"-x"}) {
        EXPECT_FALSE(std::signbit(Val(text)));
    }
}

TEST(Number, ValRoundsCorrectly) {
    EXPECT_EQ(Val(u"0.1"), 0.1);
    EXPECT_EQ(Val(u"9007199254740993"), 9007199254740992.0);
    EXPECT_EQ(Val(u"2.2250738585072011"), 2.2250738585072011);
    EXPECT_EQ(Val(u"1.00000000000000011102230246251565404236316680908203125"), 1.0);
    EXPECT_EQ(Val(u"1.00000000000000011102230246251565404236316680908203126"), 1.0000000000000002);
}

TEST(Number, ValBeyondTheRangeOfDoubleIsInfiniteAndBelowItZero) {
    const Text huge = u"1" + Text(400, u'0');
    EXPECT_EQ(Val(huge), HUGE_VAL);
    EXPECT_EQ(Val(u"-" + huge), -HUGE_VAL);
    EXPECT_EQ(Val(u"0." + Text(400, u'0') + u"1"), 0.0);
    EXPECT_EQ(Val(Text(400, u'0') + u"1"), 1.0);
}

TEST(Number, ValTakesNoDigitsOrBlanksOutsideAscii) {
    EXPECT_EQ(Val(u"١٢"), 0);
    EXPECT_EQ(Val(u"1\u00A02"), 1);
    EXPECT_EQ(Val(Text{static_cast<char16_t>(0x0100 + u'5')}), 0);
    EXPECT_EQ(Val(std::string_view("1\xA0"
                                   "2")),
              1);
}

TEST(Number, RoundHalfEvenTakesTiesToTheEvenNumber) {
    EXPECT_EQ(RoundHalfEven(0.5), 0);
    EXPECT_EQ(RoundHalfEven(1.5), 2);
    EXPECT_EQ(RoundHalfEven(2.5), 2);
    EXPECT_EQ(RoundHalfEven(-0.5), 0);
    EXPECT_EQ(RoundHalfEven(-1.5), -2);
    EXPECT_EQ(RoundHalfEven(2.5000001), 3);
    EXPECT_EQ(RoundHalfEven(2.4999999), 2);
}

TEST(Number, ReadNumberRoundsToTheField) {
    std::int16_t small = 1;
    EXPECT_TRUE(ReadNumber(u"12.5abc", small));
    EXPECT_EQ(small, 12);
    EXPECT_TRUE(ReadNumber("13.5", small));
    EXPECT_EQ(small, 14);
    std::int32_t large = 1;
    EXPECT_TRUE(ReadNumber("-2147483648", large));
    EXPECT_EQ(large, INT32_MIN);
}

TEST(Number, ReadNumberOfATextWithoutNumberIsZero) {
    std::int16_t field = 9;
    EXPECT_TRUE(ReadNumber(u"", field));
    EXPECT_EQ(field, 0);
    field = 9;
    EXPECT_TRUE(ReadNumber(u"abc", field));
    EXPECT_EQ(field, 0);
}

TEST(Number, ReadNumberLeavesTheFieldWhenTheNumberDoesNotFit) {
    std::int16_t small = 7;
    for (const TextView text : {u"32768", u"40000", u"32767.5", u"-32769", u"-32768.51"}) {
        EXPECT_FALSE(ReadNumber(text, small));
        EXPECT_EQ(small, 7);
    }
    std::int32_t large = 7;
    EXPECT_FALSE(ReadNumber(u"2147483648", large));
    EXPECT_FALSE(ReadNumber(Text(400, u'9'), large));
    EXPECT_EQ(large, 7);
}

TEST(Number, ReadNumberRoundsBeforeItLooksWhetherTheNumberFits) {
    std::int16_t field = 7;
    EXPECT_TRUE(ReadNumber(u"32767.4", field));
    EXPECT_EQ(field, 32767);
    EXPECT_TRUE(ReadNumber(u"-32768.5", field));
    EXPECT_EQ(field, -32768);
}

TEST(Number, StoreRoundedRefusesWhatIsNoNumber) {
    std::int32_t field = 7;
    EXPECT_FALSE(StoreRounded(std::nan(""), field));
    EXPECT_EQ(field, 7);
}

TEST(Number, NumberTextHasTheFewestDigitsAndNoExponent) {
    EXPECT_EQ(NumberText(387.5), u"387.5");
    EXPECT_EQ(NumberText(372.0), u"372");
    EXPECT_EQ(NumberText(-0.5), u"-0.5");
    EXPECT_EQ(NumberText(0.1), u"0.1");
    EXPECT_EQ(NumberText(0.1 + 0.2), u"0.30000000000000004");
    EXPECT_EQ(NumberText(0.0), u"0");
    EXPECT_EQ(NumberText(-0.0), u"0");
    EXPECT_EQ(NumberText(1e15), u"1000000000000000");
    EXPECT_EQ(NumberText(1e-7), u"0.0000001");
    EXPECT_EQ(NumberText(-1e21), u"-1000000000000000000000");
}

TEST(Number, NumberTextReadsBackAsTheSameNumber) {
    for (const double number : {5e-324, -5e-324, 2.2250738585072014e-308, 1.7976931348623157e308,
                                -1.7976931348623157e308, 1.0 / 3, 1e23, 123456.789}) {
        EXPECT_EQ(Val(NumberText(number)), number);
    }
}

TEST(Number, NumberTextOfWholeNumbersHasNoLeadingBlank) {
    EXPECT_EQ(NumberText(0), u"0");
    EXPECT_EQ(NumberText(-12), u"-12");
    EXPECT_EQ(NumberText(std::size_t{12}), u"12");
    EXPECT_EQ(NumberText(INT64_MIN), u"-9223372036854775808");
}

TEST(Number, FormatGroupedPutsACommaBeforeEachThreeDigits) {
    EXPECT_EQ(FormatGrouped(1), u"1");
    EXPECT_EQ(FormatGrouped(999), u"999");
    EXPECT_EQ(FormatGrouped(1000), u"1,000");
    EXPECT_EQ(FormatGrouped(123456), u"123,456");
    EXPECT_EQ(FormatGrouped(std::int64_t{1234567890123}), u"1,234,567,890,123");
    EXPECT_EQ(FormatGrouped(-999), u"-999");
    EXPECT_EQ(FormatGrouped(-1000), u"-1,000");
    EXPECT_EQ(FormatGrouped(INT64_MIN), u"-9,223,372,036,854,775,808");
}

TEST(Number, FormatGroupedOfZeroIsEmpty) {
    EXPECT_EQ(FormatGrouped(0), u"");
    EXPECT_EQ(FormatGrouped(0.0), u"");
    EXPECT_EQ(FormatGrouped(0.4), u"");
    EXPECT_EQ(FormatGrouped(-0.4), u"");
    EXPECT_EQ(FormatGrouped(u"0"), u"");
}

TEST(Number, FormatGroupedRoundsTiesAwayFromZero) {
    EXPECT_EQ(FormatGrouped(0.5), u"1");
    EXPECT_EQ(FormatGrouped(2.5), u"3");
    EXPECT_EQ(FormatGrouped(-2.5), u"-3");
    EXPECT_EQ(FormatGrouped(999.5), u"1,000");
    EXPECT_EQ(FormatGrouped(1e21), u"1,000,000,000,000,000,000,000");
}

TEST(Number, FormatGroupedFormatsATextThatIsANumber) {
    EXPECT_EQ(FormatGrouped(u"1234"), u"1,234");
    EXPECT_EQ(FormatGrouped(u" -1234.5 "), u"-1,235");
    EXPECT_EQ(FormatGrouped(u"+1234"), u"1,234");
    EXPECT_EQ(FormatGrouped(u".5"), u"1");
}

TEST(Number, FormatGroupedPassesOtherTextsThrough) {
    for (const TextView text :
         {u"1,234 bytes", u" bytes", u"", u"  ", u"12 34", u"1.2.3", u"-", u".", u"--1", u"1e3", u"abc"}) {
        EXPECT_EQ(FormatGrouped(text), text);
    }
    EXPECT_EQ(FormatGrouped(Text(400, u'9')), Text(400, u'9'));
}

TEST(Number, FormatGroupedFilledHasNineDigits) {
    EXPECT_EQ(FormatGroupedFilled(0), u"000,000,000");
    EXPECT_EQ(FormatGroupedFilled(1234), u"000,001,234");
    EXPECT_EQ(FormatGroupedFilled(-1234), u"-000,001,234");
    EXPECT_EQ(FormatGroupedFilled(1234567890), u"1,234,567,890");
}

} // namespace
} // namespace korvane
