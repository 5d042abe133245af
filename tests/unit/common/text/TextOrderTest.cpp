#include "common/text/TextOrder.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

using Texts = std::vector<Text>;

Texts Sorted(const Texts& texts) {
    const std::vector<int> ranks = PlainTextOrder().RanksOf(texts);
    Texts sorted;
    for (int rank = 0; rank < static_cast<int>(texts.size()); ++rank) {
        for (std::size_t at = 0; at < texts.size(); ++at)
            if (ranks[at] == rank) sorted.push_back(texts[at]);
    }
    return sorted;
}

TEST(PlainTextOrder, LettersComeBeforeTheirAccentsAndAccentsBeforeCase) {
    EXPECT_EQ(Sorted({u"Éa", u"eb", u"éa", u"ea", u"Ea"}), (Texts{u"ea", u"Ea", u"éa", u"Éa", u"eb"}));
    EXPECT_EQ(Sorted({u"żz", u"zz", u"za", u"Ża"}), (Texts{u"za", u"Ża", u"zz", u"żz"}));
}

TEST(PlainTextOrder, NumbersCountByTheirValue) {
    EXPECT_EQ(Sorted({u"a10b", u"a9c", u"a9b", u"a0010a", u"a"}),
              (Texts{u"a", u"a9b", u"a9c", u"a0010a", u"a10b"}));
    const Text long1(70'000, u'1');
    EXPECT_EQ(Sorted({long1, u"2"}), (Texts{u"2", long1}));
}

TEST(PlainTextOrder, TextsThatAreAlikeHaveTheSameRank) {
    EXPECT_EQ(PlainTextOrder().RanksOf({u"b", u"a", u"b"}), (std::vector<int>{1, 0, 1}));
    EXPECT_TRUE(PlainTextOrder().RanksOf({}).empty());
}

} // namespace
} // namespace korvane
