// The lister on a disk that doesn't answer, as one of a network that has gone.

#include "SilentDiskFixture.h"

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SilentDiskTest : public SilentDiskFixture {};
KORVANE_IN_BOTH_STYLES(SilentDiskTest);

TEST_P(SilentDiskTest, AFolderCanBeStopped) {
    Open([this](frmGetFileFromTree& f) {
        GoToSilent(f);
        EXPECT_THAT(Names(f), IsEmpty());
        ExpectNoWait(f);
        EXPECT_EQ(f.Focused(), &f.ListView1);
        EXPECT_EQ(t.files.CurrentDir(), At(u"Data"));
        EXPECT_THAT(t.user.Messages(), IsEmpty());
    });
}

TEST_P(SilentDiskTest, AfterwardsAnotherFolderIsListedAndThatOneTooWhenItAnswers) {
    Open([this](frmGetFileFromTree& f) {
        GoToSilent(f);
        f.TreeView1.Select(At(u"Data"));
        EXPECT_THAT(Names(f), ElementsAre("a.txt", "b.tbx"));
        f.TreeView1.Select(At(u"Data/sub"));
        EXPECT_THAT(Names(f), ElementsAre("c.txt"));
        EXPECT_EQ(t.files.CurrentDir(), At(u"Data/sub"));
    });
}

TEST_P(SilentDiskTest, AStoppedFolderIsNotReadAgainBecauseTheListGetsTheKeyboard) {
    Open([this](frmGetFileFromTree& f) {
        GoToSilent(f);
        f.ListView1.GotFocus();
        EXPECT_THAT(Names(f), IsEmpty());
        EXPECT_TRUE(Press(f.ListView1, Key::Return));
        EXPECT_THAT(Names(f), ElementsAre("c.txt"));
    });
}

TEST_P(SilentDiskTest, AShortWaitIsNotSeen) {
    Open([this](frmGetFileFromTree& f) {
        t.screen.QueueMessage([] { ADD_FAILURE() << "messages ran during a short wait"; });
        f.TreeView1.Select(At(u"Data/sub"));
        EXPECT_THAT(Names(f), ElementsAre("c.txt"));
    });
}

TEST_P(SilentDiskTest, ALateAnswerIsListed) {
    Open([this](frmGetFileFromTree& f) {
        disk.Hold();
        WhileItWaits([&] {
            ExpectAWait(f);
            disk.Release();
        });
        f.TreeView1.Select(At(u"Data/sub"));
        EXPECT_THAT(Names(f), ElementsAre("c.txt"));
        ExpectNoWait(f);
    });
}

TEST_P(SilentDiskTest, FilesThatTellNoSizeAreNotListed) {
    Open([this](frmGetFileFromTree& f) {
        constexpr int kNames = 1;
        disk.HoldAfter(kNames);
        WhileItWaits([&f] { f.cmdEscape.Press(); });
        f.TreeView1.Select(At(u"Data/sub"));
        EXPECT_THAT(Names(f), IsEmpty());
        ExpectNoWait(f);
        EXPECT_THAT(t.user.Messages(), IsEmpty());
    });
}

TEST_P(SilentDiskTest, TheFilesThatWereReadBeforeItFellSilentAreListed) {
    static constexpr int kRead = static_cast<int>(FileRows::kDetailsInStep);
    AddFiles(kRead + 10);
    Await({u"Only " + FormatGrouped(kRead) + u" of the " + FormatGrouped(kRead + 10) +
               u" files in this directory were read.",
           MessageIcon::Exclamation},
          Answer::Ok);
    OpenOnly([this](frmGetFileFromTree& f) {
        constexpr int kTreeNamesAndOneStep = 3;
        disk.HoldAfter(kTreeNamesAndOneStep);
        StopAfter(f, kTreeNamesAndOneStep);
        f.Activate();
        EXPECT_EQ(f.ListView1.Count(), kRead);
        disk.Release();
        f.cmdCancel.Press();
    });
}

TEST_P(SilentDiskTest, TheUserCanGoElsewhereMeanwhile) {
    t.files.AddFile(At(u"Else/d.txt"), "d");
    Open([this](frmGetFileFromTree& f) {
        disk.Hold();
        WhileItWaits([&] {
            disk.Release();
            f.TreeView1.Select(At(u"Else"));
        });
        f.TreeView1.Select(At(u"Data/sub"));
        EXPECT_EQ(f.txtFullPath.Text.Get(), At(u"Else"));
        EXPECT_THAT(Names(f), ElementsAre("d.txt"));
        ExpectNoWait(f);
    });
}

TEST_P(SilentDiskTest, TheWindowCanBeClosedMeanwhile) {
    Open([this](frmGetFileFromTree& f) {
        disk.Hold();
        WhileItWaits([&f] { f.cmdCancel.Press(); });
        f.TreeView1.Select(At(u"Data/sub"));
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(t.screen.CurrentPointer(), Pointer::Default);
}

TEST_P(SilentDiskTest, AFolderOfTheTreeThatIsStoppedStaysClosed) {
    Open([this](frmGetFileFromTree& f) {
        f.TreeView1.SetFocus();
        disk.Hold();
        WhileItWaits([&f] {
            ExpectAWait(f);
            f.cmdEscape.Press();
        });
        f.TreeView1.SetExpanded(At(u"Data/sub"), true);
        EXPECT_FALSE(f.TreeView1.Node(At(u"Data/sub"))->expanded);
        EXPECT_EQ(f.txtFullPath.Text.Get(), At(u"Data"));
        EXPECT_THAT(Names(f), ElementsAre("a.txt", "b.tbx"));
        ExpectNoWait(f);
        EXPECT_EQ(f.Focused(), &f.TreeView1);
    });
}

// The first folder.

TEST_P(SilentDiskTest, ALastFolderThatDoesntAnswerSoonIsLeftForTheCurrentOne) {
    app.Settings.TreeFormLastPath = At(u"Data/sub");
    disk.Hold();
    OpenOnly([this](frmGetFileFromTree& f) {
        EXPECT_EQ(f.txtFullPath.Text.Get(), At(u"Data"));
        disk.Release();
        f.Activate();
        EXPECT_THAT(Names(f), ElementsAre("a.txt", "b.tbx"));
        f.cmdCancel.Press();
    });
    EXPECT_LE(t.clock.Uptime(), std::chrono::seconds(3));
    EXPECT_EQ(t.screen.ProcessMessagesCount(), 0);
}

TEST_P(SilentDiskTest, AFirstFolderThatIsStoppedLeavesTheKeyboardInTheTree) {
    disk.Hold();
    OpenOnly([this](frmGetFileFromTree& f) {
        WhileItWaits([&f] {
            // The button has the keyboard, and the list gets it when the button goes.
            f.ListView1.GotFocus();
            f.cmdEscape.Press();
        });
        const int before = disk.Asked();
        f.Activate();
        EXPECT_EQ(disk.Asked(), before + 1);
        EXPECT_EQ(f.Focused(), &f.TreeView1);
        ExpectNoWait(f);
        f.cmdCancel.Press();
    });
}

TEST_P(SilentDiskTest, AFolderToSaveInIsStoppedOnce) {
    request.ListerMode = 1;
    request.CurrentFolderHint = At(u"Data/sub");
    disk.Hold();
    OpenOnly([this](frmGetFileFromTree& f) {
        WhileItWaits([&f] {
            ExpectAWait(f);
            f.cmdEscape.Press();
        });
        const int before = disk.Asked();
        f.Activate();
        EXPECT_EQ(disk.Asked(), before + 1);
        ExpectNoWait(f);
        EXPECT_EQ(f.Focused(), &f.txtFileName);
        f.cmdCancel.Press();
    });
}

} // namespace
} // namespace korvane
