#include "common/text/LineEnds.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

TEST(LineEnds, ALoneLfBecomesCrLf) {
    EXPECT_EQ(WithCrLf(u"a\nb\n\nc"), u"a\r\nb\r\n\r\nc");
    EXPECT_EQ(WithCrLf(u"\n"), u"\r\n");
}

TEST(LineEnds, CrLfAndALoneCrStay) {
    EXPECT_EQ(WithCrLf(u"a\r\nb\rc\r\r\n"), u"a\r\nb\rc\r\r\n");
}

TEST(LineEnds, TextWithoutLineEndsStays) {
    EXPECT_EQ(WithCrLf(u""), u"");
    EXPECT_EQ(WithCrLf(u"abc"), u"abc");
}

} // namespace
} // namespace korvane
