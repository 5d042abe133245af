#include "files/lists/FindListedProgram.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <set>

namespace korvane {
namespace {

PathQuestion Only(std::initializer_list<Text> files) {
    return [files = std::set<Text>(files)](TextView path) { return files.contains(Text(path)); };
}

/// Where a program of the folder is found on Windows when just these files stand on the disk.
std::optional<Text> Find(const Text& folder, std::initializer_list<Text> files,
                         TextView programFilesDir = u"C:\\Program Files\\") {
    return FindListedProgram(PathStyle::Windows, {u"a.exe", folder}, programFilesDir, Only(files));
}

TEST(FindListedProgram, InItsFolder) {
    EXPECT_EQ(Find(u"C:\\Tools\\", {u"C:\\Tools\\a.exe"}), u"C:\\Tools\\a.exe");
}

TEST(FindListedProgram, InAFolderThatStandsWithoutItsSeparator) {
    EXPECT_EQ(Find(u"C:\\Tools", {u"C:\\Tools\\a.exe"}), u"C:\\Tools\\a.exe");
}

TEST(FindListedProgram, InTheOtherFolderOfPrograms) {
    EXPECT_EQ(Find(u"C:\\Program Files\\A\\", {u"C:\\Program Files (x86)\\A\\a.exe"}),
              u"C:\\Program Files (x86)\\A\\a.exe");
    EXPECT_EQ(
        Find(u"C:\\Program Files (x86)\\A\\", {u"C:\\Program Files\\A\\a.exe"}, u"C:\\Program Files (x86)\\"),
        u"C:\\Program Files\\A\\a.exe");
}

TEST(FindListedProgram, NotInTheUsualFolderWhereTheSystemsFolderIsThatOne) {
    EXPECT_EQ(Find(u"C:\\Program Files (x86)\\A\\", {u"C:\\Program Files\\A\\a.exe"}), std::nullopt);
}

TEST(FindListedProgram, OnTheDriveOfAMirror) {
    EXPECT_EQ(Find(u"C:\\Drive_G\\Tools", {u"G:\\Tools\\a.exe"}), u"G:\\Tools\\a.exe");
}

// Kept for compatibility: mirrors-of-own-drive.
TEST(FindListedProgram, InTheMirrorsOnItsOwnDrive) {
    EXPECT_EQ(Find(u"D:\\Tools", {u"D:\\Drive_K\\Tools\\a.exe"}), u"D:\\Drive_K\\Tools\\a.exe");
    EXPECT_EQ(Find(u"D:\\Tools", {u"C:\\Drive_D\\Tools\\a.exe"}), std::nullopt);
}

TEST(FindListedProgram, Nowhere) {
    EXPECT_EQ(Find(u"C:\\Tools\\", {}), std::nullopt);
    EXPECT_EQ(Find(u"", {}), std::nullopt);
    EXPECT_EQ(Find(u"---", {}), std::nullopt);
}

TEST(FindListedProgram, OnPosixOnlyInItsFolder) {
    const auto find = [](const Text& folder) {
        return FindListedProgram(PathStyle::Posix, {u"a", folder}, u"", Only({u"/usr/bin/a", u"a"}));
    };
    EXPECT_EQ(find(u"/usr/bin/"), u"/usr/bin/a");
    EXPECT_EQ(find(u"/usr/bin"), u"/usr/bin/a");
    EXPECT_EQ(find(u"/mnt/Drive_G/"), std::nullopt);
    EXPECT_EQ(find(u""), u"a");
}

// Kept for compatibility: lost-program-two-separators.
TEST(SeparatedPathOf, HasASeparatorWhereverOneStandsAlready) {
    EXPECT_EQ(SeparatedPathOf(PathStyle::Windows, {u"a.exe", u"C:\\Tools"}), u"C:\\Tools\\a.exe");
    EXPECT_EQ(SeparatedPathOf(PathStyle::Windows, {u"a.exe", u"C:\\Tools\\"}), u"C:\\Tools\\\\a.exe");
    EXPECT_EQ(SeparatedPathOf(PathStyle::Posix, {u"a", u"/usr/bin/"}), u"/usr/bin/a");
}

} // namespace
} // namespace korvane
