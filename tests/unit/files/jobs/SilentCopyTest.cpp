// Copies on disks that don't answer.

#include "context/exchange/CopyMoveRequest.h"
#include "files/jobs/CopyJob.h"
#include "files/jobs/CopyWork.h"
#include "files/jobs/frmAskCopyMove.h"
#include "files/jobs/frmCopyMove.h"
#include "files/names/frmNewDir.h"
#include "support/TestApp.h"
#include "testing/MemoryPatientDisk.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::IsEmpty;

/// Three files, to be copied from C:\\From to C:\\To.
struct SilentCopyTest : testing::Test {
    SilentCopyTest() {
        for (const TextView name : {u"a", u"b", u"c"})
            t.files.AddFile(u"C:\\From\\" + Text(name), "bytes");
        t.files.AddDir(u"C:\\To\\sub");
        t.files.SetVolume(u"C:\\", {.totalBytes = 1'000'000, .freeBytes = 900'000});
        t.files.ChangeDir(u"C:\\From");
        t.app.SetPort<PatientDisk>(&disk);
        request.CopyMoveKind = 1;
        request.CopySourceFolder = u"C:\\From";
        request.lstMarkedFiles = {u"a", u"b", u"c"};
    }
    CopyJob JobFor(bool move) {
        return {t.app,
                {.move = move,
                 .sourceFolder = u"C:\\From",
                 .items = request.lstMarkedFiles,
                 .targetFolder = u"C:\\To"},
                run,
                {[this] {
                     if (onYield) onYield();
                 },
                 [] {}}};
    }
    bool IsCopied(TextView name) const { return t.files.FileExists(u"C:\\To\\" + Text(name)); }
    /// Opens the window on a disk that falls silent, and does something there that waits for it.
    void StopInWindow(const std::function<void(frmCopyMove&)>& act) {
        t.user.On<frmCopyMove>([this, act](frmCopyMove& f) {
            f.TreeView1.Select(u"C:\\To");
            bool waited = false;
            disk.Hold();
            t.screen.QueueMessage([&] {
                waited = true;
                EXPECT_TRUE(f.frmCopying.Visible);
                EXPECT_TRUE(f.cmdCancel.Visible);
                EXPECT_EQ(f.Focused(), &f.cmdCancel);
                EXPECT_FALSE(f.cmdOk.Enabled);
                f.cmdCancel.Press();
            });
            act(f);
            EXPECT_TRUE(waited);
            EXPECT_FALSE(f.frmCopying.Visible);
            EXPECT_TRUE(f.cmdOk.Enabled);
            EXPECT_TRUE(f.Shown());
            EXPECT_NE(f.Focused(), &f.cmdCancel);
            disk.Release();
            f.Close();
        });
        frmCopyMove(t.app).ShowModal();
        EXPECT_THAT(t.user.Messages(), IsEmpty());
    }

    TestApp t;
    MemoryPatientDisk disk{t.files, t.clock};
    CopyMoveRequest& request = t.app.Exchange<CopyMoveRequest>();
    CopyMoveRun run;
    std::function<void()> onYield;
};

// The job.

TEST_F(SilentCopyTest, AStopEndsAJobWhoseDiskHasFallenSilent) {
    CopyJob job = JobFor(false);
    ASSERT_TRUE(job.Step());
    disk.Hold();
    onYield = [this] { run.LastKey = 27; };
    EXPECT_FALSE(job.Step());
    EXPECT_FALSE(job.Step());
    EXPECT_EQ(run.FilesCopied, 1);
    EXPECT_TRUE(IsCopied(u"a"));
    EXPECT_FALSE(IsCopied(u"b"));
    EXPECT_GE(t.clock.Uptime(), std::chrono::seconds(3));
    EXPECT_LT(t.clock.Uptime(), std::chrono::seconds(4));
}

TEST_F(SilentCopyTest, SoDoesTheButton) {
    CopyJob job = JobFor(true);
    disk.Hold();
    onYield = [this] { run.CancelPressed = 1; };
    EXPECT_FALSE(job.Step());
    EXPECT_EQ(run.FilesCopied, 0);
    EXPECT_TRUE(t.files.FileExists(u"C:\\From\\a"));
}

TEST_F(SilentCopyTest, ADiskThatIsOnlySlowIsWaitedFor) {
    CopyJob job = JobFor(false);
    disk.Hold();
    onYield = [this] {
        if (t.clock.Uptime() > std::chrono::seconds(20)) disk.Release();
    };
    EXPECT_TRUE(job.Step());
    EXPECT_EQ(run.FilesCopied, 1);
}

TEST_F(SilentCopyTest, ManyFilesAreHandledAtATime) {
    CopyJob job = JobFor(true);
    EXPECT_TRUE(job.Step(2));
    EXPECT_EQ(run.FilesCopied, 2);
    EXPECT_EQ(disk.Asked(), 1);
    EXPECT_FALSE(job.Step(2));
    EXPECT_EQ(run.FilesCopied, 3);
    EXPECT_FALSE(t.files.FileExists(u"C:\\From\\c"));
}

TEST_F(SilentCopyTest, AMoveThatWasGivenUpKeepsItsSource) {
    t.files.AddFile(u"C:\\To\\a", "old");
    CopyWork work({.move = true, .sourceFolder = u"C:\\From", .items = {u"a"}, .targetFolder = u"C:\\To"});
    work.Run().YesToAll = 1;
    work.TheSigns().abandoned = true;
    work.GoOn(
        t.files, [] { return true; }, 1);
    EXPECT_EQ(t.files.Contents(u"C:\\To\\a"), "bytes");
    EXPECT_TRUE(t.files.FileExists(u"C:\\From\\a"));
}

// The window.

TEST_F(SilentCopyTest, ProceedCanBeStopped) {
    StopInWindow([](frmCopyMove& f) { f.cmdOk.Press(); });
    EXPECT_FALSE(IsCopied(u"a"));
}

TEST_F(SilentCopyTest, AFolderOfTheTreeCanBeStopped) {
    StopInWindow([](frmCopyMove& f) {
        f.TreeView1.SetExpanded(u"C:\\To", true);
        EXPECT_FALSE(f.TreeView1.Node(u"C:\\To")->expanded);
    });
}

TEST_F(SilentCopyTest, ANewFolderCanBeStopped) {
    // A window that opened would fail this.
    StopInWindow([](frmCopyMove& f) { f.cmdNewDir.Press(); });
}

TEST_F(SilentCopyTest, ADeletionCanBeStopped) {
    StopInWindow([](frmCopyMove& f) { f.cmdDelDir.Press(); });
    EXPECT_TRUE(t.files.DirExists(u"C:\\To\\sub"));
}

TEST_F(SilentCopyTest, AJobThatIsStoppedIsFollowedByTheClosingQuestion) {
    t.user.On<frmCopyMove>([this](frmCopyMove& f) {
        t.user.Answer({u"0 file(s) copied to this folder:\r\n\r\nC:\\To\r\n\r\nView folder with "
                       u"Windows Explorer?",
                       MessageIcon::Question, MessageButtons::YesNo},
                      Answer::No);
        f.TreeView1.Select(u"C:\\To");
        constexpr int kBothFoldersCompared = 1;
        disk.HoldAfter(kBothFoldersCompared);
        t.screen.QueueMessage([&f] {
            KeyEvent key{Key::Escape, Mask::None};
            f.cmdCancel.KeyDown(key);
        });
        f.cmdOk.Press();
        disk.Release();
        EXPECT_FALSE(f.Shown());
    });
    frmCopyMove(t.app).ShowModal();
    EXPECT_FALSE(IsCopied(u"a"));
}

TEST_F(SilentCopyTest, TheQuestionWaitsOnlySomeSecondsForWhatItShows) {
    run.AskSource = u"C:\\From\\a";
    run.AskTarget = u"C:\\To\\a";
    disk.Hold();
    t.user.On<frmAskCopyMove>([](frmAskCopyMove& f) {
        EXPECT_EQ(f.lblSourceFacts.Caption.Get(), u"Size:      Modified:  ");
        f.cmdRenameTarget.Press();
        f.cmdAcceptRename.Press();
        EXPECT_TRUE(f.Shown());
        f.Close();
    });
    frmAskCopyMove(t.app, run).ShowModal();
    EXPECT_EQ(run.CopyThisFile, 0);
    EXPECT_LE(t.clock.Uptime(), std::chrono::seconds(4));
}

TEST_F(SilentCopyTest, ALastTargetThatDoesntAnswerIsntBegunWith) {
    request.LastCopyTarget = u"C:\\To";
    disk.Hold();
    t.user.On<frmCopyMove>([this](frmCopyMove& f) {
        EXPECT_EQ(f.txtFullPath.Text.Get(), u"C:\\From");
        disk.Release();
        f.Close();
    });
    frmCopyMove(t.app).ShowModal();
}

} // namespace
} // namespace korvane
