#include "support/WholeFilesContract.h"
#include "testing/MemoryClock.h"
#include "testing/MemoryFileSystem.h"

namespace korvane {
namespace {

class Stage {
public:
    static constexpr std::size_t kLongFile = 2 * MemoryFileSystem::kBytesInStep + 1;
    static bool CopiesInSteps() { return true; }

    Stage(const PathStyle& style, TextView folder) : files_(style, clock_), folder_(folder) {
        files_.AddDir(folder);
    }

    FileSystem& Files() { return files_; }
    Text At(TextView name) const { return files_.Style().JoinPath(folder_, name); }
    void AddFile(TextView name, std::string_view bytes) { files_.AddFile(At(name), bytes); }
    std::string Contents(TextView name) const { return files_.Contents(At(name)).value_or("(none)"); }
    void SetReadOnly(TextView name) { files_.SetFileReadOnly(At(name)); }
    void SetModified(TextView name, const DateTime& time) { files_.SetModified(At(name), time); }
    void AddLink(TextView name, TextView target) { files_.AddLink(At(name), target); }
    void AddPipe(TextView name) { files_.AddPipe(At(name)); }

private:
    MemoryClock clock_;
    MemoryFileSystem files_;
    Text folder_;
};

struct WindowsStage : Stage {
    WindowsStage() : Stage(PathStyle::Windows, u"C:\\Data") {}
};

struct PosixStage : Stage {
    PosixStage() : Stage(PathStyle::Posix, u"/home/me") {}
};

INSTANTIATE_TYPED_TEST_SUITE_P(MemoryOfWindows, WholeFilesContract, WindowsStage);
INSTANTIATE_TYPED_TEST_SUITE_P(MemoryOfPosix, WholeFilesContract, PosixStage);
INSTANTIATE_TYPED_TEST_SUITE_P(MemoryOfPosix, LinksContract, PosixStage);

struct MemoryCopy : testing::Test {
    MemoryClock clock;
    MemoryFileSystem files{PathStyle::Windows, clock};
};

// Room on the disk.

TEST_F(MemoryCopy, AQuotaCountsWhatTheFilesHold) {
    files.AddFile(u"C:\\a", "12345");
    files.SetQuota(8);
    EXPECT_EQ(files.Volume(u"C:\\")->totalBytes, 8);
    EXPECT_EQ(files.Volume(u"C:\\")->freeBytes, 3);
    EXPECT_TRUE(files.Remove(u"C:\\a"));
    EXPECT_EQ(files.Volume(u"C:\\")->freeBytes, 8);
    const auto writer = files.OpenRaw(u"C:\\b");
    EXPECT_TRUE(writer->Write("12345678"));
    EXPECT_FALSE(writer->Write("9"));
    EXPECT_EQ(files.LastErrorText(), u"No space left on device");
}

TEST_F(MemoryCopy, AFullDiskLeavesNothingOfTheCopy) {
    files.AddFile(u"C:\\a", std::string(3000, 'a'));
    files.SetQuota(5000);
    EXPECT_EQ(files.Copy(u"C:\\a", u"C:\\b"), CopyOutcome::DiskFull);
    EXPECT_EQ(files.LastErrorText(), u"No space left on device");
    EXPECT_THAT(files.FileNames(u"C:\\", u"*"), testing::ElementsAre(u"a"));
    EXPECT_EQ(files.Volume(u"C:\\")->freeBytes, 2000);
}

TEST_F(MemoryCopy, TheOldTargetGoesFirstOnlyWhereThereIsNotRoomForBoth) {
    files.AddDrive(u'D');
    files.AddFile(u"D:\\a", std::string(3000, 'a'));
    files.AddFile(u"C:\\b", std::string(2000, 'b'));
    files.SetQuota(5000, u"C:\\");
    bool there = true;
    const CopyOptions watching{.betweenSteps = [&] { there = there && files.FileExists(u"C:\\b"); }};
    EXPECT_EQ(files.Copy(u"D:\\a", u"C:\\b", watching), CopyOutcome::Copied);
    EXPECT_TRUE(there);
    files.AddFile(u"C:\\b", std::string(2000, 'b'));
    files.SetQuota(3000, u"C:\\");
    EXPECT_EQ(files.Copy(u"D:\\a", u"C:\\b", watching), CopyOutcome::Copied);
    EXPECT_FALSE(there);
    EXPECT_EQ(files.Contents(u"C:\\b"), std::string(3000, 'a'));
}

TEST_F(MemoryCopy, TheOldTargetStaysWhereEvenItsRoomIsTooLittle) {
    files.AddDrive(u'D');
    files.AddFile(u"D:\\a", std::string(3000, 'a'));
    files.AddFile(u"C:\\b", std::string(2000, 'b'));
    files.SetQuota(2999, u"C:\\");
    EXPECT_EQ(files.Copy(u"D:\\a", u"C:\\b"), CopyOutcome::DiskFull);
    EXPECT_EQ(files.Contents(u"C:\\b"), std::string(2000, 'b'));
}

// Failures to order.

TEST_F(MemoryCopy, WhateverStepOfACopyFailsTheTargetStays) {
    files.AddFile(u"C:\\a", std::string(3000, 'a'));
    files.AddFile(u"C:\\b", "old");
    for (const FileStep step :
         {FileStep::OpenToRead, FileStep::OpenToWrite, FileStep::Write, FileStep::Close, FileStep::Rename}) {
        files.Faults().FailNth(step, 1, u"Bad day");
        EXPECT_EQ(files.Copy(u"C:\\a", u"C:\\b"), CopyOutcome::Failed);
        EXPECT_EQ(files.LastErrorText(), u"Bad day");
        EXPECT_EQ(files.Contents(u"C:\\b"), "old");
        EXPECT_THAT(files.FileNames(u"C:\\", u"*"), testing::ElementsAre(u"a", u"b"));
    }
    EXPECT_EQ(files.Copy(u"C:\\a", u"C:\\b"), CopyOutcome::Copied);
}

TEST_F(MemoryCopy, TheSourceMayVanishJustBefore) {
    files.AddFile(u"C:\\a", "a");
    files.VanishBeforeOpen(u"C:\\a");
    EXPECT_EQ(files.Copy(u"C:\\a", u"C:\\b"), CopyOutcome::Failed);
    EXPECT_EQ(files.LastErrorText(), u"No such file or directory");
}

TEST_F(MemoryCopy, NamesAndFoldersFailAsOrdered) {
    files.AddFile(u"C:\\a", "a");
    files.Faults().FailNth(FileStep::Rename, 1);
    files.Faults().FailNth(FileStep::MakeDir, 1);
    EXPECT_FALSE(files.Rename(u"C:\\a", u"C:\\b"));
    EXPECT_FALSE(files.MakeDir(u"C:\\d"));
    EXPECT_TRUE(files.Rename(u"C:\\a", u"C:\\b"));
    EXPECT_TRUE(files.MakeDir(u"C:\\d"));
    files.Faults().FailNth(FileStep::RemoveDir, 1);
    EXPECT_FALSE(files.RemoveDir(u"C:\\d"));
    EXPECT_TRUE(files.RemoveDir(u"C:\\d"));
}

TEST_F(MemoryCopy, AReadOnlyDiskTakesNothing) {
    files.AddFile(u"C:\\a", "a");
    files.AddDir(u"C:\\d");
    files.SetDiskReadOnly();
    EXPECT_EQ(files.Copy(u"C:\\a", u"C:\\b"), CopyOutcome::Failed);
    EXPECT_EQ(files.LastErrorText(), u"Read-only file system");
    EXPECT_FALSE(files.Rename(u"C:\\a", u"C:\\b"));
    EXPECT_FALSE(files.MakeDir(u"C:\\e"));
    EXPECT_FALSE(files.RemoveDir(u"C:\\d"));
}

// Drives.

TEST_F(MemoryCopy, NothingIsRenamedToAnotherDrive) {
    files.AddDrive(u'D');
    files.AddFile(u"C:\\a", "a");
    EXPECT_FALSE(files.Rename(u"C:\\a", u"D:\\a"));
    EXPECT_EQ(files.LastErrorText(), u"Invalid cross-device link");
    EXPECT_EQ(files.Copy(u"C:\\a", u"D:\\a"), CopyOutcome::Copied);
    EXPECT_EQ(files.Contents(u"D:\\a"), "a");
}

TEST_F(MemoryCopy, DrivesAreListedWithTheirNames) {
    files.AddDrive(u'A');
    files.SetVolume(u"C:\\", {.type = DriveType::Fixed, .name = u"System"});
    files.SetVolume(u"A:\\", {.type = DriveType::Removable});
    EXPECT_THAT(files.Drives(), testing::ElementsAre(Drive{u"A:\\", u"a:", DriveType::Removable},
                                                     Drive{u"C:\\", u"c: [System]", DriveType::Fixed}));
    EXPECT_THAT(MemoryFileSystem(PathStyle::Posix, clock).Drives(),
                testing::ElementsAre(Drive{u"/", u"/", DriveType::Fixed}));
}

} // namespace
} // namespace korvane
