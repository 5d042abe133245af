#include "common/number/RoundedNumber.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

TEST(RoundedNumberText, HasSoManySignificantDigitsAtMost) {
    EXPECT_EQ(RoundedNumberText(0.1 + 0.2, 15), u"0.3");
    EXPECT_EQ(RoundedNumberText(0.1, 15), u"0.1");
    EXPECT_EQ(RoundedNumberText(372.25, 4), u"372.2");
    EXPECT_EQ(RoundedNumberText(372.0, 2), u"370");
    EXPECT_EQ(RoundedNumberText(1234567890.12345678, 15), u"1234567890.12346");
    EXPECT_EQ(RoundedNumberText(123456789012345678.0, 15), u"123456789012346000");
    EXPECT_EQ(RoundedNumberText(7.0, 1), u"7");
}

TEST(RoundedNumberText, RoundsUpIntoAFurtherDigit) {
    EXPECT_EQ(RoundedNumberText(999.96, 4), u"1000");
    EXPECT_EQ(RoundedNumberText(0.099996, 4), u"0.1");
    EXPECT_EQ(RoundedNumberText(-9.5, 1), u"-10");
}

TEST(RoundedNumberText, HasNoExponentAndNoZerosThatSayNothing) {
    EXPECT_EQ(RoundedNumberText(0.0, 15), u"0");
    EXPECT_EQ(RoundedNumberText(-0.0, 15), u"0");
    EXPECT_EQ(RoundedNumberText(-0.5, 15), u"-0.5");
    EXPECT_EQ(RoundedNumberText(372.0, 15), u"372");
    EXPECT_EQ(RoundedNumberText(1e-7, 15), u"0.0000001");
    EXPECT_EQ(RoundedNumberText(-1.25e-7, 15), u"-0.000000125");
    EXPECT_EQ(RoundedNumberText(1e22, 15), u"1" + Text(22, u'0'));
    EXPECT_EQ(RoundedNumberText(5e-324, 15), u"0." + Text(323, u'0') + u"494065645841247");
    EXPECT_EQ(RoundedNumberText(1.7976931348623157e308, 15).size(), 309u);
}

} // namespace
} // namespace korvane
