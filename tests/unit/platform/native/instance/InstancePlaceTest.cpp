#include "platform/native/instance/InstancePlace.h"

#include "support/TempDir.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <thread>

namespace korvane {
namespace {

namespace fs = std::filesystem;

struct InstancePlaces : testing::Test {
    InstancePlaces() { fs::create_directory(surroundings.tempDir); }

    std::string OwnName() const { return "korvane-" + std::to_string(geteuid()); }
    fs::path OwnTempDir() const { return surroundings.tempDir / OwnName(); }

    TempDir dir;
    InstanceSurroundings surroundings{dir.Path().string(), dir / "tmp", "/usr/bin/korvane"};
};

TEST_F(InstancePlaces, AreInTheRuntimeFolderWhenThatIsTheUsersAlone) {
    const auto place = FindInstancePlace(surroundings);
    ASSERT_TRUE(place);
    EXPECT_EQ(place->socket.parent_path(), dir.Path());
    EXPECT_EQ(place->lock.parent_path(), dir.Path());
    EXPECT_NE(place->socket, place->lock);
    EXPECT_FALSE(fs::exists(OwnTempDir()));
}

TEST_F(InstancePlaces, AreTheSameForEveryStartOfOneExecutable) {
    const auto first = FindInstancePlace(surroundings);
    const auto second = FindInstancePlace(surroundings);
    EXPECT_EQ(first->socket, second->socket);
    surroundings.executable = "/opt/korvane/korvane";
    EXPECT_NE(FindInstancePlace(surroundings)->socket, first->socket);
}

TEST_F(InstancePlaces, AreInAFolderForTheUserAloneWithoutARuntimeFolder) {
    surroundings.runtimeDir = "";
    const auto place = FindInstancePlace(surroundings);
    ASSERT_TRUE(place);
    EXPECT_EQ(place->socket.parent_path(), OwnTempDir());
    EXPECT_EQ(fs::status(OwnTempDir()).permissions(), fs::perms::owner_all);
    EXPECT_TRUE(FindInstancePlace(surroundings));
}

TEST_F(InstancePlaces, AvoidARuntimeFolderThatOthersCanEnter) {
    fs::permissions(dir.Path(), static_cast<fs::perms>(0711));
    EXPECT_EQ(FindInstancePlace(surroundings)->socket.parent_path(), OwnTempDir());
}

TEST_F(InstancePlaces, AvoidARuntimeFolderThatIsNotAbsolute) {
    surroundings.runtimeDir = ".";
    EXPECT_EQ(FindInstancePlace(surroundings)->socket.parent_path(), OwnTempDir());
}

TEST_F(InstancePlaces, AvoidARuntimeFolderTooLongForASocket) {
    surroundings.runtimeDir = (dir / std::string(100, 'r')).string();
    fs::create_directory(surroundings.runtimeDir);
    fs::permissions(surroundings.runtimeDir, fs::perms::owner_all);
    EXPECT_EQ(FindInstancePlace(surroundings)->socket.parent_path(), OwnTempDir());
}

TEST_F(InstancePlaces, AreNowhereWhenOthersCanEnterTheTemporaryFolderToo) {
    surroundings.runtimeDir = "";
    fs::create_directory(OwnTempDir());
    fs::permissions(OwnTempDir(), static_cast<fs::perms>(0770));
    EXPECT_FALSE(FindInstancePlace(surroundings));
}

TEST_F(InstancePlaces, AreNowhereWhenSomebodyPutALinkInTheWay) {
    surroundings.runtimeDir = "";
    fs::create_directory(dir / "elsewhere");
    fs::permissions(dir / "elsewhere", fs::perms::owner_all);
    fs::create_directory_symlink(dir / "elsewhere", OwnTempDir());
    EXPECT_FALSE(FindInstancePlace(surroundings));
}

TEST_F(InstancePlaces, AreNowhereWhenAFileIsInTheWay) {
    surroundings.runtimeDir = "";
    WriteBytes(OwnTempDir(), "");
    EXPECT_FALSE(FindInstancePlace(surroundings));
}

TEST(InstancePlaceOwner, KeepsOtherUsersOut) {
    // This needs a folder of another user. /proc/1 belongs to the administrator. If the tests run as the
    // administrator, a folder of another user is made.
    TempDir dir;
    InstanceSurroundings surroundings{"/proc/1", dir / "tmp", "/usr/bin/korvane"};
    if (geteuid() == 0) {
        surroundings.runtimeDir = (dir / "foreign").string();
        fs::create_directory(surroundings.runtimeDir);
        fs::permissions(surroundings.runtimeDir, fs::perms::owner_all);
        ASSERT_EQ(chown(surroundings.runtimeDir.c_str(), 65534, 65534), 0);
    }
    EXPECT_FALSE(FindInstancePlace(surroundings));
}

TEST(OwnInstanceSurroundingsTest, KnowTheRunningProgram) {
    const auto own = OwnInstanceSurroundings();
    EXPECT_EQ(own.executable.filename(), "platform_native_test");
    EXPECT_TRUE(own.tempDir.is_absolute());
}

TEST(StartLockTest, IsHeldByOneAtATime) {
    TempDir dir;
    std::atomic<bool> released = false;
    auto first = std::make_unique<StartLock>(dir / "lock");
    ASSERT_TRUE(first->Held());
    std::thread second([&] {
        const StartLock lock(dir / "lock");
        EXPECT_TRUE(lock.Held());
        EXPECT_TRUE(released);
    });
    released = true;
    first.reset();
    second.join();
}

TEST(StartLockTest, IsNotWaitedForLongerThanAsked) {
    const TempDir dir;
    const StartLock first(dir / "lock");
    ASSERT_TRUE(first.Held());
    EXPECT_FALSE(StartLock(dir / "lock", std::chrono::milliseconds(0)).Held());
    EXPECT_FALSE(StartLock(dir / "lock", std::chrono::milliseconds(1)).Held());
}

TEST(StartLockTest, IsLetGoByAProcessThatDies) {
    TempDir dir;
    const pid_t child = fork();
    if (child == 0) {
        new StartLock(dir / "lock");
        _exit(0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(StartLock(dir / "lock").Held());
}

TEST(StartLockTest, FollowsNoLinkAndNeedsItsFolder) {
    TempDir dir;
    fs::create_symlink(dir / "elsewhere", dir / "lock");
    EXPECT_FALSE(StartLock(dir / "lock").Held());
    EXPECT_FALSE(fs::exists(dir / "elsewhere"));
    EXPECT_FALSE(StartLock(dir / "gone/lock").Held());
}

TEST(IsOwnPeerTest, KnowsTheOwnUser) {
    int pair[2];
    ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, pair), 0);
    EXPECT_TRUE(IsOwnPeer(pair[0]));
    close(pair[0]);
    close(pair[1]);
    EXPECT_FALSE(IsOwnPeer(pair[0]));
}

} // namespace
} // namespace korvane
