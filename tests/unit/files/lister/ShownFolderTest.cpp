#include "files/lister/ShownFolder.h"

#include "ListerFixture.h"

namespace korvane {
namespace {

using testing::ElementsAre;

class ShownFolderTest : public ListerFixture {};
KORVANE_IN_BOTH_STYLES(ShownFolderTest);

TEST_P(ShownFolderTest, ThePathTheTreeAndTheListFollowOneAnother) {
    Open([this](frmGetFileFromTree& f) {
        f.TreeView1.Select(At(u"Data/sub"));
        EXPECT_EQ(f.txtFullPath.Text.Get(), At(u"Data/sub"));
        EXPECT_EQ(request.ListerFolder, At(u"Data/sub"));
        EXPECT_EQ(t.files.CurrentDir(), At(u"Data/sub"));
        EXPECT_THAT(Names(f), ElementsAre("c.txt"));
        EXPECT_EQ(f.Focused(), &f.ListView1);
    });
}

TEST_P(ShownFolderTest, AFolderIsListedOnce) {
    Open([this](frmGetFileFromTree& f) {
        t.files.AddFile(At(u"Data/late.txt"));
        f.TreeView1.Select(At(u"Data"));
        EXPECT_THAT(Names(f), ElementsAre("a.txt", "b.tbx"));
    });
}

TEST_P(ShownFolderTest, StepsByKeysOnlyWriteThePath) {
    Open([this](frmGetFileFromTree& f) {
        f.TreeView1.SetFocus();
        f.TreeView1.ByKeys = true;
        f.TreeView1.Select(At(u"Data/sub"));
        EXPECT_EQ(f.txtFullPath.Text.Get(), At(u"Data/sub"));
        EXPECT_EQ(request.ListerFolder, At(u"Data/sub"));
        EXPECT_THAT(Names(f), ElementsAre("a.txt", "b.tbx"));
        EXPECT_EQ(f.Focused(), &f.TreeView1);
        EXPECT_TRUE(Press(f.TreeView1, Key::Return));
        EXPECT_THAT(Names(f), ElementsAre("c.txt"));
        EXPECT_EQ(f.Focused(), &f.ListView1);
    });
}

TEST_P(ShownFolderTest, ReturnInTheTreeReadsTheFolderAnew) {
    Open([this](frmGetFileFromTree& f) {
        t.files.AddFile(At(u"Data/late.txt"));
        Press(f.TreeView1, Key::Return);
        EXPECT_THAT(Names(f), ElementsAre("a.txt", "b.tbx", "late.txt"));
    });
}

TEST_P(ShownFolderTest, TheListShowsTheFolderOfThePathWhenItGetsTheKeyboard) {
    Open([this](frmGetFileFromTree& f) {
        f.TreeView1.ByKeys = true;
        f.TreeView1.Select(At(u"Data/sub"));
        f.ListView1.GotFocus();
        EXPECT_THAT(Names(f), ElementsAre("c.txt"));
    });
}

TEST_P(ShownFolderTest, NoCommandTakesTheRowsOfAnotherFolder) {
    Open([this](frmGetFileFromTree& f) {
        f.TreeView1.ByKeys = true;
        f.TreeView1.Select(At(u"Data/sub"));
        f.cmdDelete.Press();
        EXPECT_THAT(Names(f), ElementsAre("c.txt"));
    });
    EXPECT_TRUE(t.files.FileExists(At(u"Data/a.txt")));
    EXPECT_TRUE(t.files.FileExists(At(u"Data/sub/c.txt")));
}

TEST_P(ShownFolderTest, AFolderThatHasGoneIsEmpty) {
    Open([this](frmGetFileFromTree& f) {
        t.files.ChangeDir(At(u""));
        t.files.Erase(At(u"Data"));
        f.OfficeMenu1.Choose("mnuFile_Refresh");
        EXPECT_EQ(f.ListView1.Count(), 0);
    });
}

TEST_P(ShownFolderTest, ARootNeverGetsASecondSeparator) {
    t.files.AddFile(At(u"top.tbx"), "t");
    Open([this](frmGetFileFromTree& f) {
        f.TreeView1.Select(At(u""));
        EXPECT_EQ(f.txtFullPath.Text.Get(), At(u""));
        f.ListView1.DoubleClick(1);
    });
    EXPECT_EQ(request.ChosenFilePath, At(u"top.tbx"));
    EXPECT_EQ(request.ChosenFiles.at(1), At(u"top.tbx"));
    EXPECT_EQ(request.ChosenFileFolder, At(u""));
}

// Sorting by a click on a header.

TEST_P(ShownFolderTest, AClickSortsAndTurnsTheOrderRound) {
    Open([this](frmGetFileFromTree& f) {
        f.ListView1.ClickColumn(1);
        EXPECT_EQ(sort.ListSortColumn, ListSort::kName);
        EXPECT_EQ(sort.ListSortOrder, 1);
        EXPECT_THAT(Names(f), ElementsAre("b.tbx", "a.txt"));
        f.ListView1.ClickColumn(1);
        EXPECT_EQ(sort.ListSortOrder, 0);
        EXPECT_THAT(Names(f), ElementsAre("a.txt", "b.tbx"));
    });
}

TEST_P(ShownFolderTest, ASortByNameDoesNotReadTheFolder) {
    Open([this](frmGetFileFromTree& f) {
        t.files.AddFile(At(u"Data/late.txt"));
        f.ListView1.ClickColumn(1);
        EXPECT_THAT(Names(f), ElementsAre("b.tbx", "a.txt"));
    });
}

TEST_P(ShownFolderTest, ASortBySizeOrDateReadsItAnew) {
    Open([this](frmGetFileFromTree& f) {
        t.files.AddFile(At(u"Data/late.txt"), "12345");
        f.ListView1.ClickColumn(2);
        EXPECT_EQ(sort.ListSortColumn, ListSort::kSize);
        EXPECT_THAT(Names(f), ElementsAre("a.txt", "late.txt", "b.tbx"));
        f.ListView1.ClickColumn(3);
        EXPECT_EQ(sort.ListSortColumn, ListSort::kDate);
        EXPECT_THAT(Names(f), ElementsAre("b.tbx", "a.txt", "late.txt"));
        EXPECT_THAT(Column(f, 2), ElementsAre("2", "1,234", "5"));
    });
}

TEST_P(ShownFolderTest, TheMarksSurviveASort) {
    t.files.AddFile(At(u"Data/c.rtf"), "123");
    Open([](frmGetFileFromTree& f) {
        Mark(f, u"b.tbx", u"c.rtf");
        f.ListView1.ClickColumn(2);
        EXPECT_THAT(Marked(f), testing::UnorderedElementsAre("b.tbx", "c.rtf"));
    });
}

TEST_P(ShownFolderTest, ASortAfterStepsInTheTreeListsTheNewFolderWithoutTheOldMarks) {
    t.files.AddFile(At(u"Data/sub/b.tbx"));
    for (const int column : {1, 2}) {
        sort = {};
        Open([this, column](frmGetFileFromTree& f) {
            f.TreeView1.Select(At(u"Data"));
            Pick(f, u"b.tbx");
            f.TreeView1.ByKeys = true;
            f.TreeView1.Select(At(u"Data/sub"));
            f.ListView1.ClickColumn(column);
            EXPECT_THAT(Names(f), ElementsAre("c.txt", "b.tbx"));
            EXPECT_THAT(Marked(f), ElementsAre("c.txt"));
        });
    }
}

TEST_P(ShownFolderTest, TheCurrentFileStaysTheCurrentOneThroughASort) {
    Open([](frmGetFileFromTree& f) {
        Pick(f, u"b.tbx");
        f.ListView1.ClickColumn(2);
        EXPECT_EQ(f.ListView1.Current(), 2);
        f.ListView1.ClickColumn(2);
        EXPECT_EQ(f.ListView1.Current(), 1);
        EXPECT_THAT(Names(f), ElementsAre("b.tbx", "a.txt"));
        EXPECT_THAT(Marked(f), ElementsAre("b.tbx"));
        f.ListView1.ClickColumn(3);
        EXPECT_TRUE(Press(f.ListView1, Key::Return));
    });
    EXPECT_EQ(request.ChosenFilePath, At(u"Data/b.tbx"));
}

// Kept for compatibility: lone-row-keeps-order.
TEST_P(ShownFolderTest, ALoneRowIsNotSorted) {
    request.FileDialogFilter = u"*.tbx";
    Open([this](frmGetFileFromTree& f) {
        f.ListView1.ClickColumn(2);
        EXPECT_EQ(sort.ListSortColumn, ListSort::kName);
        EXPECT_EQ(sort.ListSortOrder, 0);
        EXPECT_EQ(f.ListView1.Count(), 1);
    });
}

TEST_P(ShownFolderTest, TheOrderHoldsForTheNextWindow) {
    Open([](frmGetFileFromTree& f) { f.ListView1.ClickColumn(2); });
    Open([](frmGetFileFromTree& f) { EXPECT_THAT(Names(f), ElementsAre("a.txt", "b.tbx")); });
    EXPECT_EQ(sort.ListSortOrder, 1);
}

} // namespace
} // namespace korvane
