#include "common/path/DriveForms.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <set>
#include <vector>

namespace korvane {
namespace {

constexpr PathStyle kWindows = PathStyle::Windows;
constexpr PathStyle kPosix = PathStyle::Posix;

/// A disk with just these files.
PathQuestion Only(std::initializer_list<Text> files) {
    return [files = std::set<Text>(files)](TextView path) { return files.contains(Text(path)); };
}

const PathQuestion kNothing = Only({});

Text MapOnWindows(TextView path, const PathQuestion& fileExists = kNothing) {
    return MapDrivePath(kWindows, path, fileExists);
}

Text SwapOnWindows(TextView path, const PathQuestion& fileExists) {
    return SwapDriveForm(kWindows, path, fileExists);
}

TEST(MapDrivePath, ReturnsAPathThatExists) {
    EXPECT_EQ(MapOnWindows(u"C:\\Drive_G\\a.exe", Only({u"C:\\Drive_G\\a.exe", u"G:\\a.exe"})),
              u"C:\\Drive_G\\a.exe");
    EXPECT_EQ(MapOnWindows(u"x.txt", Only({u"x.txt"})), u"x.txt");
}

TEST(MapDrivePath, ReturnsAnEmptyPathUnasked) {
    const PathQuestion neverAsked = [](TextView) {
        ADD_FAILURE() << "asked";
        return true;
    };
    EXPECT_EQ(MapOnWindows(u"", neverAsked), u"");
}

TEST(MapDrivePath, TurnsTheMirrorIntoTheDrive) {
    EXPECT_EQ(MapOnWindows(u"C:\\Drive_G\\Data\\x", Only({u"G:\\Data\\x"})), u"G:\\Data\\x");
}

// Kept for compatibility: drive-form-not-tested.
TEST(MapDrivePath, DoesNotTestTheOtherForm) {
    EXPECT_EQ(MapOnWindows(u"C:\\Drive_G\\a.exe"), u"G:\\a.exe");
    EXPECT_EQ(MapOnWindows(u"Q:\\x"), u"C:\\Drive_Q\\x");
}

// Kept for compatibility: drive-form-not-tested.
TEST(MapDrivePath, SearchesNoOtherDrive) {
    EXPECT_EQ(MapOnWindows(u"C:\\Drive_G\\a.exe", Only({u"D:\\Drive_G\\a.exe", u"E:\\a.exe"})), u"G:\\a.exe");
    EXPECT_EQ(MapOnWindows(u"Q:\\x", Only({u"D:\\Drive_Q\\x"})), u"C:\\Drive_Q\\x");
}

// Kept for compatibility: drive-mirror-of-bare-name.
TEST(MapDrivePath, PutsANameWithoutADriveWhollyIntoTheMirror) {
    EXPECT_EQ(MapOnWindows(u"x.txt"), u"C:\\Drive_x.txt");
    EXPECT_EQ(MapOnWindows(u"x"), u"C:\\Drive_x");
    EXPECT_EQ(MapOnWindows(u"sub\\x.txt"), u"C:\\Drive_sub\\x.txt");
}

TEST(MapDrivePath, TakesADriveAlone) {
    EXPECT_EQ(MapOnWindows(u"D:"), u"C:\\Drive_D");
    EXPECT_EQ(MapOnWindows(u"D:x.txt"), u"C:\\Drive_Dx.txt");
}

TEST(MapDrivePath, KnowsTheMarkerInAnyCase) {
    EXPECT_EQ(MapOnWindows(u"c:\\dRIVE_g\\a.exe"), u"g:\\a.exe");
}

TEST(MapDrivePath, ReadsTheLetterByPlaceWhereverTheMarkerIs) {
    EXPECT_EQ(MapOnWindows(u"ab:\\Drive_G\\x"), u"_:G\\x");
    EXPECT_EQ(MapOnWindows(u"C:\\Drive_"), u":");
}

TEST(MapDrivePath, WithoutTheColonInTheMarkerIsNoMirror) {
    EXPECT_EQ(MapOnWindows(u"C:\\Data\\Drive_G\\x"), u"C:\\Drive_C\\Data\\Drive_G\\x");
}

TEST(MapDrivePath, OnPosixLeavesAPathWithoutAWindowsForm) {
    for (const TextView path : {u"/home/x", u"x.txt", u"a/b", u"/a:b", u"", u"/Drive_G/x"})
        EXPECT_EQ(MapDrivePath(kPosix, path, kNothing), path);
}

TEST(MapDrivePath, OnPosixExchangesAWindowsFormOnce) {
    EXPECT_EQ(MapDrivePath(kPosix, u"C:\\Drive_G\\a.exe", kNothing), u"G:\\a.exe");
    EXPECT_EQ(MapDrivePath(kPosix, u"G:\\a.exe", kNothing), u"C:\\Drive_G\\a.exe");
}

TEST(OtherFolderForm, ExchangesTheForms) {
    EXPECT_EQ(OtherFolderForm(kWindows, u"C:\\Drive_G\\Data"), u"G:\\Data");
    EXPECT_EQ(OtherFolderForm(kWindows, u"X:\\drive_g"), u"g:");
    EXPECT_EQ(OtherFolderForm(kWindows, u"G:\\Data"), u"C:\\Drive_G\\Data");
}

TEST(OtherFolderForm, WantsTheMarkerAtTheFourthCharacter) {
    EXPECT_EQ(OtherFolderForm(kWindows, u"ab:\\Drive_G\\x"), u"ab:\\Drive_G\\x");
    EXPECT_EQ(OtherFolderForm(kWindows, u"\\\\aDrive_G\\x"), u"G:\\x");
    EXPECT_EQ(OtherFolderForm(kWindows, u"C:\\aDrive_G\\x"), u"C:\\Drive_C\\aDrive_G\\x");
}

TEST(OtherFolderForm, LeavesAFolderWithoutADrive) {
    EXPECT_EQ(OtherFolderForm(kWindows, u"Data"), u"Data");
    EXPECT_EQ(OtherFolderForm(kWindows, u"C:"), u"C:");
}

TEST(OtherFolderForm, OnPosixLeavesAFolderWithoutAWindowsForm) {
    EXPECT_EQ(OtherFolderForm(kPosix, u"/a/Drive_G/x"), u"/a/Drive_G/x");
    EXPECT_EQ(OtherFolderForm(kPosix, u"a/bDrive_G/x"), u"a/bDrive_G/x");
    EXPECT_EQ(OtherFolderForm(kPosix, u"G:\\Data"), u"C:\\Drive_G\\Data");
}

TEST(SwapDriveForm, ReturnsANameWithoutAFolder) {
    EXPECT_EQ(SwapOnWindows(u"x.tbx", Only({u"C:\\Drive_xtbx"})), u"x.tbx");
}

TEST(SwapDriveForm, TurnsTheMirrorIntoTheDriveThatHoldsTheFile) {
    EXPECT_EQ(SwapOnWindows(u"C:\\Drive_G\\x.tbx", Only({u"G:\\x.tbx"})), u"G:\\x.tbx");
    EXPECT_EQ(SwapOnWindows(u"C:\\DRIVE_G\\x.tbx", Only({u"G:\\x.tbx"})), u"G:\\x.tbx");
}

TEST(SwapDriveForm, ReturnsThePathWhenTheOtherFormIsNotThere) {
    EXPECT_EQ(SwapOnWindows(u"C:\\Drive_G\\x.tbx", kNothing), u"C:\\Drive_G\\x.tbx");
    EXPECT_EQ(SwapOnWindows(u"D:\\x.tbx", kNothing), u"D:\\x.tbx");
}

TEST(SwapDriveForm, FindsTheMirrorOnTheFirstDriveFromC) {
    EXPECT_EQ(SwapOnWindows(u"D:\\x.tbx", Only({u"E:\\Drive_D\\x.tbx", u"C:\\Drive_D\\x.tbx"})),
              u"C:\\Drive_D\\x.tbx");
    EXPECT_EQ(SwapOnWindows(u"D:\\x.tbx", Only({u"E:\\Drive_D\\x.tbx"})), u"E:\\Drive_D\\x.tbx");
    EXPECT_EQ(SwapOnWindows(u"D:\\x.tbx", Only({u"Z:\\Drive_D\\x.tbx"})), u"Z:\\Drive_D\\x.tbx");
    EXPECT_EQ(SwapOnWindows(u"D:\\x.tbx", Only({u"B:\\Drive_D\\x.tbx"})), u"D:\\x.tbx");
}

TEST(SwapDriveForm, TakesAnyDriveNameForTheMirror) {
    EXPECT_EQ(
        SwapOnWindows(u"D:\\My Drive_\\x.tbx", Only({u"v:e_\\x.tbx", u"C:\\Drive_D\\My Drive_\\x.tbx"})),
        u"v:e_\\x.tbx");
}

TEST(SwapDriveForm, OnPosixLeavesAPathWithoutAWindowsForm) {
    EXPECT_EQ(SwapDriveForm(kPosix, u"/home/x.tbx", Only({u"C:\\Drive_/ome/x.tbx"})), u"/home/x.tbx");
    EXPECT_EQ(SwapDriveForm(kPosix, u"a/Drive_G\\x.tbx", Only({u"\\:x.tbx"})), u"a/Drive_G\\x.tbx");
}

TEST(SwapDriveForm, OnPosixGivesUpAWindowsFormThatIsNotThere) {
    EXPECT_EQ(SwapDriveForm(kPosix, u"D:\\x.tbx", kNothing), u"D:\\x.tbx");
    EXPECT_EQ(SwapDriveForm(kPosix, u"C:\\Drive_G\\x.tbx", kNothing), u"C:\\Drive_G\\x.tbx");
}

TEST(FirstDriveWithPath, TriesTheLettersFromCToZInOrder) {
    std::vector<Text> asked;
    const auto ask = [&asked](TextView path) {
        asked.emplace_back(path);
        return path == u"F:\\x";
    };
    EXPECT_EQ(FirstDriveWithPath(u":\\x", ask), u"F:\\x");
    EXPECT_EQ(asked, (std::vector<Text>{u"C:\\x", u"D:\\x", u"E:\\x", u"F:\\x"}));
}

TEST(FirstDriveWithPath, ReturnsTheLastTriedWhenNoneIsThere) {
    EXPECT_EQ(FirstDriveWithPath(u":\\x", kNothing), u"Z:\\x");
}

TEST(HasWindowsForm, WantsADriveRootOrTheMirrorsMark) {
    EXPECT_TRUE(HasWindowsForm(u"C:\\x"));
    EXPECT_TRUE(HasWindowsForm(u"ab:\\drive_g"));
    EXPECT_FALSE(HasWindowsForm(u"C:x"));
    EXPECT_FALSE(HasWindowsForm(u"/C:\\x"));
    EXPECT_FALSE(HasWindowsForm(u""));
}

TEST(OtherProgramForm, TurnsTheMirrorIntoTheDriveUntested) {
    EXPECT_EQ(OtherProgramForm(kWindows, u"C:\\Drive_G\\Tools\\a.exe", kNothing), u"G:\\Tools\\a.exe");
}

// Kept for compatibility: mirrors-of-own-drive.
TEST(OtherProgramForm, LooksForTheMirrorsOnThePathsOwnDrive) {
    const Text mirror = u"D:\\Drive_K\\Tools\\a.exe";
    EXPECT_EQ(OtherProgramForm(kWindows, u"D:\\Tools\\a.exe", Only({mirror, u"D:\\Drive_L\\Tools\\a.exe"})),
              mirror);
}

TEST(OtherProgramForm, TriesTheLettersFromCToZAndReturnsTheLast) {
    std::vector<Text> asked;
    const PathQuestion note = [&asked](TextView path) {
        asked.emplace_back(path);
        return false;
    };
    EXPECT_EQ(OtherProgramForm(kWindows, u"D:\\a.exe", note), u"D:\\Drive_Z\\a.exe");
    EXPECT_EQ(asked.front(), u"D:\\Drive_C\\a.exe");
    EXPECT_EQ(asked.size(), 23U);
}

TEST(OtherProgramForm, OnPosixLeavesAPathWithoutAWindowsForm) {
    EXPECT_EQ(OtherProgramForm(kPosix, u"/mnt/Drive_x/a", kNothing), u"/mnt/Drive_x/a");
    EXPECT_EQ(OtherProgramForm(kPosix, u"", kNothing), u"");
}

TEST(Check3264Dirs, MovesAPathToTheOtherFolderOfPrograms) {
    EXPECT_EQ(Check3264Dirs(u"C:\\Program Files\\A\\a.exe", u"C:\\Program Files\\"),
              u"C:\\Program Files (x86)\\A\\a.exe");
    EXPECT_EQ(Check3264Dirs(u"C:\\Program Files (x86)\\A\\a.exe", u"C:\\Program Files (x86)\\"),
              u"C:\\Program Files\\A\\a.exe");
}

// Kept for compatibility: program-folder-of-system.
TEST(Check3264Dirs, AsksForTheSystemsFolderAndNotForThePathsOnPurpose) {
    EXPECT_EQ(Check3264Dirs(u"C:\\Program Files (x86)\\A\\a.exe", u"C:\\Program Files\\"),
              u"C:\\Program Files (x86)\\A\\a.exe");
    EXPECT_EQ(Check3264Dirs(u"D:\\Tools\\A\\0123456789\\abc.exe", u"C:\\Program Files (x86)\\"),
              u"C:\\Program Files\\bc.exe");
    EXPECT_EQ(Check3264Dirs(u"D:\\a.exe", u"C:\\Program Files (x86)\\"), u"C:\\Program Files\\");
}

TEST(Check3264Dirs, LeavesAnyOtherPath) {
    EXPECT_EQ(Check3264Dirs(u"/usr/bin/a", u""), u"/usr/bin/a");
    EXPECT_EQ(Check3264Dirs(u"D:\\a.exe", u"C:\\"), u"D:\\a.exe");
}

} // namespace
} // namespace korvane
