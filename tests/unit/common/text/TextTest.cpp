#include "common/text/Text.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

TEST(Text, MidCountsFromOneAndIsEmptyPastTheEnd) {
    EXPECT_EQ(Mid(u"abcdef", 2, 3), u"bcd");
    EXPECT_EQ(Mid(u"abc", 3), u"c");
    EXPECT_EQ(Mid(u"abc", 4), u"");
    EXPECT_EQ(Mid(u"abc", 0), u"");
}

TEST(Text, LeftAndRightTakeAllOfAShorterText) {
    EXPECT_EQ(Left(u"abc", 2), u"ab");
    EXPECT_EQ(Left(u"abc", 9), u"abc");
    EXPECT_EQ(Right(u"abc", 2), u"bc");
    EXPECT_EQ(Right(u"abc", 9), u"abc");
}

TEST(Text, InStrGivesThePositionFromOneOrZero) {
    EXPECT_EQ(InStr(u"a.b.c", u"."), 2u);
    EXPECT_EQ(InStr(u"a.b.c", u".", 3), 4u);
    EXPECT_EQ(InStr(u"abc", u"x"), 0u);
    EXPECT_EQ(InStr(u"abc", u"a", 0), 0u);
    EXPECT_EQ(InStrRev(u"a.b.c", u"."), 4u);
    EXPECT_EQ(InStrRev(u"abc", u"."), 0u);
}

TEST(Text, TrimTakesBlanksOnlyAndLeavesTabs) {
    EXPECT_EQ(Trim(u"  a b "), u"a b");
    EXPECT_EQ(Trim(u"\ta "), u"\ta");
    EXPECT_EQ(Trim(u"   "), u"");
}

TEST(Text, IsUtf8TakesWellFormedCharactersOnly) {
    EXPECT_TRUE(IsUtf8(""));
    EXPECT_TRUE(IsUtf8("a\xC3\xA9\xF0\x9F\x98\x80"));
    EXPECT_TRUE(IsUtf8("\xEF\xBF\xBD")) << "a replacement character of its own";
    EXPECT_FALSE(IsUtf8("caf\xE9"));
    EXPECT_FALSE(IsUtf8("\xC3"));
    EXPECT_FALSE(IsUtf8("\xED\xA0\x80")) << "a surrogate";
}

TEST(Text, Utf8ComesBackUnchanged) {
    const Text text = u"aé€😀";
    EXPECT_EQ(FromUtf8(ToUtf8(text)), text);
}

TEST(Text, IllFormedUtf8BecomesReplacementCharacters) {
    EXPECT_EQ(FromUtf8("a\xFFz"), u"a�z");
    EXPECT_EQ(FromUtf8("\xC3"), u"�");
    EXPECT_EQ(FromUtf8("\xE2\x82z"), u"��z");
    EXPECT_EQ(FromUtf8("\xC0\x80"), u"��");
    EXPECT_EQ(FromUtf8("\xED\xA0\x80"), u"���");
}

TEST(Text, LoneSurrogateBecomesReplacementInUtf8) {
    EXPECT_EQ(ToUtf8(Text(1, 0xD800)), "\xEF\xBF\xBD");
    EXPECT_EQ(ToUtf8(Text(1, 0xDC00) + u"a"), "\xEF\xBF\xBD"
                                              "a");
}

} // namespace
} // namespace korvane
