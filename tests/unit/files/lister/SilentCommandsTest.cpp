// The commands of the lister on a disk that doesn't answer.

#include "SilentDiskFixture.h"
#include "context/exchange/FolderPick.h"
#include "context/ports/TextFileViewer.h"
#include "dialogs/frmTxtInfo.h"
#include "files/jobs/frmCopyMove.h"
#include "files/jobs/frmFolderOpNotify.h"
#include "files/lists/frmFindStingInList.h"
#include "files/lists/frmFoldersToday.h"
#include "files/lists/frmOpenFileWith.h"
#include "files/names/frmDupFile.h"
#include "files/names/frmNewDir.h"
#include "files/names/frmRenDir.h"
#include "files/names/frmRenFile.h"

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct FakeTextFileViewer final : TextFileViewer {
    explicit FakeTextFileViewer(App& app) { app.SetPort<TextFileViewer>(this); }
    void View(TextView path) override { viewed.emplace_back(path); }
    std::vector<Text> viewed;
};

class SilentCommandsTest : public SilentDiskFixture {
protected:
    using Command = std::function<void(frmGetFileFromTree&)>;
    static Command Menu(std::string_view entry) {
        return [entry](frmGetFileFromTree& f) { f.OfficeMenu1.Choose(entry); };
    }
    /// Starts a command on a disk that doesn't answer until the user stops it.
    void StopIn(frmGetFileFromTree& f, const Command& command) {
        bool waited = false;
        disk.Hold();
        WhileItWaits([&f, &waited] {
            waited = true;
            ExpectAWait(f);
            f.cmdEscape.Press();
        });
        command(f);
        disk.Release();
        EXPECT_TRUE(waited);
        ExpectNoWait(f);
    }
    /// The same on a disk that answers late.
    void AnswerLateIn(frmGetFileFromTree& f, const Command& command) {
        disk.Hold();
        WhileItWaits([this] { disk.Release(); });
        command(f);
        ExpectNoWait(f);
    }

    FakeTextFileViewer texts{app};
};
KORVANE_IN_BOTH_STYLES(SilentCommandsTest);

// Proceed.

TEST_P(SilentCommandsTest, ASaveThatIsStoppedLeavesTheWindowOpen) {
    OpenToSave([this](frmGetFileFromTree& f) {
        f.txtFileName.Text = u"a.txt";
        StopIn(f, [](frmGetFileFromTree& lister) { lister.cmdOk.Press(); });
        EXPECT_TRUE(f.Shown());
        EXPECT_EQ(request.ChosenFilePath, u"");
        EXPECT_THAT(t.user.Messages(), IsEmpty());
        EXPECT_EQ(f.Focused(), &f.txtFileName);
    });
}

TEST_P(SilentCommandsTest, ASaveToASlowDiskAsksBeforeItOverwrites) {
    Await(Answer::Yes);
    OpenToSave([this](frmGetFileFromTree& f) {
        f.txtFileName.Text = u"a.txt";
        AnswerLateIn(f, [](frmGetFileFromTree& lister) { lister.cmdOk.Press(); });
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(t.user.Messages().size(), 1U);
    EXPECT_EQ(request.ChosenFilePath, At(u"Data/a.txt"));
}

TEST_P(SilentCommandsTest, ALoadThatIsStoppedTakesNothing) {
    Open([this](frmGetFileFromTree& f) {
        StopIn(f, [](frmGetFileFromTree& lister) { Press(lister.ListView1, Key::Return); });
        EXPECT_TRUE(f.Shown());
        EXPECT_EQ(request.ChosenFilePath, u"");
    });
    EXPECT_THAT(request.ChosenFiles, testing::Not(testing::Contains(At(u"Data/a.txt"))));
}

TEST_P(SilentCommandsTest, TheWindowCanBeClosedInTheMidstOfACommand) {
    Open([this](frmGetFileFromTree& f) {
        disk.Hold();
        WhileItWaits([&f] { f.cmdCancel.Press(); });
        f.txtFileName.Text = u"a.txt";
        f.cmdOk.Press();
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(app.DialogResult, 0);
    EXPECT_EQ(request.ChosenFilePath, u"");
}

TEST_P(SilentCommandsTest, WhileACommandWaitsNoOtherOneBegins) {
    Open([this](frmGetFileFromTree& f) {
        t.user.On<frmRenFile>([](frmRenFile& rename) { rename.cmdCancel.Press(); });
        disk.Hold();
        WhileItWaits([this, &f] {
            f.cmdViewFile.Press();
            disk.Release();
        });
        f.cmdRename.Press();
    });
    EXPECT_THAT(texts.viewed, IsEmpty());
}

// The current file. A window that opened would fail these tests.

TEST_P(SilentCommandsTest, NoFileCommandGoesOnWhenItIsStopped) {
    for (const char* entry : {"mnuEdit_View", "mnuEdit_ViewWith", "mnuEdit_FileInfo", "mnuEdit_Copy",
                              "mnuEdit_Move", "mnuEdit_Rename", "mnuEdit_Duplicate"}) {
        SCOPED_TRACE(entry);
        Open([this, entry](frmGetFileFromTree& f) {
            StopIn(f, Menu(entry));
            EXPECT_THAT(Names(f), ElementsAre("a.txt", "b.tbx"));
        });
    }
    EXPECT_THAT(texts.viewed, IsEmpty());
    EXPECT_THAT(t.user.Messages(), IsEmpty());
}

/// Notes whether a control could be seen when it was last given the keyboard.
class FocusWatch final : public View {
public:
    explicit FocusWatch(Control& control) : control_(control) { control_.SetView(this); }
    FocusWatch(const FocusWatch&) = delete;
    FocusWatch& operator=(const FocusWatch&) = delete;
    ~FocusWatch() override { control_.SetView(nullptr); }
    void Follow(Observed&, Aspect aspect) override {
        if (aspect == Aspect::Focus) couldTakeIt = control_.Visible;
    }
    std::optional<bool> couldTakeIt;

private:
    Control& control_;
};

TEST_P(SilentCommandsTest, TheListGetsTheKeyboardBackWhenItIsSeenAgain) {
    Open([this](frmGetFileFromTree& f) {
        f.ListView1.SetFocus();
        const FocusWatch watch(f.ListView1);
        StopIn(f, Menu("mnuEdit_Rename"));
        EXPECT_EQ(f.Focused(), &f.ListView1);
        EXPECT_EQ(watch.couldTakeIt, true);
    });
}

TEST_P(SilentCommandsTest, AFileOnASlowDiskIsViewed) {
    Open([this](frmGetFileFromTree& f) { AnswerLateIn(f, Menu("mnuEdit_View")); });
    EXPECT_THAT(texts.viewed, ElementsAre(At(u"Data/a.txt")));
}

TEST_P(SilentCommandsTest, ADeletionThatIsStoppedDeletesNothing) {
    Await(Answer::Yes);
    Open([this](frmGetFileFromTree& f) {
        StopIn(f, Menu("mnuEdit_Delete"));
        EXPECT_THAT(Names(f), ElementsAre("a.txt", "b.tbx"));
    });
    EXPECT_THAT(t.shell.Recycled(), IsEmpty());
}

TEST_P(SilentCommandsTest, ASearchThatIsStoppedEnds) {
    Open([this](frmGetFileFromTree& f) {
        t.user.On<frmFindStingInList>([](frmFindStingInList& ask) {
            ask.txtFindString.Text = u"b";
            ask.cmdOK.Press();
        });
        StopIn(f, [](frmGetFileFromTree& lister) { Press(lister.ListView1, 'S', Mask::Alt); });
    });
    EXPECT_THAT(t.user.Messages(), IsEmpty());
}

// Folders.

TEST_P(SilentCommandsTest, NoFolderCommandGoesOnWhenItIsStopped) {
    for (const char* entry : {"mnuFolders_New", "mnuFolders_Delete", "mnuFolders_Rename"}) {
        SCOPED_TRACE(entry);
        Open([this, entry](frmGetFileFromTree& f) {
            StopIn(f, Menu(entry));
            EXPECT_EQ(f.txtFullPath.Text.Get(), At(u"Data"));
        });
    }
    EXPECT_THAT(t.shell.Recycled(), IsEmpty());
}

TEST_P(SilentCommandsTest, AFolderOfTheDayThatDoesntAnswerIsLeft) {
    Open([this](frmGetFileFromTree& f) {
        t.user.On<frmFoldersToday>([this](frmFoldersToday& today) {
            app.Exchange<FolderPick>().FolderPicked = At(u"Data/sub");
            disk.Hold();
            today.Close();
        });
        WhileItWaits([&f] { f.cmdEscape.Press(); });
        f.OfficeMenu1.Choose("mnuFolders_Todays");
        disk.Release();
        EXPECT_EQ(f.txtFullPath.Text.Get(), At(u"Data"));
    });
}

TEST_P(SilentCommandsTest, WhatIsDroppedFromASilentDiskIsLeft) {
    Open([this](frmGetFileFromTree& f) {
        StopIn(f, [this](frmGetFileFromTree& lister) { lister.FilesDropped({At(u"Data/sub")}); });
        EXPECT_EQ(f.txtFullPath.Text.Get(), At(u"Data"));
        f.FilesDropped({At(u"Data/sub")});
        EXPECT_EQ(f.txtFullPath.Text.Get(), At(u"Data/sub"));
    });
}

// The tree asks in the background.

TEST_P(SilentCommandsTest, TheTreeWaitsAMomentForFoldersThatNobodyAskedFor) {
    t.files.AddFile(At(u"Data/full/below/d.txt"), "d");
    Open([this](frmGetFileFromTree& f) {
        disk.Hold();
        while (f.FolderTimer.Enabled) {
            const auto before = t.clock.Uptime();
            f.FolderTimer.Tick();
            EXPECT_LT(t.clock.Uptime() - before, std::chrono::milliseconds(300));
        }
        disk.Release();
        ExpectNoWait(f);
        // It may have folders, for which the user can look.
        EXPECT_TRUE(f.TreeView1.Node(At(u"Data/sub"))->expandable);
    });
}

} // namespace
} // namespace korvane
