#include "kept/KeptVersions.h"

#include "testing/MemoryClock.h"
#include "testing/MemoryFileSystem.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr DateTime kToday{2026, 11, 21, 0, 0, 0};

struct KeptVersionsTest : testing::Test {
    KeptVersionsTest() { files.AddFile(u"C:\\a.tbx", "first"); }

    /// What a save does with the old file and the new one.
    Text Replace(const Text& path, std::string_view bytes, const DateTime& day = kToday) {
        const Text version = versions.Keep(path, day);
        files.Remove(path);
        files.AddFile(path, bytes);
        return version;
    }
    std::vector<int> Numbers(const Text& path = u"C:\\a.tbx") const {
        std::vector<int> numbers;
        for (const KeptFile& version : versions.Of(path))
            numbers.push_back(version.number);
        return numbers;
    }
    std::vector<std::string> Kept(const Text& path = u"C:\\a.tbx") const {
        std::vector<std::string> bytes;
        for (const KeptFile& version : versions.Of(path))
            bytes.push_back(files.Contents(version.path).value_or("(none)"));
        return bytes;
    }

    MemoryClock clock;
    MemoryFileSystem files{PathStyle::Windows, clock};
    KeptVersions versions{files, u"C:\\kept"};
};

TEST_F(KeptVersionsTest, HoldWhatWasReplaced) {
    const Text version = Replace(u"C:\\a.tbx", "second");
    EXPECT_EQ(files.Contents(versions.FileOf(version)), "first");
    Replace(u"C:\\a.tbx", "third");
    EXPECT_THAT(Kept(), ElementsAre("first", "second"));
    EXPECT_THAT(versions.Tables(), ElementsAre(u"C:\\a.tbx"));
    EXPECT_TRUE(files.IsPrivate(u"C:\\kept"));
}

TEST_F(KeptVersionsTest, CostNoRoomOnTheSameDisk) {
    files.SetFreeBytes(100);
    Replace(u"C:\\a.tbx", "second");
    EXPECT_EQ(files.Volume(u"C:\\")->freeBytes, 100 - static_cast<int>(std::string("C:\\a.tbx\n").size()));
}

TEST_F(KeptVersionsTest, AreCopiesOfWhatIsOnAnotherDisk) {
    files.AddDrive(u'D');
    files.AddFile(u"D:\\a.tbx", "first");
    files.SetModified(u"D:\\a.tbx", {2026, 1, 2, 3, 4, 5});
    Replace(u"D:\\a.tbx", "second");
    EXPECT_THAT(Kept(u"D:\\a.tbx"), ElementsAre("first"));
    EXPECT_EQ(versions.Of(u"D:\\a.tbx")[0].modified, (DateTime{2026, 1, 2, 3, 4, 5}));
}

TEST_F(KeptVersionsTest, OfALinkAreCopiesBecauseItsFileIsOverwritten) {
    files.AddFile(u"C:\\real.tbx", "first");
    files.AddLink(u"C:\\link.tbx", u"real.tbx");
    versions.Keep(u"C:\\link.tbx", kToday);
    ASSERT_TRUE(files.Remove(u"C:\\link.tbx"));
    EXPECT_EQ(files.Contents(u"C:\\real.tbx"), "");
    EXPECT_THAT(Kept(u"C:\\link.tbx"), ElementsAre("first"));
}

TEST_F(KeptVersionsTest, GetBytesOfTheirOwnWhenTheFileIsOverwrittenInItsPlace) {
    const Text version = versions.Keep(u"C:\\a.tbx", kToday);
    EXPECT_TRUE(versions.PartFrom(u"C:\\a.tbx", version));
    files.OpenRaw(u"C:\\a.tbx")->Write("second");
    EXPECT_THAT(Kept(), ElementsAre("first"));
}

TEST_F(KeptVersionsTest, NamesAreTheSameForOneFileWhateverTheirCase) {
    Replace(u"C:\\a.tbx", "second");
    EXPECT_THAT(Numbers(u"C:\\A.TBX"), ElementsAre(1));
}

TEST_F(KeptVersionsTest, OfAFileThatIsNotThereThereAreNone) {
    EXPECT_EQ(versions.Keep(u"C:\\gone.tbx", kToday), u"");
    EXPECT_THAT(Numbers(u"C:\\gone.tbx"), IsEmpty());
    EXPECT_THAT(versions.Tables(), IsEmpty());
}

TEST_F(KeptVersionsTest, AreNotKeptWhereNothingCanBeWritten) {
    files.AddDrive(u'D');
    files.AddFile(u"D:\\a.tbx", "first");
    files.SetDiskReadOnly();
    EXPECT_EQ(versions.Keep(u"D:\\a.tbx", kToday), u"");
}

TEST_F(KeptVersionsTest, OnlyTheirOwnNamesLeadToFiles) {
    for (const TextView name : {u"", u"/", u"1-20261121.tbx", u"..\\..\\..\\..\\..\\..x/1-20261121.tbx",
                                u"0000000000000000/../a.tbx", u"0000000000000000/name-1",
                                u"000000000000000G/1-20261121.tbx", u"00000000000000000/1-20261121.tbx"})
        EXPECT_EQ(versions.FileOf(name), u"") << ToUtf8(name);
    EXPECT_EQ(versions.FileOf(u"0000000000000000/1-20261121.tbx"),
              u"C:\\kept\\saved\\0000000000000000\\1-20261121.tbx");
}

TEST_F(KeptVersionsTest, TenOfATableStay) {
    for (int i = 1; i <= 12; ++i)
        Replace(u"C:\\a.tbx", std::to_string(i));
    files.AddFile(u"C:\\b.tbx", "b");
    Replace(u"C:\\b.tbx", "c");
    versions.Prune(kToday, {}, 0);
    EXPECT_THAT(Numbers(), ElementsAre(3, 4, 5, 6, 7, 8, 9, 10, 11, 12));
    EXPECT_THAT(Numbers(u"C:\\b.tbx"), ElementsAre(1));
}

TEST_F(KeptVersionsTest, StayForThirtyDaysAfterTheyWereReplaced) {
    // However long ago the file was saved.
    files.SetModified(u"C:\\a.tbx", {2020, 1, 1, 0, 0, 0});
    Replace(u"C:\\a.tbx", "second", {2026, 10, 21, 0, 0, 0});
    Replace(u"C:\\a.tbx", "third", {2026, 10, 22, 0, 0, 0});
    versions.Prune(kToday, {}, 0);
    EXPECT_THAT(Kept(), ElementsAre("second"));
}

TEST_F(KeptVersionsTest, TheOldestGoWhenAllTogetherAreTooMuch) {
    KeptVersions::Limits limits;
    limits.bytes = 10;
    Replace(u"C:\\a.tbx", "12345", {2026, 11, 1, 0, 0, 0});
    Replace(u"C:\\a.tbx", "6789", {2026, 11, 3, 0, 0, 0});
    files.AddFile(u"C:\\b.tbx", "abcde");
    Replace(u"C:\\b.tbx", "", {2026, 11, 2, 0, 0, 0});
    versions.Prune(kToday, {}, 0, limits);
    EXPECT_THAT(Kept(), ElementsAre("12345"));
    EXPECT_THAT(Kept(u"C:\\b.tbx"), ElementsAre("abcde"));
    versions.Prune(kToday, {}, 5, limits);
    EXPECT_THAT(Kept(), ElementsAre("12345"));
    EXPECT_THAT(Kept(u"C:\\b.tbx"), IsEmpty());
}

TEST_F(KeptVersionsTest, OneThatIsNeededStaysWhateverItsAge) {
    const Text needed = Replace(u"C:\\a.tbx", "second", {2020, 1, 1, 0, 0, 0});
    Replace(u"C:\\a.tbx", "third", {2020, 1, 2, 0, 0, 0});
    versions.Prune(kToday, {needed}, 0);
    EXPECT_THAT(Kept(), ElementsAre("first"));
}

TEST_F(KeptVersionsTest, TheirFolderGoesWithTheLast) {
    Replace(u"C:\\a.tbx", "second", {2020, 1, 1, 0, 0, 0});
    versions.Prune(kToday, {}, 0);
    EXPECT_THAT(files.FolderNames(u"C:\\kept\\saved"), IsEmpty());
    EXPECT_NE(versions.Keep(u"C:\\a.tbx", kToday), u"");
}

TEST_F(KeptVersionsTest, TheNumbersGoOnAfterOldOnesWent) {
    for (int i = 1; i <= 12; ++i)
        Replace(u"C:\\a.tbx", std::to_string(i));
    versions.Prune(kToday, {}, 0);
    Replace(u"C:\\a.tbx", "last");
    EXPECT_EQ(Numbers().back(), 13);
}

} // namespace
} // namespace korvane
