#include "files/lister/rows/SortForms.h"

#include "context/exchange/ListSort.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

constexpr DateTime kWhen{2026, 3, 4, 5, 6, 7};

TEST(SortForms, ASizeIsGrouped) {
    EXPECT_EQ(SizeText(1234567, ListSort::kName), u"1,234,567");
    EXPECT_EQ(SizeText(1234567, ListSort::kDate), u"1,234,567");
    EXPECT_EQ(SizeText(0, ListSort::kName), u"");
}

TEST(SortForms, ASizeHasNineDigitsWhereItIsSorted) {
    EXPECT_EQ(SizeText(1234, ListSort::kSize), u"000,001,234");
    EXPECT_EQ(SizeText(0, ListSort::kSize), u"000,000,000");
    EXPECT_LT(SizeText(999, ListSort::kSize), SizeText(1000, ListSort::kSize));
}

// Kept for compatibility: sizes-sort-to-nine-digits.
TEST(SortForms, ASizeOfTenDigitsComesBeforeSmallerOnes) {
    EXPECT_EQ(SizeText(1'000'000'000, ListSort::kSize), u"1,000,000,000");
    EXPECT_LT(SizeText(1'000'000'000, ListSort::kSize), SizeText(200'000'000, ListSort::kSize));
}

TEST(SortForms, ADateHasTwoBlanksBeforeItsTime) {
    EXPECT_EQ(DateText(kWhen, ListSort::kName), u"03/04/2026  05:06");
    EXPECT_EQ(DateText(kWhen, ListSort::kSize), u"03/04/2026  05:06");
}

TEST(SortForms, ADateBeginsWithItsYearWhereItIsSorted) {
    EXPECT_EQ(DateText(kWhen, ListSort::kDate), u"2026/03/04  05:06");
    EXPECT_LT(DateText({2025, 12, 31, 0, 0, 0}, ListSort::kDate), DateText(kWhen, ListSort::kDate));
}

TEST(SortForms, AreTakenBackAfterTheSort) {
    EXPECT_EQ(ShownSize(u"000,001,234"), u"1,234");
    EXPECT_EQ(ShownSize(u"1,000,000,000"), u"1,000,000,000");
    EXPECT_EQ(ShownDate(u"2026/03/04  05:06"), u"03/04/2026  05:06");
}

// Kept for compatibility: size-zero-is-empty.
TEST(SortForms, ASizeOfZeroIsAnEmptyText) {
    EXPECT_EQ(ShownSize(u"000,000,000"), u"");
}

} // namespace
} // namespace korvane
