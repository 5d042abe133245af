#include "kept/KeptRecords.h"

#include "kept/KeptFiles.h"
#include "testing/MemoryClock.h"
#include "testing/MemoryFileSystem.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;

template <class RecordT>
void ExpectComesBack(const RecordT& record) {
    const std::string bytes = ToRecord(record);
    RecordT read;
    EXPECT_TRUE(ReadRecord(bytes, read));
    EXPECT_EQ(read, record);
    for (std::size_t size = 0; size < bytes.size(); ++size) {
        RecordT untouched;
        // A path may contain line ends, so a record can be cut after one and look whole.
        if (bytes.substr(0, size).ends_with('\n')) continue;
        EXPECT_FALSE(ReadRecord(std::string_view(bytes).substr(0, size), untouched)) << size;
        EXPECT_EQ(untouched, RecordT());
    }
}

TEST(KeptRecords, ComeBackWholeOrNotAtAll) {
    ExpectComesBack(NameRecord{u"/home/me/B\u00FCcher.tbx"});
    ExpectComesBack(NameRecord{u"/home/me/two\nlines.tbx"});
    ExpectComesBack(SaveRecord{3, u"00000000000000ff/12-20261121.tbx", u"C:\\Data\\Books.tbx"});
    ExpectComesBack(SaveRecord{0, u"", u"/a\n/b.tbx"});
    ExpectComesBack(WrittenRecord{47'000'000, 12});
    ExpectComesBack(WrittenRecord{0, 0});
}

TEST(KeptRecords, WhatIsNoneIsRefused) {
    NameRecord name;
    EXPECT_FALSE(ReadRecord("", name));
    EXPECT_FALSE(ReadRecord("\xFF\n", name));
    SaveRecord save;
    for (const std::string_view bytes :
         {"", "\n\n\n", "-1\n\n/a\n", "x\n\n/a\n", "1\n", "1\n\n", "1\n\xFF\n/a\n"})
        EXPECT_FALSE(ReadRecord(bytes, save)) << bytes;
    WrittenRecord written;
    for (const std::string_view bytes :
         {"", "\n", "1\n", "1 2", "1 2\n3", "-1 2\n", "1 g\n", "99999999999999999999 2\n", "1 2 3\n", " 2\n"})
        EXPECT_FALSE(ReadRecord(bytes, written)) << bytes;
}

TEST(KeptFileNames, HaveANumberAndADay) {
    EXPECT_EQ(KeptFileName(12, {2026, 3, 1, 23, 32, 0}), u"12-20260301.tbx");
    const auto read = ReadKeptFileName(u"12-20260301.tbx");
    ASSERT_TRUE(read);
    EXPECT_EQ(read->first, 12);
    EXPECT_EQ(read->second, (DateTime{2026, 3, 1, 0, 0, 0}));
}

TEST(KeptFileNames, OthersAreNone) {
    for (const TextView name :
         {u"", u".tbx", u"12.tbx", u"-20260301.tbx", u"12-2026030.tbx", u"12-20261301.tbx",
          u"12-20260300.tbx", u"12-00000301.tbx", u"x-20260301.tbx", u"12-20260301.tbx.new",
          u"1234567890-20260301.tbx", u"+1-20260301.tbx", u"1-2-20260301.tbx"})
        EXPECT_FALSE(ReadKeptFileName(name)) << ToUtf8(name);
}

struct KeptFolders : testing::Test {
    MemoryClock clock;
    MemoryFileSystem files{PathStyle::Posix, clock};
};

TEST_F(KeptFolders, AreMadeForTheUserAlone) {
    files.AddDir(u"/home/me");
    EXPECT_TRUE(MakePrivateDirs(files, u"/home/me/state/kept"));
    EXPECT_TRUE(files.IsPrivate(u"/home/me/state"));
    EXPECT_TRUE(files.IsPrivate(u"/home/me/state/kept"));
    EXPECT_FALSE(files.IsPrivate(u"/home/me"));
    files.AddFile(u"/home/me/file");
    EXPECT_FALSE(MakePrivateDirs(files, u"/home/me/file/kept"));
    EXPECT_FALSE(MakePrivateDirs(files, u"relative"));
}

TEST_F(KeptFolders, ListTheirTablesByNumber) {
    for (const TextView name : {u"/k/10-20260301.tbx", u"/k/9-20260302.tbx", u"/k/name-1", u"/k/new"})
        files.AddFile(name, "bytes");
    const auto kept = KeptFilesIn(files, u"/k");
    ASSERT_EQ(kept.size(), 2u);
    EXPECT_EQ(kept[0].number, 9);
    EXPECT_EQ(kept[0].path, u"/k/9-20260302.tbx");
    EXPECT_EQ(kept[0].size, 5);
    EXPECT_EQ(kept[1].number, 10);
    EXPECT_EQ(NextNumber(kept), 11);
    EXPECT_EQ(NextNumber({}), 1);
}

TEST_F(KeptFolders, ANewRecordTakesThePlaceOfTheOldOne) {
    files.AddDir(u"/k");
    RecordFile name(files, u"/k", u"name");
    EXPECT_FALSE(name.Read<NameRecord>());
    EXPECT_EQ(name.Write(ToRecord(NameRecord{u"a"})), 1);
    EXPECT_EQ(name.Write(ToRecord(NameRecord{u"b"})), 2);
    EXPECT_THAT(files.FileNames(u"/k", u"*"), ElementsAre(u"name-2"));
    EXPECT_TRUE(files.IsPrivate(u"/k/name-2"));
    EXPECT_EQ(name.Read<NameRecord>()->name, u"b");
}

TEST_F(KeptFolders, ARecordThatCannotBeWrittenLeavesTheOldOne) {
    files.AddDir(u"/k");
    RecordFile name(files, u"/k", u"name");
    ASSERT_TRUE(name.Write(ToRecord(NameRecord{u"a"})));
    for (const FileStep step : {FileStep::OpenToWrite, FileStep::Write, FileStep::Close}) {
        files.Faults().FailNth(step, 1);
        EXPECT_FALSE(name.Write(ToRecord(NameRecord{u"b"})));
        EXPECT_THAT(files.FileNames(u"/k", u"*"), ElementsAre(u"name-1"));
    }
    EXPECT_EQ(name.Read<NameRecord>()->name, u"a");
}

TEST_F(KeptFolders, ARecordThatIsNotWholeIsPassedOver) {
    files.AddFile(u"/k/name-1", "whole\n");
    files.AddFile(u"/k/name-2", "cu");
    RecordFile name(files, u"/k", u"name");
    EXPECT_EQ(name.Read<NameRecord>()->name, u"whole");
    name.Remove(1);
    EXPECT_FALSE(name.Read<NameRecord>());
}

} // namespace
} // namespace korvane
