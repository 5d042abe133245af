// Tests copying with what only POSIX systems have: links, pipes, permissions, and disks that can be made
// small.

#include "support/SmallDisk.h"
#include "support/WholeFilesContract.h"
#include "unit/platform/native/NativeStage.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <iterator>

namespace korvane {
namespace {

namespace fs = std::filesystem;

struct PosixStage : NativeStage {
    void AddLink(TextView name, TextView target) { fs::create_symlink(ToNativePath(target), Path(name)); }
    void AddPipe(TextView name) { ASSERT_EQ(mkfifo(Path(name).c_str(), 0600), 0); }
};

INSTANTIATE_TYPED_TEST_SUITE_P(RealDisk, LinksContract, PosixStage);

struct PosixCopy : testing::Test {
    CopyOutcome Copy(TextView from, TextView to) { return stage.Files().Copy(stage.At(from), stage.At(to)); }
    mode_t RightsOf(TextView name) const {
        struct stat status {};
        return stat(stage.Path(name).c_str(), &status) == 0 ? status.st_mode & 07777 : 0;
    }

    PosixStage stage;
};

TEST_F(PosixCopy, KeepsTheRights) {
    stage.AddFile(u"a", "bytes");
    for (const mode_t rights : {0644u, 0600u, 0755u, 0444u, 0666u}) {
        ASSERT_EQ(chmod(stage.Path(u"a").c_str(), rights), 0);
        fs::remove(stage.Path(u"b"));
        EXPECT_EQ(Copy(u"a", u"b"), CopyOutcome::Copied);
        EXPECT_EQ(RightsOf(u"b"), rights);
    }
}

TEST_F(PosixCopy, KeepsNoRightToRunAsItsOwner) {
    stage.AddFile(u"a", "bytes");
    ASSERT_EQ(chmod(stage.Path(u"a").c_str(), 04755), 0);
    EXPECT_EQ(Copy(u"a", u"b"), CopyOutcome::Copied);
    EXPECT_EQ(RightsOf(u"b"), 0755u);
}

TEST_F(PosixCopy, TakesTheRightsOfTheSourceNotOfTheOldTarget) {
    stage.AddFile(u"a", "new");
    stage.AddFile(u"b", "old");
    ASSERT_EQ(chmod(stage.Path(u"a").c_str(), 0600), 0);
    ASSERT_EQ(chmod(stage.Path(u"b").c_str(), 0666), 0);
    EXPECT_EQ(Copy(u"a", u"b"), CopyOutcome::Copied);
    EXPECT_EQ(RightsOf(u"b"), 0600u);
}

TEST_F(PosixCopy, AnotherGroupsRightsAreNotHandedOn) {
    stage.AddFile(u"a", "bytes");
    if (chown(stage.Path(u"a").c_str(), static_cast<uid_t>(-1), 12345) != 0)
        GTEST_SKIP() << "needs the right to give files to groups";
    ASSERT_EQ(chmod(stage.Path(u"a").c_str(), 0664), 0);
    EXPECT_EQ(Copy(u"a", u"b"), CopyOutcome::Copied);
    EXPECT_EQ(RightsOf(u"b"), 0644u);
}

TEST_F(PosixCopy, ASecondNameOfTheSourceIsTheSameFile) {
    stage.AddFile(u"a", "bytes");
    fs::create_hard_link(stage.Path(u"a"), stage.Path(u"b"));
    EXPECT_EQ(Copy(u"a", u"b"), CopyOutcome::Failed);
    EXPECT_EQ(stage.Contents(u"a"), "bytes");
    EXPECT_EQ(fs::hard_link_count(stage.Path(u"a")), 2u);
}

TEST_F(PosixCopy, ASecondNameOfTheOldTargetKeepsItsBytes) {
    stage.AddFile(u"a", "new");
    stage.AddFile(u"b", "old");
    fs::create_hard_link(stage.Path(u"b"), stage.Path(u"other"));
    EXPECT_EQ(Copy(u"a", u"b"), CopyOutcome::Copied);
    EXPECT_EQ(stage.Contents(u"b"), "new");
    EXPECT_EQ(stage.Contents(u"other"), "old");
}

TEST_F(PosixCopy, LinksInACircleAreNeitherCopiedNorReplaced) {
    stage.AddLink(u"a", u"b");
    stage.AddLink(u"b", u"a");
    stage.AddFile(u"c", "bytes");
    EXPECT_EQ(Copy(u"a", u"d"), CopyOutcome::Failed);
    EXPECT_EQ(Copy(u"c", u"a"), CopyOutcome::Failed);
    EXPECT_TRUE(fs::is_symlink(stage.Path(u"a")));
    EXPECT_FALSE(fs::exists(fs::symlink_status(stage.Path(u"d"))));
}

TEST_F(PosixCopy, AProgramThatEndsOnTheWayLeavesNothingOfANewCopy) {
    const fs::path folder = stage.Path(u"a").parent_path();
    const int nameless = open(folder.c_str(), O_TMPFILE | O_WRONLY, 0600);
    if (nameless < 0) GTEST_SKIP() << "this disk has no files without a name";
    close(nameless);
    stage.AddFile(u"a", std::string(NativeStage::kLongFile, 'a'));
    const pid_t child = fork();
    if (child == 0) {
        stage.Files().Copy(stage.At(u"a"), stage.At(u"b"), {.betweenSteps = [] { _exit(0); }});
        _exit(1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0) << "the copy was made in one step";
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 1);
}

TEST_F(PosixCopy, ASocketIsNeitherOpenedNorReplaced) {
    const int server = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    stage.Path(u"socket").native().copy(address.sun_path, sizeof address.sun_path - 1);
    ASSERT_EQ(bind(server, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    stage.AddFile(u"a", "bytes");
    EXPECT_EQ(Copy(u"socket", u"b"), CopyOutcome::Failed);
    EXPECT_EQ(Copy(u"a", u"socket"), CopyOutcome::Failed);
    EXPECT_TRUE(fs::is_socket(stage.Path(u"socket")));
    close(server);
}

TEST_F(PosixCopy, WhatTellsNoSizeIsReadToItsEnd) {
    EXPECT_EQ(stage.Files().Copy(u"/proc/self/status", stage.At(u"status")), CopyOutcome::Copied);
    EXPECT_TRUE(stage.Contents(u"status").starts_with("Name:"));
}

TEST_F(PosixCopy, NamesMayBeAsLongAsTheDiskTakesThem) {
    const Text longest(255, u'n');
    stage.AddFile(u"a", "bytes");
    EXPECT_EQ(Copy(u"a", longest), CopyOutcome::Copied);
    EXPECT_EQ(stage.Contents(longest), "bytes");
    EXPECT_EQ(Copy(u"a", longest + u"n"), CopyOutcome::Failed);
    EXPECT_EQ(stage.Files().LastErrorText(), u"File name too long");
}

TEST_F(PosixCopy, NamesMayHoldLineBreaks) {
    stage.AddFile(u"two\nlines", "bytes");
    EXPECT_EQ(Copy(u"two\nlines", u"three\nmore\nlines"), CopyOutcome::Copied);
    EXPECT_EQ(stage.Contents(u"three\nmore\nlines"), "bytes");
}

TEST_F(PosixCopy, AFileThatMayNotBeReadIsNotCopied) {
    if (geteuid() == 0) GTEST_SKIP() << "the administrator may read everything";
    stage.AddFile(u"a", "bytes");
    ASSERT_EQ(chmod(stage.Path(u"a").c_str(), 0), 0);
    EXPECT_EQ(Copy(u"a", u"b"), CopyOutcome::Failed);
    EXPECT_EQ(stage.Files().LastErrorText(), u"Permission denied");
    EXPECT_FALSE(fs::exists(stage.Path(u"b")));
}

// Tests on a disk of one megabyte.

constexpr std::int64_t kDiskSize = 1 << 20;

struct SmallDisk : testing::Test {
    void On(const std::function<void(const fs::path&)>& test) {
        if (!RunOnSmallDisk(kDiskSize, test)) GTEST_SKIP() << "nobody may mount a disk here";
    }
    CopyOutcome Copy(const fs::path& from, const fs::path& to) {
        return files.Copy(FromNativePath(from), FromNativePath(to));
    }
    static std::size_t Entries(const fs::path& folder) {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
    }

    NativeFileSystem files{u""};
    TempDir source;
};

TEST_F(SmallDisk, AFullOneLeavesNothingOfTheCopy) {
    WriteBytes(source / "a", std::string(2 << 20, 'a'));
    On([this](const fs::path& disk) {
        EXPECT_EQ(Copy(source / "a", disk / "b"), CopyOutcome::DiskFull);
        EXPECT_EQ(files.LastErrorText(), u"No space left on device");
        EXPECT_EQ(Entries(disk), 0u);
        EXPECT_EQ(fs::space(disk).available, fs::space(disk).capacity);
    });
}

TEST_F(SmallDisk, AFullOneLeavesTheOldTargetWhereItsRoomIsTooLittleToo) {
    WriteBytes(source / "a", std::string(2 << 20, 'a'));
    On([this](const fs::path& disk) {
        WriteBytes(disk / "b", "old");
        EXPECT_EQ(Copy(source / "a", disk / "b"), CopyOutcome::DiskFull);
        EXPECT_EQ(ReadBytes(disk / "b"), "old");
        EXPECT_EQ(Entries(disk), 1u);
    });
}

TEST_F(SmallDisk, OneWithoutRoomForBothGivesUpTheOldTargetFirst) {
    const std::string bytes(700'000, 'a');
    WriteBytes(source / "a", bytes);
    On([this, &bytes](const fs::path& disk) {
        WriteBytes(disk / "b", std::string(700'000, 'b'));
        EXPECT_EQ(Copy(source / "a", disk / "b"), CopyOutcome::Copied);
        EXPECT_EQ(ReadBytes(disk / "b"), bytes);
        EXPECT_EQ(Entries(disk), 1u);
    });
}

TEST_F(SmallDisk, WithoutRoomForBothATargetWithASecondNameStays) {
    WriteBytes(source / "a", std::string(700'000, 'a'));
    On([this](const fs::path& disk) {
        const std::string old(700'000, 'b');
        WriteBytes(disk / "b", old);
        fs::create_hard_link(disk / "b", disk / "other");
        EXPECT_EQ(Copy(source / "a", disk / "b"), CopyOutcome::DiskFull);
        EXPECT_EQ(ReadBytes(disk / "b"), old);
        EXPECT_EQ(ReadBytes(disk / "other"), old);
    });
}

TEST_F(SmallDisk, WithoutRoomForBothALinkAndItsFileStay) {
    WriteBytes(source / "a", std::string(700'000, 'a'));
    On([this](const fs::path& disk) {
        const std::string old(700'000, 'b');
        WriteBytes(disk / "kept", old);
        fs::create_symlink("kept", disk / "b");
        EXPECT_EQ(Copy(source / "a", disk / "b"), CopyOutcome::DiskFull);
        EXPECT_TRUE(fs::is_symlink(disk / "b"));
        EXPECT_EQ(ReadBytes(disk / "kept"), old);
    });
}

TEST_F(SmallDisk, NothingIsRenamedToIt) {
    WriteBytes(source / "a", "bytes");
    On([this](const fs::path& disk) {
        EXPECT_FALSE(files.Rename(FromNativePath(source / "a"), FromNativePath(disk / "a")));
        EXPECT_EQ(ReadBytes(source / "a"), "bytes");
        EXPECT_EQ(Copy(source / "a", disk / "a"), CopyOutcome::Copied);
        EXPECT_EQ(ReadBytes(disk / "a"), "bytes");
    });
}

TEST_F(SmallDisk, TellsItsSizeItsRoomAndWhereItIs) {
    On([this](const fs::path& disk) {
        WriteBytes(disk / "a", std::string(4096, 'a'));
        const auto volume = files.Volume(FromNativePath(disk / "a"));
        ASSERT_TRUE(volume);
        EXPECT_EQ(volume->totalBytes, kDiskSize);
        EXPECT_EQ(volume->freeBytes, kDiskSize - 4096);
        EXPECT_EQ(volume->root, FromNativePath(disk));
    });
}

} // namespace
} // namespace korvane
