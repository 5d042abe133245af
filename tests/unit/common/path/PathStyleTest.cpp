#include "common/path/PathStyle.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

constexpr PathStyle kWindows = PathStyle::Windows;
constexpr PathStyle kPosix = PathStyle::Posix;

Text WithBackslash(const PathStyle& style, Text path) {
    style.AddBackslash(path);
    return path;
}

TEST(PathStyle, TheTwoStylesDiffer) {
    EXPECT_EQ(kWindows.Separator(), u'\\');
    EXPECT_EQ(kPosix.Separator(), u'/');
    EXPECT_TRUE(kWindows.HasDrives());
    EXPECT_FALSE(kPosix.HasDrives());
    EXPECT_TRUE(kWindows.IgnoresCase());
    EXPECT_FALSE(kPosix.IgnoresCase());
    EXPECT_NE(kWindows, kPosix);
    EXPECT_EQ(kWindows, PathStyle::Windows);
}

TEST(PathStyle, FolderPartEndsBeforeTheLastSeparator) {
    EXPECT_EQ(kWindows.FolderPart(u"C:\\Data\\x.tbx"), u"C:\\Data");
    EXPECT_EQ(kWindows.FolderPart(u"C:\\x.tbx"), u"C:");
    EXPECT_EQ(kWindows.FolderPart(u"C:\\Data\\"), u"C:\\Data");
    EXPECT_EQ(kWindows.FolderPart(u"\\x.tbx"), u"");
    EXPECT_EQ(kWindows.FolderPart(u"x.tbx"), u"");
    EXPECT_EQ(kWindows.FolderPart(u"C:/Data/x.tbx"), u"");
    EXPECT_EQ(kPosix.FolderPart(u"/home/a/x.tbx"), u"/home/a");
    EXPECT_EQ(kPosix.FolderPart(u"/home/a\\b"), u"/home");
    EXPECT_EQ(kPosix.FolderPart(u"x.tbx"), u"");
    EXPECT_EQ(kPosix.FolderPart(u""), u"");
}

TEST(PathStyle, FolderPartUnderThePosixRootIsTheRoot) {
    EXPECT_EQ(kPosix.FolderPart(u"/x.tbx"), u"/");
    EXPECT_EQ(kPosix.FolderPart(u"/"), u"/");
}

TEST(PathStyle, NamePartBeginsAfterTheLastSeparator) {
    EXPECT_EQ(kWindows.NamePart(u"C:\\Data\\x.tbx"), u"x.tbx");
    EXPECT_EQ(kWindows.NamePart(u"C:\\Data\\"), u"");
    EXPECT_EQ(kWindows.NamePart(u"x.tbx"), u"x.tbx");
    EXPECT_EQ(kPosix.NamePart(u"/x.tbx"), u"x.tbx");
    EXPECT_EQ(kPosix.NamePart(u"/a\\b"), u"a\\b");
    EXPECT_EQ(kPosix.NamePart(u""), u"");
}

TEST(PathStyle, JoinPathPutsOneSeparatorBetween) {
    EXPECT_EQ(kWindows.JoinPath(u"C:\\Data", u"x"), u"C:\\Data\\x");
    EXPECT_EQ(kWindows.JoinPath(u"C:\\Data\\", u"x"), u"C:\\Data\\x");
    EXPECT_EQ(kPosix.JoinPath(u"/home", u"x"), u"/home/x");
    EXPECT_EQ(kPosix.JoinPath(u"/home/", u"x"), u"/home/x");
    EXPECT_EQ(kPosix.JoinPath(u"/", u"x"), u"/x");
    EXPECT_EQ(kPosix.JoinPath(u"", u"x"), u"x");
}

TEST(PathStyle, JoinPathOnWindowsLooksOnlyAtTheLengthOfAShortFolder) {
    EXPECT_EQ(kWindows.JoinPath(u"C:\\", u"x"), u"C:\\x");
    EXPECT_EQ(kWindows.JoinPath(u"C:", u"x"), u"C:x");
    EXPECT_EQ(kWindows.JoinPath(u"abc", u"x"), u"abcx");
    EXPECT_EQ(kWindows.JoinPath(u"", u"x"), u"x");
    EXPECT_EQ(kWindows.JoinPath(u"abcd", u"x"), u"abcd\\x");
}

TEST(PathStyle, JoinPathOnPosixNeverLooksAtTheLength) {
    EXPECT_EQ(kPosix.JoinPath(u"/a", u"x"), u"/a/x");
    EXPECT_EQ(kPosix.JoinPath(u"a", u"x"), u"a/x");
}

TEST(PathStyle, AddBackslashEndsThePathOnce) {
    EXPECT_EQ(WithBackslash(kWindows, u"C:\\Data"), u"C:\\Data\\");
    EXPECT_EQ(WithBackslash(kWindows, u"C:\\Data\\"), u"C:\\Data\\");
    EXPECT_EQ(WithBackslash(kWindows, u"C:/Data/"), u"C:/Data/");
    EXPECT_EQ(WithBackslash(kWindows, u""), u"\\");
    EXPECT_EQ(WithBackslash(kPosix, u"/home"), u"/home/");
    EXPECT_EQ(WithBackslash(kPosix, u"/home/"), u"/home/");
    EXPECT_EQ(WithBackslash(kPosix, u"/home\\"), u"/home\\/");
}

TEST(PathStyle, AddBackslashTakesTrailingBlanksOnlyFromAPathWithoutOne) {
    EXPECT_EQ(WithBackslash(kWindows, u" C:\\Data  "), u" C:\\Data\\");
    EXPECT_EQ(WithBackslash(kWindows, u" C:\\Data\\  "), u" C:\\Data\\  ");
    EXPECT_EQ(WithBackslash(kWindows, u"  "), u"\\");
}

TEST(PathStyle, IsRootGoesByLengthOnWindowsAndIsTheSlashOnPosix) {
    EXPECT_TRUE(kWindows.IsRoot(u"C:\\"));
    EXPECT_FALSE(kWindows.IsRoot(u"C:"));
    EXPECT_FALSE(kWindows.IsRoot(u"C:\\a"));
    EXPECT_TRUE(kPosix.IsRoot(u"/"));
    EXPECT_FALSE(kPosix.IsRoot(u"/ab"));
    EXPECT_FALSE(kPosix.IsRoot(u""));
}

TEST(PathStyle, IsAbsoluteWhenThePathStartsFromARoot) {
    EXPECT_TRUE(kWindows.IsAbsolute(u"C:\\Data"));
    EXPECT_TRUE(kWindows.IsAbsolute(u"z:\\"));
    EXPECT_TRUE(kWindows.IsAbsolute(u"\\\\server\\share"));
    EXPECT_FALSE(kWindows.IsAbsolute(u"C:Data"));
    EXPECT_FALSE(kWindows.IsAbsolute(u"\\Data"));
    EXPECT_FALSE(kWindows.IsAbsolute(u"1:\\Data"));
    EXPECT_FALSE(kWindows.IsAbsolute(u"Ä:\\Data"));
    EXPECT_FALSE(kWindows.IsAbsolute(u"/home"));
    EXPECT_FALSE(kWindows.IsAbsolute(u""));
    EXPECT_TRUE(kPosix.IsAbsolute(u"/home"));
    EXPECT_FALSE(kPosix.IsAbsolute(u"home/a"));
    EXPECT_FALSE(kPosix.IsAbsolute(u"C:\\Data"));
    EXPECT_FALSE(kPosix.IsAbsolute(u""));
}

TEST(PathStyle, IsFullPathWhenItHoldsASeparatorAnywhere) {
    EXPECT_TRUE(kWindows.IsFullPath(u"a\\b"));
    EXPECT_FALSE(kWindows.IsFullPath(u"a/b"));
    EXPECT_FALSE(kWindows.IsFullPath(u"C:b"));
    EXPECT_TRUE(kPosix.IsFullPath(u"a/b"));
    EXPECT_FALSE(kPosix.IsFullPath(u"a\\b"));
}

TEST(PathStyle, DirectoryForChangeCompletesADriveOnWindows) {
    EXPECT_EQ(kWindows.DirectoryForChange(u"C:"), u"C:\\");
    EXPECT_EQ(kWindows.DirectoryForChange(u"C:\\"), u"C:\\");
    EXPECT_EQ(kWindows.DirectoryForChange(u"C:\\Data"), u"C:\\Data");
    EXPECT_EQ(kWindows.DirectoryForChange(u""), u"");
    EXPECT_EQ(kPosix.DirectoryForChange(u"/"), u"/");
    EXPECT_EQ(kPosix.DirectoryForChange(u"/a"), u"/a");
    EXPECT_EQ(kPosix.DirectoryForChange(u""), u"");
}

TEST(PathStyle, NamesAreTheSameAsTheFileSystemHoldsThemToBe) {
    EXPECT_TRUE(kWindows.SameName(u"Äpfel.TBX", u"äPFEL.tbx"));
    EXPECT_FALSE(kWindows.SameName(u"Apfel.tbx", u"Äpfel.tbx"));
    EXPECT_TRUE(kPosix.SameName(u"a.tbx", u"a.tbx"));
    EXPECT_FALSE(kPosix.SameName(u"A.tbx", u"a.tbx"));
    EXPECT_EQ(kWindows.FoldedName(u"Äpfel.tbx"), kWindows.FoldedName(u"äPFEL.TBX"));
    EXPECT_EQ(kPosix.FoldedName(u"Äpfel.tbx"), u"Äpfel.tbx");
}

TEST(PathStyle, ExtensionUpperIsTheLastPointOfTheNameAndWhatFollows) {
    EXPECT_EQ(ExtensionUpper(u"C:\\Data\\x.Tbx"), u".TBX");
    EXPECT_EQ(ExtensionUpper(u"/home/x.tar.gz"), u".GZ");
    EXPECT_EQ(ExtensionUpper(u"x."), u".");
    EXPECT_EQ(ExtensionUpper(u".profile"), u".PROFILE");
    EXPECT_EQ(ExtensionUpper(u"/home/a.b/x"), u"");
    EXPECT_EQ(ExtensionUpper(u"C:\\a.b\\x"), u"");
    EXPECT_EQ(ExtensionUpper(u"x"), u"");
    EXPECT_EQ(ExtensionUpper(u""), u"");
}

TEST(PathStyle, HasExtensionComparesTheEndWithoutCase) {
    EXPECT_TRUE(HasExtension(u"C:\\Data\\x.tbx", u".TBX"));
    EXPECT_TRUE(HasExtension(u"/home/x.TBX", u".tbx"));
    EXPECT_TRUE(HasExtension(u".tbx", u".TBX"));
    EXPECT_TRUE(HasExtension(u"holdtbx", u"TBX"));
    EXPECT_FALSE(HasExtension(u"x.tbx ", u".TBX"));
    EXPECT_FALSE(HasExtension(u"tbx", u".TBX"));
    EXPECT_FALSE(HasExtension(u"x.tbx.txt", u".TBX"));
}

} // namespace
} // namespace korvane
