#include "platform/native/user/StateFolder.h"

#include "support/TempDir.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

namespace fs = std::filesystem;

/// Provides a home folder, and an executable in a folder that nobody can write to.
struct StateFolder : testing::Test {
    StateFolder() {
        fs::create_directories(dir / "bin");
        fs::create_directories(dir / "home");
        surroundings = {dir / "bin/korvane", "", (dir / "home").string()};
        fs::permissions(dir / "bin", static_cast<fs::perms>(0555));
    }
    ~StateFolder() override { fs::permissions(dir / "bin", fs::perms::owner_all); }

    TempDir dir;
    Surroundings surroundings;
};

TEST_F(StateFolder, IsTheExecutablesWhenThatCanBeWritten) {
    fs::permissions(dir / "bin", fs::perms::owner_all);
    EXPECT_EQ(FindStateFolder(surroundings), dir / "bin");
    EXPECT_FALSE(fs::exists(dir / "home/.config"));
}

TEST_F(StateFolder, IsNotTheExecutablesWhenOnlyTheShippedSettingsAreThere) {
    fs::permissions(dir / "bin", fs::perms::owner_all);
    WriteBytes(dir / "bin/Korvane.ini", "");
    fs::permissions(dir / "bin", static_cast<fs::perms>(0555));
    EXPECT_EQ(FindStateFolder(surroundings), dir / "home/.config/korvane");
}

TEST_F(StateFolder, IsOtherwiseMadeInTheUsersConfigurationForTheUserAlone) {
    EXPECT_EQ(FindStateFolder(surroundings), dir / "home/.config/korvane");
    EXPECT_EQ(fs::status(dir / "home/.config/korvane").permissions(), fs::perms::owner_all);
    EXPECT_EQ(fs::status(dir / "home/.config").permissions(), fs::perms::owner_all);
    EXPECT_EQ(FindStateFolder(surroundings), dir / "home/.config/korvane");
}

TEST_F(StateFolder, FollowsTheEnvironmentToTheConfiguration) {
    surroundings.configHome = (dir / "conf").string();
    EXPECT_EQ(FindStateFolder(surroundings), dir / "conf/korvane");
    EXPECT_TRUE(fs::is_directory(dir / "conf/korvane"));
}

TEST_F(StateFolder, TakesARelativePathInTheEnvironmentForNone) {
    surroundings.configHome = "conf";
    EXPECT_EQ(FindStateFolder(surroundings), dir / "home/.config/korvane");
}

TEST_F(StateFolder, IsTheExecutablesAllTheSameWithoutAnotherPlace) {
    surroundings.home = "";
    EXPECT_EQ(FindStateFolder(surroundings), dir / "bin");
    WriteBytes(dir / "file", "");
    surroundings.home = (dir / "file").string();
    EXPECT_EQ(FindStateFolder(surroundings), dir / "bin");
}

TEST_F(StateFolder, OfKeptTablesIsTheUsersOwnAndIsNotMade) {
    EXPECT_EQ(FindKeptFolder(surroundings), dir / "home/.local/state/korvane/kept");
    surroundings.stateHome = (dir / "state").string();
    EXPECT_EQ(FindKeptFolder(surroundings), dir / "state/korvane/kept");
    EXPECT_FALSE(fs::exists(dir / "state"));
    EXPECT_FALSE(fs::exists(dir / "home/.local"));
}

TEST_F(StateFolder, OfKeptTablesIsNowhereWithoutAFullPath) {
    surroundings.stateHome = "state";
    surroundings.home = "";
    EXPECT_EQ(FindKeptFolder(surroundings), "");
}

TEST(OwnSurroundingsTest, KnowTheRunningProgram) {
    EXPECT_EQ(OwnSurroundings().executable.filename(), "platform_native_test");
}

} // namespace
} // namespace korvane
