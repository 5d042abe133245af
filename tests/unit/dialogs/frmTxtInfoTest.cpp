#include "dialogs/frmTxtInfo.h"

#include "support/TestApp.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

class TxtInfoTest : public testing::Test {
protected:
    /// What the window puts in the clipboard.
    Text Clip(const FileFacts& facts) {
        t.user.On<frmTxtInfo>([](frmTxtInfo& f) {
            f.cmdClip.Press();
            EXPECT_TRUE(f.Shown());
            f.cmdClose.Press();
        });
        frmTxtInfo(t.app, facts).ShowModal();
        return t.clipboard.GetText();
    }

    TestApp t;
};

TEST_F(TxtInfoTest, ShowsTheFourFactsUnderTheirCaptions) {
    const frmTxtInfo form(t.app, {u"a.txt", u"D:\\Data", u"1,234", u"2026-11-21 09:12:00"});
    EXPECT_EQ(form.lblFileNameCaption.Caption.Get(), u"File name");
    EXPECT_EQ(form.lblFileName.Caption.Get(), u"a.txt");
    EXPECT_EQ(form.lblFilePathCaption.Caption.Get(), u"File path");
    EXPECT_EQ(form.lblFilePath.Caption.Get(), u"D:\\Data");
    EXPECT_EQ(form.lblFileSizeCaption.Caption.Get(), u"File size");
    EXPECT_EQ(form.lblFileSize.Caption.Get(), u"1,234");
    EXPECT_EQ(form.lblArchivedCaption.Caption.Get(), u"Archived");
    EXPECT_EQ(form.lblArchived.Caption.Get(), u"2026-11-21 09:12:00");
    EXPECT_EQ(form.cmdClip.Caption.Get(), u"&Put in clipboard");
    EXPECT_TRUE(form.cmdClose.Cancel);
}

TEST_F(TxtInfoTest, PutsTheFactsInTheClipboard) {
    EXPECT_EQ(Clip({u"a.txt", u"D:\\Data", u"1234", u"today"}),
              u"\r\nFile: a.txt\r\nPath: D:\\Data\r\nSize: 1,234 bytes\r\nArchived: today\r\n\r\n");
}

// Kept for compatibility: bytes-twice.
TEST_F(TxtInfoTest, ASizeThatNamesItsBytesHasTheWordTwice) {
    EXPECT_EQ(Clip({u"a", u"b", u"1,234 bytes", u"c"}),
              u"\r\nFile: a\r\nPath: b\r\nSize: 1,234 bytes bytes\r\nArchived: c\r\n\r\n");
}

TEST_F(TxtInfoTest, TheFactsOfAFileAreItsPartsSizeAndDate) {
    t.files.AddFile(u"C:\\Data\\a.txt", std::string(1234, 'x'));
    t.files.SetModified(u"C:\\Data\\a.txt", {2026, 3, 1, 14, 5, 9});
    const FileFacts facts = FactsOfFile(t.app, u"C:\\Data\\a.txt");
    EXPECT_EQ(facts.name, u"a.txt");
    EXPECT_EQ(facts.folder, u"C:\\Data");
    EXPECT_EQ(facts.size, u"1,234");
    EXPECT_EQ(facts.date, u"2026-03-01 14:05:09");
}

TEST_F(TxtInfoTest, AFileThatIsntThereIsNotYetSaved) {
    for (const TextView path : {TextView(u"C:\\gone.txt"), TextView()}) {
        const FileFacts facts = FactsOfFile(t.app, path);
        EXPECT_EQ(facts.size, u"0");
        EXPECT_EQ(facts.date, u"(not yet saved!)");
    }
}

} // namespace
} // namespace korvane
