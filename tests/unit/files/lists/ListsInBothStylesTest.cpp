// Lists of programs and folders at the limits of their rules.

#include "context/exchange/FolderPick.h"
#include "context/exchange/ListerRequest.h"
#include "context/exchange/OpenWithRequest.h"
#include "context/exchange/SystemDirs.h"
#include "files/lists/FolderEntries.h"
#include "files/lists/frmFavouriteLocations.h"
#include "files/lists/frmFoldersToday.h"
#include "files/lists/frmOpenFileWith.h"
#include "support/InBothStyles.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ListsTest : public InBothStyles {
protected:
    ListsTest() {
        t.screen.SetWorkArea({Twips{0}, Twips{0}, Twips{30000}, Twips{16000}});
        t.files.AddDir(At(u"Data/Sub"));
        app.Settings.OpenWithListFile = app.Settings.FavCurrentFile = app.Settings.FoldersFile = list;
        app.Exchange<OpenWithRequest>().ViewWithFile = At(u"Data/file");
    }
    template <class ScriptT>
    void ShowPrograms(ScriptT script) {
        t.user.On<frmOpenFileWith>(script);
        frmOpenFileWith(app).ShowModal();
    }
    template <class ScriptT>
    void ShowFavourites(ScriptT script) {
        t.user.On<frmFavouriteLocations>(script);
        frmFavouriteLocations(app, owner, At(u"Data")).ShowModal();
    }
    template <class ScriptT>
    void ShowFolders(ScriptT script) {
        t.user.On<frmFoldersToday>([script](frmFoldersToday& f) {
            f.Activate();
            script(f);
            if (f.Shown()) f.cmdExit.Press();
        });
        app.Exchange<FolderPick>().FolderPicked.clear();
        frmFoldersToday(app, At(u"Data")).ShowModal();
    }

    const Text list = At(u"Data/my.lst");
    Form owner{t.app.Forms(), "frmMain", u""};
};
KORVANE_IN_BOTH_STYLES(ListsTest);

// Programs.

TEST_P(ListsTest, OfAnOddNumberOfLinesTheLastProgramHasNoFolder) {
    t.files.AddFile(list, "a.exe\r\n" + ToUtf8(At(u"Data/")) + "\r\nb.exe\r\n");
    ShowPrograms([this](frmOpenFileWith& f) {
        ASSERT_EQ(f.ListView1.Count(), 2);
        EXPECT_THAT(f.ListView1.RowAt(1).texts, ElementsAre(u"a.exe", At(u"Data/")));
        EXPECT_THAT(f.ListView1.RowAt(2).texts, ElementsAre(u"b.exe", u""));
        f.Close();
    });
}

TEST_P(ListsTest, AFileWithoutAPointOrOfAnotherKindGetsTheLastProposal) {
    t.files.AddFile(list, "a.exe\r\n\r\n;\r\nx\r\nDunmark.exe\r\nx\r\n");
    for (const TextView name : {u"Data/file", u"Data/file.xyz"}) {
        app.Exchange<OpenWithRequest>().ViewWithFile = At(name);
        app.Settings.OpenWithOption = 1;
        ShowPrograms([](frmOpenFileWith& f) {
            EXPECT_EQ(f.ListView1.TextAt(f.ListView1.Current(), 1), u"Dunmark.exe");
            f.Close();
        });
    }
}

TEST_P(ListsTest, ACommandIsNeverLookedFor) {
    t.files.AddFile(list, "rundll32.exe\r\nshimgvw.dll,ImageView\r\n");
    ShowPrograms([](frmOpenFileWith& f) { f.cmdLoadFile.Press(); });
    EXPECT_EQ(app.DialogResult, 2);
    EXPECT_EQ(app.Exchange<OpenWithRequest>().ViewWithProgram, u"rundll32.exe shimgvw.dll,ImageView");
}

TEST_P(ListsTest, TwoTogglesGiveTheFolderBack) {
    t.files.AddFile(list, "a.exe\r\nC:\\Program Files\\A\\\r\n");
    ShowPrograms([](frmOpenFileWith& f) {
        f.cmdToggle.Press();
        EXPECT_EQ(f.ListView1.TextAt(1, 2), u"C:\\Program Files (x86)\\A\\");
        f.cmdToggle.Press();
        EXPECT_EQ(f.ListView1.TextAt(1, 2), u"C:\\Program Files\\A\\");
        f.Close();
    });
}

// Favourites.

TEST_P(ListsTest, AnAbsentListIsEmptyAndStaysAbsent) {
    app.Settings.FavCurrentFile.clear();
    ShowFavourites([](frmFavouriteLocations& f) {
        EXPECT_THAT(EntriesOf(f.List1), IsEmpty());
        f.cmdExit.Press();
    });
    EXPECT_FALSE(t.files.FileExists(list));
    EXPECT_THAT(t.user.Messages(), IsEmpty());
}

TEST_P(ListsTest, AMirroredFavouriteIsReturnedInItsOtherFormWhereThereAreDrives) {
    t.files.AddFile(list, "E:\\Work\r\n");
    if (!IsPosix()) t.files.AddDir(u"C:\\Drive_E\\Work");
    ShowFavourites([this](frmFavouriteLocations& f) {
        if (IsPosix()) t.user.Answer(Answer::Ok);
        f.List1.Select(0);
        f.cmdGotoFolder.Press();
        EXPECT_EQ(f.Shown(), IsPosix());
        if (f.Shown()) f.cmdExit.Press();
    });
    EXPECT_EQ(app.Exchange<ListerRequest>().ChosenFilePath, IsPosix() ? u"" : u"C:\\Drive_E\\Work");
}

TEST_P(ListsTest, TheSameFolderIsAddedOnceAndCapitalsMakeAnother) {
    t.files.AddFile(list, ToUtf8(At(u"DATA")) + "\r\n");
    ShowFavourites([this](frmFavouriteLocations& f) {
        f.cmdAddFolder.Press();
        EXPECT_EQ(f.List1.ListCount(), 2);
        t.user.Answer(
            {u"This folder is already in the list: \r\n\r\n" + At(u"Data"), MessageIcon::Information},
            Answer::Ok);
        f.cmdAddFolder.Press();
        EXPECT_EQ(f.List1.ListCount(), 2);
        f.cmdExit.Press();
    });
}

TEST_P(ListsTest, ACommentVanishesAtTheNextClosing) {
    t.files.AddFile(list, ";a comment\r\n" + ToUtf8(At(u"Data")) + "\r\n");
    ShowFavourites([](frmFavouriteLocations& f) { f.cmdExit.Press(); });
    EXPECT_EQ(Contents(u"Data/my.lst"), ToUtf8(At(u"Data")) + "\r\n");
}

// The folders of the day.

TEST_P(ListsTest, WithoutAListAndFoldersTheWindowIsEmptyAndGotoGivesNothing) {
    app.Settings.FoldersFile.clear();
    ShowFolders([](frmFoldersToday& f) {
        EXPECT_EQ(f.lstFoldersToday.ListCount(), 0);
        f.cmdGoto.Press();
    });
    EXPECT_EQ(app.Exchange<FolderPick>().FolderPicked, u"");
}

// Kept for compatibility: documents-cut-ten.
TEST_P(ListsTest, ADocumentsFolderOfAnotherLengthLeadsAstrayAndTheBoxSaysSo) {
    app.Exchange<SystemDirs>().DocumentsDir = At(u"Users/me/Papers/");
    t.files.AddDir(At(u"Users/me/Downloads"));
    ShowFolders([this](frmFoldersToday& f) {
        t.user.Answer({u"Cannot change to:\r\n\r\n" + At(u"Users/Downloads"), MessageIcon::Exclamation},
                      Answer::Ok);
        f.iGridListBar.ClickCell(Row{6}, Col{1});
        EXPECT_TRUE(f.Shown());
    });
}

TEST_P(ListsTest, OpenedAgainItMergesWithoutDoubling) {
    app.Exchange<FolderPick>().TodaysFolders = {At(u"Data"), At(u"Data/Sub")};
    for (int opening = 0; opening < 2; ++opening) {
        ShowFolders([this](frmFoldersToday& f) {
            EXPECT_THAT(EntriesOf(f.lstFoldersToday), ElementsAre(At(u"Data"), At(u"Data/Sub")));
        });
    }
}

} // namespace
} // namespace korvane
