#include "platform/native/user/Trash.h"

#include "support/SmallDisk.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <ctime>
#include <functional>
#include <iterator>
#include <string>

namespace korvane {
namespace {

namespace fs = std::filesystem;

constexpr std::time_t kNow = 1'700'000'000;

std::string DateOf(std::time_t time) {
    const std::tm local = *std::localtime(&time);
    char text[32];
    std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S", &local);
    return text;
}

std::string Note(const std::string& path) {
    return "[Trash Info]\nPath=" + path + "\nDeletionDate=" + DateOf(kNow) + "\n";
}

mode_t RightsOf(const fs::path& path) {
    struct stat status {};
    return lstat(path.c_str(), &status) == 0 ? status.st_mode & 0777 : 0;
}

std::size_t CountIn(const fs::path& folder) {
    if (!fs::exists(folder)) return 0;
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), {}));
}

struct TrashTest : testing::Test {
    TrashTest() { fs::create_directory(dir / "work"); }
    bool Move(const fs::path& path) const { return MoveToTrash(path, dataHome, kNow); }
    fs::path InTrash(const fs::path& name) const { return trash / "files" / name; }
    std::string NoteOf(const std::string& name) const {
        return ReadBytes(trash / "info" / (name + ".trashinfo"));
    }
    std::size_t Count() const { return CountIn(trash / "files"); }
    std::size_t Notes() const { return CountIn(trash / "info"); }

    TempDir dir;
    /// Neither this folder nor the one above it is there.
    fs::path dataHome = dir / "home/.local/share";
    fs::path trash = dataHome / "Trash";
};

TEST_F(TrashTest, AFileMovesThereWithANoteOfWhereItWas) {
    WriteBytes(dir / "work/a.txt", "contents");
    EXPECT_TRUE(Move(dir / "work/a.txt"));
    EXPECT_FALSE(fs::exists(dir / "work/a.txt"));
    EXPECT_EQ(ReadBytes(InTrash("a.txt")), "contents");
    EXPECT_EQ(NoteOf("a.txt"), Note(fs::canonical(dir.Path()).native() + "/work/a.txt"));
}

TEST_F(TrashTest, TheFoldersOfTheTrashAreMadeForTheUserAlone) {
    WriteBytes(dir / "work/a.txt", "");
    EXPECT_TRUE(Move(dir / "work/a.txt"));
    for (const fs::path& folder : {dataHome, trash, trash / "files", trash / "info"})
        EXPECT_EQ(RightsOf(folder), 0700u) << folder;
}

TEST_F(TrashTest, AFolderMovesWithAllThatItHolds) {
    fs::create_directories(dir / "work/data/more");
    WriteBytes(dir / "work/data/more/a.txt", "a");
    EXPECT_TRUE(Move(dir / "work/data/"));
    EXPECT_FALSE(fs::exists(dir / "work/data"));
    EXPECT_EQ(ReadBytes(InTrash("data/more/a.txt")), "a");
}

TEST_F(TrashTest, EachOfSeveralFilesOfOneNameStays) {
    for (const char* contents : {"1", "2", "3"}) {
        WriteBytes(dir / "work/a.txt", contents);
        EXPECT_TRUE(Move(dir / "work/a.txt"));
    }
    EXPECT_EQ(ReadBytes(InTrash("a.txt")), "1");
    EXPECT_EQ(ReadBytes(InTrash("a.txt.2")), "2");
    EXPECT_EQ(ReadBytes(InTrash("a.txt.3")), "3");
    EXPECT_EQ(Notes(), 3u);
}

TEST_F(TrashTest, AFileWithoutANoteKeepsItsPlaceInTheTrash) {
    fs::create_directories(trash / "files");
    WriteBytes(trash / "files/a.txt", "old");
    WriteBytes(dir / "work/a.txt", "new");
    EXPECT_TRUE(Move(dir / "work/a.txt"));
    EXPECT_EQ(ReadBytes(InTrash("a.txt")), "old");
    EXPECT_EQ(ReadBytes(InTrash("a.txt.2")), "new");
    EXPECT_EQ(Notes(), 1u);
}

TEST_F(TrashTest, ALinkMovesAndNotWhatItNames) {
    WriteBytes(dir / "work/a.txt", "a");
    fs::create_symlink(dir / "work/a.txt", dir / "work/link");
    fs::create_symlink(dir / "work/gone", dir / "work/dangling");
    EXPECT_TRUE(Move(dir / "work/link"));
    EXPECT_TRUE(Move(dir / "work/dangling"));
    EXPECT_EQ(ReadBytes(dir / "work/a.txt"), "a");
    EXPECT_TRUE(fs::is_symlink(InTrash("link")));
    EXPECT_TRUE(fs::is_symlink(InTrash("dangling")));
}

TEST_F(TrashTest, ThePathInTheNoteIsThatOfTheFolderItself) {
    fs::create_directory_symlink(dir / "work", dir / "way");
    WriteBytes(dir / "work/a.txt", "");
    EXPECT_TRUE(Move(dir / "way/a.txt"));
    EXPECT_EQ(NoteOf("a.txt"), Note(fs::canonical(dir.Path()).native() + "/work/a.txt"));
}

TEST_F(TrashTest, TheBytesOfAStrangeNameAreWrittenAsNumbers) {
    const std::string name = "a b\n%\xFF\xC3\xA4";
    WriteBytes(dir / "work" / name, "a");
    EXPECT_TRUE(Move(dir / "work" / name));
    EXPECT_EQ(ReadBytes(InTrash(name)), "a");
    EXPECT_EQ(NoteOf(name), Note(fs::canonical(dir.Path()).native() + "/work/a%20b%0A%25%FF%C3%A4"));
}

TEST_F(TrashTest, TheLongestNameMovesToo) {
    const std::string name(255, 'n');
    WriteBytes(dir / "work" / name, "long");
    EXPECT_TRUE(Move(dir / "work" / name));
    EXPECT_FALSE(fs::exists(dir / "work" / name));
    EXPECT_EQ(Count(), 1u);
    EXPECT_EQ(Notes(), 1u);
}

TEST_F(TrashTest, WhatIsNoNameInAFolderDoesntMove) {
    for (const char* path : {"", "/", ".", "..", "work/.", "work/.."})
        EXPECT_FALSE(Move(path)) << path;
    EXPECT_FALSE(Move(dir / "work/.."));
    EXPECT_FALSE(Move(dir / "work/gone.txt"));
    EXPECT_FALSE(Move(dir / "gone/a.txt"));
    EXPECT_EQ(Count(), 0u);
}

TEST_F(TrashTest, TheFolderThatHoldsTheTrashStays) {
    fs::create_directories(trash);
    EXPECT_FALSE(Move(dir / "home"));
    EXPECT_TRUE(fs::exists(trash));
    EXPECT_EQ(Notes(), 0u);
}

TEST_F(TrashTest, WhereTheTrashLeadsElsewhereNothingMoves) {
    fs::create_directories(trash);
    fs::create_directory(dir / "elsewhere");
    fs::create_directory_symlink(dir / "elsewhere", trash / "files");
    WriteBytes(dir / "work/a.txt", "a");
    EXPECT_FALSE(Move(dir / "work/a.txt"));
    EXPECT_EQ(ReadBytes(dir / "work/a.txt"), "a");
}

// ---- Another volume -----------------------------------------------------------------------------------

/// Runs the test where a small disk can be mounted.
void OnOtherVolume(const std::function<void(const fs::path& disk)>& test) {
    constexpr std::int64_t kSize = std::int64_t{1} << 20;
    if (!RunOnSmallDisk(kSize, test)) GTEST_SKIP() << "this user may not mount a disk";
}

TEST_F(TrashTest, AFileOfAnotherVolumeStaysOnIt) {
    OnOtherVolume([this](const fs::path& disk) {
        fs::create_directory(disk / "deep");
        WriteBytes(disk / "deep/a.txt", "a");
        EXPECT_TRUE(Move(disk / "deep/a.txt"));
        const fs::path own = disk / (".Trash-" + std::to_string(geteuid()));
        EXPECT_EQ(ReadBytes(own / "files/a.txt"), "a");
        EXPECT_EQ(ReadBytes(own / "info/a.txt.trashinfo"), Note("deep/a.txt"));
        EXPECT_EQ(RightsOf(own), 0700u);
        EXPECT_EQ(Count(), 0u);
    });
}

TEST_F(TrashTest, TheTrashThatTheAdministratorSetUpForAllUsersIsUsed) {
    OnOtherVolume([this](const fs::path& disk) {
        mkdir((disk / ".Trash").c_str(), 0777);
        chmod((disk / ".Trash").c_str(), 01777);
        WriteBytes(disk / "a.txt", "a");
        EXPECT_TRUE(Move(disk / "a.txt"));
        const fs::path own = disk / ".Trash" / std::to_string(geteuid());
        EXPECT_EQ(ReadBytes(own / "files/a.txt"), "a");
        EXPECT_EQ(ReadBytes(own / "info/a.txt.trashinfo"), Note("a.txt"));
    });
}

TEST_F(TrashTest, ATrashFromWhichOthersCanTakeThingsIsNotUsed) {
    OnOtherVolume([this](const fs::path& disk) {
        const std::string user = std::to_string(geteuid());
        mkdir((disk / ".Trash").c_str(), 0777);
        WriteBytes(disk / "a.txt", "a");
        EXPECT_TRUE(Move(disk / "a.txt"));
        EXPECT_FALSE(fs::exists(disk / ".Trash" / user));
        EXPECT_EQ(ReadBytes(disk / (".Trash-" + user) / "files/a.txt"), "a");
    });
}

TEST_F(TrashTest, WhereTheVolumeCanHaveNoTrashTheFileStays) {
    OnOtherVolume([this](const fs::path& disk) {
        fs::create_directory_symlink(dir.Path(), disk / (".Trash-" + std::to_string(geteuid())));
        WriteBytes(disk / "a.txt", "a");
        EXPECT_FALSE(Move(disk / "a.txt"));
        EXPECT_EQ(ReadBytes(disk / "a.txt"), "a");
    });
}

TEST_F(TrashTest, OnAFullVolumeTheFileStays) {
    OnOtherVolume([this](const fs::path& disk) {
        const std::string contents(std::size_t{1} << 20, 'a');
        WriteBytes(disk / "a.txt", contents);
        const std::size_t written = ReadBytes(disk / "a.txt").size();
        EXPECT_FALSE(Move(disk / "a.txt"));
        EXPECT_EQ(ReadBytes(disk / "a.txt").size(), written);
    });
}

} // namespace
} // namespace korvane
