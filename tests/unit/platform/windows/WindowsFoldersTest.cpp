// Tests the system's folders and the recycle bin.

#include "common/text/CaseFold.h"
#include "platform/windows/RecycleStore.h"
#include "platform/windows/Win32SystemFolders.h"
#include "platform/windows/WindowsText.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace korvane {
namespace {

namespace fs = std::filesystem;

Text Environment(const wchar_t* name) {
    const wchar_t* value = _wgetenv(name);
    return value ? FromWide(value) : Text();
}

bool IsFolder(const Text& path) {
    std::error_code error;
    return fs::is_directory(ToWide(path), error);
}

TEST(Win32SystemFoldersTest, TheRegistryNamesTheProgramsAsTheEnvironmentDoes) {
    const Text programs = Win32SystemFolders().ProgramFiles();
    EXPECT_FALSE(programs.empty());
    EXPECT_EQ(ToLower(programs), ToLower(Environment(L"ProgramFiles")));
}

TEST(Win32SystemFoldersTest, KnowsTheSystemsOwn) {
    const Win32SystemFolders folders;
    EXPECT_EQ(ToLower(folders.Windows()), ToLower(Environment(L"SystemRoot")));
    EXPECT_EQ(ToLower(folders.System()), ToLower(folders.Windows()) + u"\\system32");
    EXPECT_EQ(ToLower(folders.Fonts()), ToLower(folders.Windows()) + u"\\fonts");
}

TEST(Win32SystemFoldersTest, TheDocumentsAreAFolderOfTheUser) {
    const Text documents = Win32SystemFolders().Documents();
    EXPECT_TRUE(IsFolder(documents)) << ToUtf8(documents);
}

struct RecycleStoreTest : testing::Test {
    Text At(const char* name) const { return FromWide((dir / name).wstring()); }

    TempDir dir;
};

TEST_F(RecycleStoreTest, AFileMovesThere) {
    WriteBytes(dir / "a b.tbx", "a");
    EXPECT_TRUE(MoveToRecycleStore(At("a b.tbx"), RecycleTalk::Silent));
    EXPECT_FALSE(fs::exists(dir / "a b.tbx"));
}

TEST_F(RecycleStoreTest, AFolderMovesThereWithAllThatItHolds) {
    fs::create_directories(dir / "data/more");
    WriteBytes(dir / "data/more/a.tbx", "a");
    EXPECT_TRUE(MoveToRecycleStore(At("data"), RecycleTalk::Silent));
    EXPECT_FALSE(fs::exists(dir / "data"));
    EXPECT_TRUE(fs::exists(dir.Path()));
}

TEST_F(RecycleStoreTest, WhatIsNotThereDoesNotMove) {
    EXPECT_FALSE(MoveToRecycleStore(At("gone.tbx"), RecycleTalk::Silent));
    EXPECT_FALSE(MoveToRecycleStore(u"", RecycleTalk::Silent));
}

TEST_F(RecycleStoreTest, APatternAndAListTakeNothingWithThem) {
    WriteBytes(dir / "a.tbx", "a");
    EXPECT_FALSE(MoveToRecycleStore(At("*.tbx"), RecycleTalk::Silent));
    EXPECT_FALSE(MoveToRecycleStore(At("?.tbx"), RecycleTalk::Silent));
    EXPECT_FALSE(MoveToRecycleStore(At("gone.tbx") + Text(1, u'\0') + At("a.tbx"), RecycleTalk::Silent));
    EXPECT_TRUE(fs::exists(dir / "a.tbx"));
}

} // namespace
} // namespace korvane
