// Tests what only POSIX systems have: pipes, devices, links and permissions of owners.

#include "platform/native/SystemFile.h"
#include "support/SmallDisk.h"
#include "unit/platform/native/NativeFiles.h"

#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <thread>

namespace korvane {
namespace {

namespace fs = std::filesystem;

constexpr fs::perms kOwnersAlone = fs::perms::owner_read | fs::perms::owner_write;

TEST_F(NativeFiles, WritesToAPipeButReadsNoneWhereThatIsWanted) {
    ASSERT_EQ(mkfifo((dir / "pipe").c_str(), 0600), 0);
    NativeFileSystem patient({}, {}, NativeFileSystem::SpecialFiles::Written);
    EXPECT_FALSE(patient.ReadAll(At("pipe")));
    std::string read;
    std::thread reader([&] { read = ReadBytes(dir / "pipe"); });
    EXPECT_TRUE(patient.WriteWhole(At("pipe"), "bytes"));
    reader.join();
    EXPECT_EQ(read, "bytes");
}

TEST_F(NativeFiles, NoDumpIsWrittenOfASecret) {
    system_calls::AllowMemoryDump(false);
    EXPECT_EQ(prctl(PR_GET_DUMPABLE), 0);
    system_calls::AllowMemoryDump(true);
    EXPECT_EQ(prctl(PR_GET_DUMPABLE), 1);
}

TEST_F(NativeFiles, TellsWhetherAFileIsForItsOwnerAlone) {
    WriteBytes(dir / "a", "");
    for (const auto& [mode, alone] : {std::pair(0600, true), {0400, true}, {0640, false}, {0602, false}}) {
        ASSERT_EQ(chmod((dir / "a").c_str(), static_cast<mode_t>(mode)), 0);
        std::error_code error;
        const SystemFile file = SystemFile::OpenToRead(dir / "a", error);
        EXPECT_EQ(system_calls::IsForOwnerAlone(file.Number()), alone) << mode;
    }
}

TEST_F(NativeFiles, WaitsForNoPipeAndReadsNoDevice) {
    ASSERT_EQ(mkfifo((dir / "pipe").c_str(), 0600), 0);
    for (const Text& path : {At("pipe"), Text(u"/dev/zero"), Text(u"/dev/null")}) {
        EXPECT_FALSE(files.ReadAll(path));
        EXPECT_EQ(files.LastErrorText(), u"Operation not permitted");
    }
    EXPECT_FALSE(files.ReadAll(At(".")));
    EXPECT_EQ(files.LastErrorText(), u"Is a directory");
    EXPECT_FALSE(files.OpenRaw(At("pipe")));
    EXPECT_FALSE(files.WriteWhole(At("pipe"), "bytes", Readers::OwnerAlone));
    EXPECT_TRUE(fs::is_fifo(dir / "pipe"));
}

TEST_F(NativeFiles, WhatIsWrittenForItsOwnerAloneLosesTheRightsOfOthers) {
    EXPECT_TRUE(files.WriteWhole(At("new.ini"), "new", Readers::OwnerAlone));
    EXPECT_EQ(fs::status(dir / "new.ini").permissions(), kOwnersAlone);
    WriteBytes(dir / "old.ini", "old");
    fs::permissions(dir / "old.ini", static_cast<fs::perms>(0644));
    EXPECT_TRUE(files.WriteWhole(At("old.ini"), "new", Readers::OwnerAlone));
    EXPECT_EQ(ReadBytes(dir / "old.ini"), "new");
    EXPECT_EQ(fs::status(dir / "old.ini").permissions(), kOwnersAlone);
}

TEST_F(NativeFiles, TrustsItsOwnFilesAndThoseOfTheAdministrator) {
    WriteBytes(dir / "own.ini", "own");
    EXPECT_TRUE(files.IsTrusted(At("own.ini")));
    EXPECT_TRUE(files.IsTrusted(At("missing.ini")));
    EXPECT_TRUE(files.IsTrusted(u"/etc/passwd"));
    constexpr uid_t kNobody = 65534;
    if (chown((dir / "own.ini").c_str(), kNobody, static_cast<gid_t>(-1)) == 0 && geteuid() != kNobody) {
        EXPECT_FALSE(files.IsTrusted(At("own.ini")));
    }
}

TEST_F(NativeFiles, ReadsWhatTellsNoSize) {
    const auto bytes = files.ReadAll(u"/proc/self/status");
    ASSERT_TRUE(bytes);
    EXPECT_TRUE(bytes->View().starts_with("Name:"));
}

TEST_F(NativeFiles, AFullDiskFailsTheWriteAndTheClose) {
    const auto writer = files.OpenRaw(u"/dev/full");
    ASSERT_TRUE(writer);
    EXPECT_FALSE(writer->Write("x"));
    EXPECT_EQ(files.LastErrorText(), u"No space left on device");
    EXPECT_FALSE(writer->Close());
    EXPECT_EQ(files.LastErrorText(), u"No space left on device");
}

TEST_F(NativeFiles, APipeIsNotRemoved) {
    ASSERT_EQ(mkfifo((dir / "pipe").c_str(), 0600), 0);
    EXPECT_FALSE(files.Remove(At("pipe")));
    EXPECT_TRUE(fs::exists(dir / "pipe"));
    EXPECT_NE(files.LastErrorText(), u"");
}

TEST_F(NativeFiles, AFileKeepsItsRightsWhenItIsWrittenWhole) {
    WriteBytes(dir / "a.rtf", "old");
    fs::permissions(dir / "a.rtf", kOwnersAlone);
    EXPECT_TRUE(files.WriteWhole(At("a.rtf"), "new"));
    EXPECT_EQ(ReadBytes(dir / "a.rtf"), "new");
    EXPECT_EQ(fs::status(dir / "a.rtf").permissions(), kOwnersAlone);
}

TEST_F(NativeFiles, ADeviceIsWrittenItself) {
    EXPECT_TRUE(files.WriteWhole(u"/dev/null", "bytes"));
    EXPECT_FALSE(files.WriteWhole(u"/dev/full", "bytes"));
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

TEST_F(NativeFiles, RemovingALinkEmptiesItsFileAndKeepsTheLink) {
    WriteBytes(dir / "a.tbx", "old");
    fs::create_symlink("a.tbx", dir / "link.tbx");
    EXPECT_TRUE(files.Remove(At("link.tbx")));
    EXPECT_TRUE(fs::is_symlink(dir / "link.tbx"));
    EXPECT_EQ(ReadBytes(dir / "a.tbx"), "");
    EXPECT_TRUE(fs::exists(dir / "a.tbx"));
}

TEST_F(NativeFiles, ALinkToAReadOnlyFileIsNotRemoved) {
    WriteBytes(dir / "a.tbx", "old");
    fs::permissions(dir / "a.tbx", kReadOnly);
    fs::create_symlink("a.tbx", dir / "link.tbx");
    EXPECT_FALSE(files.Remove(At("link.tbx")));
    EXPECT_EQ(ReadBytes(dir / "a.tbx"), "old");
}

TEST_F(NativeFiles, ALinkToNothingIsNotRemovedButWrittenThrough) {
    fs::create_symlink("new.tbx", dir / "link.tbx");
    EXPECT_FALSE(files.FileExists(At("link.tbx")));
    EXPECT_FALSE(files.Remove(At("link.tbx")));
    EXPECT_TRUE(Save("link.tbx", "new"));
    EXPECT_TRUE(fs::is_symlink(dir / "link.tbx"));
    EXPECT_EQ(ReadBytes(dir / "new.tbx"), "new");
}

TEST_F(NativeFiles, AFileWrittenAnewAfterItsRemovalKeepsItsRights) {
    WriteBytes(dir / "a.tbx", "old");
    fs::permissions(dir / "a.tbx", kOwnersAlone);
    ASSERT_TRUE(files.Remove(At("a.tbx")));
    ASSERT_TRUE(Save("a.tbx", "new"));
    EXPECT_EQ(RightsOf("a.tbx"), kOwnersAlone);
}

TEST_F(NativeFiles, RightsWiderThanTheUsualOnesAreKeptToo) {
    WriteBytes(dir / "a.tbx", "old");
    const auto everybody = static_cast<fs::perms>(0666);
    fs::permissions(dir / "a.tbx", everybody);
    ASSERT_TRUE(files.Remove(At("a.tbx")));
    ASSERT_TRUE(Save("a.tbx", "new"));
    EXPECT_EQ(fs::status(dir / "a.tbx").permissions(), everybody);
}

TEST_F(NativeFiles, RightsOfARemovedFileGoToNoOtherFile) {
    WriteBytes(dir / "usual.tbx", "");
    WriteBytes(dir / "a.tbx", "old");
    fs::permissions(dir / "a.tbx", fs::perms::owner_read | fs::perms::owner_write | fs::perms::owner_exec);
    ASSERT_TRUE(files.Remove(At("a.tbx")));
    ASSERT_TRUE(Save("b.tbx", "new"));
    EXPECT_EQ(fs::status(dir / "b.tbx").permissions(), fs::status(dir / "usual.tbx").permissions());
}

TEST_F(NativeFiles, NamesAreUtf8OnTheDisk) {
    const auto writer = files.OpenRaw(At("") + u"Käse §\U0001F9C0.tbx");
    ASSERT_TRUE(writer);
    EXPECT_TRUE(fs::exists(dir / "K\xC3\xA4se \xC2\xA7\xF0\x9F\xA7\x80.tbx"));
}

TEST_F(NativeFiles, AFullPathKeepsLinksAndWhatLeadsUpBehindThem) {
    fs::create_directories(dir / "far/away");
    fs::create_symlink("far/away", dir / "link");
    EXPECT_EQ(files.FullPath(At("link/a.tbx")), At("link/a.tbx"));
    EXPECT_EQ(files.FullPath(At("link/../a.tbx")), At("link/../a.tbx"));
    EXPECT_EQ(files.FullPath(At("link/../../a.tbx")), At("link/../../a.tbx"));
    EXPECT_EQ(files.FullPath(u"/../a.tbx"), u"/a.tbx");
    EXPECT_EQ(files.FullPath(u""), u"");
}

TEST_F(NativeFiles, AFolderIsNoFile) {
    EXPECT_FALSE(files.ReadAll(FromNativePath(dir.Path())));
    EXPECT_EQ(files.LastErrorText(), u"Is a directory");
    EXPECT_FALSE(files.OpenRaw(FromNativePath(dir.Path())));
    EXPECT_EQ(files.LastErrorText(), u"Is a directory");
    EXPECT_FALSE(files.Remove(FromNativePath(dir.Path())));
    EXPECT_EQ(files.LastErrorText(), u"Is a directory");
}

TEST_F(NativeFiles, PathsAreInTheStyleOfPosix) {
    EXPECT_EQ(files.Style(), PathStyle::Posix);
}

// Private files.

TEST_F(NativeFiles, APrivateFileIsItsOwnersAloneWhateverTheUsualRightsAre) {
    const mode_t usual = umask(0);
    EXPECT_TRUE(SavePrivately("a.ini", "secret"));
    umask(usual);
    EXPECT_EQ(RightsOf("a.ini"), kOwnersAlone);
    EXPECT_EQ(ReadBytes(dir / "a.ini"), "secret");
}

TEST_F(NativeFiles, AFileThatOthersCouldReadBecomesPrivate) {
    WriteBytes(dir / "a.ini", "old");
    fs::permissions(dir / "a.ini", static_cast<fs::perms>(0666));
    EXPECT_TRUE(SavePrivately("a.ini", "secret"));
    EXPECT_EQ(RightsOf("a.ini"), kOwnersAlone);
}

TEST_F(NativeFiles, APrivateFileWrittenAnewAfterItsRemovalKeepsItsOwnersRights) {
    WriteBytes(dir / "a.ini", "old");
    fs::permissions(dir / "a.ini", static_cast<fs::perms>(0755));
    ASSERT_TRUE(files.Remove(At("a.ini")));
    EXPECT_TRUE(SavePrivately("a.ini", "secret"));
    EXPECT_EQ(RightsOf("a.ini"), fs::perms::owner_all);
}

TEST_F(NativeFiles, APrivateFileBehindALinkKeepsTheLink) {
    WriteBytes(dir / "a.ini", "old");
    fs::permissions(dir / "a.ini", static_cast<fs::perms>(0644));
    fs::create_symlink("a.ini", dir / "link.ini");
    ASSERT_TRUE(files.Remove(At("link.ini")));
    EXPECT_TRUE(SavePrivately("link.ini", "secret"));
    EXPECT_TRUE(fs::is_symlink(dir / "link.ini"));
    EXPECT_EQ(ReadBytes(dir / "a.ini"), "secret");
    EXPECT_EQ(RightsOf("a.ini"), kOwnersAlone);
}

TEST_F(NativeFiles, ADeviceKeepsItsRights) {
    const fs::perms before = fs::status("/dev/null").permissions();
    EXPECT_TRUE(files.OpenPrivate(u"/dev/null"));
    EXPECT_EQ(fs::status("/dev/null").permissions(), before);
}

// Names that aren't valid text.

TEST_F(NativeFiles, AnyBytesCanBeAName) {
    const std::string names[] = {"\xFF",         "a\xE4.txt",    "\xC3",
                                 "\xED\xB2\x80", "\xF0\x9F\x98", "\xC3\xA4\xA4z"};
    for (const std::string& name : names) {
        WriteBytes(dir / name, name);
        const std::vector<Text> found = files.FileNames(At("."), u"*");
        ASSERT_EQ(found.size(), 1u);
        const Text path = At(".") + u"/" + found.front();
        EXPECT_EQ(files.ReadAll(path)->View(), name);
        EXPECT_EQ(files.Copy(path, At("copy")), CopyOutcome::Copied);
        EXPECT_TRUE(files.Rename(path, At("renamed")));
        EXPECT_FALSE(fs::exists(dir / name));
        fs::remove(dir / "copy");
        fs::remove(dir / "renamed");
    }
}

TEST_F(NativeFiles, NamesThatDifferInSuchBytesAreDifferentTexts) {
    WriteBytes(dir / "a\xE4", "");
    WriteBytes(dir / "a\xE5", "");
    const std::vector<Text> found = files.FileNames(At("."), u"*");
    ASSERT_EQ(found.size(), 2u);
    EXPECT_NE(found[0], found[1]);
}

TEST_F(NativeFiles, ACharacterOfTwoUnitsIsWrittenAsOne) {
    // The second half is among those that stand for bytes when they are alone.
    EXPECT_EQ(ToNativePath(u"\xD83D\xDCC1").native(), "\xF0\x9F\x93\x81");
    EXPECT_EQ(FromNativePath("\xF0\x9F\x93\x81"), u"\xD83D\xDCC1");
}

// Volumes.

TEST(NativeVolume, OfTheRootHoldsBytes) {
    const NativeFileSystem files(u"/opt/korvane");
    const auto volume = files.Volume(u"/");
    ASSERT_TRUE(volume);
    EXPECT_TRUE(volume->ready);
    const auto space = std::filesystem::space("/");
    EXPECT_EQ(volume->totalBytes, static_cast<std::int64_t>(space.capacity));
    EXPECT_GE(volume->totalBytes, volume->freeBytes);
}

TEST(NativeVolume, OfAFileThatIsNotThereIsThatOfItsFolder) {
    const NativeFileSystem files(u"/opt/korvane");
    EXPECT_EQ(files.Volume(u"/no/such/file")->totalBytes, files.Volume(u"/")->totalBytes);
}

// Folders that may be worth opening.

TEST_F(NativeFiles, AFolderOfFilesIsNotWorthOpening) {
    WriteBytes(dir / "a.txt", "x");
    fs::create_symlink(dir / "a.txt", dir / "link");
    fs::create_symlink(dir / "gone", dir / "dangling");
    EXPECT_FALSE(files.MayHaveFolders(At("")));
    EXPECT_FALSE(files.MayHaveFolders(At("a.txt")));
    EXPECT_FALSE(files.MayHaveFolders(At("none")));
}

TEST_F(NativeFiles, AFolderWithFoldersOrLinksToThemIsWorthOpening) {
    fs::create_directories(dir / "folder" / ".hidden");
    EXPECT_TRUE(files.MayHaveFolders(At("")));
    EXPECT_FALSE(files.MayHaveFolders(At("folder")));
    fs::create_symlink(dir / "folder", dir / "folder" / "circle");
    EXPECT_TRUE(files.MayHaveFolders(At("folder")));
}

TEST_F(NativeFiles, OfAVeryLargeFolderOnlyTheFirstEntriesAreRead) {
    for (int number = 0; number < 1000; ++number)
        WriteBytes(dir / std::to_string(number), "");
    EXPECT_FALSE(files.MayHaveFolders(At("")));
    WriteBytes(dir / "1000", "");
    EXPECT_TRUE(files.MayHaveFolders(At("")));
    EXPECT_FALSE(files.HasFolders(At("")));
}

TEST_F(NativeFiles, NamesAreReadInStepsThatCanBeEnded) {
    for (int number = 0; number < 2500; ++number)
        WriteBytes(dir / (std::to_string(number) + (number % 2 == 0 ? ".txt" : ".rtf")), "");
    std::vector<std::size_t> told;
    const auto readsOn = [&](std::size_t found) {
        told.push_back(found);
        return true;
    };
    EXPECT_EQ(files.FileNamesInSteps(At(""), u"*.*", readsOn), files.FileNames(At(""), u"*.*"));
    EXPECT_EQ(told, (std::vector<std::size_t>{1000, 2000}));
    told.clear();
    EXPECT_EQ(files.FileNamesInSteps(At(""), u"*.txt", readsOn).size(), 1250u);
    EXPECT_EQ(told.size(), 2u);
    const auto stops = [](std::size_t) { return false; };
    EXPECT_EQ(files.FileNamesInSteps(At(""), u"*.*", stops).size(), 1000u);
}

TEST(NativeFolders, OfAnotherVolumeAreNotLookedForUntilItIsOpened) {
    const bool mounted = RunOnSmallDisk(1 << 20, [](const fs::path& disk) {
        const NativeFileSystem files(u"/opt/korvane");
        EXPECT_FALSE(files.HasFolders(FromNativePath(disk)));
        EXPECT_TRUE(files.MayHaveFolders(FromNativePath(disk)));
    });
    if (!mounted) GTEST_SKIP() << "this user may not mount a disk";
}

TEST_F(NativeFiles, DetailsOfManyFilesAreThoseOfEach) {
    WriteBytes(dir / "a.txt", "12345");
    WriteBytes(dir / "caf\xC3\xA9 \xFF", "1");
    fs::create_directory(dir / "folder");
    fs::create_symlink(dir / "a.txt", dir / "link");
    const auto details = files.DetailsIn(At(""));
    for (const Text& name : files.FileNames(At(""), u"*"))
        EXPECT_EQ(details->Of(name), files.Details(files.Style().JoinPath(At(""), name)));
    EXPECT_EQ(details->Of(u"link")->size, 5);
    EXPECT_FALSE(details->Of(u"folder"));
    EXPECT_FALSE(details->Of(u"gone"));
    EXPECT_FALSE(details->Of(Text(u"a.txt\0x", 7)));
    EXPECT_FALSE(files.DetailsIn(At("gone"))->Of(u"a.txt"));
}

TEST_F(NativeFiles, ProgramsAreListedByTheRightToStartThem) {
    WriteBytes(dir / "tool", "x");
    WriteBytes(dir / "note.txt", "x");
    WriteBytes(dir / "old.exe", "x");
    fs::create_directory(dir / "folder");
    fs::permissions(dir / "tool", fs::perms::owner_all);
    EXPECT_EQ(files.FileNames(At(""), u"*.exe"), (std::vector<Text>{u"old.exe", u"tool"}));
    EXPECT_EQ(files.FileNames(At(""), u"*.tbx"), std::vector<Text>());
}

} // namespace
} // namespace korvane
