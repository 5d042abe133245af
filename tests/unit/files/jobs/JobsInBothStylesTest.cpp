// Copying and moving at the limits of their rules.

#include "common/number/Number.h"
#include "context/exchange/CopyMoveRequest.h"
#include "files/jobs/CopyJob.h"
#include "files/jobs/frmAskCopyMove.h"
#include "files/jobs/frmCopyMove.h"
#include "support/InBothStyles.h"

#include <functional>

namespace korvane {
namespace {

constexpr DateTime kOld{2020, 5, 17, 12, 30, 0};

class JobsTest : public InBothStyles {
protected:
    JobsTest() {
        for (const TextView folder : {u"From", u"To"})
            t.files.AddDir(At(folder));
        t.files.ChangeDir(At(u"From"));
        SetFree(1'000'000);
    }
    void SetFree(std::int64_t bytes) {
        t.files.SetVolume(At(u"To"), {.totalBytes = 2'000'000, .freeBytes = bytes});
    }
    /// A file in both folders, its copy an old one.
    void AddBoth(const Text& name, std::string_view source = "new", std::string_view target = "old") {
        t.files.AddFile(At(u"From/" + name), source);
        t.files.AddFile(At(u"To/" + name), target);
    }

    // Without the window.

    void RunFor(std::vector<Text> items, bool move = false, TextView to = u"To") {
        CopyJob job(
            app,
            {.move = move, .sourceFolder = At(u"From"), .items = std::move(items), .targetFolder = At(to)},
            run, {[] {}, [this] { Ask(); }});
        while (job.Step()) {
        }
    }
    void Ask() {
        ++asked;
        answer(run);
    }

    // In the window, which is open on the target's folder.

    template <class ScriptT>
    void Show(std::vector<Text> marked, ScriptT script) {
        CopyMoveRequest& request = app.Exchange<CopyMoveRequest>();
        request.CopyMoveKind = 1;
        request.CopySourceFolder = At(u"From");
        request.lstMarkedFiles = std::move(marked);
        request.LastCopyTarget = At(u"To");
        t.user.On<frmCopyMove>(script);
        frmCopyMove(app).ShowModal();
    }
    void AwaitEnd(int copied) {
        t.user.Answer({NumberText(copied) + u" file(s) copied to this folder:\r\n\r\n" + At(u"To") +
                           u"\r\n\r\nView folder with Windows Explorer?",
                       MessageIcon::Question, MessageButtons::YesNo},
                      Answer::No);
    }

    CopyMoveRun run;
    int asked = 0;
    std::function<void(CopyMoveRun&)> answer = [](CopyMoveRun& job) { job.CopyThisFile = 1; };
};
KORVANE_IN_BOTH_STYLES(JobsTest);

TEST_P(JobsTest, AFolderInAnotherCaseIsTheSourceOnlyWhereTheDiskSaysSo) {
    t.files.AddFile(At(u"From/a"), "new");
    if (IsPosix()) t.files.AddDir(At(u"FROM"));
    EXPECT_EQ(AreSameFolder(t.files, At(u"FROM"), At(u"From")), !IsPosix());
}

// Kept for compatibility: update-compares-minutes.
TEST_P(JobsTest, AnUpdateTakesWhatIsAbsentOrNewerByAMinute) {
    run.UpdateOnly = 1;
    t.files.AddFile(At(u"From/absent"), "new");
    for (const TextView name : {u"younger", u"same"}) {
        AddBoth(Text(name));
        t.files.SetModified(At(u"To/" + Text(name)), kOld);
    }
    t.files.SetModified(At(u"From/younger"), {2020, 5, 17, 12, 31, 0});
    t.files.SetModified(At(u"From/same"), {2020, 5, 17, 12, 30, 59});
    RunFor({u"absent", u"younger", u"same"});
    EXPECT_EQ(Contents(u"To/absent"), "new");
    EXPECT_EQ(Contents(u"To/younger"), "new");
    EXPECT_EQ(Contents(u"To/same"), "old");
    EXPECT_EQ(asked, 0);
}

TEST_P(JobsTest, ALargerTargetIsReplacedWithTheReserveAlone) {
    AddBoth(u"a", std::string(1000, 'n'), std::string(2000, 'o'));
    SetFree(4096);
    RunFor({u"a"});
    EXPECT_EQ(Contents(u"To/a"), std::string(1000, 'n'));
    EXPECT_EQ(run.DriveFree, 4096);
}

TEST_P(JobsTest, TheFileAndTheReserveAreEnoughAndAByteLessIsNot) {
    t.files.AddFile(At(u"From/a"), std::string(1000, 'n'));
    SetFree(5095);
    t.user.Answer({u"Target drive full !\r\n\r\nTarget drive\t" + At(u"") +
                       u"\r\nTotal space\t2,000,000\r\nFree space\t5,095\r\n\r\nHalted at\t" + At(u"FROM/A") +
                       u"\r\nSize\t1,000",
                   MessageIcon::Exclamation},
                  Answer::Ok);
    RunFor({u"a"});
    EXPECT_EQ(Contents(u"To/a"), "(none)");
    SetFree(5096);
    RunFor({u"a"});
    EXPECT_EQ(Contents(u"To/a"), std::string(1000, 'n'));
}

TEST_P(JobsTest, NoToAllCopiesWhatIsAbsentAndAsksNoMore) {
    AddBoth(u"a");
    t.files.AddFile(At(u"From/b"), "new");
    AddBoth(u"c");
    answer = [](CopyMoveRun& job) { job.NoToAll = 1; };
    RunFor({u"a", u"b", u"c"});
    EXPECT_EQ(Contents(u"To/a"), "old");
    EXPECT_EQ(Contents(u"To/b"), "new");
    EXPECT_EQ(Contents(u"To/c"), "old");
    EXPECT_EQ(asked, 1);
}

TEST_P(JobsTest, AMovedFileAnsweredWithNoStays) {
    AddBoth(u"a");
    answer = [](CopyMoveRun&) {};
    RunFor({u"a"}, true);
    EXPECT_EQ(Contents(u"From/a"), "new");
    EXPECT_EQ(Contents(u"To/a"), "old");
}

TEST_P(JobsTest, AFolderIsNotCopiedAlsoNotIntoItself) {
    t.files.AddFile(At(u"From/sub/inside"), "kept");
    for (const bool move : {false, true})
        RunFor({u"sub"}, move, u"From/sub");
    EXPECT_EQ(run.FilesCopied, 0);
    EXPECT_EQ(Contents(u"From/sub/inside"), "kept");
    EXPECT_TRUE(t.files.FolderNames(At(u"From/sub")).empty());
}

TEST_P(JobsTest, ADiskThatCannotBeWrittenTakesAndLosesNothing) {
    AddBoth(u"a");
    t.files.AddFile(At(u"From/b"), "new");
    t.files.SetDiskReadOnly(true, At(u"To"));
    for (const bool move : {false, true}) {
        t.user.Answer(Answer::Ok);
        t.user.Answer(Answer::Ok);
        RunFor({u"a", u"b"}, move);
    }
    EXPECT_EQ(run.FilesCopied, 0);
    EXPECT_EQ(Contents(u"From/a"), "new");
    EXPECT_EQ(Contents(u"From/b"), "new");
    EXPECT_EQ(Contents(u"To/a"), "old");
    EXPECT_EQ(Contents(u"To/b"), "(none)");
}

// The window.

TEST_P(JobsTest, OneFileTakesTheNewNameAndOfTwoNoneDoes) {
    t.files.AddFile(At(u"From/a"), "new");
    t.files.AddFile(At(u"From/b"), "new");
    Show({u"a"}, [this](frmCopyMove& f) {
        AwaitEnd(1);
        f.txtTargetName.Type(u"z");
        f.cmdOk.Press();
    });
    EXPECT_EQ(Contents(u"To/z"), "new");
    EXPECT_EQ(Contents(u"To/a"), "(none)");
    Show({u"a", u"b"}, [this](frmCopyMove& f) {
        AwaitEnd(2);
        f.txtTargetName.Type(u"y");
        f.cmdOk.Press();
    });
    EXPECT_EQ(Contents(u"To/a"), "new");
    EXPECT_EQ(Contents(u"To/y"), "(none)");
}

TEST_P(JobsTest, EscEndsAfterTheCurrentFileAndTheQuestionStillComes) {
    for (const TextView name : {u"From/a", u"From/b"})
        t.files.AddFile(At(name), "new");
    Show({u"a", u"b"}, [this](frmCopyMove& f) {
        AwaitEnd(1);
        t.screen.QueueMessage([] {});
        t.screen.QueueMessage([] {});
        t.screen.QueueMessage([&f] {
            KeyEvent key{Key::Escape};
            f.cmdCancel.KeyDown(key);
        });
        f.cmdOk.Press();
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(Contents(u"To/a"), "new");
    EXPECT_EQ(Contents(u"To/b"), "(none)");
}

// Kept for compatibility: copy-cancel-asks-nothing.
TEST_P(JobsTest, CancelByMouseEndsAfterTheCurrentFileWithoutTheQuestion) {
    for (const TextView name : {u"From/a", u"From/b"})
        t.files.AddFile(At(name), "new");
    Show({u"a", u"b"}, [this](frmCopyMove& f) {
        t.screen.QueueMessage([&f] { f.cmdCancel.Press(); });
        f.cmdOk.Press();
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(Contents(u"To/a"), "new");
    EXPECT_EQ(Contents(u"To/b"), "(none)");
}

TEST_P(JobsTest, InATargetThatHasGoneNoFolderIsMade) {
    Show({u"a"}, [this](frmCopyMove& f) {
        t.files.Erase(At(u"To"));
        t.user.Answer({u"Cannot locate this directory:\r\n\r\n" + At(u"To"), MessageIcon::Stop}, Answer::Ok);
        f.cmdNewDir.Press();
        f.Close();
    });
    EXPECT_EQ(t.user.Messages().size(), 1U);
}

TEST_P(JobsTest, ATargetCanBeRenamedToAFreeNameInItsFolder) {
    for (const TextView name : {u"a", u"there", u"To/a"})
        t.files.AddFile(At(name), "old");
    for (const TextView folder : {u"", u"To/"}) {
        const Text renamed = At(Text(folder) + u"free");
        run = {.AskSource = At(u"From/a"), .AskTarget = At(Text(folder) + u"a")};
        t.user.On<frmAskCopyMove>([&](frmAskCopyMove& f) {
            EXPECT_EQ(f.txtTarget.Text.Get(), u"a");
            f.cmdRenameTarget.Press();
            f.txtTarget.Type(u"free");
            f.cmdAcceptRename.Press();
            EXPECT_FALSE(f.Shown());
        });
        frmAskCopyMove(app, run).ShowModal();
        EXPECT_EQ(run.AskTarget, renamed);
        EXPECT_EQ(run.CopyThisFile, 1);
    }
}

} // namespace
} // namespace korvane
