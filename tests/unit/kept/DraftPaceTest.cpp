#include "kept/DraftPace.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

using namespace std::chrono_literals;

TEST(DraftPaceTest, WithoutAChangeNothingIsDue) {
    EXPECT_EQ(DraftPace().Due(), std::nullopt);
}

TEST(DraftPaceTest, ADraftWaitsForTwoSecondsWithoutAKey) {
    DraftPace pace;
    pace.Changed(100s);
    EXPECT_EQ(pace.Due(), 102s);
    pace.Changed(101s);
    EXPECT_EQ(pace.Due(), 103s);
}

TEST(DraftPaceTest, WhoNeverPausesIsWaitedForFiveSeconds) {
    DraftPace pace;
    for (auto now = 100s; now <= 104s; now += 1s)
        pace.Changed(now);
    EXPECT_EQ(pace.Due(), 105s);
}

TEST(DraftPaceTest, BetweenTwoDraftsAreFiveSeconds) {
    DraftPace pace;
    pace.Changed(100s);
    pace.Begin(102s);
    EXPECT_EQ(pace.Due(), std::nullopt);
    pace.Changed(103s);
    EXPECT_EQ(pace.Due(), 107s);
    pace.Changed(106s);
    EXPECT_EQ(pace.Due(), 108s);
}

TEST(DraftPaceTest, DraftsTakeNoMoreThanTwoPartsInAHundredOfTheTime) {
    DraftPace pace;
    pace.Changed(100s);
    pace.Begin(102s);
    pace.Took(400ms);
    pace.Changed(103s);
    EXPECT_EQ(pace.Due(), 122s);
}

TEST(DraftPaceTest, ChangesThatWereSavedAreNotDue) {
    DraftPace pace;
    pace.Changed(100s);
    pace.NothingChanged();
    EXPECT_EQ(pace.Due(), std::nullopt);
    pace.Changed(110s);
    EXPECT_EQ(pace.Due(), 112s);
}

} // namespace
} // namespace korvane
