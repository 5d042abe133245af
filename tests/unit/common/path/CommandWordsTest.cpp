#include "common/path/CommandWords.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(SplitCommandLine, BlanksSeparateWords) {
    EXPECT_THAT(SplitCommandLine(u"one two"), ElementsAre(u"one", u"two"));
    EXPECT_THAT(SplitCommandLine(u"  one   two  "), ElementsAre(u"one", u"two"));
    EXPECT_THAT(SplitCommandLine(u""), IsEmpty());
    EXPECT_THAT(SplitCommandLine(u"   "), IsEmpty());
}

TEST(SplitCommandLine, DoubleQuotesHoldWordsTogether) {
    EXPECT_THAT(SplitCommandLine(u"\"my file.txt\" -x"), ElementsAre(u"my file.txt", u"-x"));
    EXPECT_THAT(SplitCommandLine(u"--name=\"a b\"c d"), ElementsAre(u"--name=a bc", u"d"));
}

TEST(SplitCommandLine, AnEmptyPairOfQuotesIsAnEmptyWord) {
    EXPECT_THAT(SplitCommandLine(u"a \"\" b"), ElementsAre(u"a", u"", u"b"));
}

TEST(SplitCommandLine, ALoneQuoteHoldsUpToTheEnd) {
    EXPECT_THAT(SplitCommandLine(u"a \"b c "), ElementsAre(u"a", u"b c "));
    EXPECT_THAT(SplitCommandLine(u"a b\""), ElementsAre(u"a", u"b"));
}

TEST(SplitCommandLine, NothingElseIsSpecial) {
    EXPECT_THAT(SplitCommandLine(u"$HOME;rm $(id) `id` a|b a&b >x 'c d' e\\ f *.txt ~"),
                ElementsAre(u"$HOME;rm", u"$(id)", u"`id`", u"a|b", u"a&b", u">x", u"'c", u"d'", u"e\\", u"f",
                            u"*.txt", u"~"));
    EXPECT_THAT(SplitCommandLine(u"a\nb\tc\r\nd"), ElementsAre(u"a\nb\tc\r\nd"));
    EXPECT_THAT(SplitCommandLine(u"\\\"a b\\\""), ElementsAre(u"\\a b\\"));
}

TEST(SplitCommandLine, ALeadingHyphenStaysInItsWord) {
    EXPECT_THAT(SplitCommandLine(u"-rf --all"), ElementsAre(u"-rf", u"--all"));
}

} // namespace
} // namespace korvane
