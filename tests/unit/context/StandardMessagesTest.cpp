#include "context/StandardMessages.h"

#include "support/TestApp.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

class StandardMessages : public testing::Test {
protected:
    TestApp t;
    App& app = t.app;
};

TEST_F(StandardMessages, CannotLoadNamesTheFileAndTheCurrentDirectory) {
    t.files.AddDir(u"C:\\Data");
    t.files.ChangeDir(u"C:\\Data");
    t.user.Answer({u"Cannot load the following file:\r\n\r\nC:\\x.ini\r\n\r\nCurrent dir.: C:\\Data",
                   MessageIcon::Exclamation},
                  Answer::Ok);
    ShowCannotLoad(app, u"C:\\x.ini");
}

TEST_F(StandardMessages, CannotLocateTakesTheHourglassAway) {
    t.screen.SetPointer(Pointer::Hourglass);
    t.user.Answer(
        {u"Cannot locate the following program/file:\r\n\r\nC:\\x.exe\r\n\r\n"
         u"Check the path before the name and see whether\r\nthe program/file exists on your hard disk.",
         MessageIcon::Stop},
        Answer::Ok);
    Text file = u"C:\\x.exe";
    ShowCannotLocate(app, file);
    EXPECT_EQ(file, u"C:\\x.exe");
    EXPECT_EQ(t.screen.CurrentPointer(), Pointer::Default);
}

// Kept for compatibility: cannot-locate-names-empty.
TEST_F(StandardMessages, CannotLocateSaysThatAnEmptyNameIsEmptyAlsoToItsCaller) {
    t.user.Answer(
        {u"Cannot locate the following program/file:\r\n\r\n( Filename empty! )\r\n\r\n"
         u"Check the path before the name and see whether\r\nthe program/file exists on your hard disk.",
         MessageIcon::Stop},
        Answer::Ok);
    Text file;
    ShowCannotLocate(app, file);
    EXPECT_EQ(file, u"( Filename empty! )");
}

TEST_F(StandardMessages, CannotAccessSaysSaveUnlessTold) {
    t.files.SetDiskReadOnly();
    ASSERT_EQ(app.Files().OpenRaw(u"C:\\a.tbx"), nullptr);
    const Text reason = app.Files().LastErrorText();
    ASSERT_FALSE(reason.empty());
    t.user.Answer({u"Cannot save this file :\r\n\r\nC:\\a.tbx\r\n\r\n"
                   u"The error was probably triggered for the following reason : \r\n\r\n\"" +
                       reason + u"\"\r\n\r\n",
                   MessageIcon::Stop},
                  Answer::Ok);
    ShowCannotAccess(app, u"C:\\a.tbx");
}

TEST_F(StandardMessages, CannotAccessSaysDeleteAndUnknownWithoutAReason) {
    t.user.Answer({u"Cannot delete this file :\r\n\r\nC:\\a.tbx\r\n\r\n"
                   u"The error was probably triggered for the following reason : \r\n\r\n(unknown)\r\n\r\n",
                   MessageIcon::Stop},
                  Answer::Ok);
    ShowCannotAccess(app, u"C:\\a.tbx", FileAccess::Delete);
}

TEST_F(StandardMessages, CannotAccessSaysThatABlankNameIsEmpty) {
    t.user.Answer({u"Cannot save this file :\r\n\r\n( no name specified or name is empty ! )\r\n\r\n"
                   u"The error was probably triggered for the following reason : \r\n\r\n(unknown)\r\n\r\n",
                   MessageIcon::Stop},
                  Answer::Ok);
    ShowCannotAccess(app, u"  ");
}

TEST_F(StandardMessages, PasteHint) {
    t.user.Answer({u"You can retrieve this text by pressing Ctrl-V or using the \"Paste\" option.",
                   MessageIcon::Information},
                  Answer::Ok);
    ShowPasteHint(app);
}

TEST_F(StandardMessages, DeletesAFileQuietly) {
    t.files.AddFile(u"C:\\a.lst", "x");
    DeleteFileQuietly(app, u"C:\\a.lst");
    EXPECT_FALSE(app.Files().FileExists(u"C:\\a.lst"));
}

TEST_F(StandardMessages, AFileThatCannotBeDeletedStaysWithoutAWord) {
    t.files.AddFile(u"C:\\a.lst", "x");
    t.files.SetFileReadOnly(u"C:\\a.lst");
    DeleteFileQuietly(app, u"C:\\a.lst");
    DeleteFileQuietly(app, u"C:\\missing.lst");
    DeleteFileQuietly(app, u"");
    EXPECT_TRUE(app.Files().FileExists(u"C:\\a.lst"));
}

} // namespace
} // namespace korvane
