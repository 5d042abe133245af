#include "platform/native/user/StateFolder.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

namespace fs = std::filesystem;

TEST(WindowsStateFolder, IsTheExecutablesWhenThatCanBeWritten) {
    const TempDir dir;
    EXPECT_EQ(FindStateFolder({dir / "korvane.exe", dir / "Roaming", {}}), dir.Path());
    EXPECT_FALSE(fs::exists(dir / "Roaming"));
}

TEST(WindowsStateFolder, IsOtherwiseMadeInTheUsersConfiguration) {
    const TempDir dir;
    EXPECT_EQ(FindStateFolder({dir / "gone/korvane.exe", dir / "Roaming", {}}), dir / "Roaming/korvane");
    EXPECT_TRUE(fs::is_directory(dir / "Roaming/korvane"));
}

TEST(WindowsStateFolder, OfKeptTablesIsTheUsersOwnOnThisComputer) {
    const TempDir dir;
    EXPECT_EQ(FindKeptFolder({dir / "korvane.exe", dir / "Roaming", {}, dir / "Local"}),
              dir / "Local" / "Korvane" / "kept");
    EXPECT_EQ(FindKeptFolder({dir / "korvane.exe", dir / "Roaming", {}, {}}), "");
}

TEST(WindowsStateFolder, KnowsTheRunningProgramAndTheUsersConfiguration) {
    const Surroundings own = OwnSurroundings();
    EXPECT_EQ(own.executable.filename(), "platform_native_test.exe");
    EXPECT_TRUE(own.executable.is_absolute());
    EXPECT_EQ(own.configHome.filename(), "Roaming");
    EXPECT_TRUE(fs::is_directory(own.configHome));
}

} // namespace
} // namespace korvane
