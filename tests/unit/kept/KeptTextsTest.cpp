#include "kept/KeptTexts.h"

#include "testing/MemoryClock.h"
#include "testing/MemoryFileSystem.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const Text kRoot = u"/home/me/state/kept";
const Text kLetter = u"/home/me/letter.rtf";

struct KeptTextsTest : testing::Test {
    KeptTextsTest() { files.AddDir(u"/home/me"); }

    /// What the next run finds.
    std::vector<UnsavedText> NextRun() {
        KeptTexts texts(files, kRoot);
        texts.LookForUnsaved();
        return texts.Unsaved();
    }
    std::vector<Text> NamesOfNextRun() {
        const std::vector<UnsavedText> unsaved = NextRun();
        std::vector<Text> names(unsaved.size());
        std::ranges::transform(unsaved, names.begin(), &UnsavedText::name);
        return names;
    }

    MemoryClock clock;
    MemoryFileSystem files{PathStyle::Posix, clock};
    KeptTexts texts{files, kRoot};
};

TEST_F(KeptTextsTest, ATextIsThereWithItsNameInTheNextRun) {
    const Text file = texts.Keep({}, kLetter, "{\\rtf1 words}");
    EXPECT_THAT(texts.Unsaved(), IsEmpty()) << "the text is still open in this run";
    const std::vector<UnsavedText> unsaved = NextRun();
    ASSERT_EQ(unsaved.size(), 1u);
    EXPECT_EQ(unsaved.front().name, kLetter);
    EXPECT_EQ(unsaved.front().file, file);
    EXPECT_EQ(unsaved.front().changed, clock.Now());
    EXPECT_EQ(files.Contents(file), "{\\rtf1 words}");
}

TEST_F(KeptTextsTest, OnlyTheUserMayReadIt) {
    const Text file = texts.Keep({}, kLetter, "words");
    EXPECT_TRUE(files.IsPrivate(file));
    EXPECT_TRUE(files.IsPrivate(u"/home/me/state/kept/texts"));
}

TEST_F(KeptTextsTest, ALaterStateTakesThePlaceOfTheFirst) {
    const Text file = texts.Keep({}, u"Untitled.rtf", "first");
    EXPECT_EQ(texts.Keep(file, kLetter, "second"), file);
    EXPECT_THAT(NamesOfNextRun(), ElementsAre(kLetter));
    EXPECT_EQ(files.Contents(file), "second");
}

TEST_F(KeptTextsTest, TheNewestComesFirst) {
    texts.Keep({}, u"a", "1");
    clock.Set({2026, 11, 22, 8, 0, 0});
    texts.Keep({}, u"b", "2");
    EXPECT_THAT(NamesOfNextRun(), ElementsAre(u"b", u"a"));
}

TEST_F(KeptTextsTest, WhatIsForgottenIsGoneFromTheDisk) {
    texts.Forget(texts.Keep({}, kLetter, "words"));
    EXPECT_THAT(NextRun(), IsEmpty());
    EXPECT_THAT(files.FolderNames(u"/home/me/state/kept/texts"), IsEmpty());
    texts.Forget({});
    EXPECT_TRUE(files.DirExists(u"/home/me/state/kept/texts"));
}

TEST_F(KeptTextsTest, WhatIsInAWindowStaysOnTheDiskButNotInTheList) {
    texts.Keep({}, kLetter, "words");
    texts.LookForUnsaved();
    texts.Adopt(Text(texts.Unsaved().front().file));
    EXPECT_THAT(texts.Unsaved(), IsEmpty());
    EXPECT_THAT(NamesOfNextRun(), ElementsAre(kLetter));
}

TEST_F(KeptTextsTest, AFolderWithoutAWholeTextIsRemoved) {
    const Text file = texts.Keep({}, kLetter, "words");
    files.Remove(file);
    EXPECT_THAT(NextRun(), IsEmpty());
    EXPECT_THAT(files.FolderNames(u"/home/me/state/kept/texts"), IsEmpty());
}

TEST_F(KeptTextsTest, ATextThatCannotBeWrittenLeavesNothing) {
    files.AddDir(kRoot);
    files.Faults().FailNth(FileStep::Rename, 1);
    EXPECT_EQ(texts.Keep({}, kLetter, "words"), Text());
    EXPECT_THAT(files.FolderNames(u"/home/me/state/kept/texts"), IsEmpty());
}

TEST_F(KeptTextsTest, WhatWasKeptStaysWhereALaterStateCannotBeWritten) {
    const Text file = texts.Keep({}, kLetter, "first");
    files.Faults().FailNth(FileStep::Rename, 1);
    EXPECT_EQ(texts.Keep(file, kLetter, "second"), file);
    EXPECT_EQ(files.Contents(file), "first");
}

TEST_F(KeptTextsTest, NothingIsKeptWithoutAFolder) {
    KeptTexts nowhere(files, {});
    EXPECT_EQ(nowhere.Keep({}, kLetter, "words"), Text());
    nowhere.LookForUnsaved();
    EXPECT_THAT(nowhere.Unsaved(), IsEmpty());
}

} // namespace
} // namespace korvane
