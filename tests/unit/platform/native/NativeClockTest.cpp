#include "platform/native/NativeClock.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

TEST(NativeClockTest, TellsATimeBetweenTheSystemsOwnBeforeAndAfter) {
    const DateTime before = ToLocalDateTime(std::time(nullptr));
    const DateTime now = NativeClock().Now();
    const DateTime after = ToLocalDateTime(std::time(nullptr));
    EXPECT_LE(before, now);
    EXPECT_LE(now, after);
}

TEST(NativeClockTest, WaitsNoShorterThanAsked) {
    const auto start = std::chrono::steady_clock::now();
    NativeClock().Wait(std::chrono::milliseconds(2));
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(2));
}

TEST(NativeClockTest, ItsUptimeGrowsByAWait) {
    const auto before = NativeClock().Uptime();
    NativeClock().Wait(std::chrono::milliseconds(2));
    EXPECT_GE(NativeClock().Uptime() - before, std::chrono::milliseconds(1));
}

TEST(NativeClockTest, CountsFieldsAsACalendarDoes) {
    // In every time zone this moment has the same year, month and second.
    const DateTime time = ToLocalDateTime(1'781'524'815);
    EXPECT_EQ(time.year, 2026);
    EXPECT_EQ(time.month, 6);
    EXPECT_GE(time.day, 14);
    EXPECT_LE(time.day, 16);
    EXPECT_EQ(time.second, 15);
}

} // namespace
} // namespace korvane
