#include "controls/lists/PlaceOrder.h"

#include <gtest/gtest.h>

#include <numeric>
#include <random>

namespace korvane {
namespace {

std::vector<std::uint32_t> PlacesOf(const PlaceOrder& order) {
    std::vector<std::uint32_t> places;
    for (int at = 0; at < order.Size(); ++at)
        places.push_back(order[at]);
    return places;
}

TEST(PlaceOrder, BeginsEmptyAndTakesTheFirst) {
    PlaceOrder order;
    EXPECT_EQ(order.Size(), 0);
    order.Insert(0, 7);
    EXPECT_EQ(PlacesOf(order), std::vector<std::uint32_t>{7});
}

TEST(PlaceOrder, IsEmptyAgainWhenTheLastIsTaken) {
    PlaceOrder order;
    order.Insert(0, 7);
    EXPECT_EQ(order.Take(0), 7U);
    EXPECT_EQ(order.Size(), 0);
    order.Insert(0, 8);
    EXPECT_EQ(PlacesOf(order), std::vector<std::uint32_t>{8});
}

TEST(PlaceOrder, GrowsAtItsEndOverManyBlocks) {
    PlaceOrder order;
    std::vector<std::uint32_t> expected(10'000);
    std::iota(expected.begin(), expected.end(), 0U);
    for (const std::uint32_t place : expected)
        order.Insert(order.Size(), place);
    EXPECT_EQ(PlacesOf(order), expected);
}

TEST(PlaceOrder, TakesWholeBlocksOutFromTheFront) {
    PlaceOrder order;
    std::vector<std::uint32_t> expected(5'000);
    std::iota(expected.begin(), expected.end(), 0U);
    order.Assign(expected);
    for (std::uint32_t place = 0; place < 4'990; ++place)
        ASSERT_EQ(order.Take(0), place);
    EXPECT_EQ(PlacesOf(order), std::vector<std::uint32_t>(expected.end() - 10, expected.end()));
}

TEST(PlaceOrder, IsAVectorToItsUser) {
    std::mt19937 random(11);
    PlaceOrder order;
    std::vector<std::uint32_t> expected(3'000);
    std::iota(expected.begin(), expected.end(), 0U);
    order.Assign(expected);
    for (std::uint32_t step = 0; step < 20'000; ++step) {
        const auto at = static_cast<int>(random() % (expected.size() + 1));
        if (step % 5 < 3 || at == order.Size()) {
            order.Insert(at, step);
            expected.insert(expected.begin() + at, step);
        } else {
            ASSERT_EQ(order.Take(at), expected[static_cast<std::size_t>(at)]);
            expected.erase(expected.begin() + at);
        }
    }
    EXPECT_EQ(PlacesOf(order), expected);
}

} // namespace
} // namespace korvane
