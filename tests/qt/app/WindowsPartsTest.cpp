#include "app/SystemParts.h"
#include "common/text/CaseFold.h"
#include "platform/InstanceChannel.h"
#include "platform/Shell.h"
#include "platform/SystemFolders.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

TEST(WindowsParts, TwoStartsMeet) {
    const auto first = OwnSystemParts();
    EXPECT_FALSE(first->Channel().PreviousInstanceRuns());
    const auto second = OwnSystemParts();
    EXPECT_TRUE(second->Channel().PreviousInstanceRuns());
}

TEST(WindowsParts, PartsThatNobodyAskedTakeNoPlace) {
    const auto picture = OwnSystemParts();
    const auto first = OwnSystemParts();
    EXPECT_FALSE(first->Channel().PreviousInstanceRuns());
}

TEST(WindowsParts, TheFoldersAndTheDesktopAreThoseOfWindows) {
    const auto parts = OwnSystemParts();
    EXPECT_TRUE(EndsWithIgnoringCase(parts->Folders().System(), u"\\system32"));
    EXPECT_EQ(parts->Desktop().Run(u"C:\\no\\such.exe", {}, WindowState::Normal), 0);
}

} // namespace
} // namespace korvane
