#include "common/text/FoldedOrder.h"

#include "common/text/CaseFold.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>

namespace korvane {
namespace {

using Order = std::vector<std::uint32_t>;

Order OrderOf(const std::vector<Text>& texts, SortOrder order = SortOrder::Ascending) {
    return FoldedOrder(std::vector<TextView>(texts.begin(), texts.end()), order);
}

TEST(FoldedOrder, ComparesByUnitsWithCaseIgnored) {
    EXPECT_EQ(OrderOf({u"b", u"A1", u"a", u"", u"10", u"9", u"\u00E9", u"\u00C9a"}),
              (Order{3, 4, 5, 2, 1, 0, 6, 7}));
}

TEST(FoldedOrder, TextsThatAreAlikeKeepTheirOrderBothWays) {
    const std::vector<Text> texts{u"same words", u"Same Words", u"other", u"SAME WORDS"};
    EXPECT_EQ(OrderOf(texts), (Order{2, 0, 1, 3}));
    EXPECT_EQ(OrderOf(texts, SortOrder::Descending), (Order{0, 1, 3, 2}));
}

TEST(FoldedOrder, ATextComesBeforeItsContinuation) {
    EXPECT_EQ(OrderOf({u"abcdefgh", u"abcdefg", u"abcd", u"abc", u"abcde"}), (Order{3, 2, 4, 1, 0}));
    EXPECT_EQ(OrderOf({u"abc", u"abcd", u"abcde"}, SortOrder::Descending), (Order{2, 1, 0}));
}

TEST(FoldedOrder, AgreesWithAComparisonOfWholeTexts) {
    std::mt19937 random(1);
    const auto pick = [&random](std::size_t count) { return std::size_t{random()} % count; };
    std::vector<Text> texts(500);
    for (Text& text : texts) {
        text = u"Report ";
        for (std::size_t left = pick(9); left > 0; --left)
            text += u"aAbB\u0436\u0416\uFFFF"[pick(7)];
    }
    for (const SortOrder order : {SortOrder::Ascending, SortOrder::Descending}) {
        Order wanted(texts.size());
        std::iota(wanted.begin(), wanted.end(), 0U);
        std::ranges::stable_sort(wanted, [&](std::uint32_t a, std::uint32_t b) {
            if (order == SortOrder::Descending) std::swap(a, b);
            return ToUpper(texts[a]) < ToUpper(texts[b]);
        });
        EXPECT_EQ(OrderOf(texts, order), wanted);
    }
}

TEST(FoldedOrder, ManyLongTextsThatAreAlikeAreNoTrouble) {
    const std::vector<Text> texts(10, Text(100'000, u'x'));
    EXPECT_EQ(OrderOf(texts), (Order{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
}

TEST(FoldedOrder, OfNoTextsIsEmpty) {
    EXPECT_TRUE(OrderOf({}).empty());
}

} // namespace
} // namespace korvane
