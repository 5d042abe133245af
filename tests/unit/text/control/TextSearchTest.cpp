#include "text/control/TextSearch.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

TEST(TextSearchTest, FindsDownwardsFromAPlaceOn) {
    const TextSearch search{u"ab"};
    EXPECT_EQ(search.Find(u"xab ab", 0), 1U);
    EXPECT_EQ(search.Find(u"xab ab", 1), 1U);
    EXPECT_EQ(search.Find(u"xab ab", 2), 4U);
    EXPECT_EQ(search.Find(u"xab ab", 5), std::nullopt);
    EXPECT_EQ(search.Find(u"xab ab", 50), std::nullopt);
}

TEST(TextSearchTest, FindsUpwardsWhatEndsBeforeAPlace) {
    const TextSearch search{u"ab", false, false, true};
    EXPECT_EQ(search.Find(u"ab ab", 5), 3U);
    EXPECT_EQ(search.Find(u"ab ab", 4), 0U);
    EXPECT_EQ(search.Find(u"ab ab", 2), 0U);
    EXPECT_EQ(search.Find(u"ab ab", 1), std::nullopt);
}

TEST(TextSearchTest, CapitalsAreAlikeUnlessTheyCount) {
    EXPECT_EQ((TextSearch{u"ÄB"}.Find(u"x äb", 0)), 2U);
    EXPECT_EQ((TextSearch{u"AB", true}.Find(u"ab AB", 0)), 3U);
    EXPECT_TRUE((TextSearch{u"ab"}.Is(u"AB")));
    EXPECT_FALSE((TextSearch{u"ab", true}.Is(u"AB")));
}

TEST(TextSearchTest, AWholeWordHasNoLetterBesideIt) {
    const TextSearch down{u"one", false, true};
    EXPECT_EQ(down.Find(u"ones bone one_ one", 0), 15U);
    EXPECT_EQ(down.Find(u"(one)", 0), 1U);
    EXPECT_EQ(down.Find(u"éone one1", 0), std::nullopt);
    const TextSearch up{u"one", false, true, true};
    EXPECT_EQ(up.Find(u"one bone ones", 13), 0U);
    EXPECT_EQ(up.Find(u"ones", 4), std::nullopt);
}

TEST(TextSearchTest, AllPlacesDoNotOverlap) {
    EXPECT_EQ((TextSearch{u"aa"}.FindAll(u"aaaaa")), (std::vector<std::size_t>{0, 2}));
    EXPECT_TRUE((TextSearch{u""}.FindAll(u"aa")).empty());
    EXPECT_EQ((TextSearch{u""}.Find(u"aa", 0)), std::nullopt);
}

} // namespace
} // namespace korvane
