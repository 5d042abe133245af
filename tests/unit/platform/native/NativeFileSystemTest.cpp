#include "platform/native/NativeFileSystem.h"

#include "platform/native/NativeClock.h"
#include "platform/native/NativePath.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <thread>

namespace korvane {
namespace {

namespace fs = std::filesystem;

constexpr fs::perms kOwnersAlone = fs::perms::owner_read | fs::perms::owner_write;
constexpr fs::perms kReadOnly = fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read;

struct NativeFiles : testing::Test {
    Text At(const fs::path& name) const { return FromNativePath(dir / name); }

    std::string Read(const fs::path& name) {
        const auto bytes = files.ReadAll(At(name));
        return bytes ? std::string(bytes->View()) : "(unreadable)";
    }

    bool Save(const fs::path& name, std::string_view bytes) {
        const auto writer = files.OpenRaw(At(name));
        return writer && writer->Write(bytes) && writer->Close();
    }

    bool SavePrivately(const fs::path& name, std::string_view bytes) {
        const auto writer = files.OpenPrivate(At(name));
        return writer && writer->Write(bytes) && writer->Close();
    }

    fs::perms RightsOf(const fs::path& name) const { return fs::status(dir / name).permissions(); }

    TempDir dir;
    NativeFileSystem files{u"/opt/korvane"};
};

// Reading.

TEST_F(NativeFiles, ReadsEveryByte) {
    std::string bytes;
    for (int value = 0; value < 256; ++value)
        bytes += static_cast<char>(value);
    WriteBytes(dir / "a.tbx", bytes);
    EXPECT_EQ(Read("a.tbx"), bytes);
    EXPECT_EQ(files.Size(At("a.tbx")), 256);
}

TEST_F(NativeFiles, ReadsAnEmptyFile) {
    WriteBytes(dir / "a.tbx", "");
    EXPECT_EQ(Read("a.tbx"), "");
}

TEST_F(NativeFiles, ReadsFilesAroundTheSizeOfItsFirstBuffer) {
    for (const std::size_t size : {65535u, 65536u, 65537u, 1000000u}) {
        const std::string bytes(size, 'x');
        WriteBytes(dir / "a.tbx", bytes);
        EXPECT_EQ(Read("a.tbx"), bytes) << size;
    }
}

TEST_F(NativeFiles, ReadsAPipeToItsEnd) {
    ASSERT_EQ(mkfifo((dir / "pipe").c_str(), 0600), 0);
    const std::string bytes(300000, 'p');
    std::thread writer([&] { WriteBytes(dir / "pipe", bytes); });
    EXPECT_EQ(Read("pipe"), bytes);
    writer.join();
}

TEST_F(NativeFiles, ReadsWhatTellsNoSize) {
    const auto bytes = files.ReadAll(u"/proc/self/status");
    ASSERT_TRUE(bytes);
    EXPECT_TRUE(bytes->View().starts_with("Name:"));
}

TEST_F(NativeFiles, ReadBytesOutliveTheFile) {
    WriteBytes(dir / "a.tbx", "kept");
    const auto bytes = files.ReadAll(At("a.tbx"));
    fs::remove(dir / "a.tbx");
    ASSERT_TRUE(bytes);
    EXPECT_EQ(bytes->View(), "kept");
}

TEST_F(NativeFiles, TellsWhyAFileCantBeRead) {
    EXPECT_FALSE(files.ReadAll(At("gone.tbx")));
    EXPECT_EQ(files.LastErrorText(), u"No such file or directory");
    EXPECT_FALSE(files.ReadAll(FromNativePath(dir.Path())));
    EXPECT_EQ(files.LastErrorText(), u"Is a directory");
    EXPECT_FALSE(files.ReadAll(u""));
    WriteBytes(dir / "a.tbx", "");
    EXPECT_TRUE(files.ReadAll(At("a.tbx")));
    EXPECT_EQ(files.LastErrorText(), u"");
}

// Writing.

TEST_F(NativeFiles, WritesBytesAsTheyAre) {
    EXPECT_TRUE(Save("a.tbx", std::string_view("\r\n\0\xA7\n", 5)));
    EXPECT_EQ(ReadBytes(dir / "a.tbx"), std::string("\r\n\0\xA7\n", 5));
}

TEST_F(NativeFiles, HoldsNothingBackBetweenWrites) {
    const auto writer = files.OpenRaw(At("a.tbx"));
    ASSERT_TRUE(writer);
    EXPECT_TRUE(writer->Write("one"));
    EXPECT_EQ(ReadBytes(dir / "a.tbx"), "one");
}

TEST_F(NativeFiles, OpeningEmptiesAFile) {
    WriteBytes(dir / "a.tbx", "old");
    ASSERT_TRUE(files.OpenRaw(At("a.tbx")));
    EXPECT_EQ(ReadBytes(dir / "a.tbx"), "");
}

TEST_F(NativeFiles, TellsWhyAFileCantBeOpenedToWrite) {
    EXPECT_FALSE(files.OpenRaw(At("gone/a.tbx")));
    EXPECT_EQ(files.LastErrorText(), u"No such file or directory");
    EXPECT_FALSE(files.OpenRaw(FromNativePath(dir.Path())));
    EXPECT_EQ(files.LastErrorText(), u"Is a directory");
}

TEST_F(NativeFiles, AFullDiskFailsTheWriteAndTheClose) {
    const auto writer = files.OpenRaw(u"/dev/full");
    ASSERT_TRUE(writer);
    EXPECT_FALSE(writer->Write("x"));
    EXPECT_EQ(files.LastErrorText(), u"No space left on device");
    EXPECT_FALSE(writer->Close());
    EXPECT_EQ(files.LastErrorText(), u"No space left on device");
}

TEST_F(NativeFiles, AReadOnlyFileIsNotOpenedToWriteNotEvenByTheAdministrator) {
    WriteBytes(dir / "a.tbx", "old");
    fs::permissions(dir / "a.tbx", kReadOnly);
    EXPECT_FALSE(files.OpenRaw(At("a.tbx")));
    EXPECT_EQ(files.LastErrorText(), u"Permission denied");
    EXPECT_EQ(ReadBytes(dir / "a.tbx"), "old");
}

// Removing.

TEST_F(NativeFiles, RemovesAFile) {
    WriteBytes(dir / "a.tbx", "old");
    EXPECT_TRUE(files.Remove(At("a.tbx")));
    EXPECT_FALSE(fs::exists(dir / "a.tbx"));
    EXPECT_FALSE(files.Remove(At("a.tbx")));
    EXPECT_EQ(files.LastErrorText(), u"No such file or directory");
}

TEST_F(NativeFiles, AReadOnlyFileIsNotRemoved) {
    WriteBytes(dir / "a.tbx", "old");
    fs::permissions(dir / "a.tbx", kReadOnly);
    EXPECT_FALSE(files.Remove(At("a.tbx")));
    EXPECT_EQ(files.LastErrorText(), u"Permission denied");
    EXPECT_EQ(ReadBytes(dir / "a.tbx"), "old");
}

TEST_F(NativeFiles, AFolderIsNotRemoved) {
    fs::create_directory(dir / "empty");
    EXPECT_FALSE(files.Remove(At("empty")));
    EXPECT_EQ(files.LastErrorText(), u"Is a directory");
    EXPECT_TRUE(fs::is_directory(dir / "empty"));
}

TEST_F(NativeFiles, APipeIsNotRemoved) {
    ASSERT_EQ(mkfifo((dir / "pipe").c_str(), 0600), 0);
    EXPECT_FALSE(files.Remove(At("pipe")));
    EXPECT_TRUE(fs::exists(dir / "pipe"));
    EXPECT_NE(files.LastErrorText(), u"");
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

// Keeping to the owner.

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

TEST_F(NativeFiles, TellsWhyAFileCantBeOpenedPrivately) {
    EXPECT_FALSE(files.OpenPrivate(At("gone/a.ini")));
    EXPECT_EQ(files.LastErrorText(), u"No such file or directory");
    WriteBytes(dir / "a.ini", "old");
    fs::permissions(dir / "a.ini", kReadOnly);
    EXPECT_FALSE(files.OpenPrivate(At("a.ini")));
    EXPECT_EQ(files.LastErrorText(), u"Permission denied");
    EXPECT_EQ(RightsOf("a.ini"), kReadOnly);
}

// Looking.

TEST_F(NativeFiles, TellsFilesFromFolders) {
    WriteBytes(dir / "a.tbx", "a");
    EXPECT_TRUE(files.FileExists(At("a.tbx")));
    EXPECT_FALSE(files.DirExists(At("a.tbx")));
    EXPECT_FALSE(files.FileExists(FromNativePath(dir.Path())));
    EXPECT_TRUE(files.DirExists(FromNativePath(dir.Path())));
    EXPECT_FALSE(files.FileExists(At("gone.tbx")));
    EXPECT_FALSE(files.FileExists(u""));
    EXPECT_FALSE(files.DirExists(u""));
    EXPECT_FALSE(files.Size(At("gone.tbx")));
    EXPECT_FALSE(files.Modified(At("gone.tbx")));
}

TEST_F(NativeFiles, NamesAreUtf8OnTheDisk) {
    const auto writer = files.OpenRaw(At("") + u"Käse §\U0001F9C0.tbx");
    ASSERT_TRUE(writer);
    EXPECT_TRUE(fs::exists(dir / "K\xC3\xA4se \xC2\xA7\xF0\x9F\xA7\x80.tbx"));
}

TEST_F(NativeFiles, ANameWithANullNamesNothing) {
    WriteBytes(dir / "a.tbx", "a");
    const Text path = At("a.tbx") + Text(1, u'\0') + u".txt";
    EXPECT_FALSE(files.FileExists(path));
    EXPECT_FALSE(files.ReadAll(path));
    EXPECT_FALSE(files.OpenRaw(path));
    EXPECT_FALSE(files.Remove(path));
    EXPECT_EQ(ReadBytes(dir / "a.tbx"), "a");
}

TEST_F(NativeFiles, TheModifiedTimeIsLocal) {
    WriteBytes(dir / "a.tbx", "a");
    const std::time_t moment = 1'600'000'000;
    fs::last_write_time(dir / "a.tbx", fs::file_time_type(std::chrono::file_clock::from_sys(
                                           std::chrono::system_clock::from_time_t(moment))));
    EXPECT_EQ(files.Modified(At("a.tbx")), ToLocalDateTime(moment));
}

TEST_F(NativeFiles, RelativePathsStartAtTheCurrentDirectory) {
    const Text before = files.CurrentDir();
    fs::create_directory(dir / "data");
    WriteBytes(dir / "data/a.tbx", "a");
    ASSERT_TRUE(files.ChangeDir(At("data")));
    EXPECT_EQ(files.CurrentDir(), At("data"));
    EXPECT_TRUE(files.FileExists(u"a.tbx"));
    EXPECT_EQ(files.FullPath(u"a.tbx"), At("data/a.tbx"));
    EXPECT_EQ(files.FullPath(u"./../data//b/../a.tbx"), At("data/a.tbx"));
    EXPECT_FALSE(files.ChangeDir(At("gone")));
    EXPECT_EQ(files.LastErrorText(), u"No such file or directory");
    EXPECT_EQ(files.CurrentDir(), At("data"));
    EXPECT_TRUE(files.ChangeDir(before));
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

TEST_F(NativeFiles, KnowsItsStyleAndItsProgramFolder) {
    EXPECT_EQ(files.Style(), PathStyle::Posix);
    EXPECT_EQ(files.ProgramDir(), u"/opt/korvane");
    EXPECT_EQ(files.StateDir(), u"/opt/korvane");
}

TEST_F(NativeFiles, KnowsAFolderOfTheStateThatIsntThePrograms) {
    const NativeFileSystem apart(u"/opt/korvane", u"/home/me/.config/korvane");
    EXPECT_EQ(apart.ProgramDir(), u"/opt/korvane");
    EXPECT_EQ(apart.StateDir(), u"/home/me/.config/korvane");
}

} // namespace
} // namespace korvane
