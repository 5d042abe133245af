#include "extras/lock/WallpaperFit.h"

#include <gtest/gtest.h>

#include <string>

namespace korvane {
namespace {

PictureSize Size(int width, int height) {
    return {Twips(width), Twips(height)};
}

Rect Place(int left, int top, int width, int height) {
    return {Twips(left), Twips(top), Twips(width), Twips(height)};
}

struct Case {
    std::string name;
    PictureSize picture;
    PictureSize window;
    Rect stretched;
    Rect natural;
    int beyondRight = 0;
    int beyondBottom = 0;
};

class WallpaperFitTest : public testing::TestWithParam<Case> {};

TEST_P(WallpaperFitTest, Stretched) {
    const WallpaperFit fit = FitWallpaper(GetParam().picture, GetParam().window, true);
    EXPECT_EQ(fit.place, GetParam().stretched);
    EXPECT_EQ(fit.beyondRight, Twips{0});
    EXPECT_EQ(fit.beyondBottom, Twips{0});
}

TEST_P(WallpaperFitTest, InItsOwnSize) {
    const WallpaperFit fit = FitWallpaper(GetParam().picture, GetParam().window, false);
    EXPECT_EQ(fit.place, GetParam().natural);
    EXPECT_EQ(fit.beyondRight, Twips(GetParam().beyondRight));
    EXPECT_EQ(fit.beyondBottom, Twips(GetParam().beyondBottom));
}

const Case kCases[] = {
    // 600 is missing across and 700 down, so the width decides: it grows by 150 percent.
    {"SmallerGrowsByTheAxisThatMissesLess", Size(400, 100), Size(1000, 800), Place(0, 275, 1000, 250),
     Place(300, 350, 400, 100)},
    {"SmallerWithTheAxesExchanged", Size(100, 400), Size(800, 1000), Place(275, 0, 250, 1000),
     Place(350, 300, 100, 400)},
    {"TheWidthDecidesWhenBothMissTheSame", Size(500, 300), Size(1000, 800), Place(0, 100, 1000, 600),
     Place(250, 250, 500, 300)},
    // The width misses less in twips, but more in percent, so that the height would become 750.
    {"ASideThatWouldPassTheWindowIsCutToIt", Size(100, 250), Size(300, 500), Place(0, 0, 300, 500),
     Place(100, 125, 100, 250)},
    // 233.33 percent counts as 233.
    {"GrowthIsInWholePercent", Size(300, 200), Size(1000, 1000), Place(0, 167, 1000, 666),
     Place(350, 400, 300, 200)},
    // The width is over by 50 percent, the height by 20.
    {"LargerShrinksByTheAxisThatIsOverMost", Size(2000, 1000), Size(1000, 800), Place(0, 150, 1000, 500),
     Place(0, 0, 2000, 1000), 1000, 200},
    {"LargerWithTheAxesExchanged", Size(1000, 2000), Size(800, 1000), Place(150, 0, 500, 1000),
     Place(0, 0, 1000, 2000), 200, 1000},
    // 33.33 percent counts as 33.
    {"ReductionIsInWholePercent", Size(1500, 900), Size(1000, 1000), Place(0, 198, 1000, 603),
     Place(0, 0, 1500, 900), 500, 0},
    {"LargerAcrossAlone", Size(2000, 100), Size(1000, 800), Place(0, 375, 1000, 50), Place(0, 0, 2000, 100),
     1000, 0},
    {"LargerDownAlone", Size(100, 1600), Size(1000, 800), Place(475, 0, 50, 800), Place(0, 0, 100, 1600), 0,
     800},
    {"OfTheWindowsSize", Size(1000, 800), Size(1000, 800), Place(0, 0, 1000, 800), Place(0, 0, 1000, 800)},
    // A side of the window's size makes the picture one that isn't smaller.
    {"OfTheWindowsWidthAndLower", Size(1000, 400), Size(1000, 800), Place(0, 200, 1000, 400),
     Place(0, 0, 1000, 400)},
    {"OfTheWindowsHeightAndNarrower", Size(500, 800), Size(1000, 800), Place(250, 0, 500, 800),
     Place(0, 0, 500, 800)},
    {"OneTwipGrowsToAnyWindow", Size(1, 1), Size(28800, 15600), Place(6600, 0, 15600, 15600),
     Place(14399, 7799, 1, 1)},
    {"TwoHundredMegapixels", Size(240000, 187500), Size(28800, 15600), Place(4800, 0, 19200, 15600),
     Place(0, 0, 240000, 187500), 211200, 171900},
};

INSTANTIATE_TEST_SUITE_P(Pictures, WallpaperFitTest, testing::ValuesIn(kCases),
                         [](const auto& fit) { return fit.param.name; });

} // namespace
} // namespace korvane
