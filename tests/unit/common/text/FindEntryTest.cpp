#include "common/text/FindEntry.h"

#include <gtest/gtest.h>

#include <array>
#include <span>
#include <string_view>

namespace korvane {
namespace {

struct Entry {
    std::string_view name;
    int value;
};

constexpr std::array kTable{Entry{"one", 1}, Entry{"two", 2}, Entry{"two", 22}};

TEST(FindEntryTest, TellsTheFirstEntryWithTheName) {
    const Entry* found = FindEntry(kTable, "two", &Entry::name);
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->value, 2);
}

TEST(FindEntryTest, TellsNothingWhereNoEntryHasIt) {
    EXPECT_EQ(FindEntry(kTable, "three", &Entry::name), nullptr);
    EXPECT_EQ(FindEntry(std::span<const Entry>(), "one", &Entry::name), nullptr);
}

TEST(FindEntryTest, LooksThroughPlainArraysToo) {
    static constexpr Entry kPlain[] = {{"one", 1}};
    EXPECT_EQ(FindEntry(kPlain, 1, &Entry::value), &kPlain[0]);
}

} // namespace
} // namespace korvane
