// Tests what is kept around a save, and that the save is as it is without.

#include "unit/kept/KeptRun.h"

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using namespace std::chrono_literals;

constexpr TextView kRoot = u"/home/me/state/kept";

struct KeptSaves : testing::Test {
    KeptSaves() {
        program.files.AddDir(u"/home/me");
        tab = run.NewTable(kPath, u"first");
        tab->Save();
        run.background.DoAll();
    }

    std::vector<std::string> Versions() {
        std::vector<std::string> bytes;
        for (const KeptFile& version : KeptVersions(files, kRoot).Of(kPath))
            bytes.push_back(files.Contents(version.path).value_or("(none)"));
        return bytes;
    }
    std::string Saved() const { return files.Contents(kPath).value_or("(none)"); }

    const Text kPath = u"/home/me/books.tbx";
    TestApp program{PathStyle::Posix};
    MemoryFileSystem& files = program.files;
    KeptRun run{program.app, files, program.clock, Text(kRoot)};
    std::unique_ptr<KeptTab> tab;
};

TEST_F(KeptSaves, TheFirstSaveReplacesNothing) {
    EXPECT_THAT(Saved(), HasSubstr("first"));
    EXPECT_THAT(Versions(), IsEmpty());
    EXPECT_EQ(tab->model.TableAltered, 0);
}

TEST_F(KeptSaves, TheNextOneKeepsWhatItReplaces) {
    tab->Type(u"second");
    tab->Save();
    EXPECT_THAT(Saved(), HasSubstr("second"));
    EXPECT_THAT(Versions(), ElementsAre(HasSubstr("first")));
    run.background.DoAll();
    EXPECT_THAT(Versions(), ElementsAre(HasSubstr("first")));
    EXPECT_EQ(tab->model.TableAltered, 0);
}

TEST_F(KeptSaves, ASaveWithoutAChangeLeavesNoVersion) {
    tab->Save();
    tab->Save();
    run.background.DoAll();
    EXPECT_THAT(Versions(), IsEmpty());
}

TEST_F(KeptSaves, TenVersionsStay) {
    for (int i = 0; i < 12; ++i) {
        tab->Type(FromAscii("change " + std::to_string(i)));
        tab->Save();
        run.background.DoAll();
    }
    ASSERT_EQ(Versions().size(), 10u);
    EXPECT_THAT(Versions().front(), HasSubstr("change 1\r"));
    EXPECT_THAT(Versions().back(), HasSubstr("change 10"));
}

TEST_F(KeptSaves, OnAFullDiskTheOldVersionStaysAndTheTableIsAltered) {
    tab->Type(u"a text that is longer than the room that is left on the disk");
    files.SetFreeBytes(100);
    tab->Save();
    EXPECT_EQ(tab->model.TableAltered, 1);
    EXPECT_TRUE(program.user.Messages().empty());
    EXPECT_THAT(Versions(), ElementsAre(HasSubstr("first")));
    EXPECT_THAT(Saved(), testing::Not(HasSubstr("longer")));
}

TEST_F(KeptSaves, ClosingStopsWhereTheSaveWasNotWhole) {
    tab->Type(u"a text that is longer than the room that is left on the disk");
    files.SetFreeBytes(100);
    program.user.Answer(Answer::Yes);
    EXPECT_FALSE(AskToSaveAtClosing(tab->tab));
}

TEST_F(KeptSaves, AfterAFullDiskTheCutFileIsNoVersion) {
    tab->Type(u"a text that is longer than the room that is left on the disk");
    files.SetFreeBytes(100);
    tab->Save();
    files.SetFreeBytes(1'000'000);
    tab->Save();
    EXPECT_EQ(tab->model.TableAltered, 0);
    run.background.DoAll();
    EXPECT_THAT(Saved(), HasSubstr("longer"));
    EXPECT_THAT(Versions(), ElementsAre(HasSubstr("first")));
}

TEST_F(KeptSaves, WhenTheNewFileFitsOnlyInThePlaceOfTheOldOneItTakesThatPlace) {
    tab->Type(Text(8000, u'x'));
    tab->Save();
    run.background.DoAll();
    ASSERT_THAT(Versions(), ElementsAre(HasSubstr("first")));
    constexpr std::int64_t kLarge = 1'000'000;
    files.SetQuota(kLarge);
    const std::int64_t used = kLarge - files.Volume(kPath)->freeBytes;
    files.SetQuota(used + 4000);
    tab->Type(Text(8000, u'y'));
    tab->Save();
    EXPECT_EQ(tab->model.TableAltered, 0);
    EXPECT_THAT(Saved(), HasSubstr("yyy"));
    EXPECT_THAT(Versions(), ElementsAre(HasSubstr("first")));
}

TEST_F(KeptSaves, WhenTheNewFileDoesNotFitAtAllTheOldOneStays) {
    files.SetVolume(kPath, {.type = DriveType::Fixed, .totalBytes = 1'000'000});
    tab->Type(Text(2000, u'x'));
    files.SetFreeBytes(100);
    tab->Save();
    EXPECT_EQ(tab->model.TableAltered, 1);
    EXPECT_THAT(Versions(), ElementsAre(HasSubstr("first")));
}

TEST_F(KeptSaves, AReadOnlyFileIsLeftWithoutAVersion) {
    tab->Type(u"second");
    files.SetFileReadOnly(kPath);
    program.user.Answer(Answer::Ok);
    tab->Save();
    EXPECT_EQ(tab->model.TableAltered, 1);
    EXPECT_THAT(Saved(), HasSubstr("first"));
    EXPECT_THAT(Versions(), IsEmpty());
}

TEST_F(KeptSaves, WhenTheOldFileIsGoneAndTheNewOneCannotBeOpenedTheVersionStays) {
    tab->Type(u"second");
    // The first files that are opened are the records of the version and of the save.
    files.Faults().FailNth(FileStep::OpenToWrite, 3, u"No hope");
    program.user.Answer(Answer::Ok);
    tab->Save();
    EXPECT_EQ(Saved(), "(none)");
    EXPECT_EQ(tab->model.TableAltered, 1);
    EXPECT_THAT(Versions(), ElementsAre(HasSubstr("first")));
}

TEST_F(KeptSaves, WhenNeitherCouldBeDoneNothingIsKept) {
    tab->Type(u"second");
    files.Faults().FailNth(FileStep::Remove, 1);
    // The third is the copy that keeps the version from being overwritten.
    files.Faults().FailNth(FileStep::OpenToWrite, 4, u"No hope");
    program.user.Answer(Answer::Ok);
    tab->Save();
    EXPECT_THAT(Saved(), HasSubstr("first"));
    EXPECT_THAT(Versions(), IsEmpty());
}

TEST_F(KeptSaves, AFileThatIsOverwrittenInItsPlaceLeavesItsVersionWhole) {
    tab->Type(u"second");
    files.Faults().FailNth(FileStep::Remove, 1);
    tab->Save();
    EXPECT_THAT(Saved(), HasSubstr("second"));
    EXPECT_THAT(Versions(), ElementsAre(HasSubstr("first")));
}

TEST_F(KeptSaves, AFileThatIsNotWhatWasWrittenMakesTheTableAltered) {
    tab->Type(u"second");
    tab->Save();
    EXPECT_EQ(tab->model.TableAltered, 0);
    files.AddFile(kPath, "what the disk made of it");
    run.background.DoAll();
    EXPECT_EQ(tab->model.TableAltered, 1);
    EXPECT_THAT(Versions(), ElementsAre(HasSubstr("first")));
}

TEST_F(KeptSaves, WhatIsTypedAfterASaveIsNotMissedInItsFile) {
    tab->Type(u"second");
    tab->Save();
    tab->Type(u"third");
    EXPECT_THAT(RunFolders(files, kRoot).NeededVersions(), testing::SizeIs(1));
    run.background.DoAll();
    EXPECT_THAT(RunFolders(files, kRoot).NeededVersions(), IsEmpty());
}

TEST_F(KeptSaves, AFileThatIsNotSafeOnTheDiskMakesTheTableAltered) {
    tab->Type(u"second");
    tab->Save();
    files.Faults().FailNth(FileStep::Flush, 1);
    run.background.DoAll();
    EXPECT_EQ(tab->model.TableAltered, 1);
}

TEST_F(KeptSaves, ALaterSaveToTheSameFileTakesThePlaceOfAnEarlierOne) {
    const auto other = run.Open(kPath);
    tab->Type(u"second");
    tab->Save();
    other->Type(u"third");
    other->Save();
    run.background.DoAll();
    EXPECT_EQ(tab->model.TableAltered, 0);
    EXPECT_EQ(other->model.TableAltered, 0);
    EXPECT_THAT(Saved(), HasSubstr("third"));
}

TEST_F(KeptSaves, ATabThatClosesWhileItsTableIsSavedTakesNothingAlong) {
    tab->Type(u"second");
    program.screen.QueueMessage([this] { run.keeper->GiveUp(tab->tab); });
    tab->Save();
    run.background.DoAll();
    EXPECT_THAT(Saved(), HasSubstr("second"));
    EXPECT_THAT(Versions(), ElementsAre(HasSubstr("first")));
    EXPECT_THAT(run.Unsaved(), IsEmpty());
}

TEST_F(KeptSaves, TheSaveIsAsItIsWithoutAKeeper) {
    program.app.SetPort<TableKeeper>(nullptr);
    tab->Type(u"second");
    files.SetFreeBytes(100);
    tab->Save();
    EXPECT_EQ(tab->model.TableAltered, 0);
    EXPECT_THAT(Versions(), IsEmpty());
}

TEST_F(KeptSaves, WhereNothingCanBeKeptASaveGoesOnAsEver) {
    for (const Text& root : {Text(), Text(u"/home/me/books.tbx/kept")}) {
        KeptRun other{program.app, files, program.clock, root};
        tab->Type(u"second");
        tab->Save();
        EXPECT_EQ(tab->model.TableAltered, 0);
        EXPECT_THAT(Saved(), HasSubstr("second"));
        files.SetFreeBytes(10);
        tab->Save();
        EXPECT_EQ(tab->model.TableAltered, 1);
        files.SetFreeBytes(1'000'000);
        tab->Save();
    }
}

TEST_F(KeptSaves, AnEndAsItShouldLeavesOnlyVersions) {
    tab->Type(u"second");
    tab->Save();
    run.background.DoAll();
    run.Close(std::move(tab));
    run.End();
    EXPECT_THAT(files.FolderNames(Text(kRoot) + u"/runs"), IsEmpty());
    EXPECT_EQ(Versions().size(), 1u);
}

} // namespace
} // namespace korvane
