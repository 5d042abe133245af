#include "files/jobs/CopyJob.h"

#include "context/exchange/CopyMoveRequest.h"
#include "support/TestApp.h"

#include <gmock/gmock.h>

#include <deque>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr DateTime kOld{2020, 5, 17, 12, 30, 0};

/// Files in C:\From, to be copied to D:\To. The question is answered by what is in `answers`; an unasked
/// one fails the test.
struct CopyJobTest : testing::Test {
    CopyJobTest() {
        t.files.AddDrive(u'D');
        t.files.AddDir(u"C:\\From");
        t.files.AddDir(u"D:\\To");
        SetRoom(1'000'000'000'000, 500'000'000'000);
    }
    ~CopyJobTest() override { EXPECT_THAT(answers, IsEmpty()) << "answers that nobody asked for"; }

    void SetRoom(std::int64_t total, std::int64_t free) {
        t.files.SetVolume(u"D:\\", {.totalBytes = total, .freeBytes = free});
    }
    void AddSource(TextView name, std::string_view bytes) { t.files.AddFile(From(name), bytes); }
    void AddTarget(TextView name, std::string_view bytes) { t.files.AddFile(To(name), bytes); }
    static Text From(TextView name) { return u"C:\\From\\" + Text(name); }
    static Text To(TextView name) { return u"D:\\To\\" + Text(name); }
    std::string At(const Text& path) const { return t.files.Contents(path).value_or("(none)"); }

    CopyJob::Task TaskFor(std::vector<Text> items) const {
        return {.move = move,
                .sourceFolder = u"C:\\From",
                .items = std::move(items),
                .targetFolder = u"D:\\To",
                .targetName = newName};
    }
    CopyJob JobFor(std::vector<Text> items) {
        return {t.app, TaskFor(std::move(items)), run, {[this] { Yield(); }, [this] { Ask(); }}};
    }
    void RunFor(std::vector<Text> items) {
        CopyJob job = JobFor(std::move(items));
        while (job.Step()) {
        }
    }
    void Yield() {
        ++yields;
        if (onYield) onYield();
    }
    void Ask() {
        asked.push_back(run.AskTarget);
        EXPECT_EQ(run.CopyThisFile, 0);
        ASSERT_FALSE(answers.empty()) << "nobody answers for " << ToUtf8(run.AskTarget);
        const auto answer = answers.front();
        answers.pop_front();
        answer(run);
    }

    TestApp t;
    CopyMoveRun run;
    bool move = false;
    Text newName;
    int yields = 0;
    std::function<void()> onYield;
    std::vector<Text> asked;
    std::deque<std::function<void(CopyMoveRun&)>> answers;
};

void Yes(CopyMoveRun& run) {
    run.CopyThisFile = 1;
}
void No(CopyMoveRun& run) {
    run.CopyThisFile = 0;
}
void YesToAll(CopyMoveRun& run) {
    run.YesToAll = 1;
}
void NoToAll(CopyMoveRun& run) {
    run.NoToAll = 1;
    run.CopyThisFile = 0;
}

// What is copied.

TEST_F(CopyJobTest, CopiesEachFileWithItsTimeAndCountsThem) {
    AddSource(u"a", "first");
    AddSource(u"b", "second");
    t.files.SetModified(From(u"a"), kOld);
    RunFor({u"a", u"b"});
    EXPECT_EQ(At(To(u"a")), "first");
    EXPECT_EQ(At(To(u"b")), "second");
    EXPECT_EQ(At(From(u"a")), "first");
    EXPECT_EQ(t.files.Modified(To(u"a")), kOld);
    EXPECT_EQ(run.FilesCopied, 2);
    EXPECT_EQ(t.app.Exchange<CopyMoveRequest>().LastCopyTarget, u"D:\\To");
}

TEST_F(CopyJobTest, BlankNamesAndSourcesThatAreGoneArePassedOver) {
    AddSource(u"a", "first");
    RunFor({u"", u"   ", u"gone", u"a"});
    EXPECT_EQ(run.FilesCopied, 1);
    EXPECT_EQ(At(To(u"gone")), "(none)");
}

TEST_F(CopyJobTest, ARootGetsNoSecondSeparator) {
    t.files.AddFile(u"C:\\a", "top");
    CopyJob job(t.app, {.sourceFolder = u"C:\\", .items = {u"a"}, .targetFolder = u"D:\\"}, run,
                {[] {}, [] {}});
    while (job.Step()) {
    }
    EXPECT_EQ(At(u"D:\\a"), "top");
}

TEST_F(CopyJobTest, OneFileTakesItsNewName) {
    AddSource(u"a", "first");
    newName = u"z";
    RunFor({u"a"});
    EXPECT_EQ(At(To(u"z")), "first");
    EXPECT_EQ(At(To(u"a")), "(none)");
}

TEST_F(CopyJobTest, ABlankNewNameIsNone) {
    AddSource(u"a", "first");
    newName = u"  ";
    RunFor({u"a"});
    EXPECT_EQ(At(To(u"a")), "first");
}

TEST_F(CopyJobTest, WithTwoFilesTheNewNameIsIgnored) {
    AddSource(u"a", "first");
    AddSource(u"b", "second");
    newName = u"z";
    RunFor({u"a", u"b"});
    EXPECT_EQ(At(To(u"a")), "first");
    EXPECT_EQ(At(To(u"b")), "second");
    EXPECT_EQ(At(To(u"z")), "(none)");
}

// Questions.

TEST_F(CopyJobTest, AsksBeforeItOverwrites) {
    AddSource(u"a", "new");
    AddSource(u"b", "new");
    AddTarget(u"a", "old");
    AddTarget(u"b", "old");
    answers = {Yes, No};
    RunFor({u"a", u"b"});
    EXPECT_THAT(asked, ElementsAre(To(u"a"), To(u"b")));
    EXPECT_EQ(At(To(u"a")), "new");
    EXPECT_EQ(At(To(u"b")), "old");
    EXPECT_EQ(run.FilesCopied, 1);
}

TEST_F(CopyJobTest, TheQuestionKnowsBothFiles) {
    AddSource(u"a", "new");
    AddTarget(u"a", "old");
    answers = {[](CopyMoveRun& run) {
        EXPECT_EQ(run.AskSource, From(u"a"));
        EXPECT_EQ(run.AskTarget, To(u"a"));
    }};
    RunFor({u"a"});
    EXPECT_EQ(At(To(u"a")), "old");
}

TEST_F(CopyJobTest, YesToAllEndsTheQuestions) {
    for (const TextView name : {u"a", u"b", u"c"}) {
        AddSource(name, "new");
        AddTarget(name, "old");
    }
    answers = {YesToAll};
    RunFor({u"a", u"b", u"c"});
    EXPECT_EQ(asked.size(), 1u);
    EXPECT_EQ(At(To(u"a")), "new");
    EXPECT_EQ(At(To(u"c")), "new");
    EXPECT_EQ(run.FilesCopied, 3);
}

TEST_F(CopyJobTest, NoToAllCopiesWhatIsAbsentAndLeavesTheRest) {
    for (const TextView name : {u"a", u"b", u"c", u"d"})
        AddSource(name, "new");
    AddTarget(u"a", "old");
    AddTarget(u"c", "old");
    answers = {NoToAll};
    RunFor({u"a", u"b", u"c", u"d"});
    EXPECT_EQ(asked.size(), 1u);
    EXPECT_EQ(At(To(u"a")), "old");
    EXPECT_EQ(At(To(u"b")), "new");
    EXPECT_EQ(At(To(u"c")), "old");
    EXPECT_EQ(At(To(u"d")), "new");
    EXPECT_EQ(run.FilesCopied, 2);
}

TEST_F(CopyJobTest, ARenamedTargetTakesTheCopy) {
    AddSource(u"a", "new");
    AddTarget(u"a", "old");
    answers = {[](CopyMoveRun& run) {
        run.AskTarget = To(u"z");
        run.CopyThisFile = 1;
    }};
    RunFor({u"a"});
    EXPECT_EQ(At(To(u"a")), "old");
    EXPECT_EQ(At(To(u"z")), "new");
}

TEST_F(CopyJobTest, TheDecisionForOneFileDoesNotHoldForTheNext) {
    for (const TextView name : {u"a", u"b"}) {
        AddSource(name, "new");
        AddTarget(name, "old");
    }
    answers = {Yes, [](CopyMoveRun&) {}};
    RunFor({u"a", u"b"});
    EXPECT_EQ(At(To(u"a")), "new");
    EXPECT_EQ(At(To(u"b")), "old");
}

// Only newer files.

// Kept for compatibility: update-compares-minutes.
TEST_F(CopyJobTest, UpdatingComparesWholeMinutesAndAsksNothing) {
    run.UpdateOnly = 1;
    struct Case {
        DateTime source;
        const char* expected;
    };
    const Case cases[] = {
        {{2020, 5, 17, 12, 31, 0}, "new"},  {{2020, 5, 17, 12, 30, 59}, "old"},
        {{2020, 5, 17, 12, 30, 0}, "old"},  {{2020, 5, 17, 12, 29, 59}, "old"},
        {{2020, 5, 18, 0, 0, 0}, "new"},    {{2021, 1, 1, 0, 0, 0}, "new"},
        {{2019, 12, 31, 23, 59, 0}, "old"}, {{2020, 6, 1, 0, 0, 0}, "new"},
    };
    for (const Case& each : cases) {
        AddSource(u"a", "new");
        AddTarget(u"a", "old");
        t.files.SetModified(From(u"a"), each.source);
        t.files.SetModified(To(u"a"), kOld);
        RunFor({u"a"});
        EXPECT_EQ(At(To(u"a")), each.expected) << ToUtf8(GeneralDate(each.source));
    }
    EXPECT_THAT(asked, IsEmpty());
}

TEST_F(CopyJobTest, UpdatingCopiesWhatIsAbsentWhateverCameBefore) {
    run.UpdateOnly = 1;
    AddSource(u"a", "new");
    AddTarget(u"a", "old");
    t.files.SetModified(From(u"a"), kOld);
    AddSource(u"b", "new");
    RunFor({u"a", u"b", u"a"});
    EXPECT_EQ(At(To(u"a")), "old");
    EXPECT_EQ(At(To(u"b")), "new");
    EXPECT_EQ(run.FilesCopied, 1);
}

// Moving.

TEST_F(CopyJobTest, AMoveTakesTheSourceAwayAfterItsCopy) {
    move = true;
    AddSource(u"a", "first");
    RunFor({u"a"});
    EXPECT_EQ(At(To(u"a")), "first");
    EXPECT_EQ(At(From(u"a")), "(none)");
    EXPECT_EQ(run.FilesCopied, 1);
}

TEST_F(CopyJobTest, AFileAnsweredWithNoStaysInItsPlace) {
    move = true;
    AddSource(u"a", "new");
    AddTarget(u"a", "old");
    answers = {No};
    RunFor({u"a"});
    EXPECT_EQ(At(From(u"a")), "new");
    EXPECT_EQ(At(To(u"a")), "old");
}

TEST_F(CopyJobTest, AMoveOverAFileReplacesIt) {
    move = true;
    AddSource(u"a", "new");
    AddTarget(u"a", "old");
    answers = {Yes};
    RunFor({u"a"});
    EXPECT_EQ(At(To(u"a")), "new");
    EXPECT_EQ(At(From(u"a")), "(none)");
}

TEST_F(CopyJobTest, AMoveInsideOneVolumeIsARename) {
    move = true;
    t.files.AddDir(u"C:\\To");
    AddSource(u"a", "first");
    t.files.Faults().FailNth(FileStep::OpenToRead, 1);
    CopyJob job(t.app,
                {.move = true, .sourceFolder = u"C:\\From", .items = {u"a"}, .targetFolder = u"C:\\To"}, run,
                {[] {}, [] {}});
    while (job.Step()) {
    }
    EXPECT_EQ(At(u"C:\\To\\a"), "first");
    EXPECT_EQ(At(From(u"a")), "(none)");
    EXPECT_EQ(run.FilesCopied, 1);
}

TEST_F(CopyJobTest, ASourceThatCantBeDeletedStaysWithoutAWord) {
    move = true;
    AddSource(u"a", "first");
    t.files.SetFileReadOnly(From(u"a"));
    AddSource(u"b", "second");
    RunFor({u"a", u"b"});
    EXPECT_EQ(At(To(u"a")), "first");
    EXPECT_EQ(At(From(u"a")), "first");
    EXPECT_EQ(At(From(u"b")), "(none)");
    EXPECT_EQ(run.FilesCopied, 2);
}

// Room.

TEST_F(CopyJobTest, ExactlyTheBytesNeededAndFourThousandNinetySixMorePass) {
    AddSource(u"a", std::string(1000, 'a'));
    SetRoom(9000, 5096);
    RunFor({u"a"});
    EXPECT_EQ(run.FilesCopied, 1);
    EXPECT_EQ(run.DriveFree, 4096);
}

TEST_F(CopyJobTest, OneByteLessStopsTheJobWithAReport) {
    AddSource(u"first.txt", std::string(10, 'f'));
    AddSource(u"große.txt", std::string(1000, 'a'));
    AddSource(u"last.txt", "l");
    SetRoom(5'000'000'000, 5105);
    t.user.Answer({u"Target drive full !\r\n\r\nTarget drive\tD:\\\r\nTotal space\t5,000,000,000\r\nFree "
                   u"space\t5,095\r\n\r\nHalted at\tC:\\FROM\\GROßE.TXT\r\nSize\t1,000",
                   MessageIcon::Exclamation},
                  Answer::Ok);
    RunFor({u"first.txt", u"große.txt", u"last.txt"});
    EXPECT_EQ(run.FilesCopied, 1);
    EXPECT_EQ(At(To(u"first.txt")).size(), 10u);
    EXPECT_EQ(At(To(u"last.txt")), "(none)");
}

TEST_F(CopyJobTest, ReplacingABiggerTargetNeedsTheReserveAlone) {
    AddSource(u"a", std::string(1000, 'a'));
    AddTarget(u"a", std::string(2000, 'o'));
    SetRoom(9000, 4096);
    answers = {Yes};
    RunFor({u"a"});
    EXPECT_EQ(run.FilesCopied, 1);
    EXPECT_EQ(run.DriveFree, 4096);
}

TEST_F(CopyJobTest, ReplacingASmallerTargetNeedsTheDifference) {
    AddSource(u"a", std::string(1000, 'a'));
    AddTarget(u"a", std::string(400, 'o'));
    SetRoom(9000, 4696);
    answers = {Yes};
    RunFor({u"a"});
    EXPECT_EQ(run.DriveFree, 4096);
    EXPECT_EQ(run.FilesCopied, 1);
}

// Kept for compatibility: free-space-read-once.
TEST_F(CopyJobTest, TheFreeSpaceIsAnEstimateReadOnce) {
    AddSource(u"a", std::string(100, 'a'));
    AddSource(u"b", std::string(100, 'b'));
    SetRoom(9000, 5000);
    CopyJob job = JobFor({u"a", u"b"});
    ASSERT_TRUE(job.Step());
    SetRoom(9000, 1);
    ASSERT_TRUE(job.Step());
    EXPECT_FALSE(job.Step());
    EXPECT_EQ(run.DriveFree, 4800);
    EXPECT_EQ(run.FilesCopied, 2);
}

TEST_F(CopyJobTest, ADriveThatTellsNothingIsTakenAsItComes) {
    AddSource(u"a", "first");
    t.files.SetVolume(u"D:\\", {});
    RunFor({u"a"});
    EXPECT_EQ(run.FilesCopied, 1);
}

TEST_F(CopyJobTest, ADriveFullerThanItSaidIsReportedToo) {
    AddSource(u"a", std::string(3000, 'a'));
    AddSource(u"b", "b");
    AddSource(u"none", "");
    SetRoom(90'000, 80'000);
    CopyJob job = JobFor({u"none", u"a", u"b"});
    ASSERT_TRUE(job.Step());
    t.files.SetFreeBytes(2000, u"D:\\");
    t.user.Answer({u"Target drive full !\r\n\r\nTarget drive\tD:\\\r\nTotal space\t90,000\r\nFree "
                   u"space\t80,000\r\n\r\nHalted at\tC:\\FROM\\A\r\nSize\t3,000",
                   MessageIcon::Exclamation},
                  Answer::Ok);
    while (job.Step()) {
    }
    EXPECT_EQ(run.FilesCopied, 1);
    EXPECT_THAT(t.files.FileNames(u"D:\\To", u"*"), ElementsAre(u"none"));
}

// Stopping.

TEST_F(CopyJobTest, YieldsBeforeEachFileAndBeforeEachCopy) {
    AddSource(u"a", "first");
    AddSource(u"b", "second");
    CopyJob job = JobFor({u"a", u"gone", u"b"});
    EXPECT_EQ(yields, 0);
    job.Step();
    EXPECT_EQ(yields, 2);
    job.Step();
    EXPECT_EQ(yields, 3);
    job.Step();
    EXPECT_EQ(yields, 5);
    EXPECT_FALSE(job.Step());
    EXPECT_EQ(yields, 5);
    EXPECT_EQ(run.FilesCopied, 2);
}

TEST_F(CopyJobTest, EscBeforeAFileEndsTheJob) {
    AddSource(u"a", "first");
    AddSource(u"b", "second");
    onYield = [this] {
        if (yields == 3) run.LastKey = 27;
    };
    RunFor({u"a", u"b"});
    EXPECT_EQ(run.FilesCopied, 1);
    EXPECT_EQ(At(To(u"b")), "(none)");
}

TEST_F(CopyJobTest, EscAfterTheQuestionEndsTheJobBeforeTheCopy) {
    AddSource(u"a", "new");
    AddTarget(u"a", "old");
    answers = {Yes};
    onYield = [this] {
        if (yields == 2) run.LastKey = 27;
    };
    RunFor({u"a"});
    EXPECT_EQ(run.FilesCopied, 0);
    EXPECT_EQ(At(To(u"a")), "old");
}

TEST_F(CopyJobTest, OtherKeysDoNotStopIt) {
    AddSource(u"a", "first");
    run.LastKey = 13;
    RunFor({u"a"});
    EXPECT_EQ(run.FilesCopied, 1);
}

TEST_F(CopyJobTest, AFileBeingCopiedIsFinishedFirst) {
    AddSource(u"long", std::string(5000, 'l'));
    AddSource(u"b", "second");
    onYield = [this] {
        if (yields == 3) run.LastKey = 27;
    };
    RunFor({u"long", u"b"});
    EXPECT_GT(yields, 4);
    EXPECT_EQ(run.FilesCopied, 1);
    EXPECT_EQ(At(To(u"long")), std::string(5000, 'l'));
    EXPECT_EQ(At(To(u"b")), "(none)");
}

TEST_F(CopyJobTest, TheCancelButtonEndsTheJobAfterTheCurrentFile) {
    AddSource(u"a", "first");
    AddSource(u"b", "second");
    onYield = [this] { run.CancelPressed = 1; };
    RunFor({u"a", u"b"});
    EXPECT_EQ(run.FilesCopied, 1);
    EXPECT_EQ(At(To(u"b")), "(none)");
}

TEST_F(CopyJobTest, AnEndedJobStaysEnded) {
    AddSource(u"a", "first");
    run.LastKey = 27;
    CopyJob job = JobFor({u"a"});
    EXPECT_FALSE(job.Step());
    run.LastKey = -1;
    EXPECT_FALSE(job.Step());
    EXPECT_EQ(run.FilesCopied, 0);
}

// Failures.

TEST_F(CopyJobTest, AFailureIsToldInTheSystemsWordsAndTheNextFileFollows) {
    AddSource(u"a", "new");
    AddSource(u"b", "second");
    AddTarget(u"a", "old");
    answers = {Yes};
    t.files.Faults().FailNth(FileStep::Write, 1, u"Input/output error");
    t.user.Answer(
        {u"Cannot save this file :\r\n\r\nD:\\To\\a\r\n\r\nThe error was probably triggered for the "
         u"following reason : \r\n\r\n\"Input/output error\"\r\n\r\n",
         MessageIcon::Stop},
        Answer::Ok);
    RunFor({u"a", u"b"});
    EXPECT_EQ(At(To(u"a")), "old");
    EXPECT_EQ(At(To(u"b")), "second");
    EXPECT_EQ(run.FilesCopied, 1);
}

TEST_F(CopyJobTest, AFailedMoveKeepsItsSource) {
    move = true;
    for (const FileStep step :
         {FileStep::OpenToRead, FileStep::OpenToWrite, FileStep::Write, FileStep::Close}) {
        AddSource(u"a", "first");
        t.files.Faults().FailNth(step, 1);
        t.user.Answer(Answer::Ok);
        RunFor({u"a"});
        EXPECT_EQ(At(From(u"a")), "first");
        EXPECT_EQ(At(To(u"a")), "(none)");
    }
    EXPECT_EQ(run.FilesCopied, 0);
}

TEST_F(CopyJobTest, AMoveRemovesItsSourceOnlyWhenTheCopyIsSafeOnTheDisk) {
    AddSource(u"a", "first");
    t.files.Faults().FailNth(FileStep::Flush, 1);
    RunFor({u"a"});
    EXPECT_EQ(At(To(u"a")), "first") << "a copy waits for no flush";
    t.files.Erase(To(u"a"));

    move = true;
    t.user.Answer(Answer::Ok);
    RunFor({u"a"});
    EXPECT_EQ(At(From(u"a")), "first");
    EXPECT_EQ(At(To(u"a")), "(none)");
    RunFor({u"a"});
    EXPECT_EQ(At(From(u"a")), "(none)");
    EXPECT_EQ(At(To(u"a")), "first");
}

TEST_F(CopyJobTest, ATargetThatCantBeWrittenStays) {
    AddSource(u"a", "new");
    AddTarget(u"a", "old");
    t.files.SetFileReadOnly(To(u"a"));
    answers = {Yes};
    t.user.Answer(Answer::Ok);
    RunFor({u"a"});
    EXPECT_EQ(At(To(u"a")), "old");
    EXPECT_EQ(run.FilesCopied, 0);
}

TEST_F(CopyJobTest, ASourceThatVanishesMeanwhileIsTold) {
    AddSource(u"a", "first");
    t.files.VanishBeforeOpen(From(u"a"));
    t.user.Answer(Answer::Ok);
    RunFor({u"a"});
    EXPECT_NE(InStr(t.user.Messages().back().text, u"\"No such file or directory\""), 0u);
    EXPECT_EQ(run.FilesCopied, 0);
}

TEST_F(CopyJobTest, ATargetFolderThatIsGoneEndsTheJobWithOneMessage) {
    AddSource(u"a", "first");
    AddSource(u"b", "second");
    onYield = [this] { t.files.Erase(u"D:\\To"); };
    t.user.Answer(Answer::Ok);
    RunFor({u"a", u"b"});
    EXPECT_EQ(run.FilesCopied, 0);
    EXPECT_EQ(yields, 2);
}

TEST_F(CopyJobTest, AFolderInTheTargetsPlaceIsNotReplaced) {
    AddSource(u"a", "first");
    t.files.AddFile(To(u"a") + u"\\inside", "kept");
    t.user.Answer(Answer::Ok);
    RunFor({u"a"});
    EXPECT_EQ(At(To(u"a") + u"\\inside"), "kept");
    EXPECT_EQ(run.FilesCopied, 0);
}

// Folders.

TEST_F(CopyJobTest, TheSameFolderInAnotherCaseIsTheSame) {
    EXPECT_TRUE(AreSameFolder(t.files, u"C:\\FROM", u"c:\\From"));
    EXPECT_TRUE(AreSameFolder(t.files, u"C:\\Gone", u"c:\\gone"));
    EXPECT_FALSE(AreSameFolder(t.files, u"C:\\From", u"D:\\To"));
}

// Where there are links.

struct PosixCopyJobTest : testing::Test {
    PosixCopyJobTest() {
        t.files.AddDir(u"/from");
        t.files.AddDir(u"/to");
    }
    void RunFor(std::vector<Text> items, bool move = false) {
        CopyJob job(
            t.app,
            {.move = move, .sourceFolder = u"/from", .items = std::move(items), .targetFolder = u"/to"}, run,
            {[] {}, [this] { run.CopyThisFile = 1; }});
        while (job.Step()) {
        }
    }
    std::string At(TextView path) const { return t.files.Contents(path).value_or("(none)"); }

    TestApp t{PathStyle::Posix};
    CopyMoveRun run;
};

TEST_F(PosixCopyJobTest, AShortFolderGetsItsSeparator) {
    t.files.AddFile(u"/a/x", "x");
    t.files.AddDir(u"/b");
    CopyJob job(t.app, {.sourceFolder = u"/a", .items = {u"x"}, .targetFolder = u"/b"}, run, {[] {}, [] {}});
    while (job.Step()) {
    }
    EXPECT_EQ(At(u"/b/x"), "x");
}

TEST_F(PosixCopyJobTest, OneFolderByTwoPathsIsTheSame) {
    t.files.AddLink(u"/link", u"/from");
    EXPECT_TRUE(AreSameFolder(t.files, u"/link", u"/from"));
    EXPECT_FALSE(AreSameFolder(t.files, u"/From", u"/from"));
    EXPECT_FALSE(AreSameFolder(t.files, u"/to", u"/from"));
}

TEST_F(PosixCopyJobTest, AMovedLinkLeavesItsFileAlone) {
    t.files.AddFile(u"/elsewhere", "kept");
    t.files.AddLink(u"/from/link", u"/elsewhere");
    t.files.AddFile(u"/to/link", "old");
    RunFor({u"link"}, true);
    EXPECT_EQ(At(u"/to/link"), "kept");
    EXPECT_EQ(At(u"/elsewhere"), "kept");
    EXPECT_FALSE(t.files.IsLink(u"/from/link"));
    EXPECT_EQ(run.FilesCopied, 1);
}

TEST_F(PosixCopyJobTest, ALinkToTheSourceInTheTargetsPlaceIsTheSameFile) {
    t.files.AddFile(u"/from/a", "bytes");
    t.files.AddLink(u"/to/a", u"/from/a");
    t.user.Answer(Answer::Ok);
    RunFor({u"a"}, true);
    EXPECT_EQ(At(u"/from/a"), "bytes");
    EXPECT_TRUE(t.files.IsLink(u"/to/a"));
    EXPECT_EQ(run.FilesCopied, 0);
}

TEST_F(PosixCopyJobTest, LinksThatLeadNowhereAreNotCopied) {
    t.files.AddLink(u"/from/gone", u"nowhere");
    t.files.AddLink(u"/from/circle", u"circle");
    RunFor({u"gone", u"circle"});
    EXPECT_EQ(run.FilesCopied, 0);
    EXPECT_TRUE(t.files.FileNames(u"/to", u"*").empty());
}

TEST_F(PosixCopyJobTest, NothingIsWrittenThroughALinkThatLeadsNowhere) {
    t.files.AddFile(u"/from/a", "bytes");
    t.files.AddLink(u"/to/a", u"/elsewhere");
    for (const bool move : {false, true}) {
        t.user.Answer(Answer::Ok);
        RunFor({u"a"}, move);
        EXPECT_EQ(At(u"/from/a"), "bytes");
        EXPECT_EQ(At(u"/elsewhere"), "(none)");
    }
    EXPECT_EQ(run.FilesCopied, 0);
}

TEST_F(PosixCopyJobTest, APipeIsNotOpened) {
    t.files.AddPipe(u"/from/pipe");
    t.user.Answer(Answer::Ok);
    RunFor({u"pipe"});
    EXPECT_NE(InStr(t.user.Messages().back().text, u"\"Operation not permitted\""), 0u);
    EXPECT_EQ(run.FilesCopied, 0);
}

TEST_F(PosixCopyJobTest, AFullDiskIsReportedByWhereItIsMounted) {
    t.files.AddFile(u"/from/a", std::string(1000, 'a'));
    t.files.SetVolume(u"/", {.totalBytes = 9000, .freeBytes = 100});
    t.user.Answer({u"Target drive full !\r\n\r\nTarget drive\t/\r\nTotal space\t9,000\r\nFree "
                   u"space\t100\r\n\r\nHalted at\t/FROM/A\r\nSize\t1,000",
                   MessageIcon::Exclamation},
                  Answer::Ok);
    RunFor({u"a"});
    EXPECT_EQ(run.FilesCopied, 0);
}

} // namespace
} // namespace korvane
