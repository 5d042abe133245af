#include "controls/views/TabStyles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <tuple>
#include <vector>

namespace korvane {
namespace {

/// The relative luminance of a colour, by which the contrast of texts is measured.
double Luminance(Colour colour) {
    const auto channel = [&colour](unsigned shift) {
        const double share = static_cast<double>(static_cast<unsigned>(colour.value) >> shift & 0xFFU) / 255;
        return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * channel(0) + 0.7152 * channel(8) + 0.0722 * channel(16);
}

double Contrast(Colour a, Colour b) {
    const auto [less, more] = std::minmax({Luminance(a), Luminance(b)});
    return (more + 0.05) / (less + 0.05);
}

TEST(TabStylesTest, TheSeventeenNumbersAreInTheirOrder) {
    std::vector<int> numbers;
    for (const TabStyle& style : TabStyles())
        numbers.push_back(style.number);
    EXPECT_EQ(numbers, (std::vector<int>{0, 1, 5, 6, 7, 10, 11, 12, 13, 14, 20, 25, 30, 31, 32, 33, 40}));
}

TEST(TabStylesTest, AStepForwardGoesThroughAllAndRoundTheEnd) {
    int number = 0;
    for (std::size_t i = 1; i <= TabStyles().size(); ++i) {
        number = SteppedTabStyle(number, StyleStep::Forward);
        EXPECT_EQ(number, TabStyles()[i % TabStyles().size()].number);
    }
}

TEST(TabStylesTest, AStepBackUndoesAStepForward) {
    EXPECT_EQ(SteppedTabStyle(0, StyleStep::Back), 40);
    for (const TabStyle& style : TabStyles()) {
        const int next = SteppedTabStyle(style.number, StyleStep::Forward);
        EXPECT_EQ(SteppedTabStyle(next, StyleStep::Back), style.number);
    }
}

TEST(TabStylesTest, ANumberThatIsNoStyleStays) {
    EXPECT_EQ(SteppedTabStyle(2, StyleStep::Forward), 2);
    EXPECT_EQ(SteppedTabStyle(-7, StyleStep::Back), -7);
    EXPECT_EQ(TabStyleOf(2).number, 0);
}

TEST(TabStylesTest, EachStyleIsItsOwnInBothThemes) {
    for (const bool dark : {false, true}) {
        std::set<std::tuple<int, int, int, int, TabMark>> looks;
        for (const TabStyle& style : TabStyles()) {
            const TabStyleColours& colours = style.Colours(dark);
            looks.insert(
                {colours.strip.value, colours.second.value, style.cornerRadius, style.tint, style.mark});
        }
        EXPECT_EQ(looks.size(), TabStyles().size());
    }
}

TEST(TabStylesTest, TextIsReadableOnEveryStrip) {
    constexpr Colour kBlack{0};
    constexpr Colour kWhite{0xFFFFFF};
    for (const TabStyle& style : TabStyles()) {
        EXPECT_GE(Contrast(style.light.strip, kBlack), 4.5) << style.number;
        EXPECT_GE(Contrast(style.dark.strip, kWhite), 4.5) << style.number;
    }
}

TEST(TabStylesTest, TheNamesOfTheMenuSayWhichOnesAreRounded) {
    EXPECT_FALSE(TabStyleOf(5).Rounded());
    EXPECT_TRUE(TabStyleOf(14).Rounded());
    EXPECT_TRUE(TabStyleOf(13).Rounded());
}

} // namespace
} // namespace korvane
