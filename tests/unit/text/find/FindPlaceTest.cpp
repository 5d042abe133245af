#include "text/find/FindPlace.h"

#include "common/text/CaseFold.h"

#include <gtest/gtest.h>

#include <random>

namespace korvane {
namespace {

constexpr auto kCounts = LetterCase::Counts;
constexpr auto kIgnored = LetterCase::Ignored;

TEST(TextSearch, FindsTheFirstPlaceFromTheStartOn) {
    EXPECT_EQ(FindDown(u"one two one", u"one", 0, kCounts), 0U);
    EXPECT_EQ(FindDown(u"one two one", u"one", 1, kCounts), 8U);
    EXPECT_EQ(FindDown(u"one two one", u"one", 8, kCounts), 8U);
    EXPECT_EQ(FindDown(u"one two one", u"one", 9, kCounts), std::nullopt);
    EXPECT_EQ(FindDown(u"one two one", u"One", 0, kCounts), std::nullopt);
    EXPECT_EQ(FindDown(u"one", u"one", 100, kCounts), std::nullopt);
    EXPECT_EQ(FindDown(u"aab", u"ab", 0, kCounts), 1U);
}

TEST(TextSearch, FindsTheLastPlaceThatEndsBeforeTheEnd) {
    EXPECT_EQ(FindUp(u"one two one", u"one", 11, kCounts), 8U);
    EXPECT_EQ(FindUp(u"one two one", u"one", 10, kCounts), 0U);
    EXPECT_EQ(FindUp(u"one two one", u"one", 3, kCounts), 0U);
    EXPECT_EQ(FindUp(u"one two one", u"one", 2, kCounts), std::nullopt);
    EXPECT_EQ(FindUp(u"one", u"one", 100, kCounts), 0U);
    EXPECT_EQ(FindUp(u"aaa", u"aa", 3, kCounts), 1U);
}

TEST(TextSearch, IgnoresCaseButNoAccents) {
    EXPECT_EQ(FindDown(u"ein \u00C4pfel", u"\u00E4PF", 0, kIgnored), 4U);
    EXPECT_EQ(FindDown(u"ein Apfel", u"\u00E4pf", 0, kIgnored), std::nullopt);
    EXPECT_EQ(FindUp(u"ein \u00C4pfel", u"\u00E4PF", 9, kIgnored), 4U);
    // The Greek letter has two small forms.
    EXPECT_EQ(FindDown(u"\u03BF\u03B4\u03BF\u03C2", u"\u039F\u03A3", 0, kIgnored), 2U);
    EXPECT_EQ(FindDown(u"x\u03C2", u"\u03C3", 0, kIgnored), 1U);
}

TEST(TextSearch, FindsNothingOfAnEmptyPartOrInAnEmptyText) {
    EXPECT_EQ(FindDown(u"one", u"", 0, kCounts), std::nullopt);
    EXPECT_EQ(FindUp(u"one", u"", 3, kIgnored), std::nullopt);
    EXPECT_EQ(FindDown(u"", u"a", 0, kCounts), std::nullopt);
    EXPECT_EQ(FindUp(u"", u"a", 0, kCounts), std::nullopt);
}

TEST(TextSearch, FindsLineEndsAndWhateverElseATextHas) {
    EXPECT_EQ(FindDown(u"one\r\ntwo", u"\r\n", 0, kCounts), 3U);
    EXPECT_EQ(FindDown(Text(u"a\0b", 3), Text(1, u'\0'), 0, kCounts), 1U);
    EXPECT_EQ(FindDown(u"a\U0001F600", u"\U0001F600", 0, kIgnored), 1U);
}

TEST(TextSearch, GivesTheSameAsASlowSearch) {
    std::mt19937 random(7);
    const Text letters = u"aAbB\u00E4\u00C4\u03C3\u03C2\u03A3 \r";
    const auto pick = [&](std::size_t length) {
        Text text;
        for (std::size_t i = 0; i < length; ++i)
            text += letters[random() % letters.size()];
        return text;
    };
    for (int round = 0; round < 1000; ++round) {
        const Text text = pick(random() % 400);
        const Text part = pick(1 + random() % 4);
        const std::size_t at = random() % 400;
        for (const LetterCase letterCase : {kCounts, kIgnored}) {
            const Text where = letterCase == kCounts ? text : ToUpper(text);
            const Text what = letterCase == kCounts ? part : ToUpper(part);
            const std::size_t down = where.find(what, at);
            const std::size_t up = TextView(where).substr(0, at).rfind(what);
            ASSERT_EQ(FindDown(text, part, at, letterCase).value_or(Text::npos), down);
            ASSERT_EQ(FindUp(text, part, at, letterCase).value_or(Text::npos), up);
        }
    }
}

} // namespace
} // namespace korvane
