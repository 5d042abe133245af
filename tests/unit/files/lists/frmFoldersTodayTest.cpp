#include "files/lists/frmFoldersToday.h"

#include "context/exchange/FolderPick.h"
#include "context/exchange/SystemDirs.h"
#include "files/lists/FolderEntries.h"
#include "support/DesignerFile.h"
#include "support/FakeSystemFileDialog.h"
#include "support/MenuEntries.h"
#include "support/TestApp.h"
#include "testing/MemoryPatientDisk.h"

#include <gmock/gmock.h>

#include <functional>

namespace korvane {
namespace {

using testing::ElementsAre;

const Text kList = u"C:\\Data\\work.lst";

class FoldersTodayTest : public testing::Test {
protected:
    FoldersTodayTest() {
        t.screen.SetWorkArea({Twips{0}, Twips{0}, Twips{30000}, Twips{16000}});
        for (const TextView folder : {u"C:\\a", u"C:\\b", u"C:\\c", u"C:\\Data", u"C:\\Users\\me\\Documents"})
            t.files.AddDir(folder);
        t.files.AddFile(kList, "C:\\a\r\nC:\\b\r\n");
        t.app.Settings.FoldersFile = kList;
        t.app.Exchange<SystemDirs>().DocumentsDir = u"C:\\Users\\me\\Documents\\";
    }

    /// Opens the window and lets `act` be done in it; what leaves it open is closed.
    void InWindow(const std::function<void(frmFoldersToday&)>& act) {
        t.user.On<frmFoldersToday>([&act](frmFoldersToday& f) {
            f.Activate();
            act(f);
            if (f.Shown()) f.cmdExit.Press();
        });
        Pick() = {};
        frmFoldersToday(t.app, u"C:\\Data").ShowModal();
    }
    void Visit(const std::vector<Text>& folders) { t.app.Exchange<FolderPick>().TodaysFolders = folders; }
    Text& Pick() { return t.app.Exchange<FolderPick>().FolderPicked; }
    static bool Press(Control& control, int code, int mask = Mask::None) {
        KeyEvent key{code, mask};
        control.KeyDown(key);
        return key.consumed;
    }
    /// Clicks an item of the side bar, counted from 1.
    static void ClickBar(frmFoldersToday& f, int item) { f.iGridListBar.ClickCell(Row{item}, Col{1}); }
    std::string Written() const { return t.files.Contents(kList).value_or("(no such file)"); }

    TestApp t;
    FakeSystemFileDialog dialog{t.app};
};

// ---- Opening and closing -------------------------------------------------------------------------------

TEST_F(FoldersTodayTest, ShowsTheListWithItsLastEntrySelected) {
    InWindow([](frmFoldersToday& f) {
        EXPECT_THAT(EntriesOf(f.lstFoldersToday), ElementsAre(u"C:\\a", u"C:\\b"));
        EXPECT_EQ(f.lstFoldersToday.ListIndex(), 1);
        EXPECT_EQ(f.Caption.Get(), u"Folders list: " + kList);
        EXPECT_EQ(f.Focused(), &f.lstFoldersToday);
    });
}

TEST_F(FoldersTodayTest, MergesTheFoldersOfTheSession) {
    Visit({u"C:\\b", u"C:\\c", u"C:\\B"});
    InWindow([](frmFoldersToday& f) {
        EXPECT_THAT(EntriesOf(f.lstFoldersToday), ElementsAre(u"C:\\a", u"C:\\b", u"C:\\c", u"C:\\B"));
        EXPECT_EQ(f.lstFoldersToday.ListIndex(), 3);
    });
}

TEST_F(FoldersTodayTest, ComingToTheFrontAgainMergesNothing) {
    Visit({u"C:\\c"});
    InWindow([](frmFoldersToday& f) {
        f.lstFoldersToday.RemoveItem(2);
        f.Activate();
        EXPECT_EQ(f.lstFoldersToday.ListCount(), 2);
    });
}

TEST_F(FoldersTodayTest, OpenedAgainItDoublesNothing) {
    Visit({u"C:\\c"});
    for (int run = 0; run < 2; ++run) {
        InWindow([](frmFoldersToday& f) {
            EXPECT_THAT(EntriesOf(f.lstFoldersToday), ElementsAre(u"C:\\a", u"C:\\b", u"C:\\c"));
        });
    }
    EXPECT_EQ(Written(), "C:\\a\r\nC:\\b\r\nC:\\c\r\n");
}

TEST_F(FoldersTodayTest, AFolderOnASilentDiskStaysInTheList) {
    MemoryPatientDisk disk(t.files, t.clock);
    t.app.SetPort<PatientDisk>(&disk);
    t.files.Erase(u"C:\\b");
    disk.Hold();
    InWindow([&](frmFoldersToday& f) {
        EXPECT_THAT(EntriesOf(f.lstFoldersToday), ElementsAre(u"C:\\a", u"C:\\b"));
        EXPECT_EQ(disk.Asked(), 1);
    });
    EXPECT_EQ(Written(), "C:\\a\r\nC:\\b\r\n");
}

TEST_F(FoldersTodayTest, EmptyLinesAndVanishedFoldersDropOut) {
    t.files.AddFile(kList, "C:\\a\r\n\r\nC:\\gone\r\n;C:\\b\r\nC:\\Data\\work.lst\r\n");
    InWindow([](frmFoldersToday& f) { EXPECT_THAT(EntriesOf(f.lstFoldersToday), ElementsAre(u"C:\\a")); });
    EXPECT_EQ(Written(), "C:\\a\r\n");
}

TEST_F(FoldersTodayTest, WithoutAListFileOnlyTheSessionCounts) {
    t.files.Erase(kList);
    Visit({u"C:\\c"});
    InWindow([](frmFoldersToday& f) { EXPECT_THAT(EntriesOf(f.lstFoldersToday), ElementsAre(u"C:\\c")); });
    EXPECT_EQ(Written(), "C:\\c\r\n");
}

TEST_F(FoldersTodayTest, WithoutAListAndFoldersGotoGivesNothing) {
    t.app.Settings.FoldersFile.clear();
    InWindow([](frmFoldersToday& f) {
        EXPECT_EQ(f.Caption.Get(), u"Folders list: ");
        EXPECT_EQ(f.lstFoldersToday.ListCount(), 0);
        f.cmdGoto.Press();
    });
    EXPECT_EQ(t.app.DialogResult, 1);
    EXPECT_EQ(Pick(), u"");
}

TEST_F(FoldersTodayTest, AListWithoutANameIsNotWritten) {
    t.app.Settings.FoldersFile.clear();
    Visit({u"C:\\c"});
    InWindow([](frmFoldersToday&) {});
    EXPECT_EQ(Written(), "C:\\a\r\nC:\\b\r\n");
}

TEST_F(FoldersTodayTest, AFailureToWriteIsReported) {
    t.files.SetFileReadOnly(kList);
    t.user.On<frmFoldersToday>([](frmFoldersToday& f) {
        f.Activate();
        f.cmdExit.Press();
    });
    t.user.Answer(Answer::Ok);
    frmFoldersToday(t.app, u"").ShowModal();
    EXPECT_TRUE(t.user.Messages().back().text.starts_with(u"Cannot save this file :\r\n\r\n" + kList));
}

TEST_F(FoldersTodayTest, AFileThatCannotBeReadIsReportedAndLeftAlone) {
    const std::string bytes("PK\0\1", 4);
    t.files.AddFile(kList, bytes);
    t.user.On<frmFoldersToday>([](frmFoldersToday& f) {
        f.Activate();
        f.cmdExit.Press();
    });
    t.user.Answer({u"Cannot load the following file:\r\n\r\n" + kList + u"\r\n\r\nCurrent dir.: C:\\",
                   MessageIcon::Exclamation},
                  Answer::Ok);
    frmFoldersToday(t.app, u"").ShowModal();
    EXPECT_EQ(Written(), bytes);
}

TEST_F(FoldersTodayTest, AFileThatCannotBeReadIsNotReplacedByTheFoldersOfTheSession) {
    const std::string bytes("PK\0\1", 4);
    t.files.AddFile(kList, bytes);
    t.app.Exchange<FolderPick>().TodaysFolders = {u"C:\\a"};
    t.user.On<frmFoldersToday>([](frmFoldersToday& f) {
        f.Activate();
        EXPECT_EQ(f.lstFoldersToday.ListCount(), 1);
        f.cmdExit.Press();
    });
    t.user.Answer(Answer::Ok);
    frmFoldersToday(t.app, u"").ShowModal();
    EXPECT_EQ(Written(), bytes);
}

TEST_F(FoldersTodayTest, AWindowThatNeverCameUpWritesNothing) {
    frmFoldersToday f(t.app, u"");
    f.EnsureLoaded();
    f.Close();
    EXPECT_EQ(Written(), "C:\\a\r\nC:\\b\r\n");
}

TEST_F(FoldersTodayTest, KeepsItsPlaceAndThatOfTheList) {
    Settings& settings = t.app.Settings;
    settings.FoldersGeo1 = 1600;
    settings.FoldersGeo2 = 1500;
    settings.FoldersGeo3 = 8000;
    settings.FoldersGeo4 = 7000;
    InWindow([](frmFoldersToday& f) {
        EXPECT_EQ(f.Top.Get(), Twips{1600});
        EXPECT_EQ(f.Left.Get(), Twips{1500});
        EXPECT_EQ(f.Height.Get(), Twips{8000});
        EXPECT_EQ(f.Width.Get(), Twips{7000});
        f.Top = Twips{1700};
        f.lstFoldersToday.Select(0);
    });
    EXPECT_EQ(settings.FoldersGeo1, 1700);
    EXPECT_EQ(settings.FoldersGeo2, 1500);
    EXPECT_EQ(settings.FoldersGeo3, 8000);
    EXPECT_EQ(settings.FoldersGeo4, 7000);
    EXPECT_EQ(t.app.Exchange<FolderPick>().FoldersListIndex, 0);
}

// ---- Picking a folder ----------------------------------------------------------------------------------

TEST_F(FoldersTodayTest, PicksTheSelectedFolder) {
    InWindow([](frmFoldersToday& f) { EXPECT_TRUE(Press(f.lstFoldersToday, Key::Return)); });
    EXPECT_EQ(t.app.DialogResult, 1);
    EXPECT_EQ(Pick(), u"C:\\b");
    InWindow([](frmFoldersToday& f) { f.lstFoldersToday.DoubleClick(0); });
    EXPECT_EQ(Pick(), u"C:\\a");
    InWindow([](frmFoldersToday& f) { f.OfficeMenu1.Choose("mnuGoto"); });
    EXPECT_EQ(Pick(), u"C:\\b");
}

TEST_F(FoldersTodayTest, ClosingPicksNothing) {
    InWindow([](frmFoldersToday& f) { f.OfficeMenu1.Choose("mnuClose"); });
    EXPECT_EQ(t.app.DialogResult, 0);
    InWindow([](frmFoldersToday& f) { EXPECT_TRUE(Press(f.lstFoldersToday, Key::Escape)); });
    EXPECT_EQ(t.app.DialogResult, 0);
    EXPECT_EQ(Pick(), u"");
}

// ---- Changes -------------------------------------------------------------------------------------------

TEST_F(FoldersTodayTest, AddsTheCurrentFolderAtTheCurrentPlace) {
    InWindow([](frmFoldersToday& f) {
        f.cmdAddCurrentFolder.Press();
        EXPECT_THAT(EntriesOf(f.lstFoldersToday), ElementsAre(u"C:\\a", u"C:\\Data", u"C:\\b"));
        EXPECT_EQ(f.lstFoldersToday.ListIndex(), 1);
    });
    EXPECT_EQ(Written(), "C:\\a\r\nC:\\Data\r\nC:\\b\r\n");
}

TEST_F(FoldersTodayTest, AFolderThatIsThereIsNotAdded) {
    t.user.On<frmFoldersToday>([](frmFoldersToday& f) {
        f.Activate();
        EXPECT_TRUE(Press(f.lstFoldersToday, Key::Insert));
        EXPECT_EQ(f.lstFoldersToday.ListCount(), 2);
        f.cmdExit.Press();
    });
    t.user.Answer({u"This folder is already in the list: \r\n\r\nC:\\a", MessageIcon::Information},
                  Answer::Ok);
    frmFoldersToday(t.app, u"C:\\a").ShowModal();
}

TEST_F(FoldersTodayTest, AnEmptyFolderIsNotWritten) {
    t.user.On<frmFoldersToday>([](frmFoldersToday& f) {
        f.Activate();
        f.cmdAddCurrentFolder.Press();
        f.cmdExit.Press();
    });
    frmFoldersToday(t.app, u"").ShowModal();
    EXPECT_EQ(Written(), "C:\\a\r\nC:\\b\r\n");
}

TEST_F(FoldersTodayTest, DeletesWithoutAQuestion) {
    InWindow([](frmFoldersToday& f) {
        EXPECT_TRUE(Press(f.lstFoldersToday, Key::Delete));
        EXPECT_THAT(EntriesOf(f.lstFoldersToday), ElementsAre(u"C:\\a"));
        EXPECT_EQ(f.lstFoldersToday.ListIndex(), 0);
        f.cmdDelete.Press();
        f.OfficeMenu1.Choose("mnuDelete");
        EXPECT_EQ(f.lstFoldersToday.ListCount(), 0);
    });
    EXPECT_EQ(Written(), "");
}

TEST_F(FoldersTodayTest, MovesTheEntry) {
    InWindow([](frmFoldersToday& f) {
        EXPECT_TRUE(Press(f.lstFoldersToday, 'U', Mask::Ctrl));
        EXPECT_THAT(EntriesOf(f.lstFoldersToday), ElementsAre(u"C:\\b", u"C:\\a"));
        EXPECT_TRUE(Press(f.lstFoldersToday, 'D', Mask::Ctrl));
        EXPECT_THAT(EntriesOf(f.lstFoldersToday), ElementsAre(u"C:\\a", u"C:\\b"));
        EXPECT_EQ(f.lstFoldersToday.ListIndex(), 1);
    });
}

// ---- Other lists ---------------------------------------------------------------------------------------

TEST_F(FoldersTodayTest, LoadsAnotherListStartingFromThePresentOne) {
    t.files.AddFile(u"C:\\Data\\other.lst", "C:\\c\r\nC:\\gone\r\n");
    dialog.answer = u"C:\\Data\\other.lst";
    Visit({u"C:\\Data"});
    InWindow([](frmFoldersToday& f) {
        EXPECT_TRUE(Press(f.lstFoldersToday, 'L', Mask::Ctrl));
        EXPECT_THAT(EntriesOf(f.lstFoldersToday), ElementsAre(u"C:\\c"));
        EXPECT_EQ(f.Caption.Get(), u"Folders list: C:\\Data\\other.lst");
    });
    EXPECT_THAT(dialog.requests,
                ElementsAre(SystemFileDialog::Request{
                    SystemFileDialog::Purpose::Open, u"List files (*.lst)|*.lst|All files (*.*)|*.*",
                    u"Get list of work session folders", u"work.lst", u"", u"C:\\Data"}));
    EXPECT_EQ(t.app.Settings.FoldersFile, u"C:\\Data\\other.lst");
    EXPECT_EQ(t.files.Contents(u"C:\\Data\\other.lst"), "C:\\c\r\n");
    EXPECT_EQ(Written(), "C:\\a\r\nC:\\b\r\n");
}

TEST_F(FoldersTodayTest, AFileThatIsNoListIsNotLoaded) {
    const std::string bytes("\0", 1);
    t.files.AddFile(u"C:\\Data\\picture.png", bytes);
    dialog.answer = u"C:\\Data\\picture.png";
    t.user.On<frmFoldersToday>([](frmFoldersToday& f) {
        f.Activate();
        f.OfficeMenu1.Choose("mnuLoadList");
        EXPECT_EQ(f.lstFoldersToday.ListCount(), 2);
        f.cmdExit.Press();
    });
    t.user.Answer(Answer::Ok);
    frmFoldersToday(t.app, u"").ShowModal();
    EXPECT_EQ(t.app.Settings.FoldersFile, kList);
    EXPECT_EQ(t.files.Contents(u"C:\\Data\\picture.png"), bytes);
}

TEST_F(FoldersTodayTest, SavesTheListUnderAnotherName) {
    dialog.answer = u"C:\\Data\\other.lst";
    InWindow([this](frmFoldersToday& f) {
        EXPECT_TRUE(Press(f.lstFoldersToday, 'S', Mask::Ctrl));
        EXPECT_EQ(t.files.Contents(u"C:\\Data\\other.lst"), "C:\\a\r\nC:\\b\r\n");
        EXPECT_EQ(f.Caption.Get(), u"Folders list: C:\\Data\\other.lst");
        f.cmdDelete.Press();
    });
    EXPECT_THAT(dialog.requests, ElementsAre(SystemFileDialog::Request{
                                     SystemFileDialog::Purpose::Save, u"List files (*.lst)|*.lst",
                                     u"Save list of work session folders", u"", u"lst"}));
    EXPECT_EQ(t.app.Settings.FoldersFile, u"C:\\Data\\other.lst");
    EXPECT_EQ(t.files.Contents(u"C:\\Data\\other.lst"), "C:\\a\r\n");
    EXPECT_EQ(Written(), "C:\\a\r\nC:\\b\r\n");
}

TEST_F(FoldersTodayTest, ACancelledDialogChangesNothing) {
    InWindow([](frmFoldersToday& f) {
        f.OfficeMenu1.Choose("mnuLoadList");
        f.OfficeMenu1.Choose("mnuSaveList");
        EXPECT_EQ(f.lstFoldersToday.ListCount(), 2);
    });
    EXPECT_EQ(t.app.Settings.FoldersFile, kList);
}

// ---- The side bar --------------------------------------------------------------------------------------

TEST_F(FoldersTodayTest, TheSideBarInItsOrder) {
    InWindow([](frmFoldersToday& f) {
        const Grid& bar = f.iGridListBar.Store();
        std::vector<Text> captions;
        for (Row row{1}; row <= bar.RowCount(); ++row)
            captions.push_back(bar.CellText(row, Col{1}));
        EXPECT_THAT(captions,
                    ElementsAre(u"Load list", u"Save list", u"Goto folder", u"Favourite Locations",
                                u"My Documents", u"Downloads folder", u"Desktop folder", u"Close window"));
        EXPECT_EQ(f.iGridListBar.HandImage.Get(), u"C:\\Korvane\\HandOpen.ico");
        EXPECT_EQ(bar.CurRow(), Row{1});
    });
}

TEST_F(FoldersTodayTest, TheSideBarsFirstItemsAreCommandsOfTheList) {
    InWindow([this](frmFoldersToday& f) {
        ClickBar(f, 1);
        ClickBar(f, 2);
        EXPECT_EQ(dialog.requests.size(), 2U);
        ClickBar(f, 3);
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(Pick(), u"C:\\b");
}

TEST_F(FoldersTodayTest, TheSideBarLeadsToTheFavourites) {
    InWindow([](frmFoldersToday& f) { ClickBar(f, 4); });
    EXPECT_EQ(t.app.DialogResult, 99);
    EXPECT_EQ(Pick(), u"");
}

TEST_F(FoldersTodayTest, TheSideBarLeadsToTheDocuments) {
    InWindow([](frmFoldersToday& f) { ClickBar(f, 5); });
    EXPECT_EQ(t.app.DialogResult, 1);
    EXPECT_EQ(Pick(), u"C:\\Users\\me\\Documents\\");
}

TEST_F(FoldersTodayTest, TheSideBarLeadsToDownloadsAndDesktop) {
    t.files.AddDir(u"C:\\Users\\me\\Downloads");
    t.files.AddDir(u"C:\\Users\\me\\Desktop");
    InWindow([](frmFoldersToday& f) { ClickBar(f, 6); });
    EXPECT_EQ(Pick(), u"C:\\Users\\me\\Downloads");
    InWindow([](frmFoldersToday& f) { ClickBar(f, 7); });
    EXPECT_EQ(Pick(), u"C:\\Users\\me\\Desktop");
    EXPECT_EQ(t.app.DialogResult, 1);
}

// Kept for compatibility: documents-cut-ten.
TEST_F(FoldersTodayTest, AFolderOfDocumentsOfAnotherNameLeadsAstray) {
    t.app.Exchange<SystemDirs>().DocumentsDir = u"C:\\Users\\me\\Dokumente\\x\\";
    t.user.On<frmFoldersToday>([](frmFoldersToday& f) {
        f.Activate();
        ClickBar(f, 6);
        EXPECT_TRUE(f.Shown());
        f.cmdExit.Press();
    });
    t.user.Answer({u"Cannot change to:\r\n\r\nC:\\Users\\me\\DoDownloads", MessageIcon::Exclamation},
                  Answer::Ok);
    frmFoldersToday(t.app, u"").ShowModal();
    EXPECT_EQ(t.app.DialogResult, 0);
}

TEST_F(FoldersTodayTest, AShortFolderOfDocumentsIsCutToNothing) {
    t.app.Exchange<SystemDirs>().DocumentsDir = u"C:\\";
    t.user.On<frmFoldersToday>([](frmFoldersToday& f) {
        f.Activate();
        ClickBar(f, 7);
        f.cmdExit.Press();
    });
    t.user.Answer({u"Cannot change to:\r\n\r\nDesktop", MessageIcon::Exclamation}, Answer::Ok);
    frmFoldersToday(t.app, u"").ShowModal();
}

TEST_F(FoldersTodayTest, TheSideBarClosesTheWindow) {
    InWindow([](frmFoldersToday& f) {
        ClickBar(f, 8);
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(t.app.DialogResult, 0);
}

TEST_F(FoldersTodayTest, SpaceAndReturnRunTheItemOfTheSideBar) {
    InWindow([](frmFoldersToday& f) {
        f.iGridListBar.Store().SetCurRow(Row{4});
        EXPECT_TRUE(Press(f.iGridListBar, Key::Space));
    });
    EXPECT_EQ(t.app.DialogResult, 99);
    InWindow([](frmFoldersToday& f) {
        f.iGridListBar.Store().SetCurRow(Row{5});
        EXPECT_TRUE(Press(f.iGridListBar, Key::Return));
    });
    EXPECT_EQ(t.app.DialogResult, 1);
}

TEST_F(FoldersTodayTest, TheFocusChangesBetweenListAndSideBar) {
    InWindow([](frmFoldersToday& f) {
        for (const auto& [code, mask] :
             {std::pair<int, int>{'S', Mask::Ctrl | Mask::Alt}, {'X', Mask::Alt}}) {
            EXPECT_TRUE(Press(f.lstFoldersToday, code, mask));
            f.cmdExit.SetFocus();
            EXPECT_TRUE(Press(f.iGridListBar, code, mask));
            EXPECT_EQ(f.Focused(), &f.lstFoldersToday);
        }
    });
}

/// Notes how often a grid was to get the keyboard.
struct FocusNote final : GridListener {
    void RowsChanged(Row, Row) override {}
    void TableChanged() override {}
    void ColumnChanged(Col) override {}
    void LookChanged() override {}
    void CurrentCellChanged() override {}
    void FocusWanted() override { ++wanted; }
    void RowWantedInView(Row) override {}

    int wanted = 0;
};

TEST_F(FoldersTodayTest, TheListGivesTheKeyboardToTheSideBar) {
    InWindow([](frmFoldersToday& f) {
        FocusNote note;
        f.iGridListBar.Store().SetListener(&note);
        Press(f.lstFoldersToday, 'X', Mask::Alt);
        EXPECT_EQ(note.wanted, 1);
        Press(f.lstFoldersToday, 'S', Mask::Ctrl | Mask::Alt);
        EXPECT_EQ(note.wanted, 2);
        f.iGridListBar.Store().SetListener(nullptr);
    });
}

TEST_F(FoldersTodayTest, OtherKeysOfTheSideBarPass) {
    InWindow([](frmFoldersToday& f) { EXPECT_FALSE(Press(f.iGridListBar, Key::Down)); });
}

// ---- Other commands ------------------------------------------------------------------------------------

TEST_F(FoldersTodayTest, ExploresTheFolder) {
    InWindow([](frmFoldersToday& f) {
        f.cmdExplorer.Press();
        f.OfficeMenu1.Choose("mnuExplorer");
    });
    const OpenRequest expected{u"explore", u"C:\\b", u"", u"C:\\b"};
    EXPECT_THAT(t.shell.Opened(), ElementsAre(expected, expected));
}

TEST_F(FoldersTodayTest, ShowsTheDesktop) {
    InWindow([](frmFoldersToday& f) {
        f.cmdDesktop.Press();
        f.OfficeMenu1.Choose("mnuDesktop");
    });
    const ShellCall expected{ShellCall::Kind::ToggleDesktop, u""};
    EXPECT_THAT(t.shell.Calls(), ElementsAre(expected, expected));
}

TEST_F(FoldersTodayTest, StartsTheCompanionWithTheFolder) {
    t.files.AddFile(u"C:\\Drive_G\\Sandrel\\Hadrell\\Lorrit\\Lorrit.exe");
    InWindow([](frmFoldersToday& f) { f.OfficeMenu1.Choose("mnuFileLorrit"); });
    EXPECT_THAT(t.shell.Starts(),
                ElementsAre(ProgramStart{u"C:\\Drive_G\\Sandrel\\Hadrell\\Lorrit\\Lorrit.exe", {u"C:\\b"}}));
}

// ---- Texts ---------------------------------------------------------------------------------------------

TEST_F(FoldersTodayTest, TheMenuInItsOrder) {
    frmFoldersToday f(t.app, u"");
    EXPECT_EQ(EntriesOf(f.OfficeMenu1), (Entries{{"mnuClose", u"&Close"},
                                                 {"mnuDesktop", u"Des&ktop"},
                                                 {"mnuExplorer", u"&Explorer"},
                                                 {"mnuDelete", u"&Delete"},
                                                 {"mnuFileLorrit", u"&File Lorrit"},
                                                 {"mnuLoadList", u"&Load list"},
                                                 {"mnuSaveList", u"&Save list"},
                                                 {"mnuAddFolder", u"&Add current folder"},
                                                 {"mnuGoto", u"&Goto folder"}}));
}

TEST_F(FoldersTodayTest, TheTips) {
    frmFoldersToday f(t.app, u"");
    EXPECT_EQ(f.cmdAddCurrentFolder.ToolTipText.Get(), u"Add current folder to list");
    EXPECT_EQ(f.cmdExplorer.ToolTipText.Get(), u"Windows Explorer");
    EXPECT_EQ(f.cmdGoto.ToolTipText.Get(), u"Goto selected folder");
    EXPECT_EQ(f.cmdDelete.ToolTipText.Get(), u"Delete item from list");
    EXPECT_EQ(f.cmdExit.ToolTipText.Get(), u"Close window");
    EXPECT_EQ(f.cmdDesktop.ToolTipText.Get(), u"Show desktop");
}

TEST_F(FoldersTodayTest, EveryControlStandsInTheLook) {
    ExpectLook(frmFoldersToday(t.app, u""), "files/lists", {});
}

TEST(FoldersTodayOnPosix, DownloadsAndDesktopStandBesideTheDocuments) {
    TestApp t(PathStyle::Posix);
    t.app.Exchange<SystemDirs>().DocumentsDir = u"/home/me/Documents/";
    t.files.AddDir(u"/home/me/Downloads");
    t.user.On<frmFoldersToday>([](frmFoldersToday& f) {
        f.Activate();
        f.iGridListBar.ClickCell(Row{6}, Col{1});
    });
    frmFoldersToday(t.app, u"").ShowModal();
    EXPECT_EQ(t.app.Exchange<FolderPick>().FolderPicked, u"/home/me/Downloads");
}

} // namespace
} // namespace korvane
