#include "context/StoredPaths.h"

#include "context/exchange/ListerRequest.h"
#include "support/TestApp.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const ShellCall kBeep{ShellCall::Kind::Beep, {}};

Message CannotLocateDirectory(const Text& folder) {
    return {u"Cannot locate this directory:\r\n\r\n" + folder, MessageIcon::Stop, MessageButtons::Ok, 1};
}

class StoredPathsOnWindows : public testing::Test {
protected:
    StoredPathsOnWindows() {
        t.files.AddDrive(u'D');
        t.files.AddDrive(u'E');
        t.files.AddDrive(u'G');
    }

    TestApp t;
};

class StoredPathsOnPosix : public testing::Test {
protected:
    TestApp t{PathStyle::Posix};
};

TEST_F(StoredPathsOnWindows, AMirrorPathThatExistsStays) {
    t.files.AddFile(u"C:\\Drive_G\\Data\\x");
    t.files.AddFile(u"G:\\Data\\x");
    EXPECT_EQ(MapDrivePath(t.files, u"C:\\Drive_G\\Data\\x"), u"C:\\Drive_G\\Data\\x");
}

TEST_F(StoredPathsOnWindows, ALostPathIsExchangedUntested) {
    EXPECT_EQ(MapDrivePath(t.files, u"C:\\Drive_G\\a.exe"), u"G:\\a.exe");
    EXPECT_EQ(MapDrivePath(t.files, u"Q:\\x"), u"C:\\Drive_Q\\x");
    EXPECT_EQ(MapDrivePath(t.files, u"x.txt"), u"C:\\Drive_x.txt");
}

TEST_F(StoredPathsOnWindows, AFolderOfThatNameIsNoFile) {
    t.files.AddDir(u"G:\\Data");
    EXPECT_EQ(MapDrivePath(t.files, u"G:\\Data"), u"C:\\Drive_G\\Data");
}

TEST_F(StoredPathsOnWindows, ARecentFileIsFoundOnTheFirstDriveWithItsMirror) {
    t.files.AddFile(u"E:\\Drive_D\\x.tbx");
    EXPECT_EQ(SwapDriveForm(t.files, u"D:\\x.tbx"), u"E:\\Drive_D\\x.tbx");
    t.files.AddFile(u"C:\\Drive_D\\x.tbx");
    EXPECT_EQ(SwapDriveForm(t.files, u"D:\\x.tbx"), u"C:\\Drive_D\\x.tbx");
    EXPECT_EQ(SwapDriveForm(t.files, u"D:\\lost.tbx"), u"D:\\lost.tbx");
}

TEST_F(StoredPathsOnWindows, AFolderThatIsThereBecomesTheHint) {
    t.files.AddDir(u"D:\\Data");
    EXPECT_EQ(MapFolderPath(t.app, u"D:\\Data"), u"D:\\Data");
    EXPECT_EQ(t.app.Exchange<ListerRequest>().CurrentFolderHint, u"D:\\Data");
    EXPECT_THAT(t.shell.Calls(), IsEmpty());
}

TEST_F(StoredPathsOnWindows, ALostFolderIsTakenInItsOtherForm) {
    t.files.AddDir(u"G:\\Data");
    EXPECT_EQ(MapFolderPath(t.app, u"C:\\drive_G\\Data"), u"G:\\Data");
    EXPECT_EQ(t.app.Exchange<ListerRequest>().CurrentFolderHint, u"G:\\Data");
    t.files.AddDir(u"C:\\Drive_D\\Music");
    EXPECT_EQ(MapFolderPath(t.app, u"D:\\Music"), u"C:\\Drive_D\\Music");
    EXPECT_EQ(t.app.Exchange<ListerRequest>().CurrentFolderHint, u"C:\\Drive_D\\Music");
}

TEST_F(StoredPathsOnWindows, AFolderLostInBothFormsIsToldInTheFormLastTried) {
    t.app.Exchange<ListerRequest>().CurrentFolderHint = u"C:\\";
    t.user.Answer(CannotLocateDirectory(u"G:\\Lost"), Answer::Ok);
    EXPECT_EQ(MapFolderPath(t.app, u"C:\\Drive_G\\Lost"), u"G:\\Lost");
    EXPECT_EQ(t.app.Exchange<ListerRequest>().CurrentFolderHint, u"C:\\");
    EXPECT_THAT(t.shell.Calls(), ElementsAre(kBeep));
}

TEST_F(StoredPathsOnWindows, AFileOfThatNameIsNoFolder) {
    t.files.AddFile(u"D:\\x");
    t.user.Answer(CannotLocateDirectory(u"C:\\Drive_D\\x"), Answer::Ok);
    MapFolderPath(t.app, u"D:\\x");
    EXPECT_EQ(t.app.Exchange<ListerRequest>().CurrentFolderHint, u"");
}

TEST_F(StoredPathsOnWindows, AHyphenOrABlankIsNoFolderAndDoesNothing) {
    t.app.Exchange<ListerRequest>().CurrentFolderHint = u"C:\\";
    for (const TextView path : {u"-", u"-x", u"", u"   "})
        EXPECT_EQ(MapFolderPath(t.app, path), path);
    EXPECT_EQ(t.app.Exchange<ListerRequest>().CurrentFolderHint, u"C:\\");
    EXPECT_THAT(t.shell.Calls(), IsEmpty());
}

TEST_F(StoredPathsOnPosix, APathWithoutAWindowsFormHasNoOther) {
    EXPECT_EQ(MapDrivePath(t.files, u"/home/x"), u"/home/x");
    EXPECT_EQ(SwapDriveForm(t.files, u"/home/x"), u"/home/x");
    EXPECT_EQ(MapDrivePath(t.files, u"x.txt"), u"x.txt");
}

TEST_F(StoredPathsOnPosix, AWindowsPathIsGivenUp) {
    EXPECT_EQ(SwapDriveForm(t.files, u"D:\\x.tbx"), u"D:\\x.tbx");
    EXPECT_FALSE(t.files.FileExists(MapDrivePath(t.files, u"C:\\Drive_G\\a.exe")));
}

TEST_F(StoredPathsOnPosix, AFolderThatIsThereBecomesTheHint) {
    t.files.AddDir(u"/home/ann/Drive_x");
    EXPECT_EQ(MapFolderPath(t.app, u"/home/ann/Drive_x"), u"/home/ann/Drive_x");
    EXPECT_EQ(t.app.Exchange<ListerRequest>().CurrentFolderHint, u"/home/ann/Drive_x");
}

TEST_F(StoredPathsOnPosix, ALostFolderIsToldAsItIsWritten) {
    t.user.Answer(CannotLocateDirectory(u"/a/Drive_G/lost"), Answer::Ok);
    MapFolderPath(t.app, u"/a/Drive_G/lost");
    EXPECT_EQ(t.app.Exchange<ListerRequest>().CurrentFolderHint, u"");
    EXPECT_THAT(t.shell.Calls(), ElementsAre(kBeep));
}

} // namespace
} // namespace korvane
