#include "platform/native/NativeClock.h"
#include "unit/platform/native/NativeFiles.h"

namespace korvane {
namespace {

namespace fs = std::filesystem;

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
    EXPECT_NE(files.LastErrorText(), u"");
    EXPECT_FALSE(files.ReadAll(u""));
    WriteBytes(dir / "a.tbx", "");
    EXPECT_TRUE(files.ReadAll(At("a.tbx")));
    EXPECT_EQ(files.LastErrorText(), u"");
}

TEST_F(NativeFiles, ReadsALargeFileInPieces) {
    std::string bytes(1'000'000, 'a');
    bytes += "the end";
    for (const std::string& each : {std::string(), std::string("short"), bytes}) {
        WriteBytes(dir / "a.tbx", each);
        std::string read;
        std::size_t longest = 0;
        EXPECT_TRUE(files.ReadInPieces(At("a.tbx"), [&](std::string_view piece) {
            read += piece;
            longest = std::max(longest, piece.size());
        }));
        EXPECT_EQ(read, each);
        EXPECT_LE(longest, 300'000u);
    }
    const auto none = [](std::string_view) {};
    EXPECT_FALSE(files.ReadInPieces(At("gone.tbx"), none));
    EXPECT_EQ(files.LastErrorText(), u"No such file or directory");
    EXPECT_FALSE(files.ReadInPieces(FromNativePath(dir.Path()), none));
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
    EXPECT_NE(files.LastErrorText(), u"");
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

// Private files.

TEST_F(NativeFiles, TellsWhyAFileCantBeOpenedPrivately) {
    EXPECT_FALSE(files.OpenPrivate(At("gone/a.ini")));
    EXPECT_EQ(files.LastErrorText(), u"No such file or directory");
    WriteBytes(dir / "a.ini", "old");
    fs::permissions(dir / "a.ini", kReadOnly);
    EXPECT_FALSE(files.OpenPrivate(At("a.ini")));
    EXPECT_EQ(files.LastErrorText(), u"Permission denied");
    EXPECT_EQ(ReadBytes(dir / "a.ini"), "old");
}

// Looking for files and folders.

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

TEST_F(NativeFiles, TheDetailsAreThoseOfAFile) {
    WriteBytes(dir / "a.tbx", "abc");
    const auto details = files.Details(At("a.tbx"));
    ASSERT_TRUE(details);
    EXPECT_EQ(details->size, 3);
    EXPECT_EQ(details->modified, files.Modified(At("a.tbx")));
    fs::create_directory(dir / "folder");
    EXPECT_FALSE(files.Details(At("folder")));
    EXPECT_FALSE(files.Details(At("none")));
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

TEST_F(NativeFiles, KnowsItsProgramFolder) {
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
