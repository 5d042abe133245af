#include "text/find/WordSearch.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace korvane {
namespace {

const CodePage kPage = CodePage::Windows1252();

std::ptrdiff_t Search(TextView text, TextView pattern, std::ptrdiff_t start = 0, bool ignoreCase = false) {
    return WordSearch(text, pattern, ignoreCase, kPage).SearchBytes(start);
}

bool IsWord(TextView text, TextView pattern, std::ptrdiff_t hit) {
    return WordSearch(text, pattern, false, kPage).IsWholeWord(hit - 1, MakeDelimiterTable(u".", kPage));
}

/// The search as it is told: a plain scan that knows nothing of whole hits before it has them.
std::ptrdiff_t PlainScan(const std::string& text, const std::string& pattern, std::size_t start,
                         bool ignoreCase) {
    const auto letter = [](char byte) { return (byte | 32) >= 'a' && (byte | 32) <= 'z' && byte > 0; };
    const auto same = [&](char byte, char wanted) {
        if (ignoreCase && letter(wanted)) return (byte | 32) == (wanted | 32);
        return byte == wanted;
    };
    for (std::size_t at = start; at < text.size();) {
        std::size_t matched = 0;
        for (;; ++matched) {
            if (at + matched >= text.size()) return -1;
            if (matched == pattern.size()) return static_cast<std::ptrdiff_t>(at);
            if (!same(text[at + matched], pattern[matched])) break;
        }
        at += matched + 1;
    }
    return -1;
}

TEST(WordSearch, FindsThePlaceFromTheStartOn) {
    EXPECT_EQ(Search(u"one two one.", u"one"), 0);
    EXPECT_EQ(Search(u"one two one.", u"one", 1), 8);
    EXPECT_EQ(Search(u"one two one.", u"one", 9), -1);
    EXPECT_EQ(Search(u"one two one.", u"one", 100), -1);
    EXPECT_EQ(Search(u"", u"one"), -1);
    EXPECT_EQ(Search(u"on", u"one"), -1);
}

/// Kept for compatibility: word-search-passes-hits.
TEST(WordSearch, AHitOnTheLastByteIsntFound) {
    EXPECT_EQ(Search(u"two one", u"one"), -1);
    EXPECT_EQ(Search(u"two one ", u"one"), 4);
    EXPECT_EQ(Search(u"one", u"e"), -1);
}

/// Kept for compatibility: word-search-passes-hits.
TEST(WordSearch, APartOfThePatternHidesTheHitThatBeginsInIt) {
    EXPECT_EQ(Search(u"aab.", u"ab"), -1);
    EXPECT_EQ(Search(u"aab.", u"ab", 1), 1);
    EXPECT_EQ(Search(u"aab ab.", u"ab"), 4);
    EXPECT_EQ(Search(u"aaab.", u"ab"), 2);
    EXPECT_EQ(Search(u"ananas.", u"anas"), -1);
}

TEST(WordSearch, IgnoresTheCaseOfAsciiLettersAlone) {
    EXPECT_EQ(Search(u"the Word.", u"wORD", 0, true), 4);
    EXPECT_EQ(Search(u"the \u00C4.", u"\u00E4", 0, true), -1);
    EXPECT_EQ(Search(u"the \u00E4.", u"\u00E4", 0, true), 4);
    // A bit tells these from each other too, and they are no letters.
    EXPECT_EQ(Search(u"[.", u"{", 0, true), -1);
    EXPECT_EQ(Search(u"@.", u"`", 0, true), -1);
    EXPECT_EQ(Search(u"\u0010.", u"0", 0, true), -1);
}

TEST(WordSearch, CharactersThatThePageLacksAreAlike) {
    EXPECT_EQ(Search(u"the \u4E00.", u"\u0416"), 4);
    EXPECT_EQ(Search(u"the ?.", u"\u0416"), 4);
    EXPECT_EQ(Search(u"the \u4E00.", u"e ?"), 2);
}

TEST(WordSearch, AWordIsBetweenDelimiters) {
    EXPECT_TRUE(IsWord(u"a one.", u"one", 2));
    EXPECT_TRUE(IsWord(u"a\tone\r", u"one", 2));
    EXPECT_FALSE(IsWord(u"a ones", u"one", 2));
    EXPECT_FALSE(IsWord(u"abone.", u"one", 2));
    EXPECT_TRUE(IsWord(u"a one", u"one", 2));
}

/// Kept for compatibility: second-place-begins-word.
TEST(WordSearch, NothingHasToBeInFrontOfTheFirstTwoPlaces) {
    EXPECT_TRUE(IsWord(u"one.", u"one", 0));
    EXPECT_TRUE(IsWord(u"xone.", u"one", 1));
    EXPECT_FALSE(IsWord(u"xxone.", u"one", 2));
}

TEST(WordSearch, GoesOnToTheNextWholeWord) {
    const Delimiters delimiters = MakeDelimiterTable(u"", kPage);
    const WordSearch search(u"ones bone one ", u"one", false, kPage);
    EXPECT_EQ(search.NextWord(0, delimiters), 10);
    EXPECT_EQ(search.NextWord(11, delimiters), -1);
}

TEST(WordSearch, SomeCharactersAlwaysEndWords) {
    const Delimiters none = MakeDelimiterTable(u"", kPage);
    for (std::size_t byte = 0; byte < none.size(); ++byte)
        EXPECT_EQ(none[byte], byte == ' ' || (byte >= 9 && byte <= 13 && byte != 11)) << byte;
    const Delimiters some = MakeDelimiterTable(u"x\u2019\u4E00", kPage);
    EXPECT_TRUE(some['x']);
    EXPECT_TRUE(some[0x92]);
    EXPECT_FALSE(some['?']);
    EXPECT_FALSE(some[256]);
}

/// Kept for compatibility: word-search-passes-hits.
TEST(WordSearch, GivesTheSameAsThePlainScan) {
    std::mt19937 random(11);
    const Text letters = u"aAb? \u00E4\u4E00";
    const auto pick = [&](std::size_t length, std::size_t kinds) {
        Text text;
        for (std::size_t i = 0; i < length; ++i)
            text += letters[random() % kinds];
        return text;
    };
    for (int round = 0; round < 400; ++round) {
        const std::size_t kinds = 2 + random() % (letters.size() - 1);
        const Text text = pick(random() % 200, kinds);
        const Text pattern = pick(1 + random() % 5, kinds);
        for (const bool ignoreCase : {false, true}) {
            const WordSearch search(text, pattern, ignoreCase, kPage);
            for (std::ptrdiff_t start = 0; start >= 0;) {
                const auto hit = PlainScan(kPage.ToBytes(text), kPage.ToBytes(pattern),
                                           static_cast<std::size_t>(start), ignoreCase);
                ASSERT_EQ(search.SearchBytes(start), hit);
                start = hit < 0 ? -1 : hit + 1;
            }
        }
    }
}

} // namespace
} // namespace korvane
