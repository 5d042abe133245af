#include "shell/recent/frmFileList.h"

#include "common/number/Number.h"
#include "context/exchange/FileOperation.h"
#include "context/exchange/ListerRequest.h"
#include "context/exchange/StateFiles.h"
#include "context/ports/ColourPicker.h"
#include "context/ports/FontPicker.h"
#include "grid/Grid.h"
#include "grid/GridStore.h"
#include "support/HandlerFailure.h"
#include "support/MenuEntries.h"
#include "support/TestProgram.h"
#include "unit/shell/settings/FakeDialogs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

namespace korvane {
namespace {

const Text kA = u"C:\\Data\\a.tbx";
const Text kB = u"C:\\Data\\b.tbx";
const Text kGone = u"C:\\Data\\gone.tbx";

class FileListTest : public testing::Test {
protected:
    FileListTest() {
        p.AddTable(kA, {"a"});
        p.AddTable(kB, {"b"});
        p.StartWith({});
        SetRecord({kA, kB, kGone});
    }

    void SetRecord(const std::vector<Text>& paths) {
        Recents().Empty();
        for (std::size_t i = 0; i < paths.size(); ++i)
            Recents().RecentEntries[i + 1] = paths[i] + u" | 0*2026.03.01   14:05";
    }
    RecentRecord& Recents() { return p.Main().Parts().recents; }

    /// Opens the list and runs `act` in it. A list that is still open then is closed.
    void InList(const std::function<void(frmFileList&)>& act) {
        p.user.On<frmFileList>([&act](frmFileList& f) {
            act(f);
            if (f.Shown()) f.cmdCancel.Press();
        });
        p.Choose("mnuFile_Recent");
    }
    static bool Press(frmFileList& f, int code, int mask = Mask::None) {
        KeyEvent key{code, mask};
        f.ListView1.KeyDown(key);
        return key.consumed;
    }

    TestProgram p;
};

TEST_F(FileListTest, ShowsFoundAndLostFiles) {
    InList([](frmFileList& f) {
        EXPECT_EQ(f.Caption.Get(), u"Recent files list");
        ASSERT_EQ(f.ListView1.Count(), 3);
        const ListRow found = f.ListView1.RowAt(1);
        EXPECT_EQ(found.texts.at(0), u"a.tbx");
        EXPECT_EQ(found.texts.at(1), u"C:\\Data");
        EXPECT_EQ(found.texts.at(3), u"2026.03.01   14:05");
        EXPECT_EQ(found.icon, frmFileList::kFoundIcon);
        const ListRow lost = f.ListView1.RowAt(3);
        EXPECT_EQ(lost.texts, (std::vector<Text>{u"gone.tbx", u"C:\\Data", u"", u""}));
        EXPECT_EQ(lost.icon, frmFileList::kLostIcon);
        EXPECT_EQ(f.Label2.Caption.Get(), u"Files:  3");
        EXPECT_EQ(f.ListView1.Current(), 1);
    });
}

TEST_F(FileListTest, ALineWithoutABarIsShownAsItStandsAndCountsAsLost) {
    Recents().RecentEntries[2] = kB;
    InList([](frmFileList& f) {
        ASSERT_EQ(f.ListView1.Count(), 3);
        const ListRow row = f.ListView1.RowAt(2);
        EXPECT_EQ(row.texts, (std::vector<Text>{kB, u"", u"", u""}));
        EXPECT_EQ(row.icon, frmFileList::kLostIcon);
    });
}

// Kept for compatibility: offset-column-shows-date.
TEST_F(FileListTest, TheOffsetColumnShowsTheDateToo) {
    InList([](frmFileList& f) { EXPECT_EQ(f.ListView1.RowAt(1).texts.at(2), u" 0*2026.03.01   14:05"); });
}

TEST_F(FileListTest, AFileThatIsThereInItsOtherFormShowsThat) {
    p.AddTable(u"C:\\Drive_D\\x.tbx", {"x"});
    SetRecord({u"D:\\x.tbx"});
    InList([](frmFileList& f) {
        EXPECT_EQ(f.ListView1.RowAt(1).texts.at(1), u"C:\\Drive_D");
        EXPECT_EQ(f.ListView1.RowAt(1).icon, frmFileList::kFoundIcon);
    });
    EXPECT_EQ(Recents().RecentEntries[1], u"D:\\x.tbx | 0*2026.03.01   14:05");
}

TEST_F(FileListTest, ClosingLoadsNothing) {
    InList([](frmFileList& f) { f.cmdCancel.Press(); });
    EXPECT_TRUE(p.Captions().empty());
    InList([](frmFileList& f) { EXPECT_TRUE(Press(f, Key::Escape)); });
    EXPECT_TRUE(p.Captions().empty());
}

TEST_F(FileListTest, LoadsTheSelectedFilesInTheOrderOfTheList) {
    InList([](frmFileList& f) {
        f.ListView1.SetSelected(2, true);
        f.cmdLoad.Press();
    });
    EXPECT_EQ(p.Captions(), (std::vector<Text>{u"a.tbx", u"b.tbx"}));
    EXPECT_EQ(p.files.CurrentDir(), u"C:\\Data");
    EXPECT_EQ(p.app.Exchange<ListerRequest>().CurrentFolderHint, u"C:\\Data");
    EXPECT_EQ(p.app.Exchange<ListerRequest>().ListerFolder, u"C:\\Data");
    EXPECT_EQ(p.app.Exchange<FileOperation>().FileOpName, u"a.tbx");
    EXPECT_EQ(Recents().LoadFromRecent, 0);
}

TEST_F(FileListTest, ALoadInWhichAHandlerFailsIsNoLoadFromTheRecordAfterwards) {
    p.user.On<frmFileList>([](frmFileList& f) { f.cmdLoad.Press(); });
    p.beforeGrid = FailInHandler;
    EXPECT_THROW(p.Choose("mnuFile_Recent"), HandlerFailure);
    EXPECT_EQ(Recents().LoadFromRecent, 0);
}

TEST_F(FileListTest, ReturnAndADoubleClickLoad) {
    InList([](frmFileList& f) { EXPECT_TRUE(Press(f, Key::Return)); });
    InList([](frmFileList& f) { f.ListView1.DoubleClick(2); });
    EXPECT_EQ(p.Captions(), (std::vector<Text>{u"a.tbx", u"b.tbx"}));
}

TEST_F(FileListTest, ALostFileIsReportedAndTheNextOneLoaded) {
    SetRecord({kGone, kB});
    p.user.On<frmFileList>([](frmFileList& f) {
        f.ListView1.SetSelected(2, true);
        f.cmdLoad.Press();
    });
    p.user.Answer({u"Cannot locate the following program/file:\r\n\r\n" + kGone +
                       u"\r\n\r\nCheck the path before the name and see whether\r\n"
                       u"the program/file exists on your hard disk.",
                   MessageIcon::Stop},
                  Answer::Ok);
    p.Choose("mnuFile_Recent");
    EXPECT_EQ(p.Captions(), std::vector<Text>{u"b.tbx"});
}

// Kept for compatibility: lost-rows-by-text.
TEST_F(FileListTest, RowsMarkedAsLostInTheirPlaceAreSkipped) {
    p.AddTable(u"C:\\not found !\\x.tbx", {"x"});
    SetRecord({u"C:\\not found !\\x.tbx"});
    InList([](frmFileList& f) { f.cmdLoad.Press(); });
    EXPECT_EQ(p.app.DialogResult, 0);
    EXPECT_TRUE(p.Captions().empty());
}

TEST_F(FileListTest, TheSoleEmptyTabGoesBeforeALoad) {
    p.Main().Parts().tabs.AddNewTab();
    InList([](frmFileList& f) { f.cmdLoad.Press(); });
    EXPECT_EQ(p.Captions(), std::vector<Text>{u"a.tbx"});
    EXPECT_EQ(p.Tab(1).Caption.Get(), u"a.tbx");
}

TEST_F(FileListTest, OneOfTwoEmptyTabsStays) {
    p.Main().Parts().tabs.AddNewTab();
    p.Main().Parts().tabs.AddNewTab();
    InList([](frmFileList& f) { f.cmdLoad.Press(); });
    EXPECT_EQ(p.Captions(), (std::vector<Text>{u"Untitled_1.tbx", u"Untitled_2.tbx", u"a.tbx"}));
}

// Kept for compatibility: untitled-tab-asks.
TEST_F(FileListTest, ATypedInEmptyTabAsksAndStaysWithoutASlotOnCancel) {
    p.Main().Parts().tabs.AddNewTab();
    p.Tab(1).Table().TableAltered = 1;
    p.user.On<frmFileList>([](frmFileList& f) { f.cmdLoad.Press(); });
    p.user.Answer(Answer::Cancel);
    p.Choose("mnuFile_Recent");
    EXPECT_EQ(p.Captions(), (std::vector<Text>{u"Untitled_1.tbx", u"a.tbx"}));
    EXPECT_EQ(p.Tab(1).Caption.Get(), u"a.tbx");
    p.user.Answer(Answer::No);
    p.Main().MDITabs1.CloseWanted(*p.Main().MDITabs1.Children().front());
    EXPECT_EQ(p.Captions(), std::vector<Text>{u"a.tbx"});
    EXPECT_TRUE(p.Main().Close());
}

// Kept for compatibility: new-text-opens-nothing.
TEST_F(FileListTest, ANewTextLeadsToNoNewTab) {
    InList([](frmFileList& f) { f.cmdNewText.Press(); });
    EXPECT_EQ(p.app.DialogResult, 11);
    EXPECT_TRUE(p.Captions().empty());
}

TEST_F(FileListTest, DeleteEmptiesTheEntriesOfTheRowAndSelectsTheNext) {
    SetRecord({kA, kB, u"c:\\data\\A.tbx2"});
    InList([](frmFileList& f) {
        f.cmdDelete.Press();
        EXPECT_EQ(f.ListView1.Count(), 2);
        EXPECT_EQ(f.ListView1.RowAt(f.ListView1.Current()).texts.at(0), u"b.tbx");
        EXPECT_EQ(f.Label2.Caption.Get(), u"Files:  2");
    });
    EXPECT_EQ(Recents().RecentEntries[1], u"");
    EXPECT_EQ(Recents().RecentEntries[2], kB + u" | 0*2026.03.01   14:05");
    EXPECT_EQ(Recents().RecentEntries[3], u"");
}

TEST_F(FileListTest, DeletingTheLastRowSelectsTheNewLastRow) {
    InList([](frmFileList& f) {
        f.ListView1.Select(3);
        EXPECT_TRUE(Press(f, Key::Delete));
        EXPECT_EQ(f.ListView1.Current(), 2);
    });
}

// Kept for compatibility: delete-by-shown-path.
TEST_F(FileListTest, DeletingARowInItsOtherFormLeavesTheRecord) {
    p.AddTable(u"C:\\Drive_D\\x.tbx", {"x"});
    SetRecord({u"D:\\x.tbx"});
    InList([](frmFileList& f) { f.cmdDelete.Press(); });
    EXPECT_FALSE(Recents().RecentEntries[1].empty());
}

TEST_F(FileListTest, DeletingALineThatIsNoEntryLeavesTheOthers) {
    Recents().RecentEntries[1] = u"not an entry";
    InList([](frmFileList& f) {
        EXPECT_EQ(f.ListView1.RowAt(1).icon, frmFileList::kLostIcon);
        f.cmdDelete.Press();
    });
    EXPECT_FALSE(Recents().RecentEntries[2].empty());
}

TEST_F(FileListTest, EmptyingAsksFirst) {
    const Message question{u"Clear all entries in recent files list?", MessageIcon::Question,
                           MessageButtons::YesNo, 2};
    p.user.On<frmFileList>([this, &question](frmFileList& f) {
        p.user.Answer(question, Answer::No);
        f.cmdEmptyList.Press();
        EXPECT_EQ(f.ListView1.Count(), 3);
        p.user.Answer(question, Answer::Yes);
        f.OfficeMenu1.Choose("mnuEmpty");
        EXPECT_EQ(f.ListView1.Count(), 0);
        EXPECT_EQ(f.Label2.Caption.Get(), u"Files:  0");
        f.cmdLoad.Press();
    });
    p.Choose("mnuFile_Recent");
    for (const Text& entry : Recents().RecentEntries)
        EXPECT_EQ(entry, u"");
}

TEST_F(FileListTest, AFullListIsCutToSixteenWhenToldTo) {
    std::vector<Text> paths;
    for (int i = 1; i <= RecentRecord::kEntries; ++i)
        paths.push_back(u"C:\\f" + NumberText(i) + u".tbx");
    SetRecord(paths);
    const auto question = [](TextView value) {
        return Message{u"Empty list when full ?  (16 of 72 items retained )\r\n\r\nCurrent value: " +
                           Text(value),
                       MessageIcon::Question, MessageButtons::YesNo, 1};
    };
    InList([this, &question](frmFileList& f) {
        EXPECT_EQ(f.ListView1.Count(), 72);
        p.user.Answer(question(u"NO"), Answer::Yes);
        f.OfficeMenu1.Choose("mnuWhenToEmpty");
    });
    InList([this, &question](frmFileList& f) {
        EXPECT_EQ(f.ListView1.Count(), 16);
        p.user.Answer(question(u"YES"), Answer::No);
        f.OfficeMenu1.Choose("mnuWhenToEmpty");
    });
    EXPECT_EQ(Recents().EmptyWhenFull, 0);
    p.Main().Close();
    const std::string bytes = p.FileBytes(p.app.Exchange<StateFiles>().RecFilePath);
    EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 16);
}

TEST_F(FileListTest, ViewsTheCurrentFile) {
    FakeFileViewer viewer(p.app);
    InList([](frmFileList& f) {
        f.cmdViewFile.Press();
        f.ListView1.Select(2);
        EXPECT_TRUE(Press(f, Key::Space));
    });
    EXPECT_EQ(viewer.viewed, (std::vector<Text>{kA, kB}));
}

TEST_F(FileListTest, ALostFileIsNotViewed) {
    FakeFileViewer viewer(p.app);
    InList([this](frmFileList& f) {
        f.ListView1.Select(3);
        p.user.Answer(Answer::Ok);
        f.cmdViewFile.Press();
    });
    EXPECT_TRUE(p.user.Messages().at(0).text.starts_with(u"Cannot locate the following program/file:"));
    EXPECT_TRUE(viewer.viewed.empty());
}

TEST_F(FileListTest, OpensTheCurrentFileWithTheUsersProgram) {
    FakeFileViewer viewer(p.app);
    InList([this](frmFileList& f) {
        EXPECT_TRUE(Press(f, Key::Back, Mask::Alt));
        f.ListView1.Select(3);
        p.user.Answer({u"This item is not a valid file:\r\n\r\n" + kGone, MessageIcon::Exclamation},
                      Answer::Ok);
        f.OfficeMenu1.Choose("mnuExternalEdit");
    });
    EXPECT_EQ(viewer.opened, std::vector<Text>{kA});
}

TEST_F(FileListTest, InformsOnTheCurrentFile) {
    p.files.AddFile(kA, std::string(1234, 'x'));
    p.files.SetModified(kA, {2026, 3, 1, 14, 5, 9});
    p.clock.Set({2026, 11, 21, 9, 8, 7});
    InList([this](frmFileList& f) {
        p.user.Answer({u"File  a.tbx\r\nDir.:  C:\\Data\r\nSize  1,234\r\nArchived  2026-03-01 14:05:09\r\n"
                       u"Time  09:08:07\r\nDate  Saturday, Nov 21 2026\r\nCurrent Dir. :  " +
                           p.files.CurrentDir(),
                       MessageIcon::Information},
                      Answer::Ok);
        f.cmdInfo.Press();
    });
}

TEST_F(FileListTest, GoesToTheFolderOfTheFile) {
    InList([](frmFileList& f) {
        f.cmdGotoFileFolder.Press();
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(p.app.DialogResult, 99);
    EXPECT_EQ(p.files.CurrentDir(), u"C:\\Data");
    EXPECT_EQ(p.app.Exchange<ListerRequest>().CurrentFolderHint, u"C:\\Data");
    EXPECT_TRUE(p.Captions().empty());
}

TEST_F(FileListTest, SaysWhenItCannotGoToTheFolder) {
    SetRecord({u"C:\\Lost\\x.tbx"});
    InList([this](frmFileList& f) {
        p.user.Answer({u"Cannot change to this folder:\r\n\r\nC:\\Lost", MessageIcon::Exclamation},
                      Answer::Ok);
        f.cmdGotoFileFolder.Press();
        EXPECT_TRUE(f.Shown());
    });
}

TEST_F(FileListTest, AHeaderClickSortsAndTurnsTheOrderRound) {
    SetRecord({kB, kA});
    InList([](frmFileList& f) {
        f.ListView1.ClickColumn(1);
        EXPECT_EQ(f.ListView1.RowAt(1).texts.at(0), u"a.tbx");
        f.ListView1.ClickColumn(1);
        EXPECT_EQ(f.ListView1.RowAt(1).texts.at(0), u"b.tbx");
    });
}

TEST_F(FileListTest, ShowsTheNamesAloneOrAllColumns) {
    InList([this](frmFileList& f) {
        EXPECT_EQ(f.ListView1.Columns.Get().at(1).width, Twips{0});
        f.cmdFileFolder.Press();
        EXPECT_EQ(p.app.Settings.FileListAllColumns, 1);
        EXPECT_GT(f.ListView1.Columns.Get().at(3).width, Twips{0});
        f.cmdFileFolder.Press();
        EXPECT_EQ(p.app.Settings.FileListAllColumns, 0);
    });
}

TEST_F(FileListTest, KeepsItsSizeAndColumns) {
    p.app.Settings.FileListAllColumns = 1;
    p.app.Settings.FileListColA = 1111;
    p.app.Settings.FileListColB = 2222;
    InList([](frmFileList& f) {
        EXPECT_EQ(f.Width.Get(), Twips{7000});
        EXPECT_EQ(f.Height.Get(), Twips{5688});
        EXPECT_EQ(f.ListView1.Columns.Get().at(0).width, Twips{1111});
        EXPECT_EQ(f.ListView1.Columns.Get().at(1).width, Twips{2222});
        f.Width = Twips{8000};
        f.Height = Twips{6000};
    });
    EXPECT_EQ(p.app.Settings.FileListWidth, 8000);
    EXPECT_EQ(p.app.Settings.FileListHeight, 6000);
    EXPECT_EQ(p.app.Settings.FileListColA, 1111);
    InList([](frmFileList& f) { EXPECT_EQ(f.Width.Get(), Twips{8000}); });
}

TEST_F(FileListTest, FontAndColourAreChosenAndKept) {
    FakeFontPicker fonts(p.app);
    FakeColourPicker colours(p.app);
    fonts.answer = FontSpec{u"Arial", 12};
    colours.answer = Colour{255};
    InList([](frmFileList& f) {
        f.cmdFont.Press();
        f.cmdColour.Press();
        EXPECT_EQ(f.ListView1.Font.Get(), (FontSpec{u"Arial", 12}));
        EXPECT_EQ(f.ListView1.BackColor.Get(), Colour{255});
    });
    EXPECT_EQ(p.app.Settings.FileListFontName, u"Arial");
    EXPECT_EQ(p.app.Settings.FileListFontSize, 12);
    EXPECT_EQ(p.app.Settings.FileListColour, 255);
    EXPECT_EQ(colours.starts, std::vector<Colour>{Colour{0}});
}

TEST_F(FileListTest, ACancelledFontOrColourChangesNothing) {
    const FakeFontPicker fonts(p.app);
    const FakeColourPicker colours(p.app);
    InList([](frmFileList& f) {
        f.cmdFont.Press();
        f.cmdColour.Press();
    });
    EXPECT_EQ(p.app.Settings.FileListFontName, u"");
    EXPECT_EQ(p.app.Settings.FileListColour, 0);
}

TEST_F(FileListTest, TheKeysOfTheListerAndOfDocking) {
    p.Main().Left = Twips{6000};
    InList([this](frmFileList& f) {
        EXPECT_TRUE(Press(f, Key::F1, Mask::Ctrl | Mask::Shift));
        EXPECT_EQ(p.shell.Starts().at(0).arguments, std::vector<Text>{p.files.CurrentDir()});
        EXPECT_TRUE(Press(f, 'L', Mask::Ctrl));
        EXPECT_EQ(f.Width.Get(), Twips{6000});
        EXPECT_FALSE(Press(f, 'A'));
    });
}

TEST_F(FileListTest, HasItsMenuAndToolTips) {
    const frmFileList f(p.app, Recents(), p.Main());
    EXPECT_EQ(EntriesOf(f.OfficeMenu1), (Entries{{"mnuLoad", u"&Load item"},
                                                 {"mnuNewText", u"Start &new text"},
                                                 {"mnuViewFile", u"&View file"},
                                                 {"mnuExternalEdit", u"E&xternal edit"},
                                                 {"mnuFile_FileFolder", u"&Goto file folder"},
                                                 {"mnuInfo", u"&Info on item"},
                                                 {"mnuExit", u"E&xit"},
                                                 {"mnuDelete", u"&Delete item"},
                                                 {"mnuEmpty", u"&Empty grid"},
                                                 {"mnuWhenToEmpty", u"&When to empty"},
                                                 {"mnuFileFolder", u"&Cols to view"},
                                                 {"mnuFont", u"Font for grid"},
                                                 {"mnuColour", u"Grid colo&ur"}}));
    EXPECT_EQ(f.cmdLoad.ToolTipText.Get(), u"Load current file / selected files");
    EXPECT_EQ(f.cmdCancel.ToolTipText.Get(), u"Close window");
    EXPECT_EQ(f.cmdNewText.ToolTipText.Get(), u"Start a new text");
    EXPECT_EQ(f.cmdDelete.ToolTipText.Get(), u"Delete current item");
    EXPECT_EQ(f.cmdEmptyList.ToolTipText.Get(), u"Empty list");
    EXPECT_EQ(f.cmdViewFile.ToolTipText.Get(), u"View current file");
    EXPECT_EQ(f.cmdInfo.ToolTipText.Get(), u"Information on current file");
    EXPECT_EQ(f.cmdGotoFileFolder.ToolTipText.Get(), u"Goto folder with this file");
    EXPECT_EQ(f.cmdFileFolder.ToolTipText.Get(), u"Determine how many columns to view");
    EXPECT_EQ(f.cmdFont.ToolTipText.Get(), u"Set font for grid");
    EXPECT_EQ(f.cmdColour.ToolTipText.Get(), u"Set colour for grid");
    std::vector<Text> titles;
    for (const ListColumn& column : f.ListView1.Columns.Get())
        titles.push_back(column.header);
    EXPECT_EQ(titles, (std::vector<Text>{u"File", u"Location", u"Offset", u"Date"}));
}

TEST_F(FileListTest, TheMenuDoesAsTheButtonsDo) {
    FakeFileViewer viewer(p.app);
    FakeFontPicker fonts(p.app);
    FakeColourPicker colours(p.app);
    fonts.answer = FontSpec{u"Arial", 12};
    colours.answer = Colour{255};
    InList([&](frmFileList& f) {
        f.OfficeMenu1.Choose("mnuFont");
        EXPECT_EQ(p.app.Settings.FileListFontName, u"Arial");
        f.OfficeMenu1.Choose("mnuColour");
        EXPECT_EQ(p.app.Settings.FileListColour, 255);
        f.OfficeMenu1.Choose("mnuFileFolder");
        EXPECT_EQ(p.app.Settings.FileListAllColumns, 1);
        f.OfficeMenu1.Choose("mnuViewFile");
        EXPECT_EQ(viewer.viewed, std::vector<Text>{kA});
        p.user.Answer(Answer::Ok);
        f.OfficeMenu1.Choose("mnuInfo");
        EXPECT_TRUE(p.user.Messages().back().text.starts_with(u"File  a.tbx\r\n"));
        f.OfficeMenu1.Choose("mnuDelete");
        EXPECT_EQ(f.ListView1.Count(), 2);
        f.OfficeMenu1.Choose("mnuExit");
        EXPECT_FALSE(f.Shown());
    });
    InList([](frmFileList& f) { f.OfficeMenu1.Choose("mnuNewText"); });
    EXPECT_EQ(p.app.DialogResult, 11);
    InList([](frmFileList& f) { f.OfficeMenu1.Choose("mnuFile_FileFolder"); });
    EXPECT_EQ(p.app.DialogResult, 99);
    InList([](frmFileList& f) { f.OfficeMenu1.Choose("mnuLoad"); });
    EXPECT_EQ(p.Captions(), std::vector<Text>{u"b.tbx"});
}

// Kept for compatibility: recent-result-two.
TEST_F(FileListTest, AResultThatNoButtonGivesStillAsksForFiles) {
    p.user.On<frmFileList>([this](frmFileList& f) {
        p.app.DialogResult = 2;
        f.Close();
    });
    p.user.OnChooser([this](ListerRequest& request) {
        EXPECT_EQ(request.FileDialogCaption, u"Select a text database to edit");
        EXPECT_EQ(Recents().LoadFromRecent, 1);
        request.ChosenFilePath = kA;
    });
    p.Choose("mnuFile_Recent");
    EXPECT_EQ(p.Captions(), std::vector<Text>{u"a.tbx"});
    EXPECT_EQ(Recents().LoadFromRecent, 0);
}

// Kept for compatibility: record-offset-unused.
TEST_F(FileListTest, TheOffsetOfAnEntryIsReadBackForNobody) {
    Recents().RecentEntries[1] = kA + u" | 17*2026.03.01   14:05";
    InList([](frmFileList& f) { f.cmdLoad.Press(); });
    EXPECT_EQ(Recents().RecentOffsets, std::vector<int>{17});
    EXPECT_EQ(Recents().RecentOffset, 17);
    EXPECT_EQ(Recents().RecentEntries[1], kA + u" | 0*2026.11.21   10:30");
}

TEST_F(FileListTest, ABareNameIsLoadedFromTheCurrentDirectory) {
    p.files.ChangeDir(u"C:\\Data");
    SetRecord({u"a.tbx"});
    InList([](frmFileList& f) {
        EXPECT_EQ(f.ListView1.RowAt(1).texts.at(1), u"");
        f.cmdLoad.Press();
    });
    EXPECT_EQ(p.files.CurrentDir(), u"C:\\Data");
    EXPECT_EQ(p.Tab(1).GridStore().CellText(Row{1}, Col{1}), u"a");
}

TEST_F(FileListTest, AFileAtTheRootOfADriveIsLoadedFromThere) {
    p.files.AddDrive(u'D');
    p.AddTable(u"D:\\x.tbx", {"x"});
    SetRecord({u"D:\\x.tbx"});
    InList([](frmFileList& f) {
        EXPECT_EQ(f.ListView1.RowAt(1).texts.at(1), u"D:");
        f.cmdLoad.Press();
    });
    EXPECT_EQ(p.files.CurrentDir(), u"D:\\");
    EXPECT_EQ(p.AllTabs().TabState[1].Path, u"D:\\x.tbx");
}

// Kept for compatibility: untitled-by-caption.
TEST_F(FileListTest, ASoleTabWhoseCaptionOnlyStartsLikeAnEmptyOneGoesToo) {
    p.AddTable(u"C:\\Data\\Untitled plans.tbx", {"x"});
    p.Open(u"C:\\Data\\Untitled plans.tbx");
    SetRecord({kA});
    InList([](frmFileList& f) { f.cmdLoad.Press(); });
    EXPECT_EQ(p.Captions(), std::vector<Text>{u"a.tbx"});
    EXPECT_EQ(p.AllTabs().CurrentTabIndex, 1);
}

TEST_F(FileListTest, ATabThatWasWrittenToFromOutsideStays) {
    p.Main().Parts().tabs.AddNewTab();
    p.AllTabs().TabState[1].Dirty = -1;
    InList([](frmFileList& f) { f.cmdLoad.Press(); });
    EXPECT_EQ(p.Captions(), (std::vector<Text>{u"Untitled_1.tbx", u"a.tbx"}));
}

// Kept for compatibility: lost-first-file-keeps-tab.
TEST_F(FileListTest, AFirstFileThatIsLostLeavesTheEmptyTabThere) {
    p.Main().Parts().tabs.AddNewTab();
    SetRecord({kGone, kA});
    p.user.On<frmFileList>([](frmFileList& f) {
        f.ListView1.SetSelected(2, true);
        f.cmdLoad.Press();
    });
    p.user.Answer(Answer::Ok);
    p.Choose("mnuFile_Recent");
    EXPECT_EQ(p.Captions(), (std::vector<Text>{u"Untitled_1.tbx", u"a.tbx"}));
}

TEST_F(FileListTest, AHeaderClickLeavesASingleRowAlone) {
    SetRecord({kA});
    InList([](frmFileList& f) { f.ListView1.ClickColumn(1); });
    SetRecord({kB, kA});
    InList([](frmFileList& f) {
        f.ListView1.ClickColumn(1);
        EXPECT_EQ(f.ListView1.RowAt(1).texts.at(0), u"a.tbx");
    });
}

TEST_F(FileListTest, AHeaderClickOnASingleRowSortsNoLaterListEither) {
    frmFileList form(p.app, Recents(), p.Main());
    SetRecord({kA});
    p.user.On<frmFileList>([](frmFileList& f) {
        f.ListView1.ClickColumn(1);
        f.cmdCancel.Press();
    });
    form.ShowModal();
    SetRecord({kB, kA});
    p.user.On<frmFileList>([](frmFileList& f) {
        EXPECT_EQ(f.ListView1.RowAt(1).texts.at(0), u"b.tbx");
        f.ListView1.ClickColumn(1);
        EXPECT_EQ(f.ListView1.RowAt(1).texts.at(0), u"a.tbx");
        f.cmdCancel.Press();
    });
    form.ShowModal();
}

TEST_F(FileListTest, TheCutIsOnlyMadeWhenTheLastEntryIsInUse) {
    std::vector<Text> paths;
    for (int i = 1; i < RecentRecord::kEntries; ++i)
        paths.push_back(u"C:\\f" + NumberText(i) + u".tbx");
    SetRecord(paths);
    Recents().EmptyWhenFull = 1;
    InList([](frmFileList& f) { EXPECT_EQ(f.ListView1.Count(), 71); });
}

TEST_F(FileListTest, AColourOfZeroIsBlackAndOneBelowZeroLeavesTheListsOwn) {
    InList([](frmFileList& f) { EXPECT_EQ(f.ListView1.BackColor.Get(), Colour{0}); });
    p.app.Settings.FileListColour = -1;
    InList([](frmFileList& f) { EXPECT_EQ(f.ListView1.BackColor.Get(), kNoColour); });
}

TEST_F(FileListTest, KeysOfTheListAreWithoutModifiers) {
    InList([](frmFileList& f) {
        for (const int code : {Key::Escape, Key::Return, Key::Delete, Key::Space}) {
            EXPECT_FALSE(Press(f, code, Mask::Shift)) << code;
        }
        EXPECT_FALSE(Press(f, Key::Back));
        EXPECT_TRUE(f.Shown());
        EXPECT_EQ(f.ListView1.Count(), 3);
    });
}

TEST_F(FileListTest, WithoutAViewerAndPickersTheirCommandsDoNothing) {
    p.app.SetPort<FontPicker>(nullptr);
    p.app.SetPort<ColourPicker>(nullptr);
    InList([](frmFileList& f) {
        for (CommandButton* button : {&f.cmdViewFile, &f.cmdFont, &f.cmdColour})
            button->Press();
        f.OfficeMenu1.Choose("mnuExternalEdit");
        EXPECT_TRUE(f.Shown());
    });
    EXPECT_TRUE(p.user.Messages().empty());
}

TEST_F(FileListTest, AnEmptyListTakesEveryCommandInSilence) {
    Recents().Empty();
    InList([](frmFileList& f) {
        EXPECT_EQ(f.Label2.Caption.Get(), u"Files:  0");
        for (CommandButton* button : {&f.cmdDelete, &f.cmdViewFile, &f.cmdInfo, &f.cmdGotoFileFolder})
            button->Press();
        EXPECT_TRUE(f.Shown());
        f.cmdLoad.Press();
    });
    EXPECT_TRUE(p.user.Messages().empty());
}

} // namespace
} // namespace korvane
