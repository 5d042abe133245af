#pragma once

#include "platform/FileSystem.h"

#include <gmock/gmock.h>

#include <string>

namespace korvane {

/// The tests of folders and whole files that every disk must pass. A stage for a disk has:
///     static constexpr std::size_t kLongFile;  // a file of this size is copied in more than two steps
///     static bool CopiesInSteps();    // false where the system tells nothing of a copy until it is complete
///     FileSystem& Files();
///     Text At(name);                  // the path of a name in the test's folder
///     void AddFile(name, bytes);
///     std::string Contents(name);     // "(none)" when there is no such file
///     void SetReadOnly(name);
///     void SetModified(name, time);
template <class StageT>
class WholeFilesContract : public testing::Test {
protected:
    FileSystem& Files() { return stage.Files(); }
    Text At(TextView name) { return stage.At(name); }
    /// The names of all files in the test's folder.
    std::vector<Text> Listing() { return Files().FileNames(stage.At(u""), u"*"); }

    StageT stage;
};

TYPED_TEST_SUITE_P(WholeFilesContract);

// Listing.

TYPED_TEST_P(WholeFilesContract, ListsFilesByNameUnderThePatterns) {
    for (const TextView name : {u"b.txt", u"A.TXT", u"c.rtf", u"Makefile", u"a1.txt"})
        this->stage.AddFile(name, "");
    this->Files().MakeDir(this->At(u"folder.txt"));
    EXPECT_THAT(this->Files().FileNames(this->At(u""), u"*.txt"),
                testing::ElementsAre(u"A.TXT", u"a1.txt", u"b.txt"));
    EXPECT_THAT(this->Files().FileNames(this->At(u""), u"*.rtf;*.txt"),
                testing::ElementsAre(u"A.TXT", u"a1.txt", u"b.txt", u"c.rtf"));
    EXPECT_THAT(this->Files().FileNames(this->At(u""), u"*.*"),
                testing::ElementsAre(u"A.TXT", u"a1.txt", u"b.txt", u"c.rtf", u"Makefile"));
}

TYPED_TEST_P(WholeFilesContract, ListsFoldersByName) {
    this->stage.AddFile(u"a.txt", "");
    EXPECT_FALSE(this->Files().HasFolders(this->At(u"")));
    for (const TextView name : {u"b", u"C", u"a"})
        ASSERT_TRUE(this->Files().MakeDir(this->At(name)));
    EXPECT_TRUE(this->Files().HasFolders(this->At(u"")));
    EXPECT_THAT(this->Files().FolderNames(this->At(u"")), testing::ElementsAre(u"a", u"b", u"C"));
}

TYPED_TEST_P(WholeFilesContract, WhereThereIsNoFolderNothingIsListed) {
    this->stage.AddFile(u"a.txt", "");
    for (const TextView name : {u"gone", u"a.txt"}) {
        EXPECT_TRUE(this->Files().FileNames(this->At(name), u"*").empty());
        EXPECT_TRUE(this->Files().FolderNames(this->At(name)).empty());
        EXPECT_FALSE(this->Files().HasFolders(this->At(name)));
    }
}

TYPED_TEST_P(WholeFilesContract, NamesADriveAtLeast) {
    const auto drives = this->Files().Drives();
    ASSERT_FALSE(drives.empty());
    EXPECT_TRUE(this->Files().DirExists(drives.front().root));
}

// Folders.

TYPED_TEST_P(WholeFilesContract, MakesAFolderWhereNothingIs) {
    EXPECT_TRUE(this->Files().MakeDir(this->At(u"new")));
    EXPECT_TRUE(this->Files().DirExists(this->At(u"new")));
    EXPECT_EQ(this->Files().LastErrorText(), u"");
    this->stage.AddFile(u"a.txt", "kept");
    for (const TextView taken : {u"new", u"a.txt"}) {
        EXPECT_FALSE(this->Files().MakeDir(this->At(taken)));
        EXPECT_NE(this->Files().LastErrorText(), u"");
    }
    EXPECT_EQ(this->stage.Contents(u"a.txt"), "kept");
    EXPECT_FALSE(this->Files().MakeDir(this->Files().Style().JoinPath(this->At(u"gone"), u"new")));
    EXPECT_FALSE(this->Files().MakeDir(u""));
}

TYPED_TEST_P(WholeFilesContract, RemovesAnEmptyFolderOnly) {
    ASSERT_TRUE(this->Files().MakeDir(this->At(u"folder")));
    const Text inside = this->Files().Style().JoinPath(this->At(u"folder"), u"sub");
    ASSERT_TRUE(this->Files().MakeDir(inside));
    EXPECT_FALSE(this->Files().RemoveDir(this->At(u"folder")));
    EXPECT_NE(this->Files().LastErrorText(), u"");
    EXPECT_TRUE(this->Files().DirExists(inside));
    EXPECT_TRUE(this->Files().RemoveDir(inside));
    EXPECT_TRUE(this->Files().RemoveDir(this->At(u"folder")));
    EXPECT_FALSE(this->Files().DirExists(this->At(u"folder")));
    EXPECT_FALSE(this->Files().RemoveDir(this->At(u"folder")));
}

TYPED_TEST_P(WholeFilesContract, AFileIsNotRemovedAsAFolder) {
    this->stage.AddFile(u"a.txt", "kept");
    EXPECT_FALSE(this->Files().RemoveDir(this->At(u"a.txt")));
    EXPECT_EQ(this->stage.Contents(u"a.txt"), "kept");
}

// Names.

TYPED_TEST_P(WholeFilesContract, RenamesAFile) {
    this->stage.AddFile(u"a.txt", "bytes");
    EXPECT_TRUE(this->Files().Rename(this->At(u"a.txt"), this->At(u"b.txt")));
    EXPECT_EQ(this->stage.Contents(u"b.txt"), "bytes");
    EXPECT_THAT(this->Listing(), testing::ElementsAre(u"b.txt"));
}

TYPED_TEST_P(WholeFilesContract, RenamesAFolderWithAllThatIsInIt) {
    const PathStyle style = this->Files().Style();
    ASSERT_TRUE(this->Files().MakeDir(this->At(u"old")));
    ASSERT_TRUE(this->Files().MakeDir(style.JoinPath(this->At(u"old"), u"sub")));
    EXPECT_TRUE(this->Files().Rename(this->At(u"old"), this->At(u"new")));
    EXPECT_TRUE(this->Files().DirExists(style.JoinPath(this->At(u"new"), u"sub")));
    EXPECT_FALSE(this->Files().DirExists(this->At(u"old")));
}

TYPED_TEST_P(WholeFilesContract, ARenameReplacesNothing) {
    this->stage.AddFile(u"a.txt", "a");
    this->stage.AddFile(u"b.txt", "b");
    ASSERT_TRUE(this->Files().MakeDir(this->At(u"folder")));
    for (const TextView taken : {u"b.txt", u"folder"}) {
        EXPECT_FALSE(this->Files().Rename(this->At(u"a.txt"), this->At(taken)));
        EXPECT_NE(this->Files().LastErrorText(), u"");
    }
    EXPECT_EQ(this->stage.Contents(u"a.txt"), "a");
    EXPECT_EQ(this->stage.Contents(u"b.txt"), "b");
}

TYPED_TEST_P(WholeFilesContract, ARenameOfNothingOrToNothingFails) {
    this->stage.AddFile(u"a.txt", "a");
    EXPECT_FALSE(this->Files().Rename(this->At(u"gone.txt"), this->At(u"b.txt")));
    EXPECT_FALSE(this->Files().Rename(this->At(u"a.txt"), u""));
    EXPECT_FALSE(this->Files().Rename(this->At(u"a.txt"),
                                      this->Files().Style().JoinPath(this->At(u"gone"), u"a.txt")));
    EXPECT_EQ(this->stage.Contents(u"a.txt"), "a");
}

TYPED_TEST_P(WholeFilesContract, AFolderDoesNotGoIntoItself) {
    const PathStyle style = this->Files().Style();
    ASSERT_TRUE(this->Files().MakeDir(this->At(u"folder")));
    EXPECT_FALSE(this->Files().Rename(this->At(u"folder"), style.JoinPath(this->At(u"folder"), u"sub")));
    EXPECT_TRUE(this->Files().DirExists(this->At(u"folder")));
}

TYPED_TEST_P(WholeFilesContract, KnowsOneThingByTwoPaths) {
    this->stage.AddFile(u"a.txt", "same");
    this->stage.AddFile(u"b.txt", "same");
    const PathStyle style = this->Files().Style();
    ASSERT_TRUE(this->Files().MakeDir(this->At(u"folder")));
    const Text back = style.JoinPath(style.JoinPath(this->At(u"folder"), u".."), u"a.txt");
    EXPECT_TRUE(this->Files().IsSame(this->At(u"a.txt"), back));
    EXPECT_TRUE(this->Files().IsSame(this->At(u""), style.JoinPath(this->At(u"folder"), u"..")));
    EXPECT_FALSE(this->Files().IsSame(this->At(u"a.txt"), this->At(u"b.txt")));
    EXPECT_FALSE(this->Files().IsSame(this->At(u"gone"), this->At(u"gone")));
}

// Copying.

TYPED_TEST_P(WholeFilesContract, ACopyHasTheBytesAndTheTime) {
    const DateTime time{2020, 2, 29, 13, 14, 15};
    this->stage.AddFile(u"a.txt", "bytes\r\n");
    this->stage.SetModified(u"a.txt", time);
    EXPECT_EQ(this->Files().Copy(this->At(u"a.txt"), this->At(u"b.txt")), CopyOutcome::Copied);
    EXPECT_EQ(this->Files().LastErrorText(), u"");
    EXPECT_EQ(this->stage.Contents(u"a.txt"), "bytes\r\n");
    EXPECT_EQ(this->stage.Contents(u"b.txt"), "bytes\r\n");
    EXPECT_EQ(this->Files().Modified(this->At(u"b.txt")), time);
}

TYPED_TEST_P(WholeFilesContract, ACopyMayBeEmptyOrLong) {
    std::string bytes;
    for (int number = 0; number < 200'000; ++number)
        bytes += std::to_string(number);
    this->stage.AddFile(u"empty", "");
    this->stage.AddFile(u"long", bytes);
    EXPECT_EQ(this->Files().Copy(this->At(u"empty"), this->At(u"empty2")), CopyOutcome::Copied);
    EXPECT_EQ(this->Files().Copy(this->At(u"long"), this->At(u"long2"), {.flush = true}),
              CopyOutcome::Copied);
    EXPECT_EQ(this->stage.Contents(u"empty2"), "");
    EXPECT_EQ(this->stage.Contents(u"long2"), bytes);
}

TYPED_TEST_P(WholeFilesContract, ACopyReplacesItsTargetAndLeavesNothingElse) {
    this->stage.AddFile(u"a.txt", "new");
    this->stage.AddFile(u"b.txt", "old and longer");
    EXPECT_EQ(this->Files().Copy(this->At(u"a.txt"), this->At(u"b.txt")), CopyOutcome::Copied);
    EXPECT_EQ(this->stage.Contents(u"b.txt"), "new");
    EXPECT_THAT(this->Listing(), testing::ElementsAre(u"a.txt", u"b.txt"));
}

TYPED_TEST_P(WholeFilesContract, ACopyOfAReadOnlyFileIsReadOnly) {
    this->stage.AddFile(u"a.txt", "bytes");
    this->stage.SetReadOnly(u"a.txt");
    EXPECT_EQ(this->Files().Copy(this->At(u"a.txt"), this->At(u"b.txt"), {.flush = true}),
              CopyOutcome::Copied);
    EXPECT_EQ(this->stage.Contents(u"b.txt"), "bytes");
    EXPECT_FALSE(this->Files().Remove(this->At(u"b.txt")));
}

TYPED_TEST_P(WholeFilesContract, AReadOnlyTargetStays) {
    this->stage.AddFile(u"a.txt", "new");
    this->stage.AddFile(u"b.txt", "old");
    this->stage.SetReadOnly(u"b.txt");
    EXPECT_EQ(this->Files().Copy(this->At(u"a.txt"), this->At(u"b.txt")), CopyOutcome::Failed);
    EXPECT_NE(this->Files().LastErrorText(), u"");
    EXPECT_EQ(this->stage.Contents(u"b.txt"), "old");
    EXPECT_THAT(this->Listing(), testing::ElementsAre(u"a.txt", u"b.txt"));
}

TYPED_TEST_P(WholeFilesContract, BytesAreWrittenToANewFileOrInPlaceOfOne) {
    EXPECT_TRUE(this->Files().WriteWhole(this->At(u"a.txt"), "first and longer"));
    EXPECT_EQ(this->stage.Contents(u"a.txt"), "first and longer");
    EXPECT_TRUE(this->Files().WriteWhole(this->At(u"a.txt"), "second"));
    EXPECT_EQ(this->stage.Contents(u"a.txt"), "second");
    EXPECT_THAT(this->Listing(), testing::ElementsAre(u"a.txt"));
}

TYPED_TEST_P(WholeFilesContract, BytesAreNotWrittenToAReadOnlyFileAFolderOrNoFolder) {
    this->stage.AddFile(u"a.txt", "old");
    this->stage.SetReadOnly(u"a.txt");
    EXPECT_FALSE(this->Files().WriteWhole(this->At(u"a.txt"), "new"));
    EXPECT_NE(this->Files().LastErrorText(), u"");
    EXPECT_EQ(this->stage.Contents(u"a.txt"), "old");
    EXPECT_TRUE(this->Files().MakeDir(this->At(u"folder")));
    EXPECT_FALSE(this->Files().WriteWhole(this->At(u"folder"), "new"));
    EXPECT_FALSE(this->Files().WriteWhole(this->At(u"nowhere") + u"/b.txt", "new"));
    EXPECT_THAT(this->Listing(), testing::ElementsAre(u"a.txt"));
}

TYPED_TEST_P(WholeFilesContract, AFileIsNotCopiedOntoItself) {
    this->stage.AddFile(u"a.txt", "bytes");
    ASSERT_TRUE(this->Files().MakeDir(this->At(u"folder")));
    const PathStyle style = this->Files().Style();
    const Text back = style.JoinPath(style.JoinPath(this->At(u"folder"), u".."), u"a.txt");
    for (const Text& same : {this->At(u"a.txt"), back}) {
        EXPECT_EQ(this->Files().Copy(this->At(u"a.txt"), same), CopyOutcome::Failed);
        EXPECT_NE(this->Files().LastErrorText(), u"");
        EXPECT_EQ(this->stage.Contents(u"a.txt"), "bytes");
    }
}

TYPED_TEST_P(WholeFilesContract, WhatIsNotThereIsNotCopied) {
    this->stage.AddFile(u"a.txt", "bytes");
    const Text inGone = this->Files().Style().JoinPath(this->At(u"gone"), u"a.txt");
    EXPECT_EQ(this->Files().Copy(this->At(u"gone.txt"), this->At(u"b.txt")), CopyOutcome::Failed);
    EXPECT_EQ(this->Files().Copy(this->At(u"a.txt"), inGone), CopyOutcome::Failed);
    EXPECT_EQ(this->Files().Copy(this->At(u"a.txt"), u""), CopyOutcome::Failed);
    EXPECT_THAT(this->Listing(), testing::ElementsAre(u"a.txt"));
}

TYPED_TEST_P(WholeFilesContract, AFolderIsNeitherCopiedNorReplaced) {
    this->stage.AddFile(u"a.txt", "bytes");
    ASSERT_TRUE(this->Files().MakeDir(this->At(u"folder")));
    EXPECT_EQ(this->Files().Copy(this->At(u"folder"), this->At(u"b")), CopyOutcome::Failed);
    EXPECT_EQ(this->Files().Copy(this->At(u"a.txt"), this->At(u"folder")), CopyOutcome::Failed);
    EXPECT_TRUE(this->Files().DirExists(this->At(u"folder")));
    EXPECT_THAT(this->Listing(), testing::ElementsAre(u"a.txt"));
}

TYPED_TEST_P(WholeFilesContract, OnlyALongCopyStopsOnItsWay) {
    if (!TypeParam::CopiesInSteps()) GTEST_SKIP() << "Wine copies a file in one step";
    this->stage.AddFile(u"short", std::string(1000, 's'));
    this->stage.AddFile(u"long", std::string(TypeParam::kLongFile, 'l'));
    int stops = 0;
    const CopyOptions options{.betweenSteps = [&stops] { ++stops; }};
    EXPECT_EQ(this->Files().Copy(this->At(u"short"), this->At(u"short2"), options), CopyOutcome::Copied);
    EXPECT_EQ(stops, 0);
    EXPECT_EQ(this->Files().Copy(this->At(u"long"), this->At(u"long2"), options), CopyOutcome::Copied);
    EXPECT_GT(stops, 1);
}

TYPED_TEST_P(WholeFilesContract, OnItsWayACopyHasNotTheNameOfItsTarget) {
    if (!TypeParam::CopiesInSteps()) GTEST_SKIP() << "Wine copies a file in one step";
    this->stage.AddFile(u"long", std::string(TypeParam::kLongFile, 'l'));
    this->stage.AddFile(u"old", "old");
    bool absent = true;
    const CopyOptions watchingNew{
        .betweenSteps = [&] { absent = absent && !this->Files().FileExists(this->At(u"new")); }};
    EXPECT_EQ(this->Files().Copy(this->At(u"long"), this->At(u"new"), watchingNew), CopyOutcome::Copied);
    EXPECT_TRUE(absent);
    bool whole = true;
    const CopyOptions watchingOld{
        .betweenSteps = [&] { whole = whole && this->stage.Contents(u"old") == "old"; }};
    EXPECT_EQ(this->Files().Copy(this->At(u"long"), this->At(u"old"), watchingOld), CopyOutcome::Copied);
    EXPECT_TRUE(whole);
}

TYPED_TEST_P(WholeFilesContract, WhatTookTheNameMeanwhileStays) {
    if (!TypeParam::CopiesInSteps()) GTEST_SKIP() << "Wine copies a file in one step";
    this->stage.AddFile(u"long", std::string(TypeParam::kLongFile, 'l'));
    const CopyOptions options{.betweenSteps = [&] { this->stage.AddFile(u"new", "another's"); }};
    EXPECT_EQ(this->Files().Copy(this->At(u"long"), this->At(u"new"), options), CopyOutcome::Failed);
    EXPECT_EQ(this->stage.Contents(u"new"), "another's");
    EXPECT_THAT(this->Listing(), testing::ElementsAre(u"long", u"new"));
}

// Second names and locks.

TYPED_TEST_P(WholeFilesContract, AFileStaysAsLongAsItHasAName) {
    this->stage.AddFile(u"a.txt", "bytes");
    EXPECT_TRUE(this->Files().Link(this->At(u"a.txt"), this->At(u"b.txt")));
    EXPECT_TRUE(this->Files().IsSame(this->At(u"a.txt"), this->At(u"b.txt")));
    EXPECT_THAT(this->Listing(), testing::ElementsAre(u"a.txt", u"b.txt"));
    EXPECT_TRUE(this->Files().Remove(this->At(u"a.txt")));
    this->stage.AddFile(u"a.txt", "others");
    EXPECT_EQ(this->stage.Contents(u"b.txt"), "bytes");
    EXPECT_FALSE(this->Files().IsSame(this->At(u"a.txt"), this->At(u"b.txt")));
}

TYPED_TEST_P(WholeFilesContract, ASecondNameReplacesNothing) {
    this->stage.AddFile(u"a.txt", "a");
    this->stage.AddFile(u"b.txt", "b");
    EXPECT_FALSE(this->Files().Link(this->At(u"a.txt"), this->At(u"b.txt")));
    EXPECT_NE(this->Files().LastErrorText(), u"");
    EXPECT_EQ(this->stage.Contents(u"b.txt"), "b");
}

TYPED_TEST_P(WholeFilesContract, OnlyAFileThatIsThereGetsASecondName) {
    ASSERT_TRUE(this->Files().MakeDir(this->At(u"folder")));
    for (const TextView name : {u"gone", u"folder"}) {
        EXPECT_FALSE(this->Files().Link(this->At(name), this->At(u"b.txt")));
        EXPECT_NE(this->Files().LastErrorText(), u"");
    }
    this->stage.AddFile(u"a.txt", "");
    EXPECT_FALSE(this->Files().Link(this->At(u"a.txt"), this->At(u"gone/b.txt")));
}

TYPED_TEST_P(WholeFilesContract, OnlyAFileThatIsThereIsFlushed) {
    this->stage.AddFile(u"a.txt", "bytes");
    EXPECT_TRUE(this->Files().Flush(this->At(u"a.txt")));
    EXPECT_FALSE(this->Files().Flush(this->At(u"gone")));
    EXPECT_NE(this->Files().LastErrorText(), u"");
}

TYPED_TEST_P(WholeFilesContract, AFileIsLockedByOneAtATime) {
    auto lock = this->Files().Lock(this->At(u"lock"));
    ASSERT_NE(lock, nullptr);
    EXPECT_TRUE(this->Files().FileExists(this->At(u"lock")));
    EXPECT_EQ(this->Files().Lock(this->At(u"lock")), nullptr);
    lock.reset();
    EXPECT_NE(this->Files().Lock(this->At(u"lock")), nullptr);
    EXPECT_EQ(this->Files().Lock(this->At(u"gone/lock")), nullptr);
}

TYPED_TEST_P(WholeFilesContract, APrivateFolderIsAFolderLikeOthers) {
    EXPECT_TRUE(this->Files().MakePrivateDir(this->At(u"own")));
    EXPECT_TRUE(this->Files().DirExists(this->At(u"own")));
    EXPECT_FALSE(this->Files().MakePrivateDir(this->At(u"own")));
    EXPECT_NE(this->Files().LastErrorText(), u"");
    EXPECT_TRUE(this->Files().RemoveDir(this->At(u"own")));
}

REGISTER_TYPED_TEST_SUITE_P(
    WholeFilesContract, ListsFilesByNameUnderThePatterns, ListsFoldersByName,
    WhereThereIsNoFolderNothingIsListed, NamesADriveAtLeast, MakesAFolderWhereNothingIs,
    RemovesAnEmptyFolderOnly, AFileIsNotRemovedAsAFolder, RenamesAFile, RenamesAFolderWithAllThatIsInIt,
    ARenameReplacesNothing, ARenameOfNothingOrToNothingFails, AFolderDoesNotGoIntoItself,
    KnowsOneThingByTwoPaths, ACopyHasTheBytesAndTheTime, ACopyMayBeEmptyOrLong,
    ACopyReplacesItsTargetAndLeavesNothingElse, ACopyOfAReadOnlyFileIsReadOnly, AReadOnlyTargetStays,
    BytesAreWrittenToANewFileOrInPlaceOfOne, BytesAreNotWrittenToAReadOnlyFileAFolderOrNoFolder,
    AFileIsNotCopiedOntoItself, WhatIsNotThereIsNotCopied, AFolderIsNeitherCopiedNorReplaced,
    OnlyALongCopyStopsOnItsWay, OnItsWayACopyHasNotTheNameOfItsTarget, WhatTookTheNameMeanwhileStays,
    AFileStaysAsLongAsItHasAName, ASecondNameReplacesNothing, OnlyAFileThatIsThereGetsASecondName,
    OnlyAFileThatIsThereIsFlushed, AFileIsLockedByOneAtATime, APrivateFolderIsAFolderLikeOthers);

// Tests of links, and of things that must not be opened. For them the stage also has AddLink(name, target)
// and AddPipe(name).

template <class StageT>
class LinksContract : public WholeFilesContract<StageT> {};

TYPED_TEST_SUITE_P(LinksContract);

TYPED_TEST_P(LinksContract, LinksAreListedAsWhatTheyLeadTo) {
    this->stage.AddFile(u"a.txt", "");
    this->stage.AddLink(u"toFile", u"a.txt");
    this->stage.AddLink(u"toNothing", u"gone");
    this->stage.AddLink(u"circle", u".");
    this->stage.AddLink(u"itself", u"itself");
    EXPECT_THAT(this->Listing(), testing::ElementsAre(u"a.txt", u"itself", u"toFile", u"toNothing"));
    EXPECT_THAT(this->Files().FolderNames(this->At(u"")), testing::ElementsAre(u"circle"));
    EXPECT_TRUE(this->Files().IsSame(this->At(u""), this->At(u"circle")));
}

TYPED_TEST_P(LinksContract, NamesThatStartWithAPointAreHidden) {
    this->stage.AddFile(u".hidden", "");
    ASSERT_TRUE(this->Files().MakeDir(this->At(u".folder")));
    EXPECT_TRUE(this->Listing().empty());
    EXPECT_TRUE(this->Files().FolderNames(this->At(u"")).empty());
    EXPECT_FALSE(this->Files().HasFolders(this->At(u"")));
}

TYPED_TEST_P(LinksContract, RemovesALinkAndLeavesItsFile) {
    this->stage.AddFile(u"a.txt", "kept");
    this->stage.AddLink(u"link", u"a.txt");
    EXPECT_TRUE(this->Files().IsLink(this->At(u"link")));
    EXPECT_FALSE(this->Files().IsLink(this->At(u"a.txt")));
    EXPECT_FALSE(this->Files().RemoveLink(this->At(u"a.txt")));
    EXPECT_FALSE(this->Files().RemoveLink(this->At(u"gone")));
    EXPECT_TRUE(this->Files().RemoveLink(this->At(u"link")));
    EXPECT_THAT(this->Listing(), testing::ElementsAre(u"a.txt"));
    EXPECT_EQ(this->stage.Contents(u"a.txt"), "kept");
}

TYPED_TEST_P(LinksContract, ALinkToAFolderIsNotRemovedAsAFolder) {
    ASSERT_TRUE(this->Files().MakeDir(this->At(u"folder")));
    this->stage.AddLink(u"link", u"folder");
    EXPECT_FALSE(this->Files().RemoveDir(this->At(u"link")));
    EXPECT_TRUE(this->Files().DirExists(this->At(u"folder")));
}

TYPED_TEST_P(LinksContract, ARenameTakesTheLinkAndReplacesNoneThatLeadsNowhere) {
    this->stage.AddFile(u"a.txt", "a");
    this->stage.AddLink(u"link", u"a.txt");
    this->stage.AddLink(u"toNothing", u"gone");
    EXPECT_TRUE(this->Files().Rename(this->At(u"link"), this->At(u"link2")));
    EXPECT_TRUE(this->Files().IsLink(this->At(u"link2")));
    EXPECT_FALSE(this->Files().Rename(this->At(u"a.txt"), this->At(u"toNothing")));
    EXPECT_TRUE(this->Files().IsLink(this->At(u"toNothing")));
}

TYPED_TEST_P(LinksContract, ALinkIsCopiedAsItsFile) {
    this->stage.AddFile(u"a.txt", "bytes");
    this->stage.AddLink(u"link", u"a.txt");
    EXPECT_EQ(this->Files().Copy(this->At(u"link"), this->At(u"b.txt")), CopyOutcome::Copied);
    EXPECT_FALSE(this->Files().IsLink(this->At(u"b.txt")));
    EXPECT_EQ(this->stage.Contents(u"b.txt"), "bytes");
}

TYPED_TEST_P(LinksContract, ALinkInTheTargetsPlaceIsReplacedAndNotFollowed) {
    this->stage.AddFile(u"a.txt", "new");
    this->stage.AddFile(u"elsewhere", "kept");
    this->stage.AddLink(u"b.txt", u"elsewhere");
    EXPECT_EQ(this->Files().Copy(this->At(u"a.txt"), this->At(u"b.txt")), CopyOutcome::Copied);
    EXPECT_FALSE(this->Files().IsLink(this->At(u"b.txt")));
    EXPECT_EQ(this->stage.Contents(u"b.txt"), "new");
    EXPECT_EQ(this->stage.Contents(u"elsewhere"), "kept");
}

TYPED_TEST_P(LinksContract, BytesAreWrittenThroughALink) {
    this->stage.AddFile(u"a.txt", "old");
    this->stage.AddLink(u"link", u"a.txt");
    EXPECT_TRUE(this->Files().WriteWhole(this->At(u"link"), "new"));
    EXPECT_TRUE(this->Files().IsLink(this->At(u"link")));
    EXPECT_EQ(this->stage.Contents(u"a.txt"), "new");
}

TYPED_TEST_P(LinksContract, ALinkToTheSourceIsTheSameFile) {
    this->stage.AddFile(u"a.txt", "bytes");
    this->stage.AddLink(u"link", u"a.txt");
    EXPECT_EQ(this->Files().Copy(this->At(u"a.txt"), this->At(u"link")), CopyOutcome::Failed);
    EXPECT_EQ(this->Files().Copy(this->At(u"link"), this->At(u"a.txt")), CopyOutcome::Failed);
    EXPECT_TRUE(this->Files().IsLink(this->At(u"link")));
    EXPECT_EQ(this->stage.Contents(u"a.txt"), "bytes");
}

TYPED_TEST_P(LinksContract, ALinkThatLeadsNowhereIsNeitherCopiedNorWrittenThrough) {
    this->stage.AddFile(u"a.txt", "bytes");
    this->stage.AddLink(u"toNothing", u"gone");
    this->stage.AddLink(u"circle", u"circle");
    for (const TextView link : {u"toNothing", u"circle"}) {
        EXPECT_EQ(this->Files().Copy(this->At(link), this->At(u"b.txt")), CopyOutcome::Failed);
        EXPECT_EQ(this->Files().Copy(this->At(u"a.txt"), this->At(link)), CopyOutcome::Failed);
        EXPECT_TRUE(this->Files().IsLink(this->At(link)));
    }
    EXPECT_THAT(this->Listing(), testing::ElementsAre(u"a.txt", u"circle", u"toNothing"));
}

TYPED_TEST_P(LinksContract, APipeIsNeitherOpenedNorReplaced) {
    this->stage.AddFile(u"a.txt", "bytes");
    this->stage.AddPipe(u"pipe");
    EXPECT_EQ(this->Files().Copy(this->At(u"pipe"), this->At(u"b.txt")), CopyOutcome::Failed);
    EXPECT_EQ(this->Files().LastErrorText(), u"Operation not permitted");
    EXPECT_EQ(this->Files().Copy(this->At(u"a.txt"), this->At(u"pipe")), CopyOutcome::Failed);
    EXPECT_EQ(this->Files().LastErrorText(), u"Operation not permitted");
    EXPECT_TRUE(this->Files().FileExists(this->At(u"pipe")));
    EXPECT_FALSE(this->Files().Size(this->At(u"pipe")));
    EXPECT_THAT(this->Listing(), testing::ElementsAre(u"a.txt", u"pipe"));
}

TYPED_TEST_P(LinksContract, ALinkGetsNoSecondName) {
    this->stage.AddFile(u"a.txt", "bytes");
    this->stage.AddLink(u"link", u"a.txt");
    EXPECT_FALSE(this->Files().Link(this->At(u"link"), this->At(u"b.txt")));
    EXPECT_THAT(this->Listing(), testing::ElementsAre(u"a.txt", u"link"));
}

REGISTER_TYPED_TEST_SUITE_P(LinksContract, LinksAreListedAsWhatTheyLeadTo, NamesThatStartWithAPointAreHidden,
                            RemovesALinkAndLeavesItsFile, ALinkToAFolderIsNotRemovedAsAFolder,
                            ARenameTakesTheLinkAndReplacesNoneThatLeadsNowhere, ALinkIsCopiedAsItsFile,
                            ALinkInTheTargetsPlaceIsReplacedAndNotFollowed, ALinkToTheSourceIsTheSameFile,
                            ALinkThatLeadsNowhereIsNeitherCopiedNorWrittenThrough,
                            BytesAreWrittenThroughALink, APipeIsNeitherOpenedNorReplaced,
                            ALinkGetsNoSecondName);

} // namespace korvane
