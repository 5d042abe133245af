#include "files/lister/FolderCommands.h"

#include "ListerFixture.h"
#include "context/exchange/FolderPick.h"
#include "context/exchange/ListerRequest.h"
#include "context/ports/FavouriteFolders.h"
#include "files/jobs/frmFolderOpNotify.h"
#include "files/lists/frmFoldersToday.h"
#include "files/names/frmNewDir.h"
#include "files/names/frmRenDir.h"

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Picks a folder, or nothing.
struct FakeFavourites final : FavouriteFolders {
    explicit FakeFavourites(App& program) : app(program) { app.SetPort<FavouriteFolders>(this); }
    void Show() override {
        ++shown;
        modes.push_back(app.Exchange<FolderPick>().FavouritePickMode);
        EXPECT_EQ(app.Exchange<ListerRequest>().ChosenFilePath, u"");
        if (pick.empty()) return;
        app.Exchange<ListerRequest>().ChosenFilePath = pick;
        app.DialogResult = 1;
    }
    App& app;
    Text pick;
    int shown = 0;
    std::vector<int> modes;
};

class FolderCommandsTest : public ListerFixture {
protected:
    void EraseRecycled() {
        t.shell.SetRecycler([this](TextView path) {
            t.files.Erase(path);
            return true;
        });
    }

    FakeFavourites favourites{app};
    FolderPick& pick = app.Exchange<FolderPick>();
};
KORVANE_IN_BOTH_STYLES(FolderCommandsTest);

TEST_P(FolderCommandsTest, ANewFolderIsShown) {
    Open([this](frmGetFileFromTree& f) {
        t.files.ChangeDir(At(u""));
        t.user.On<frmNewDir>([this](frmNewDir& make) {
            EXPECT_EQ(make.Frame1.Caption.Get(), u" Current Dir.: " + At(u"Data"));
            make.Text1.Text = u"fresh";
            make.cmdAccept.Press();
        });
        f.OfficeMenu1.Choose("mnuFolders_New");
        EXPECT_EQ(f.txtFullPath.Text.Get(), At(u"Data/fresh"));
        EXPECT_EQ(f.TreeView1.Selected(), At(u"Data/fresh"));
        EXPECT_EQ(f.ListView1.Count(), 0);
    });
}

TEST_P(FolderCommandsTest, AGivenUpFolderChangesNothing) {
    Open([this](frmGetFileFromTree& f) {
        t.user.On<frmNewDir>([](frmNewDir& make) { make.cmdCancel.Press(); });
        f.OfficeMenu1.Choose("mnuFolders_New");
        EXPECT_EQ(f.txtFullPath.Text.Get(), At(u"Data"));
    });
}

TEST_P(FolderCommandsTest, ARenamedFolderIsShownUnderItsNewName) {
    Open([this](frmGetFileFromTree& f) {
        f.TreeView1.Select(At(u"Data/sub"));
        t.user.On<frmRenDir>([this](frmRenDir& rename) {
            EXPECT_EQ(rename.Text1.Text.Get(), At(u"Data/sub"));
            rename.Text2.Text = u"other";
            rename.cmdAccept.Press();
        });
        EXPECT_TRUE(Press(f.TreeView1, Key::F(2)));
        EXPECT_EQ(f.txtFullPath.Text.Get(), At(u"Data/other"));
        EXPECT_EQ(f.TreeView1.Selected(), At(u"Data/other"));
        EXPECT_EQ(f.TreeView1.Node(At(u"Data/sub")), nullptr);
        EXPECT_THAT(Names(f), ElementsAre("c.txt"));
    });
}

TEST_P(FolderCommandsTest, ADeletedFolderGoesToTheRecycleStore) {
    EraseRecycled();
    Open([this](frmGetFileFromTree& f) {
        f.TreeView1.Select(At(u"Data/sub"));
        t.user.On<frmFolderOpNotify>([this](frmFolderOpNotify& notify) {
            EXPECT_EQ(notify.lblSource.Caption.Get(), At(u"Data/sub"));
            EXPECT_EQ(notify.lblTarget.Caption.Get(), u">  DELETE  <");
            notify.cmdExit.Press();
        });
        EXPECT_TRUE(Press(f.TreeView1, Key::Delete));
        EXPECT_EQ(t.shell.Recycled().front(), (Recycling{At(u"Data/sub"), RecycleTalk::AsksAndShows}));
        EXPECT_EQ(f.TreeView1.Node(At(u"Data/sub")), nullptr);
        EXPECT_EQ(f.txtFullPath.Text.Get(), At(u"Data"));
        EXPECT_THAT(Names(f), ElementsAre("a.txt", "b.tbx"));
        EXPECT_EQ(f.Focused(), &f.TreeView1);
    });
}

TEST_P(FolderCommandsTest, NothingHoldsAFolderThatIsDeleted) {
    Text current;
    t.shell.SetRecycler([&](TextView) {
        current = t.files.CurrentDir();
        return false;
    });
    Open([this](frmGetFileFromTree& f) {
        f.TreeView1.Select(At(u"Data/sub"));
        f.OfficeMenu1.Choose("mnuFolders_Delete");
    });
    EXPECT_EQ(current, At(u""));
}

TEST_P(FolderCommandsTest, AFolderThatStaysIsTakenWithoutAWord) {
    t.shell.SetRecycler([](TextView) { return false; });
    Open([this](frmGetFileFromTree& f) {
        f.TreeView1.Select(At(u"Data/sub"));
        t.files.AddDir(At(u"Data/late"));
        f.OfficeMenu1.Choose("mnuFolders_Delete");
        EXPECT_EQ(f.txtFullPath.Text.Get(), At(u"Data/sub"));
        EXPECT_NE(f.TreeView1.Node(At(u"Data/sub")), nullptr);
        EXPECT_NE(f.TreeView1.Node(At(u"Data/late")), nullptr);
    });
    EXPECT_THAT(t.user.Messages(), IsEmpty());
}

TEST_P(FolderCommandsTest, TheRootIsNotDeleted) {
    Await({u"You cannot delete the root directory!", MessageIcon::Stop}, Answer::Ok);
    Open([this](frmGetFileFromTree& f) {
        f.TreeView1.Select(At(u""));
        Press(f.TreeView1, Key::Delete);
        EXPECT_THAT(t.shell.Recycled(), IsEmpty());
    });
}

TEST_P(FolderCommandsTest, DeleteWithAModifierDeletesNoFolder) {
    Open([](frmGetFileFromTree& f) { EXPECT_FALSE(Press(f.TreeView1, Key::Delete, Mask::Shift)); });
    EXPECT_THAT(t.shell.Recycled(), IsEmpty());
}

TEST_P(FolderCommandsTest, ARefreshReadsDrivesAndFilesAnew) {
    Open([this](frmGetFileFromTree& f) {
        t.files.AddFile(At(u"Data/late.txt"));
        t.files.AddDir(At(u"Data/later"));
        f.OfficeMenu1.Choose("mnuFile_Refresh");
        EXPECT_NE(f.TreeView1.Node(At(u"Data/later")), nullptr);
        EXPECT_THAT(Names(f), ElementsAre("a.txt", "b.tbx", "late.txt"));
    });
}

TEST_P(FolderCommandsTest, TheFileManagerShowsTheFolderAndTheListFollows) {
    Open([this](frmGetFileFromTree& f) {
        t.files.AddFile(At(u"Data/late.txt"));
        f.cmdExplorer.Press();
        EXPECT_EQ(t.shell.Opened().at(0).verb, u"explore");
        EXPECT_EQ(t.shell.Opened().at(0).file, At(u"Data"));
        EXPECT_THAT(Names(f), ElementsAre("a.txt", "b.tbx", "late.txt"));
    });
}

// Folders of the day and favourites.

TEST_P(FolderCommandsTest, TheFolderIsNotedOnce) {
    Open([this](frmGetFileFromTree& f) {
        for (int turn = 0; turn < 2; ++turn) {
            t.user.On<frmFoldersToday>([](frmFoldersToday& today) { today.cmdExit.Press(); });
            EXPECT_TRUE(Press(f.ListView1, 'Y', Mask::Ctrl | Mask::Alt));
            EXPECT_EQ(f.Focused(), &f.ListView1);
        }
    });
    EXPECT_THAT(pick.TodaysFolders, ElementsAre(At(u"Data")));
}

TEST_P(FolderCommandsTest, TodaysFoldersAreShownWithoutNotingIt) {
    Open([this](frmGetFileFromTree& f) {
        for (int turn = 0; turn < 2; ++turn)
            t.user.On<frmFoldersToday>([](frmFoldersToday& today) { today.cmdExit.Press(); });
        EXPECT_TRUE(Press(f.ListView1, 'Y', Mask::Alt));
        f.OfficeMenu1.Choose("mnuFolders_Todays");
    });
    EXPECT_THAT(pick.TodaysFolders, IsEmpty());
}

TEST_P(FolderCommandsTest, InTheTreeAnotherKeyNotesTheFolder) {
    Open([this](frmGetFileFromTree& f) {
        t.user.On<frmFoldersToday>([](frmFoldersToday& today) { today.cmdExit.Press(); });
        EXPECT_TRUE(Press(f.TreeView1, 'X', Mask::Ctrl | Mask::Alt));
    });
    EXPECT_THAT(pick.TodaysFolders, ElementsAre(At(u"Data")));
}

TEST_P(FolderCommandsTest, AFolderOfTheDayIsShown) {
    pick.TodaysFolders = {At(u"Data/sub")};
    Open([this](frmGetFileFromTree& f) {
        t.user.On<frmFoldersToday>([](frmFoldersToday& today) {
            today.Activate();
            today.cmdGoto.Press();
        });
        Press(f.ListView1, 'Y', Mask::Alt);
        EXPECT_EQ(f.txtFullPath.Text.Get(), At(u"Data/sub"));
        EXPECT_EQ(request.ListerFolder, At(u"Data/sub"));
        EXPECT_EQ(request.CurrentFolderHint, At(u"Data/sub"));
        EXPECT_EQ(f.TreeView1.Selected(), At(u"Data/sub"));
        EXPECT_THAT(Names(f), ElementsAre("c.txt"));
    });
}

TEST_P(FolderCommandsTest, AFolderOfTheDayThatHasGoneIsNotFollowed) {
    pick.TodaysFolders = {At(u"Data/sub")};
    Open([this](frmGetFileFromTree& f) {
        t.user.On<frmFoldersToday>([this](frmFoldersToday& today) {
            today.Activate();
            t.files.Erase(At(u"Data/sub"));
            today.cmdGoto.Press();
        });
        Press(f.ListView1, 'Y', Mask::Alt);
        EXPECT_EQ(f.txtFullPath.Text.Get(), At(u"Data"));
    });
}

TEST_P(FolderCommandsTest, WithoutFoldersOfTheDayTheFolderStays) {
    request.CurrentFolderHint = At(u"Data/sub");
    Open([this](frmGetFileFromTree& f) {
        t.user.On<frmFoldersToday>([](frmFoldersToday& today) {
            today.Activate();
            EXPECT_EQ(today.lstFoldersToday.ListCount(), 0);
            today.cmdGoto.Press();
        });
        Press(f.ListView1, 'Y', Mask::Alt);
        EXPECT_EQ(f.txtFullPath.Text.Get(), At(u"Data"));
    });
    EXPECT_THAT(t.user.Messages(), IsEmpty());
}

TEST_P(FolderCommandsTest, TheFoldersOfTheDayLeadToTheFavourites) {
    favourites.pick = At(u"Data/sub");
    Open([this](frmGetFileFromTree& f) {
        t.user.On<frmFoldersToday>(
            [](frmFoldersToday& today) { today.iGridListBar.ClickCell(Row{4}, Col{1}); });
        Press(f.ListView1, 'Y', Mask::Alt);
        EXPECT_EQ(favourites.shown, 1);
        EXPECT_EQ(f.txtFullPath.Text.Get(), At(u"Data/sub"));
    });
}

TEST_P(FolderCommandsTest, AFavouriteFolderIsShown) {
    favourites.pick = At(u"Data/sub");
    Open([this](frmGetFileFromTree& f) {
        f.cmdGetTarget.Press();
        EXPECT_EQ(f.txtFullPath.Text.Get(), At(u"Data/sub"));
        EXPECT_EQ(request.ListerFolder, At(u"Data/sub"));
        EXPECT_THAT(Names(f), ElementsAre("c.txt"));
        EXPECT_EQ(request.ChosenFilePath, u"");
    });
    EXPECT_THAT(favourites.modes, ElementsAre(11));
    EXPECT_EQ(pick.FavouritePickMode, 0);
}

TEST_P(FolderCommandsTest, WithoutAFavouriteTheFolderStays) {
    Open([this](frmGetFileFromTree& f) {
        f.cmdGetTarget.Press();
        EXPECT_EQ(f.txtFullPath.Text.Get(), At(u"Data"));
    });
    EXPECT_EQ(favourites.shown, 1);
}

} // namespace
} // namespace korvane
