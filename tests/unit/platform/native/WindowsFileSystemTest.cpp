// Tests what only Windows has: drives, and file names of 16-bit code units that ignore the case.

#include "support/WholeFilesContract.h"
#include "unit/platform/native/NativeFiles.h"

namespace korvane {
namespace {

namespace fs = std::filesystem;

/// The links that those tests make are of other systems.
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(LinksContract);

TEST_F(NativeFiles, PathsAreInTheStyleOfWindows) {
    EXPECT_EQ(files.Style(), PathStyle::Windows);
}

TEST_F(NativeFiles, NamesAreTakenWhateverTheCodePage) {
    ASSERT_TRUE(files.OpenRaw(At("") + u"K\u00E4se \u4E2D\U0001F9C0.tbx"));
    EXPECT_TRUE(fs::exists(dir / u"K\u00E4se \u4E2D\U0001F9C0.tbx"));
}

TEST_F(NativeFiles, CaseDoesNotCountInNames) {
    WriteBytes(dir / "a.tbx", "a");
    EXPECT_TRUE(files.FileExists(At("A.TBX")));
}

TEST_F(NativeFiles, AFullPathBeginsWithItsDrive) {
    EXPECT_EQ(files.FullPath(u"C:\\Data\\.\\b\\..\\a.tbx"), u"C:\\Data\\a.tbx");
    EXPECT_EQ(files.FullPath(u"C:/Data/a.tbx"), u"C:\\Data\\a.tbx");
    EXPECT_EQ(files.FullPath(u"C:\\..\\a.tbx"), u"C:\\a.tbx");
    EXPECT_EQ(files.FullPath(u""), u"");
}

TEST_F(NativeFiles, AFolderIsNoFile) {
    EXPECT_FALSE(files.ReadAll(FromNativePath(dir.Path())));
    EXPECT_EQ(files.LastErrorText(), u"Permission denied");
    EXPECT_FALSE(files.OpenRaw(FromNativePath(dir.Path())));
    EXPECT_EQ(files.LastErrorText(), u"Permission denied");
}

// Volumes.

TEST_F(NativeFiles, ADriveHoldsBytes) {
    const auto volume = files.Volume(u"C:\\");
    ASSERT_TRUE(volume);
    EXPECT_EQ(volume->type, DriveType::Fixed);
    EXPECT_TRUE(volume->ready);
    EXPECT_EQ(volume->totalBytes, static_cast<std::int64_t>(fs::space("C:\\").capacity));
    EXPECT_GE(volume->totalBytes, volume->freeBytes);
}

TEST_F(NativeFiles, AFileThatIsNotThereStandsOnItsDriveAllTheSame) {
    EXPECT_EQ(files.Volume(u"C:\\no\\such\\file")->totalBytes, files.Volume(u"C:\\")->totalBytes);
}

TEST_F(NativeFiles, ADriveThatIsNotThereIsNone) {
    EXPECT_FALSE(files.Volume(u"Q:\\"));
    EXPECT_FALSE(files.Volume(u"Q:\\Data\\a.tbx"));
}

} // namespace
} // namespace korvane
