// Tests how changes are kept that no save has brought to the disk.

#include "unit/kept/KeptRun.h"

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using namespace std::chrono_literals;

constexpr TextView kRoot = u"/home/me/state/kept";

struct UnsavedWork : testing::Test {
    UnsavedWork() {
        program.files.AddDir(u"/home/me");
        tab = run->NewTable(kPath, u"first");
        tab->Save();
        run->background.DoAll();
    }

    /// The bytes of all drafts of all runs.
    std::vector<std::string> Drafts() {
        std::vector<std::string> bytes;
        for (const Text& table : RunFolders(files, kRoot).AllTables())
            for (const KeptFile& draft : KeptFilesIn(files, table))
                bytes.push_back(files.Contents(draft.path).value_or("(none)"));
        return bytes;
    }
    void Kill() {
        run.reset();
        tab.reset();
    }
    void Start() { run = std::make_unique<KeptRun>(program.app, files, program.clock, Text(kRoot)); }

    const Text kPath = u"/home/me/books.tbx";
    TestApp program{PathStyle::Posix};
    MemoryFileSystem& files = program.files;
    std::unique_ptr<KeptRun> run = std::make_unique<KeptRun>(program.app, files, program.clock, Text(kRoot));
    std::unique_ptr<KeptTab> tab;
};

TEST_F(UnsavedWork, IsKeptTwoSecondsAfterTheLastKey) {
    tab->Type(u"second");
    run->background.Pass(1s);
    tab->Type(u"third");
    run->background.Pass(1999ms);
    EXPECT_THAT(Drafts(), IsEmpty());
    run->background.Pass(1ms);
    EXPECT_THAT(Drafts(), ElementsAre(HasSubstr("third")));
}

TEST_F(UnsavedWork, IsOfTheMomentAtWhichItBegins) {
    tab->Type(u"second");
    run->background.PassWithoutWork(2s);
    tab->Type(u"third");
    run->background.DoAll();
    EXPECT_THAT(Drafts(), ElementsAre(HasSubstr("second")));
    run->background.Pass(10s);
    EXPECT_THAT(Drafts(), ElementsAre(HasSubstr("third")));
}

TEST_F(UnsavedWork, IsKeptAtOnceWhenTheProgramEndsUnasked) {
    tab->Type(u"second");
    tab->TypeIntoField(u"third");
    run->keeper->KeepNow();
    EXPECT_THAT(Drafts(), ElementsAre(HasSubstr("third")));
    Kill();
    Start();
    EXPECT_THAT(run->Unsaved(), ElementsAre("/home/me/books.tbx"));
}

TEST_F(UnsavedWork, NothingIsKeptOfATableWithoutChangesWhenTheProgramEndsUnasked) {
    run->keeper->KeepNow();
    EXPECT_THAT(Drafts(), IsEmpty());
    Kill();
    Start();
    EXPECT_THAT(run->Unsaved(), IsEmpty());
}

TEST_F(UnsavedWork, OfOneWhoNeverPausesIsKeptAfterFiveSeconds) {
    for (int second = 0; second < 20; ++second) {
        tab->Type(FromAscii("change " + std::to_string(second)));
        run->background.Pass(1s);
        if (second >= 10) {
            ASSERT_EQ(Drafts().size(), 1u);
            // None is older than five seconds when the next one is made.
            const bool recent = Drafts()[0].find("change " + std::to_string(second - 9)) == std::string::npos;
            EXPECT_TRUE(recent) << second;
        }
    }
}

TEST_F(UnsavedWork, HasTheTextThatIsBeingTypedIntoACell) {
    tab->TypeIntoField(u"not committed");
    run->background.Pass(2s);
    EXPECT_THAT(Drafts(), ElementsAre(HasSubstr("not committed")));
    EXPECT_EQ(tab->Cell(), u"first");
    EXPECT_EQ(tab->model.TableAltered, 0);
    for (int second = 0; second < 20; ++second) {
        tab->TypeIntoField(FromAscii("still typing " + std::to_string(second)));
        run->background.Pass(1s);
    }
    EXPECT_THAT(Drafts(), ElementsAre(testing::AnyOf(HasSubstr("typing 15"), HasSubstr("typing 16"),
                                                     HasSubstr("typing 17"), HasSubstr("typing 18"),
                                                     HasSubstr("typing 19"))));
}

TEST_F(UnsavedWork, OfATextThatIsTypedGoesWhenTheFieldIsLeftWithoutIt) {
    tab->TypeIntoField(u"not committed");
    run->background.Pass(2s);
    tab->TypeIntoField(std::nullopt);
    run->background.DoAll();
    EXPECT_THAT(Drafts(), IsEmpty());
    run->background.Pass(1min);
    EXPECT_THAT(Drafts(), IsEmpty());
}

TEST_F(UnsavedWork, OfATextThatIsTypedBecomesThatOfTheEdit) {
    tab->TypeIntoField(u"second");
    run->background.Pass(2s);
    tab->Type(u"second");
    tab->TypeIntoField(std::nullopt);
    run->background.Pass(1min);
    EXPECT_THAT(Drafts(), ElementsAre(HasSubstr("second")));
}

TEST_F(UnsavedWork, OfATableWithoutChangesThereIsNone) {
    { const WatchedCommand command(tab->tab); }
    run->background.Pass(1min);
    EXPECT_THAT(Drafts(), IsEmpty());
}

TEST_F(UnsavedWork, IsKeptWhileACommandLasts) {
    const WatchedCommand command(tab->tab);
    run->background.Pass(1min);
    tab->grid.SetCellValue(Row{1}, Col{1}, u"replaced in a window");
    tab->model.TableAltered = 1;
    run->background.Pass(4s);
    EXPECT_THAT(Drafts(), ElementsAre(HasSubstr("replaced in a window")));
}

TEST_F(UnsavedWork, IsWrittenOnceForEachChange) {
    tab->Type(u"second");
    run->background.Pass(1min);
    const auto before = files.Modified(RunFolders(files, kRoot).AllTables()[0]);
    const auto names = files.FileNames(RunFolders(files, kRoot).AllTables()[0], u"*");
    run->background.Pass(1min);
    EXPECT_EQ(files.FileNames(RunFolders(files, kRoot).AllTables()[0], u"*"), names);
    EXPECT_EQ(files.Modified(RunFolders(files, kRoot).AllTables()[0]), before);
}

TEST_F(UnsavedWork, IsPrivate) {
    tab->Type(u"second");
    run->background.Pass(2s);
    const Text folder = RunFolders(files, kRoot).AllTables()[0];
    EXPECT_TRUE(files.IsPrivate(folder));
    for (const Text& name : files.FileNames(folder, u"*"))
        EXPECT_TRUE(files.IsPrivate(folder + u"/" + name)) << ToUtf8(name);
}

TEST_F(UnsavedWork, GoesWithASaveThatIsWhole) {
    tab->Type(u"second");
    run->background.Pass(2s);
    tab->Save();
    EXPECT_EQ(Drafts().size(), 1u);
    run->background.DoAll();
    EXPECT_THAT(Drafts(), IsEmpty());
}

TEST_F(UnsavedWork, StaysWithASaveThatIsNot) {
    tab->Type(u"a text that is longer than the room that is left on the disk");
    run->background.Pass(2s);
    files.SetFreeBytes(100);
    tab->Save();
    run->background.Pass(1min);
    EXPECT_THAT(Drafts(), ElementsAre(HasSubstr("longer")));
}

TEST_F(UnsavedWork, IsKeptAgainWhenTheSavedFileTurnsOutBad) {
    tab->Type(u"second");
    run->background.Pass(2s);
    tab->Type(u"third");
    tab->Save();
    files.AddFile(kPath, "what the disk made of it");
    run->background.Pass(10s);
    EXPECT_EQ(tab->model.TableAltered, 1);
    EXPECT_THAT(Drafts(), ElementsAre(HasSubstr("third")));
}

TEST_F(UnsavedWork, GoesWithATabWhoseChangesAreNotWanted) {
    tab->Type(u"second");
    run->background.Pass(2s);
    run->Close(std::move(tab));
    run->background.DoAll();
    EXPECT_THAT(Drafts(), IsEmpty());
}

TEST_F(UnsavedWork, GoesAlsoWhenTheProgramEndsAtOnce) {
    tab->Type(u"second");
    run->background.Pass(2s);
    run->Close(std::move(tab));
    run->End();
    EXPECT_THAT(files.FolderNames(Text(kRoot) + u"/runs"), IsEmpty());
}

TEST_F(UnsavedWork, GoesWhenAllChangesWereTakenBack) {
    tab->Type(u"second");
    run->background.Pass(2s);
    {
        const WatchedCommand undo(tab->tab);
        tab->grid.SetCellValue(Row{1}, Col{1}, u"first");
        tab->model.TableAltered = 0;
    }
    run->background.DoAll();
    EXPECT_THAT(Drafts(), IsEmpty());
    tab->Type(u"third");
    run->background.Pass(10s);
    EXPECT_THAT(Drafts(), ElementsAre(HasSubstr("third")));
}

TEST_F(UnsavedWork, IsTriedAgainAfterAFailure) {
    tab->Type(u"second");
    files.Faults().FailNth(FileStep::Flush, 1);
    run->background.Pass(2s);
    EXPECT_THAT(Drafts(), IsEmpty());
    run->background.Pass(10s);
    EXPECT_THAT(Drafts(), ElementsAre(HasSubstr("second")));
}

TEST_F(UnsavedWork, StaysUntilALaterDraftIsWhole) {
    tab->Type(u"second");
    run->background.Pass(2s);
    tab->Type(u"third");
    files.Faults().FailNth(FileStep::Rename, 1);
    run->background.Pass(5s);
    EXPECT_THAT(Drafts(), ElementsAre(HasSubstr("second")));
}

TEST_F(UnsavedWork, OfAnUnfinishedRunIsListed) {
    tab->Type(u"second");
    program.clock.Set({2026, 11, 21, 23, 32, 0});
    run->background.Pass(2s);
    Kill();
    Start();
    ASSERT_THAT(run->Unsaved(), ElementsAre("/home/me/books.tbx"));
    EXPECT_EQ(run->keeper->Unsaved()[0].changed, (DateTime{2026, 11, 21, 23, 32, 2}));
    tab = run->OpenUnsaved(run->keeper->Unsaved()[0]);
    EXPECT_EQ(tab->Cell(), u"second");
    EXPECT_THAT(run->Unsaved(), IsEmpty());
}

TEST_F(UnsavedWork, ThatWasWrittenDownAfterItsSaveIsNotListed) {
    tab->Type(u"second");
    run->background.PassWithoutWork(2s);
    tab->Save();
    run->background.PassWithoutWork(10s);
    ASSERT_TRUE(run->background.DoNext());
    ASSERT_THAT(Drafts(), ElementsAre(HasSubstr("second")));
    Kill();
    Start();
    EXPECT_THAT(run->Unsaved(), IsEmpty());
}

TEST_F(UnsavedWork, IsListedWhenAPowerCutLeftZerosInTheSavedFile) {
    tab->Type(u"second");
    run->background.Pass(2s);
    tab->Save();
    std::string bytes = *files.Contents(kPath);
    bytes.replace(10, 20, 20, '\0');
    files.AddFile(kPath, bytes);
    Kill();
    Start();
    EXPECT_THAT(run->Unsaved(), ElementsAre("/home/me/books.tbx"));
    EXPECT_THAT(Drafts(), ElementsAre(HasSubstr("second")));
}

TEST_F(UnsavedWork, OfARunThatIsStillThereIsNot) {
    tab->Type(u"second");
    run->background.Pass(2s);
    const KeptRun other(program.app, files, program.clock, Text(kRoot));
    EXPECT_THAT(other.Unsaved(), IsEmpty());
}

TEST_F(UnsavedWork, ThatIsListedStaysUntilItIsOpened) {
    tab->Type(u"second");
    run->background.Pass(2s);
    Kill();
    for (int start = 0; start < 3; ++start) {
        Start();
        EXPECT_THAT(run->Unsaved(), ElementsAre("/home/me/books.tbx"));
        if (start == 1) run->End();
        Kill();
    }
}

TEST_F(UnsavedWork, ThatWasOpenedIsKeptOnAndGoesWithItsSave) {
    tab->Type(u"second");
    run->background.Pass(2s);
    Kill();
    Start();
    tab = run->OpenUnsaved(run->keeper->Unsaved()[0]);
    run->background.Pass(1min);
    EXPECT_THAT(Drafts(), ElementsAre(HasSubstr("second")));
    tab->Type(u"third");
    run->background.Pass(10s);
    EXPECT_THAT(Drafts(), ElementsAre(HasSubstr("third")));
    tab->Save();
    run->background.DoAll();
    EXPECT_THAT(Drafts(), IsEmpty());
    EXPECT_THAT(*files.Contents(kPath), HasSubstr("third"));
}

TEST_F(UnsavedWork, ThatWasOpenedAndIsNotWantedGoes) {
    tab->Type(u"second");
    run->background.Pass(2s);
    Kill();
    Start();
    run->Close(run->OpenUnsaved(run->keeper->Unsaved()[0]));
    run->background.DoAll();
    EXPECT_THAT(Drafts(), IsEmpty());
}

TEST_F(UnsavedWork, OfATableWithoutAFileHasTheNameOfItsTab) {
    auto fresh = run->NewTable(u"", u"new");
    fresh->host.SetTabCaption(u"Untitled_1.tbx");
    fresh->Type(u"typed");
    run->background.Pass(2s);
    fresh.reset();
    Kill();
    Start();
    EXPECT_THAT(run->Unsaved(), ElementsAre("Untitled_1.tbx"));
}

TEST_F(UnsavedWork, HasTheNameThatTheTableHadLast) {
    tab->Type(u"second");
    run->background.Pass(2s);
    tab->model.TxtDbFile = u"/home/me/other.tbx";
    tab->Type(u"third");
    run->background.Pass(10s);
    Kill();
    Start();
    EXPECT_THAT(run->Unsaved(), ElementsAre("/home/me/other.tbx"));
}

TEST_F(UnsavedWork, TheNewestIsListedFirst) {
    auto other = run->NewTable(u"/home/me/other.tbx", u"a");
    other->Type(u"b");
    run->background.Pass(10s);
    tab->Type(u"second");
    run->background.Pass(10s);
    Kill();
    other.reset();
    Start();
    EXPECT_THAT(run->Unsaved(), ElementsAre("/home/me/books.tbx", "/home/me/other.tbx"));
}

TEST_F(UnsavedWork, HasRowsMarkedForDeletionAndFinalLineEnds) {
    tab->grid.SetRowCount(Row{2});
    tab->Type(u"---", Row{1});
    tab->Type(u"two lines\r\n", Row{2});
    run->background.Pass(2s);
    Kill();
    Start();
    tab = run->OpenUnsaved(run->keeper->Unsaved()[0]);
    EXPECT_EQ(tab->Cell(Row{1}), u"---");
    EXPECT_EQ(tab->Cell(Row{2}), u"two lines\r\n");
}

} // namespace
} // namespace korvane
