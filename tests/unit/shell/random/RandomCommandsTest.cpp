#include "RandomTab.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace korvane {
namespace {

/// These variables of the environment say how many sequences are run and the number of the first. Without
/// them, every run makes the same few.
constexpr const char* kCountVariable = "KORVANE_RANDOM_SEQUENCES";
constexpr const char* kFirstVariable = "KORVANE_RANDOM_FIRST";
constexpr unsigned kUsualCount = 400;
constexpr int kLongest = 30;

unsigned FromEnvironment(const char* variable, unsigned usual) {
    const char* const value = std::getenv(variable);
    return value == nullptr ? usual : static_cast<unsigned>(std::strtoul(value, nullptr, 10));
}

void RunSequence(unsigned seed) {
    RandomTab tab(seed);
    for (int act = static_cast<int>(seed) % kLongest; act >= 0 && !testing::Test::HasFailure(); --act)
        tab.Act();
    if (!testing::Test::HasFailure()) tab.GoBackAndForth();
    if (testing::Test::HasFailure()) ADD_FAILURE() << "sequence " << seed << ": " << tab.Trace();
}

TEST(RandomCommandsTest, TheInvariantsHoldAndEverySequenceIsUndoneAndRedone) {
    const unsigned first = FromEnvironment(kFirstVariable, 1);
    const unsigned count = FromEnvironment(kCountVariable, kUsualCount);
    for (unsigned seed = first; seed < first + count && !HasFailure(); ++seed)
        RunSequence(seed);
}

} // namespace
} // namespace korvane
