#include "shell/tabs/LoadPipeline.h"

#include "context/exchange/ListerRequest.h"
#include "grid/Grid.h"
#include "grid/GridStore.h"
#include "shell/tabs/frmLoadList.h"
#include "support/TestProgram.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

const Text kA = u"C:\\Data\\a.tbx";
const Text kB = u"C:\\Data\\b.tbx";
const Text kC = u"C:\\Data\\c.tbx";

Message AlreadyLoaded(const Text& path) {
    return {u"The following file has already been loaded: \r\n\r\n\t" + path + u"\r\n", MessageIcon::Stop};
}

class LoadPipelineTest : public testing::Test {
protected:
    LoadPipelineTest() {
        for (const Text& path : {kA, kB, kC})
            p.AddTable(path, {ToUtf8(path)});
    }
    Text FirstCell(int slot) { return p.Tab(slot).GridStore().CellText(Row{1}, Col{1}); }
    Text Recent(std::size_t number) { return p.Main().Parts().recents.RecentEntries[number]; }

    TestProgram p;
};

TEST_F(LoadPipelineTest, AChosenFileGetsATabOfItsOwn) {
    p.StartWith({});
    p.Open(kA);
    EXPECT_EQ(p.Captions(), std::vector<Text>{u"a.tbx"});
    EXPECT_EQ(FirstCell(1), kA);
    EXPECT_EQ(p.Tab(1).Table().TxtDbFile, kA);
    EXPECT_EQ(p.AllTabs().TabState[1].Path, kA);
    EXPECT_EQ(p.AllTabs().TabState[1].Name, u"a.tbx");
    EXPECT_EQ(p.AllTabs().CurrentTabIndex, 1);
    EXPECT_EQ(p.screen.CurrentPointer(), Pointer::Default);
}

TEST_F(LoadPipelineTest, TheCaptionIsTheFullPathWhereTheSettingsSaySo) {
    Settings settings;
    settings.ShowFullPath = 1;
    p.StartWith(settings, kA);
    EXPECT_EQ(p.Captions(), std::vector<Text>{kA});
}

TEST_F(LoadPipelineTest, AsksForFilesByTheRequestOfALoad) {
    p.StartWith({});
    p.app.DialogResult = 5;
    p.app.Exchange<ListerRequest>().FileDialogDefaultName = u"saved before.tbx";
    p.user.CancelChooser();
    p.Choose("mnuFile_Open");
    const ListerRequest& request = p.user.Requests().at(0);
    EXPECT_EQ(request.ListerMode, 0);
    EXPECT_EQ(request.FileDialogFilter, u"*.tbx");
    EXPECT_EQ(request.FileDialogCaption, u"Select a text database to edit");
    EXPECT_EQ(request.FileDialogDefaultName, u"");
    EXPECT_EQ(request.ChosenFilePath, u"");
    EXPECT_EQ(request.ChosenFileCount, 1);
    EXPECT_EQ(p.app.DialogResult, 0);
}

TEST_F(LoadPipelineTest, NothingChosenIsASilentStop) {
    p.StartWith({});
    p.user.CancelChooser();
    p.Choose("mnuFile_Open");
    EXPECT_TRUE(p.Captions().empty());
    EXPECT_EQ(p.screen.CurrentPointer(), Pointer::Default);
}

TEST_F(LoadPipelineTest, GoesBackToTheDriveAndDirectory) {
    p.files.AddDrive(u'D');
    p.StartWith({});
    p.files.ChangeDir(u"C:\\Data");
    p.user.OnChooser([this](ListerRequest& request) {
        p.files.ChangeDir(u"D:\\");
        request.ChosenFilePath = kA;
    });
    p.Choose("mnuFile_Open");
    EXPECT_EQ(p.files.CurrentDir(), u"C:\\Data");
}

TEST_F(LoadPipelineTest, AFileThatWasViewedAndNotMarkedLoadsNothing) {
    p.StartWith({});
    p.user.OnChooser([this](ListerRequest& request) {
        p.Main().Caption = u"changed";
        request.ChosenFilePath = u"C:\\Data\\picture.png";
        request.ChosenFileCount = 0;
    });
    p.Choose("mnuFile_Open");
    EXPECT_TRUE(p.Captions().empty());
    EXPECT_EQ(p.Main().Caption.Get(), u"Korvane");
}

TEST_F(LoadPipelineTest, SeveralFilesAreLoadedAfterAQuestion) {
    p.StartWith({});
    p.user.ChooseFiles({kA, kB, kC});
    p.user.Answer({u"Load  >   3   <  text databases?", MessageIcon::Question, MessageButtons::YesNo, 1},
                  Answer::Yes);
    p.user.On<frmLoadList>([](frmLoadList& list) {
        EXPECT_EQ(list.FileTree.Nodes().size(), 4U);
        list.cmdExit.Press();
    });
    p.Choose("mnuFile_Open");
    EXPECT_EQ(p.Captions(), (std::vector<Text>{u"a.tbx", u"b.tbx", u"c.tbx"}));
    EXPECT_EQ(FirstCell(3), kC);
    EXPECT_EQ(p.AllTabs().Active(), &p.Tab(3));
}

TEST_F(LoadPipelineTest, SeveralFilesAreNotLoadedOnNo) {
    p.StartWith({});
    p.user.ChooseFiles({kA, kB});
    p.user.Answer(Answer::No);
    p.Choose("mnuFile_Open");
    EXPECT_TRUE(p.Captions().empty());
}

TEST_F(LoadPipelineTest, AFileThatIsOpenIsNotLoadedTwice) {
    p.StartWith({}, kA);
    p.user.ChooseFile(kA);
    p.user.Answer(AlreadyLoaded(kA), Answer::Ok);
    p.user.On<frmLoadList>([](frmLoadList& list) { list.cmdExit.Press(); });
    p.Choose("mnuFile_Open");
    EXPECT_EQ(p.Captions(), std::vector<Text>{u"a.tbx"});
    // Nothing was read, so nothing set the pointer back.
    EXPECT_EQ(p.screen.CurrentPointer(), Pointer::Hourglass);
}

// Kept for compatibility: open-file-stops-load.
TEST_F(LoadPipelineTest, AFileThatIsOpenStopsTheLoadAndThoseBeforeItStay) {
    p.StartWith({}, kB);
    p.user.ChooseFiles({kA, kB, kC});
    p.user.Answer(Answer::Yes);
    p.user.Answer(AlreadyLoaded(kB), Answer::Ok);
    p.user.On<frmLoadList>([](frmLoadList& list) { list.cmdExit.Press(); });
    p.Choose("mnuFile_Open");
    EXPECT_EQ(p.Captions(), (std::vector<Text>{u"b.tbx", u"a.tbx"}));
}

// Kept for compatibility: same-file-loads-twice.
TEST_F(LoadPipelineTest, TheSameFileInOtherCaseLoadsTwice) {
    p.StartWith({}, kA);
    p.Open(u"c:\\data\\A.TBX");
    EXPECT_EQ(p.Captions(), (std::vector<Text>{u"a.tbx", u"A.TBX"}));
}

TEST_F(LoadPipelineTest, TheThirdOfFiveFilesStopsTheLoadWhenItIsOpen) {
    const std::vector<Text> files{u"C:\\1.tbx", u"C:\\2.tbx", u"C:\\3.tbx", u"C:\\4.tbx", u"C:\\5.tbx"};
    for (const Text& file : files)
        p.AddTable(file, {"x"});
    p.StartWith({}, files[2]);
    p.user.ChooseFiles(files);
    p.user.Answer({u"Load  >   5   <  text databases?", MessageIcon::Question, MessageButtons::YesNo, 1},
                  Answer::Yes);
    p.user.Answer(AlreadyLoaded(files[2]), Answer::Ok);
    p.user.On<frmLoadList>([](frmLoadList& list) {
        EXPECT_EQ(list.FileTree.Nodes().size(), 4U);
        list.cmdExit.Press();
    });
    p.Choose("mnuFile_Open");
    EXPECT_EQ(p.Captions(), (std::vector<Text>{u"3.tbx", u"1.tbx", u"2.tbx"}));
    EXPECT_TRUE(Recent(1).starts_with(files[1]));
}

// Kept for compatibility: same-file-loads-twice.
TEST_F(LoadPipelineTest, TheSameFileByItsOtherDriveFormLoadsTwice) {
    p.files.AddDrive(u'D');
    p.AddTable(u"D:\\x.tbx", {"x"});
    p.AddTable(u"C:\\Drive_D\\x.tbx", {"x"});
    p.StartWith({}, u"D:\\x.tbx");
    p.Open(u"C:\\Drive_D\\x.tbx");
    EXPECT_EQ(p.Captions(), (std::vector<Text>{u"x.tbx", u"x.tbx"}));
}

TEST_F(LoadPipelineTest, AFileWhosePathStartsWithUntitledNeverEntersTheRecord) {
    p.AddTable(u"C:\\Data\\Untitled_7.tbx", {"x"});
    p.files.ChangeDir(u"C:\\Data");
    p.StartWith({}, u"Untitled_7.tbx");
    EXPECT_EQ(FirstCell(1), u"x");
    EXPECT_EQ(Recent(1), u"");
    p.Open(u"C:\\Data\\Untitled_7.tbx");
    EXPECT_TRUE(Recent(1).starts_with(u"C:\\Data\\Untitled_7.tbx | "));
}

TEST_F(LoadPipelineTest, AFileThatArrivesWhileTheChooserStandsIsLoadedInBetween) {
    p.StartWith({});
    p.user.OnChooser([this](ListerRequest& request) {
        p.instance.Arrive(kB);
        request.ChosenFilePath = kA;
    });
    p.Choose("mnuFile_Open");
    EXPECT_EQ(p.Captions(), (std::vector<Text>{u"b.tbx", u"a.tbx"}));
    EXPECT_EQ(FirstCell(2), kA);
}

TEST_F(LoadPipelineTest, AFileThatArrivesWhileTheQuestionStandsIsLoadedInBetween) {
    p.StartWith({});
    p.user.ChooseFiles({kA, kB});
    p.user.AnswerAfter([this] { p.instance.Arrive(kC); }, Answer::Yes);
    p.user.On<frmLoadList>([](frmLoadList& list) { list.cmdExit.Press(); });
    p.Choose("mnuFile_Open");
    EXPECT_EQ(p.Captions(), (std::vector<Text>{u"c.tbx", u"a.tbx", u"b.tbx"}));
    EXPECT_EQ(FirstCell(2), kA);
    EXPECT_EQ(FirstCell(3), kB);
}

TEST_F(LoadPipelineTest, AFileThatArrivesWhileALoadTellsOfAFailureIsLoadedInBetween) {
    p.StartWith({});
    p.user.ChooseFiles({kA, kB});
    p.user.Answer(Answer::Yes);
    p.files.VanishBeforeOpen(kA);
    p.user.AnswerAfter([this] { p.instance.Arrive(kC); }, Answer::Ok);
    p.user.On<frmLoadList>([](frmLoadList& list) { list.cmdExit.Press(); });
    p.Choose("mnuFile_Open");
    ASSERT_EQ(p.Captions().size(), 3U);
    EXPECT_EQ(FirstCell(3), kB);
}

TEST_F(LoadPipelineTest, AFileWhoseTabWasClosedLoadsAgain) {
    p.StartWith({}, kA);
    p.Choose("mnuFile_Close");
    p.Open(kA);
    EXPECT_EQ(p.Captions(), std::vector<Text>{u"a.tbx"});
}

// Kept for compatibility: other-files-keep-tab.
TEST_F(LoadPipelineTest, AFileOfAnotherExtensionLoadsNothingKeepsItsTabAndEntersTheRecord) {
    p.files.AddFile(u"C:\\Data\\a.txt", "text");
    p.StartWith({});
    p.Open(u"C:\\Data\\a.txt");
    EXPECT_EQ(p.Captions(), std::vector<Text>{u"a.txt"});
    EXPECT_EQ(p.Tab(1).Table().TxtDbFile, u"");
    EXPECT_EQ(p.Tab(1).GridStore().ColCount(), Col{0});
    EXPECT_EQ(p.AllTabs().TabState[1].Path, u"C:\\Data\\a.txt");
    EXPECT_EQ(Recent(1), u"C:\\Data\\a.txt | 0*2026.11.21   10:30");
    EXPECT_EQ(p.screen.CurrentPointer(), Pointer::Hourglass);
}

TEST_F(LoadPipelineTest, TheExtensionCountsInAnyCase) {
    p.AddTable(u"C:\\Data\\upper.TBX", {"x"});
    p.StartWith({}, u"C:\\Data\\upper.TBX");
    EXPECT_EQ(FirstCell(1), u"x");
}

TEST_F(LoadPipelineTest, QuotesOfAPathGoForReadingOnly) {
    p.StartWith({});
    p.Open(u"\"" + kA + u"\"");
    EXPECT_EQ(p.Tab(1).Table().TxtDbFile, kA);
    EXPECT_EQ(FirstCell(1), kA);
    EXPECT_EQ(p.AllTabs().TabState[1].Path, u"\"" + kA + u"\"");
    EXPECT_EQ(p.Captions(), std::vector<Text>{u"a.tbx\""});
    EXPECT_TRUE(Recent(1).starts_with(u"\"" + kA + u"\" | 0*"));
}

TEST_F(LoadPipelineTest, LoadedFilesEnterTheRecordTheLastOneFirst) {
    p.StartWith({}, kA);
    p.Open(kB);
    EXPECT_EQ(Recent(1), kB + u" | 0*2026.11.21   10:30");
    EXPECT_EQ(Recent(2), kA + u" | 0*2026.11.21   10:30");
}

// Kept for compatibility: record-offset-unused.
TEST_F(LoadPipelineTest, ALoadFromTheRecentListHandsItsOffsetOverToNobody) {
    p.StartWith({});
    p.Main().Parts().recents.LoadFromRecent = 1;
    p.Main().Parts().recents.RecentOffsets = {42};
    p.Main().Parts().pipeline.OpenDatabase(kA, LoadInto::NewTab);
    EXPECT_EQ(p.Main().Parts().recents.RecentOffset, 42);
    EXPECT_EQ(Recent(1), kA + u" | 0*2026.11.21   10:30");
}

TEST_F(LoadPipelineTest, WithoutANewTabTheActiveOneIsFilled) {
    p.StartWith({});
    p.OpenNewTab();
    p.Main().Parts().pipeline.OpenDatabase(kA, LoadInto::ActiveTab);
    EXPECT_EQ(p.Captions(), std::vector<Text>{u"a.tbx"});
    EXPECT_EQ(FirstCell(1), kA);
}

TEST_F(LoadPipelineTest, WithoutANewTabAndWithoutAnyNothingIsRead) {
    p.StartWith({});
    EXPECT_TRUE(p.Main().Parts().pipeline.OpenDatabase(kA, LoadInto::ActiveTab));
    EXPECT_TRUE(p.Captions().empty());
    EXPECT_TRUE(Recent(1).starts_with(kA));
}

TEST_F(LoadPipelineTest, ThePainterOfTheStripRestsWhileATabIsMade) {
    class Watcher : public View {
    public:
        explicit Watcher(TabStrip& strip) : strip_(strip) { strip.SetView(this); }
        void Follow(Observed&, Aspect aspect) override {
            if (aspect == Aspect::Items) drawingWhileAdded = strip_.AllowDrawing;
        }
        bool drawingWhileAdded = true;

    private:
        TabStrip& strip_;
    };
    p.StartWith({});
    Watcher watcher(p.Main().MDITabs1);
    p.Open(kA);
    p.Main().MDITabs1.SetView(nullptr);
    EXPECT_FALSE(watcher.drawingWhileAdded);
    EXPECT_TRUE(p.Main().MDITabs1.AllowDrawing);
}

} // namespace
} // namespace korvane
