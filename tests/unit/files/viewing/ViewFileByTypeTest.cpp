#include "files/viewing/ViewFileByType.h"

#include "context/exchange/FileOperation.h"
#include "context/exchange/SystemDirs.h"
#include "support/FakeViewers.h"
#include "support/TestApp.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

Message OfficeQuestion(const Text& extensions, const Text& product) {
    return {u"File has the extension " + extensions + u".\r\n\r\nLoad it with Microsoft " + product + u" ?",
            MessageIcon::Question, MessageButtons::YesNo};
}

const Message kWordQuestion{u"File has the extension .DOC(X).\r\n\r\nLoad it with Microsoft Word ?",
                            MessageIcon::Question, MessageButtons::YesNoCancel, 2};

Message CannotLocate(const Text& path) {
    return {u"Cannot locate the following program/file:\r\n\r\n" + path +
                u"\r\n\r\nCheck the path before the name and see whether\r\n"
                u"the program/file exists on your hard disk.",
            MessageIcon::Stop};
}

class ViewFileByTypeTest : public testing::Test {
protected:
    /// Whether the file is taken, with the file at hand set as callers do.
    bool Taken(const Text& path) {
        t.app.Exchange<FileOperation>().FileOpName = path;
        return ViewFileByType(t.app, path);
    }
    /// Expects that the file is taken and starts just this program with itself.
    void ExpectStart(const Text& path, const Text& program) {
        const std::size_t before = t.shell.Starts().size();
        EXPECT_TRUE(Taken(path));
        ASSERT_EQ(t.shell.Starts().size(), before + 1) << ToUtf8(path);
        EXPECT_EQ(t.shell.Starts().back(), (ProgramStart{program, {path}})) << ToUtf8(path);
    }

    TestApp t;
    FakeTextFileViewer texts{t.app};
    FakePageViewer pages{t.app};
};

TEST_F(ViewFileByTypeTest, APdfFileGoesToTheViewerOfTheSettings) {
    t.files.AddFile(u"C:\\Tools\\pdf.exe");
    t.app.Settings.PdfViewerPath = u"C:\\Tools\\pdf.exe";
    ExpectStart(u"C:\\Data\\a.pdf", u"C:\\Tools\\pdf.exe");
    ExpectStart(u"C:\\Data\\A.PDF", u"C:\\Tools\\pdf.exe");
}

TEST_F(ViewFileByTypeTest, WithoutAPdfViewerNothingStartsAndTheFileCountsAsTaken) {
    EXPECT_TRUE(Taken(u"C:\\Data\\a.pdf"));
    EXPECT_THAT(t.shell.Opened(), IsEmpty());
    EXPECT_THAT(texts.viewed, IsEmpty());
}

// Kept for compatibility: argument-not-quoted.
TEST_F(ViewFileByTypeTest, APdfPathWithBlanksReachesTheViewerAsSeveralWords) {
    t.files.AddFile(u"C:\\pdf.exe");
    t.app.Settings.PdfViewerPath = u"C:\\pdf.exe";
    EXPECT_TRUE(Taken(u"C:\\My Data\\a.pdf"));
    EXPECT_THAT(t.shell.Starts(), ElementsAre(ProgramStart{u"C:\\pdf.exe", {u"C:\\My", u"Data\\a.pdf"}}));
}

// Kept for compatibility: argument-loses-outer-characters.
TEST_F(ViewFileByTypeTest, AnArgumentThatHoldsAQuoteLosesItsOuterCharacters) {
    t.files.AddFile(u"C:\\pdf.exe");
    t.app.Settings.PdfViewerPath = u"C:\\pdf.exe";
    EXPECT_TRUE(Taken(u"xC:\\a\".pdf"));
    EXPECT_THAT(t.shell.Starts(), ElementsAre(ProgramStart{u"C:\\pdf.exe", {u"C:\\a.pd"}}));
}

TEST_F(ViewFileByTypeTest, CompanionsTakeTextsSoundsAndPictures) {
    t.files.AddFile(u"C:\\Drive_G\\Sandrel\\Dunmark\\Dunmark.exe");
    t.files.AddFile(u"C:\\Drive_G\\Sandrel\\Hadrell\\Nimbrel\\Nimbrel.exe");
    t.files.AddFile(u"C:\\Drive_G\\Sandrel\\Hadrell\\Tessaly\\Tessaly.exe");
    ExpectStart(u"C:\\a.rtf", u"C:\\Drive_G\\Sandrel\\Dunmark\\Dunmark.exe");
    for (const TextView sound : {u"C:\\a.wav", u"C:\\a.Mp3"})
        ExpectStart(Text(sound), u"C:\\Drive_G\\Sandrel\\Hadrell\\Nimbrel\\Nimbrel.exe");
    for (const TextView picture :
         {u"C:\\a.jpg", u"C:\\a.bmp", u"C:\\a.gif", u"C:\\a.png", u"C:\\a.tif", u"C:\\a.wmf", u"C:\\a.ico"})
        ExpectStart(Text(picture), u"C:\\Drive_G\\Sandrel\\Hadrell\\Tessaly\\Tessaly.exe");
}

TEST_F(ViewFileByTypeTest, AMissingCompanionIsPassedOverSilently) {
    t.shell.SetStartable([](TextView) { return false; });
    EXPECT_TRUE(Taken(u"C:\\a.wav"));
    EXPECT_THAT(texts.viewed, IsEmpty());
}

TEST_F(ViewFileByTypeTest, OtherEndsAreNotTaken) {
    for (const TextView path :
         {u"C:\\a.txt", u"C:\\a.tbx", u"C:\\a.jpeg", u"C:\\a", u"", u"PDF", u"C:\\a.svg"})
        EXPECT_FALSE(Taken(Text(path))) << ToUtf8(path);
    EXPECT_THAT(t.shell.Starts(), IsEmpty());
    EXPECT_THAT(texts.viewed, IsEmpty());
}

// Kept for compatibility: long-office-extensions.
TEST_F(ViewFileByTypeTest, ALongOfficeExtensionNeverMatches) {
    EXPECT_FALSE(Taken(u"C:\\a.pptx"));
    EXPECT_FALSE(Taken(u"C:\\a.xlsx"));
}

TEST_F(ViewFileByTypeTest, OfficeFilesAreOfferedToTheirPrograms) {
    struct Case {
        Text end;
        Text executable;
        Message question;
    };
    const Case cases[] = {
        {u".ppt", u"POWERPNT.EXE", OfficeQuestion(u".PPT(X)", u"Powerpoint")},
        {u".pps", u"POWERPNT.EXE", OfficeQuestion(u".PPT(X)", u"Powerpoint")},
        {u".pub", u"MSPUB.EXE", OfficeQuestion(u".PUB", u"Publisher")},
        {u".mdb", u"MSACCESS.EXE", OfficeQuestion(u".MDB / .ACCDB", u"Access")},
        {u".accdb", u"MSACCESS.EXE", OfficeQuestion(u".MDB / .ACCDB", u"Access")},
        {u".xls", u"EXCEL.EXE", OfficeQuestion(u".XLS(X)", u"Excel")},
    };
    t.app.Exchange<SystemDirs>().ProgramFilesDir = u"C:\\Programs\\";
    for (const Case& each : cases) {
        const Text program = u"C:\\Programs\\\\Microsoft Office\\OFFICE12\\" + each.executable;
        t.files.AddFile(program);
        t.user.Answer(each.question, Answer::Yes);
        ExpectStart(u"C:\\My Data\\a" + each.end, program);
    }
}

TEST_F(ViewFileByTypeTest, AnUnwantedOfficeProgramCountsAsTaken) {
    t.user.Answer(OfficeQuestion(u".XLS(X)", u"Excel"), Answer::No);
    EXPECT_TRUE(Taken(u"C:\\a.xls"));
    EXPECT_THAT(t.shell.Starts(), IsEmpty());
    EXPECT_THAT(texts.viewed, IsEmpty());
}

TEST_F(ViewFileByTypeTest, AMissingOfficeProgramIsReportedAndTheFileOpenedNowhereElse) {
    t.app.Exchange<SystemDirs>().ProgramFilesDir = u"C:\\Programs\\";
    t.user.Answer(Answer::Yes);
    t.user.Answer(CannotLocate(u"C:\\Programs\\\\Microsoft Office\\Office\\EXCEL.EXE"), Answer::Ok);
    EXPECT_TRUE(Taken(u"C:\\a.xls"));
    EXPECT_THAT(t.shell.Starts(), IsEmpty());
    EXPECT_THAT(texts.viewed, IsEmpty());
}

TEST_F(ViewFileByTypeTest, AWordFileGoesToTheTextWindow) {
    for (const TextView path : {u"C:\\a.doc", u"C:\\a.docx", u"C:\\A.DocX"}) {
        texts.viewed.clear();
        EXPECT_TRUE(Taken(Text(path)));
        EXPECT_THAT(texts.viewed, ElementsAre(Text(path)));
    }
}

TEST_F(ViewFileByTypeTest, ALargeWordFileIsAskedAboutByTheNameAtHand) {
    t.files.AddFile(u"C:\\Data\\a.doc", std::string(1'000'001, 'x'));
    t.user.Answer(Answer::No);
    EXPECT_TRUE(Taken(u"C:\\Data\\a.doc"));
    EXPECT_THAT(texts.viewed, IsEmpty());
    t.app.Exchange<FileOperation>().FileOpName = u"another.doc";
    EXPECT_TRUE(ViewFileByType(t.app, u"C:\\Data\\a.doc"));
    EXPECT_THAT(texts.viewed, ElementsAre(u"C:\\Data\\a.doc"));
}

TEST_F(ViewFileByTypeTest, WordIsOfferedWhereTheSettingSaysSo) {
    t.app.Settings.TypeDispatchOpt = 1;
    t.files.AddFile(u"C:\\Word\\winword.exe");
    t.app.Settings.WordPath = u"C:\\Word\\winword.exe";
    t.user.Answer(kWordQuestion, Answer::Yes);
    ExpectStart(u"C:\\My Data\\a.docx", u"C:\\Word\\winword.exe");
    EXPECT_THAT(texts.viewed, IsEmpty());
}

TEST_F(ViewFileByTypeTest, WithoutWordTheTextWindowShowsTheFile) {
    t.app.Settings.TypeDispatchOpt = 1;
    t.user.Answer(kWordQuestion, Answer::No);
    EXPECT_TRUE(Taken(u"C:\\a.doc"));
    EXPECT_THAT(texts.viewed, ElementsAre(u"C:\\a.doc"));
}

// Kept for compatibility: office-no-ends-viewing.
TEST_F(ViewFileByTypeTest, GivingUpTheWordQuestionLeavesTheFileUntaken) {
    t.app.Settings.TypeDispatchOpt = 1;
    t.user.Answer(kWordQuestion, Answer::Cancel);
    EXPECT_FALSE(Taken(u"C:\\a.doc"));
    EXPECT_THAT(texts.viewed, IsEmpty());
}

TEST_F(ViewFileByTypeTest, OnlyTheSettingOneOffersWord) {
    t.app.Settings.TypeDispatchOpt = 2;
    EXPECT_TRUE(Taken(u"C:\\a.doc"));
    EXPECT_THAT(texts.viewed, ElementsAre(u"C:\\a.doc"));
}

TEST_F(ViewFileByTypeTest, PagesGoToTheBrowser) {
    for (const TextView path :
         {u"C:\\a.htm", u"C:\\a.html", u"C:\\a.xhtml", u"C:\\a.asp", u"C:\\a.php", u"C:\\a.CGI"}) {
        pages.viewed.clear();
        EXPECT_TRUE(Taken(Text(path)));
        EXPECT_THAT(pages.viewed, ElementsAre(Text(path)));
    }
}

TEST_F(ViewFileByTypeTest, ABarePageIsInTheFolderAtHand) {
    const auto viewed = [this](TextView folder) {
        t.app.Exchange<FileOperation>().FileOpFolder = Text(folder);
        Taken(u"a.htm");
        return pages.viewed.back();
    };
    EXPECT_EQ(viewed(u"C:\\Data"), u"C:\\Data\\a.htm");
    EXPECT_EQ(viewed(u"C:\\"), u"C:\\a.htm");
    EXPECT_EQ(viewed(u"C:"), u"C:\\a.htm");
}

TEST_F(ViewFileByTypeTest, WithoutTextWindowAndBrowserNothingHappens) {
    t.app.SetPort<TextFileViewer>(nullptr);
    t.app.SetPort<PageViewer>(nullptr);
    EXPECT_TRUE(Taken(u"C:\\a.doc"));
    EXPECT_TRUE(Taken(u"C:\\a.htm"));
}

class ViewFileByTypeOnPosix : public testing::Test {
protected:
    TestApp t{PathStyle::Posix};
};

TEST_F(ViewFileByTypeOnPosix, TheDesktopsOwnProgramsStandInForCompanions) {
    t.shell.SetStartable([](TextView) { return false; });
    EXPECT_TRUE(ViewFileByType(t.app, u"/data/my song.mp3"));
    EXPECT_THAT(t.shell.Opened(), ElementsAre(OpenRequest{.file = u"/data/my song.mp3"}));
}

TEST_F(ViewFileByTypeOnPosix, ABarePageIsInTheFolderAtHand) {
    FakePageViewer browser(t.app);
    for (const TextView folder : {u"/", u"/a", u"/data"}) {
        t.app.Exchange<FileOperation>().FileOpFolder = Text(folder);
        ViewFileByType(t.app, u"a.htm");
    }
    ViewFileByType(t.app, u"/else/a.htm");
    EXPECT_THAT(browser.viewed, ElementsAre(u"/a.htm", u"/a/a.htm", u"/data/a.htm", u"/else/a.htm"));
}

TEST_F(ViewFileByTypeOnPosix, AnOfficeProgramIsOneThatTheSettingsName) {
    t.files.AddFile(u"/usr/bin/calc");
    t.app.Settings.ExcelPath = u"/usr/bin/calc";
    t.user.Answer(Answer::Yes);
    EXPECT_TRUE(ViewFileByType(t.app, u"/data/a b.xls"));
    EXPECT_THAT(t.shell.Starts(), ElementsAre(ProgramStart{u"/usr/bin/calc", {u"/data/a b.xls"}}));
}

} // namespace
} // namespace korvane
