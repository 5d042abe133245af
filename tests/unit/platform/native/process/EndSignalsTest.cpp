#include "platform/native/process/EndSignals.h"

#include <gtest/gtest.h>
#include <poll.h>

#include <csignal>

namespace korvane {
namespace {

bool CanBeRead(int file) {
    pollfd wanted{file, POLLIN, 0};
    return poll(&wanted, 1, 0) == 1;
}

TEST(EndSignals, ASignalMakesTheFileReadable) {
    for (const int signal : {SIGTERM, SIGHUP}) {
        const EndSignals signals;
        ASSERT_GE(signals.File(), 0);
        EXPECT_FALSE(CanBeRead(signals.File()));
        std::raise(signal);
        EXPECT_TRUE(CanBeRead(signals.File()));
    }
}

TEST(EndSignals, TheSecondSignalEndsTheProgram) {
    EXPECT_EXIT(
        {
            const EndSignals signals;
            std::raise(SIGTERM);
            std::raise(SIGTERM);
        },
        testing::KilledBySignal(SIGTERM), "");
}

TEST(EndSignals, ASignalThatIsIgnoredStaysIgnored) {
    const auto before = std::signal(SIGHUP, SIG_IGN);
    {
        const EndSignals signals;
        std::raise(SIGHUP);
        EXPECT_FALSE(CanBeRead(signals.File()));
    }
    EXPECT_EQ(std::signal(SIGHUP, before), SIG_IGN);
}

} // namespace
} // namespace korvane
