#include "testing/MemoryFileSystem.h"

#include "testing/MemoryClock.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

struct Disk {
    explicit Disk(const PathStyle& style) : files(style, clock) {}

    std::string Read(TextView path) {
        const auto bytes = files.ReadAll(path);
        return bytes ? std::string(bytes->View()) : "(unreadable)";
    }

    MemoryClock clock;
    MemoryFileSystem files;
};

struct WindowsDisk : Disk, testing::Test {
    WindowsDisk() : Disk(PathStyle::Windows) {}
};

struct PosixDisk : Disk, testing::Test {
    PosixDisk() : Disk(PathStyle::Posix) {}
};

// What both styles share.

TEST_F(PosixDisk, WritesAndReadsBackEveryByte) {
    std::string bytes;
    for (int value = 0; value < 256; ++value)
        bytes += static_cast<char>(value);
    {
        const auto writer = files.OpenRaw(u"/a.tbx");
        ASSERT_TRUE(writer);
        EXPECT_TRUE(writer->Write(bytes));
        EXPECT_TRUE(writer->Write("x"));
        EXPECT_TRUE(writer->Close());
    }
    EXPECT_EQ(Read(u"/a.tbx"), bytes + "x");
    EXPECT_EQ(files.Size(u"/a.tbx"), 257);
}

TEST_F(PosixDisk, OpeningEmptiesAFile) {
    files.AddFile(u"/a.tbx", "old");
    ASSERT_TRUE(files.OpenRaw(u"/a.tbx"));
    EXPECT_EQ(files.Contents(u"/a.tbx"), "");
}

TEST_F(PosixDisk, APrivateFileStaysSoUntilItIsRemoved) {
    files.AddFile(u"/a.ini", "old");
    files.AddLink(u"/link.ini", u"a.ini");
    ASSERT_TRUE(files.OpenPrivate(u"/link.ini"));
    EXPECT_EQ(files.Contents(u"/a.ini"), "");
    EXPECT_TRUE(files.IsPrivate(u"/a.ini"));
    ASSERT_TRUE(files.OpenRaw(u"/a.ini"));
    EXPECT_TRUE(files.IsPrivate(u"/a.ini"));
    ASSERT_TRUE(files.Remove(u"/a.ini"));
    ASSERT_TRUE(files.OpenRaw(u"/a.ini"));
    EXPECT_FALSE(files.IsPrivate(u"/a.ini"));
    EXPECT_FALSE(files.IsPrivate(u"/gone.ini"));
}

TEST_F(PosixDisk, OpeningPrivatelyFailsAsOpeningDoes) {
    files.Faults().FailNth(FileStep::OpenToWrite, 1, u"Permission denied");
    EXPECT_FALSE(files.OpenPrivate(u"/a.ini"));
    EXPECT_EQ(files.LastErrorText(), u"Permission denied");
    EXPECT_FALSE(files.OpenPrivate(u"/gone/a.ini"));
    EXPECT_EQ(files.LastErrorText(), u"No such file or directory");
}

TEST_F(PosixDisk, TheStateLiesBesideTheProgramUntilItHasAFolderOfItsOwn) {
    EXPECT_EQ(files.StateDir(), u"/opt/korvane");
    files.SetStateDir(u"/home/me/.config/korvane");
    EXPECT_EQ(files.StateDir(), u"/home/me/.config/korvane");
    EXPECT_EQ(files.ProgramDir(), u"/opt/korvane");
    EXPECT_TRUE(files.DirExists(u"/home/me/.config/korvane"));
}

TEST_F(PosixDisk, ReadBytesOutliveTheFile) {
    files.AddFile(u"/a.tbx", "kept");
    const auto bytes = files.ReadAll(u"/a.tbx");
    files.Erase(u"/a.tbx");
    ASSERT_TRUE(bytes);
    EXPECT_EQ(bytes->View(), "kept");
}

TEST_F(PosixDisk, FoldersAreNoFiles) {
    files.AddDir(u"/home/ann");
    EXPECT_TRUE(files.DirExists(u"/home/ann"));
    EXPECT_TRUE(files.DirExists(u"/"));
    EXPECT_FALSE(files.FileExists(u"/home/ann"));
    EXPECT_FALSE(files.ReadAll(u"/home/ann"));
    EXPECT_FALSE(files.OpenRaw(u"/home/ann"));
    EXPECT_EQ(files.LastErrorText(), u"Is a directory");
    EXPECT_FALSE(files.Remove(u"/home/ann"));
    EXPECT_FALSE(files.Size(u"/home/ann"));
}

TEST_F(PosixDisk, FilesAreNoFolders) {
    files.AddFile(u"/a.tbx");
    EXPECT_FALSE(files.DirExists(u"/a.tbx"));
    EXPECT_FALSE(files.ChangeDir(u"/a.tbx"));
    EXPECT_FALSE(files.FileExists(u"/a.tbx/"));
    EXPECT_FALSE(files.OpenRaw(u"/a.tbx/b.tbx"));
}

TEST_F(PosixDisk, TheEmptyPathIsNothing) {
    EXPECT_FALSE(files.FileExists(u""));
    EXPECT_FALSE(files.DirExists(u""));
    EXPECT_FALSE(files.OpenRaw(u""));
    EXPECT_FALSE(files.Remove(u""));
    EXPECT_EQ(files.FullPath(u""), u"");
}

TEST_F(PosixDisk, AMissingFolderIsNotMadeByOpening) {
    EXPECT_FALSE(files.OpenRaw(u"/gone/a.tbx"));
    EXPECT_EQ(files.LastErrorText(), u"No such file or directory");
}

TEST_F(PosixDisk, ASuccessClearsTheErrorText) {
    files.AddFile(u"/a.tbx");
    EXPECT_FALSE(files.ReadAll(u"/b.tbx"));
    EXPECT_NE(files.LastErrorText(), u"");
    EXPECT_TRUE(files.ReadAll(u"/a.tbx"));
    EXPECT_EQ(files.LastErrorText(), u"");
}

TEST_F(PosixDisk, AReadOnlyFileIsNeitherRemovedNorEmptied) {
    files.AddFile(u"/a.tbx", "old");
    files.SetFileReadOnly(u"/a.tbx");
    EXPECT_FALSE(files.Remove(u"/a.tbx"));
    EXPECT_FALSE(files.OpenRaw(u"/a.tbx"));
    EXPECT_EQ(files.LastErrorText(), u"Permission denied");
    EXPECT_EQ(Read(u"/a.tbx"), "old");
    files.SetFileReadOnly(u"/a.tbx", false);
    EXPECT_TRUE(files.Remove(u"/a.tbx"));
    EXPECT_FALSE(files.FileExists(u"/a.tbx"));
}

TEST_F(PosixDisk, TheModifiedTimeIsThatOfTheLastWrite) {
    const auto writer = files.OpenRaw(u"/a.tbx");
    EXPECT_EQ(files.Modified(u"/a.tbx"), clock.Now());
    const DateTime later{2026, 12, 1, 8, 0, 0};
    clock.Set(later);
    writer->Write("x");
    EXPECT_EQ(files.Modified(u"/a.tbx"), later);
    files.SetModified(u"/a.tbx", {2001, 2, 3, 4, 5, 6});
    EXPECT_EQ(files.Modified(u"/a.tbx"), (DateTime{2001, 2, 3, 4, 5, 6}));
    EXPECT_FALSE(files.Modified(u"/b.tbx"));
}

TEST_F(PosixDisk, TheProgramFolderIsThereFromTheStart) {
    EXPECT_TRUE(files.DirExists(files.ProgramDir()));
    files.SetProgramDir(u"/usr/lib/korvane");
    EXPECT_EQ(files.ProgramDir(), u"/usr/lib/korvane");
    EXPECT_TRUE(files.DirExists(u"/usr/lib/korvane"));
}

// Paths on a POSIX system.

TEST_F(PosixDisk, NamesDifferByCase) {
    files.AddFile(u"/home/A.tbx");
    EXPECT_FALSE(files.FileExists(u"/home/a.tbx"));
    EXPECT_TRUE(files.FileExists(u"/home/A.tbx"));
}

TEST_F(PosixDisk, ABackslashIsAnOrdinaryCharacter) {
    files.AddFile(u"/home/a\\b.tbx");
    EXPECT_TRUE(files.FileExists(u"/home/a\\b.tbx"));
    EXPECT_FALSE(files.DirExists(u"/home/a"));
}

TEST_F(PosixDisk, RelativePathsStartAtTheCurrentDirectory) {
    files.AddFile(u"/home/ann/a.tbx", "a");
    EXPECT_EQ(files.CurrentDir(), u"/");
    EXPECT_TRUE(files.ChangeDir(u"home/ann"));
    EXPECT_EQ(files.CurrentDir(), u"/home/ann");
    EXPECT_EQ(Read(u"a.tbx"), "a");
    EXPECT_EQ(files.FullPath(u"./../b//c.tbx"), u"/home/b/c.tbx");
    EXPECT_FALSE(files.ChangeDir(u"/nowhere"));
    EXPECT_EQ(files.CurrentDir(), u"/home/ann");
}

TEST_F(PosixDisk, ALinkLeadsToItsFile) {
    files.AddFile(u"/data/a.tbx", "a");
    files.AddLink(u"/home/link.tbx", u"../data/a.tbx");
    files.AddLink(u"/home/data", u"/data");
    EXPECT_TRUE(files.IsLink(u"/home/link.tbx"));
    EXPECT_TRUE(files.FileExists(u"/home/link.tbx"));
    EXPECT_EQ(Read(u"/home/link.tbx"), "a");
    EXPECT_EQ(Read(u"/home/data/a.tbx"), "a");
    EXPECT_EQ(Read(u"/home/data/../data/a.tbx"), "a");
}

TEST_F(PosixDisk, RemovingALinkEmptiesItsFileAndKeepsTheLink) {
    files.AddFile(u"/data/a.tbx", "a");
    files.AddLink(u"/link.tbx", u"/data/a.tbx");
    EXPECT_TRUE(files.Remove(u"/link.tbx"));
    EXPECT_TRUE(files.IsLink(u"/link.tbx"));
    EXPECT_EQ(files.Contents(u"/data/a.tbx"), "");
}

TEST_F(PosixDisk, ALinkToAReadOnlyFileIsNotRemoved) {
    files.AddFile(u"/a.tbx", "a");
    files.SetFileReadOnly(u"/a.tbx");
    files.AddLink(u"/link.tbx", u"a.tbx");
    EXPECT_FALSE(files.Remove(u"/link.tbx"));
    EXPECT_EQ(Read(u"/a.tbx"), "a");
}

TEST_F(PosixDisk, WritingThroughALinkToNothingMakesTheFile) {
    files.AddDir(u"/data");
    files.AddLink(u"/link.tbx", u"/data/new.tbx");
    EXPECT_FALSE(files.FileExists(u"/link.tbx"));
    EXPECT_FALSE(files.Remove(u"/link.tbx"));
    ASSERT_TRUE(files.OpenRaw(u"/link.tbx"));
    EXPECT_TRUE(files.FileExists(u"/data/new.tbx"));
}

TEST_F(PosixDisk, LinksInACircleLeadNowhere) {
    files.AddLink(u"/a", u"/b");
    files.AddLink(u"/b", u"/a");
    EXPECT_FALSE(files.FileExists(u"/a"));
    EXPECT_FALSE(files.OpenRaw(u"/a"));
}

// Paths on Windows.

TEST_F(WindowsDisk, NamesAreComparedWithoutCase) {
    files.AddFile(u"C:\\Data\\Über.tbx", "a");
    EXPECT_EQ(Read(u"c:\\DATA\\üBER.TBX"), "a");
    EXPECT_TRUE(files.DirExists(u"C:\\data\\"));
}

TEST_F(WindowsDisk, SlashesSeparateToo) {
    files.AddFile(u"C:/Data/a.tbx", "a");
    EXPECT_EQ(Read(u"C:\\Data\\a.tbx"), "a");
    EXPECT_EQ(files.FullPath(u"c:/Data/./x/../a.tbx"), u"C:\\Data\\a.tbx");
}

TEST_F(WindowsDisk, EachDriveHasItsCurrentDirectory) {
    files.AddDrive(u'd');
    files.AddFile(u"D:\\Books\\b.tbx", "b");
    files.AddFile(u"C:\\Data\\a.tbx", "a");
    ASSERT_TRUE(files.ChangeDir(u"D:\\Books"));
    ASSERT_TRUE(files.ChangeDir(u"C:\\Data"));
    EXPECT_EQ(files.CurrentDir(), u"C:\\Data");
    EXPECT_EQ(Read(u"a.tbx"), "a");
    EXPECT_EQ(Read(u"D:b.tbx"), "b");
    EXPECT_EQ(files.FullPath(u"\\x"), u"C:\\x");
    ASSERT_TRUE(files.ChangeDir(u"D:"));
    EXPECT_EQ(files.CurrentDir(), u"D:\\Books");
}

TEST_F(WindowsDisk, ADriveThatIsNotThereHoldsNothing) {
    EXPECT_TRUE(files.DirExists(u"C:\\"));
    EXPECT_FALSE(files.DirExists(u"G:\\"));
    EXPECT_FALSE(files.ChangeDir(u"G:\\"));
    EXPECT_FALSE(files.OpenRaw(u"G:\\a.tbx"));
    EXPECT_EQ(files.FullPath(u"G:a.tbx"), u"G:\\a.tbx");
}

TEST_F(WindowsDisk, ADisksLimitsAreItsOwn) {
    files.AddDrive(u'D');
    files.SetDiskReadOnly(true, u"D:\\");
    EXPECT_TRUE(files.OpenRaw(u"C:\\a.tbx"));
    EXPECT_FALSE(files.OpenRaw(u"D:\\a.tbx"));
    EXPECT_EQ(files.LastErrorText(), u"Read-only file system");
}

// Failures that a test orders.

TEST_F(PosixDisk, TheOrderedOpenFailsOnceWithTheOrderedWords) {
    files.AddFile(u"/a.tbx", "old");
    files.Faults().FailNth(FileStep::OpenToWrite, 2, u"The disk is on fire");
    EXPECT_TRUE(files.OpenRaw(u"/b.tbx"));
    EXPECT_FALSE(files.OpenRaw(u"/a.tbx"));
    EXPECT_EQ(files.LastErrorText(), u"The disk is on fire");
    EXPECT_EQ(Read(u"/a.tbx"), "old");
    EXPECT_TRUE(files.OpenRaw(u"/a.tbx"));
}

TEST_F(PosixDisk, ReadsWritesClosesAndRemovesFailToOrder) {
    files.AddFile(u"/a.tbx", "old");
    files.Faults().FailNth(FileStep::OpenToRead, 1);
    EXPECT_FALSE(files.ReadAll(u"/a.tbx"));
    files.Faults().FailNth(FileStep::Remove, 1);
    EXPECT_FALSE(files.Remove(u"/a.tbx"));
    EXPECT_EQ(Read(u"/a.tbx"), "old");
    files.Faults().FailNth(FileStep::Close, 1);
    const auto writer = files.OpenRaw(u"/b.tbx");
    EXPECT_TRUE(writer->Write("b"));
    EXPECT_FALSE(writer->Close());
    EXPECT_EQ(files.LastErrorText(), u"Input/output error");
}

TEST_F(PosixDisk, AWriteThatFailsIsMissingFromTheFileAndFailsTheClose) {
    files.Faults().FailNth(FileStep::Write, 2);
    const auto writer = files.OpenRaw(u"/a.tbx");
    EXPECT_TRUE(writer->Write("one "));
    EXPECT_FALSE(writer->Write("two "));
    EXPECT_TRUE(writer->Write("three"));
    EXPECT_FALSE(writer->Close());
    EXPECT_EQ(files.LastErrorText(), u"Input/output error");
    EXPECT_EQ(files.Contents(u"/a.tbx"), "one three");
}

TEST_F(PosixDisk, TwoFailuresOrderedForOneStepStrikeOneAfterTheOther) {
    files.Faults().FailNth(FileStep::Remove, 1, u"first");
    files.Faults().FailNth(FileStep::Remove, 1, u"second");
    files.AddFile(u"/a.tbx");
    EXPECT_FALSE(files.Remove(u"/a.tbx"));
    EXPECT_EQ(files.LastErrorText(), u"first");
    EXPECT_TRUE(files.OpenRaw(u"/b.tbx"));
    EXPECT_FALSE(files.Remove(u"/a.tbx"));
    EXPECT_EQ(files.LastErrorText(), u"second");
}

TEST_F(PosixDisk, AFullDiskTakesWhatFits) {
    files.SetFreeBytes(5);
    const auto writer = files.OpenRaw(u"/a.tbx");
    EXPECT_TRUE(writer->Write("1234"));
    EXPECT_FALSE(writer->Write("5678"));
    EXPECT_EQ(files.LastErrorText(), u"No space left on device");
    EXPECT_FALSE(writer->Write("9"));
    EXPECT_FALSE(writer->Close());
    EXPECT_EQ(files.Contents(u"/a.tbx"), "12345");
}

TEST_F(PosixDisk, AFileStaysAsItWasUntilItsNewBytesAreWhole) {
    files.AddFile(u"/a.rtf", "old");
    for (const FileStep step : {FileStep::OpenToWrite, FileStep::Write, FileStep::Close, FileStep::Rename}) {
        files.Faults().FailNth(step, 1);
        EXPECT_FALSE(files.WriteWhole(u"/a.rtf", "new"));
        EXPECT_EQ(files.Contents(u"/a.rtf"), "old");
    }
    files.SetFreeBytes(2);
    EXPECT_FALSE(files.WriteWhole(u"/a.rtf", "new"));
    EXPECT_EQ(files.Contents(u"/a.rtf"), "old");
    EXPECT_EQ(files.FileNames(u"/", u"*").size(), 1U);
}

TEST_F(PosixDisk, AReadOnlyDiskKeepsItsFiles) {
    files.AddFile(u"/a.tbx", "old");
    files.SetDiskReadOnly();
    EXPECT_FALSE(files.Remove(u"/a.tbx"));
    EXPECT_FALSE(files.OpenRaw(u"/a.tbx"));
    EXPECT_FALSE(files.OpenRaw(u"/b.tbx"));
    EXPECT_EQ(Read(u"/a.tbx"), "old");
}

TEST_F(PosixDisk, AFileCanVanishBetweenTestAndOpen) {
    files.AddFile(u"/a.tbx", "old");
    files.VanishBeforeOpen(u"/a.tbx");
    EXPECT_TRUE(files.FileExists(u"/a.tbx"));
    EXPECT_FALSE(files.ReadAll(u"/a.tbx"));
    EXPECT_FALSE(files.FileExists(u"/a.tbx"));
    files.AddFile(u"/a.tbx", "new");
    EXPECT_EQ(Read(u"/a.tbx"), "new");
}

TEST(MemoryVolumes, AreFixedWithoutANameUntilTheyAreSet) {
    const MemoryClock clock;
    MemoryFileSystem files(PathStyle::Windows, clock);
    EXPECT_EQ(files.Volume(u"C:\\Data"), (VolumeInfo{.type = DriveType::Fixed, .root = u"C:\\"}));
    EXPECT_EQ(files.Volume(u"D:\\"), std::nullopt);

    files.AddDrive(u'D');
    const VolumeInfo disc{
        .type = DriveType::CdRom, .ready = false, .name = u"Music", .root = u"D:\\", .totalBytes = 700};
    files.SetVolume(u"D:\\", disc);
    EXPECT_EQ(files.Volume(u"D:\\x"), disc);
    EXPECT_EQ(files.Volume(u"C:\\"), (VolumeInfo{.type = DriveType::Fixed, .root = u"C:\\"}));
}

TEST(MemoryVolumes, TellTheFreeBytesThatADiskStillTakes) {
    const MemoryClock clock;
    MemoryFileSystem files(PathStyle::Posix, clock);
    files.SetVolume(u"/", {.type = DriveType::Fixed, .freeBytes = 100});
    EXPECT_EQ(files.Volume(u"/x")->freeBytes, 100);
    files.SetFreeBytes(5);
    EXPECT_EQ(files.Volume(u"/x")->freeBytes, 5);
}

} // namespace
} // namespace korvane
