#include "common/text/ScopedValue.h"

#include "support/HandlerFailure.h"

#include <gtest/gtest.h>

#include <memory>

namespace korvane {
namespace {

TEST(ScopedValue, GivesBackWhatStoodThereBefore) {
    int number = 3;
    {
        const ScopedValue other(number, 7);
        EXPECT_EQ(number, 7);
    }
    EXPECT_EQ(number, 3);
}

TEST(ScopedValue, LeavesTheValueThatIsNamedForAfterwards) {
    int number = 3;
    {
        const ScopedValue other(number, 7, 0);
        EXPECT_EQ(number, 7);
    }
    EXPECT_EQ(number, 0);
}

TEST(ScopedValue, EndsWithAnExceptionToo) {
    bool busy = false;
    const auto work = [&busy] {
        const ScopedValue working(busy, true);
        FailInHandler();
    };
    EXPECT_THROW(work(), HandlerFailure);
    EXPECT_FALSE(busy);
}

TEST(ScopedValue, HoldsWhatCanOnlyBeMoved) {
    auto owned = std::make_unique<int>(3);
    {
        const ScopedValue without(owned, nullptr);
        EXPECT_EQ(owned, nullptr);
    }
    EXPECT_EQ(*owned, 3);
}

TEST(ScopedValue, OneWithinAnotherGivesBackTheOuterValue) {
    int number = 1;
    {
        const ScopedValue outer(number, 2);
        { const ScopedValue inner(number, 3); }
        EXPECT_EQ(number, 2);
    }
    EXPECT_EQ(number, 1);
}

} // namespace
} // namespace korvane
