#include "shell/recent/RecentRecord.h"

#include "common/number/DateTime.h"
#include "common/number/Number.h"
#include "context/exchange/StateFiles.h"
#include "support/TestApp.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

const DateTime kNow{2026, 3, 1, 14, 5, 0};

Text PathOf(int number) {
    return u"C:\\f" + NumberText(number) + u".tbx";
}

Text LineOf(TextView path) {
    return Text(path) + u" | 0*2026.03.01   14:05";
}

/// `count` entries, the newest number 1.
RecentRecord Filled(int count) {
    RecentRecord record;
    for (int i = 1; i <= count; ++i)
        record.RecentEntries[static_cast<std::size_t>(i)] = LineOf(PathOf(i));
    record.RecentNext = static_cast<std::int16_t>(count + 1);
    return record;
}

class RecentRecordTest : public testing::Test {
protected:
    RecentRecordTest() { t.app.Exchange<StateFiles>().RecFilePath = u"C:\\Korvane\\Korvane.rec"; }
    std::string Written() {
        return t.files.Contents(t.app.Exchange<StateFiles>().RecFilePath).value_or("(none)");
    }

    TestApp t;
    RecentRecord record;
};

TEST_F(RecentRecordTest, ALoadIsNotedWithPathOffsetDateAndTime) {
    record.AddToRecent(u"D:\\Data\\Books.tbx", 0, kNow);
    EXPECT_EQ(record.RecentEntries[1], u"D:\\Data\\Books.tbx | 0*2026.03.01   14:05");
    EXPECT_EQ(record.RecentNext, 2);
}

TEST_F(RecentRecordTest, TheNewestComesFirst) {
    record.AddToRecent(u"C:\\a.tbx", 0, kNow);
    record.AddToRecent(u"C:\\b.tbx", 0, kNow);
    EXPECT_EQ(record.RecentEntries[1], LineOf(u"C:\\b.tbx"));
    EXPECT_EQ(record.RecentEntries[2], LineOf(u"C:\\a.tbx"));
    EXPECT_EQ(record.RecentNext, 3);
}

TEST_F(RecentRecordTest, AnEmptyPathAndAnUntitledOneNeverEnter) {
    record.AddToRecent(u"", 0, kNow);
    record.AddToRecent(u"Untitled_1.tbx", 0, kNow);
    record.AddToRecent(u"Untitled plans\\x.tbx", 0, kNow);
    EXPECT_EQ(record.RecentNext, 1);
    record.AddToRecent(u"untitled.tbx", 0, kNow);
    EXPECT_EQ(record.RecentNext, 2);
}

// Kept for compatibility: recent-entry-keeps-place.
TEST_F(RecentRecordTest, AFileOfTheRecordKeepsItsPlaceAndGetsANewDate) {
    record = Filled(3);
    record.AddToRecent(u"c:\\F2.TBX", 0, {2026, 11, 21, 9, 7, 0});
    EXPECT_EQ(record.RecentEntries[2], u"c:\\F2.TBX | 0*2026.11.21   09:07");
    EXPECT_EQ(record.RecentEntries[1], LineOf(PathOf(1)));
    EXPECT_EQ(record.RecentNext, 4);
}

// Kept for compatibility: recent-entry-by-containment.
TEST_F(RecentRecordTest, APathThatBeginsALongerOneUpdatesWhicheverComesFirst) {
    record.RecentEntries[1] = LineOf(u"C:\\a.tbx.bak");
    record.RecentEntries[2] = LineOf(u"C:\\a.tbx");
    record.RecentNext = 3;
    record.AddToRecent(u"C:\\a.tbx", 7, kNow);
    EXPECT_EQ(record.RecentEntries[1], u"C:\\a.tbx | 7*2026.03.01   14:05");
    EXPECT_EQ(record.RecentEntries[2], LineOf(u"C:\\a.tbx"));
}

// Kept for compatibility: recent-list-cuts-itself.
TEST_F(RecentRecordTest, With71EntriesTheNextNewFileLeavesTheSevenOldestReversed) {
    record = Filled(71);
    record.AddToRecent(u"C:\\new.tbx", 0, kNow);
    EXPECT_EQ(record.RecentNext, 73);
    EXPECT_EQ(record.RecentEntries[1], LineOf(u"C:\\new.tbx"));
    // The place after the last entry was copied first.
    EXPECT_EQ(record.RecentEntries[2], u"");
    for (int i = 0; i < 7; ++i) {
        EXPECT_EQ(record.RecentEntries[static_cast<std::size_t>(3 + i)], LineOf(PathOf(71 - i)));
    }
    for (std::size_t i = 10; i <= 73; ++i)
        EXPECT_EQ(record.RecentEntries[i], u"") << i;
}

// Kept for compatibility: recent-list-cuts-itself.
TEST_F(RecentRecordTest, AFullRecordIsTrimmedAgainAtEveryLoadAndStartsAgain) {
    record = Filled(72);
    record.AddToRecent(u"C:\\new.tbx", 0, kNow);
    // Entry 73 was empty; 72 to 66 follow it. The new file takes its place, without making room.
    EXPECT_EQ(record.RecentNext, 1);
    EXPECT_EQ(record.RecentEntries[1], LineOf(u"C:\\new.tbx"));
    for (int i = 0; i < 7; ++i) {
        EXPECT_EQ(record.RecentEntries[static_cast<std::size_t>(2 + i)], LineOf(PathOf(72 - i)));
    }
    EXPECT_EQ(record.RecentEntries[9], u"");
    record.AddToRecent(u"C:\\newer.tbx", 0, kNow);
    EXPECT_EQ(record.RecentNext, 2);
    EXPECT_EQ(record.RecentEntries[2], LineOf(u"C:\\new.tbx"));
    // Only as many entries move as the count says, so the entry after them is overwritten.
    EXPECT_EQ(record.RecentEntries[3], LineOf(PathOf(72)));
    EXPECT_EQ(record.RecentEntries[4], LineOf(PathOf(70)));
}

TEST_F(RecentRecordTest, AFullRecordIsTrimmedAlsoWhenTheFileIsInIt) {
    record = Filled(71);
    record.AddToRecent(PathOf(71), 0, {2026, 11, 21, 9, 7, 0});
    EXPECT_EQ(record.RecentNext, 72);
    EXPECT_EQ(record.RecentEntries[1], u"");
    EXPECT_EQ(record.RecentEntries[2], PathOf(71) + u" | 0*2026.11.21   09:07");
    EXPECT_EQ(record.RecentEntries[8], LineOf(PathOf(65)));
    EXPECT_EQ(record.RecentEntries[9], u"");
}

TEST_F(RecentRecordTest, ARecordOf70EntriesTakesOneMoreAsUsual) {
    record = Filled(70);
    record.AddToRecent(u"C:\\new.tbx", 0, kNow);
    EXPECT_EQ(record.RecentNext, 72);
    EXPECT_EQ(record.RecentEntries[1], LineOf(u"C:\\new.tbx"));
    for (int i = 1; i <= 70; ++i)
        EXPECT_EQ(record.RecentEntries[static_cast<std::size_t>(i + 1)], LineOf(PathOf(i)));
}

TEST_F(RecentRecordTest, LettersWithAccentsFoldTheirCaseToo) {
    record.AddToRecent(u"C:\\B\u00DCCHER.tbx", 0, kNow);
    record.AddToRecent(u"C:\\b\u00FCcher.tbx", 0, kNow);
    EXPECT_EQ(record.RecentNext, 2);
    record.AddToRecent(u"C:\\bucher.tbx", 0, kNow);
    EXPECT_EQ(record.RecentNext, 3);
}

TEST_F(RecentRecordTest, EmptyingAndForgettingLeaveTheCount) {
    record = Filled(3);
    record.Forget(PathOf(2));
    EXPECT_EQ(record.RecentNext, 4);
    record.Empty();
    EXPECT_EQ(record.RecentNext, 4);
}

TEST_F(RecentRecordTest, ReadsLinesFromOneOn) {
    t.files.AddFile(t.app.Exchange<StateFiles>().RecFilePath,
                    "C:\\a.tbx | 0*2026.03.01   14:05\r\n\xE4.tbx\rlast");
    record.Read(t.app);
    EXPECT_EQ(record.RecentNext, 4);
    EXPECT_EQ(record.RecentEntries[1], LineOf(u"C:\\a.tbx"));
    EXPECT_EQ(record.RecentEntries[2], u"\u00E4.tbx");
    EXPECT_EQ(record.RecentEntries[3], u"last");
}

TEST_F(RecentRecordTest, ReadsAtMost72Lines) {
    std::string bytes;
    for (int i = 1; i <= 80; ++i)
        bytes += std::to_string(i) + "\r\n";
    t.files.AddFile(t.app.Exchange<StateFiles>().RecFilePath, bytes);
    record.Read(t.app);
    EXPECT_EQ(record.RecentNext, 73);
    EXPECT_EQ(record.RecentEntries[72], u"72");
    EXPECT_EQ(record.RecentEntries[73], u"");
}

TEST_F(RecentRecordTest, AMissingOrUnreadableRecordIsEmptyWithoutAWord) {
    record.Read(t.app);
    EXPECT_EQ(record.RecentNext, 1);
    t.files.AddFile(t.app.Exchange<StateFiles>().RecFilePath, "a\r\n");
    t.files.Faults().FailNth(FileStep::OpenToRead, 1);
    record.Read(t.app);
    EXPECT_EQ(record.RecentNext, 1);
    EXPECT_EQ(record.RecentEntries[1], u"");
}

TEST_F(RecentRecordTest, WritesWhatIsntEmpty) {
    t.files.AddFile(t.app.Exchange<StateFiles>().RecFilePath, "old\r\nolder\r\n");
    record.RecentEntries[1] = u"a";
    record.RecentEntries[3] = u"\u00E4\u4E00";
    record.RecentEntries[72] = u"z";
    record.RecentEntries[73] = u"margin";
    record.Write(t.app);
    EXPECT_EQ(Written(), "a\r\n\xE4?\r\nz\r\n");
}

TEST_F(RecentRecordTest, IsForItsOwnersEyesOnly) {
    record.Write(t.app);
    EXPECT_TRUE(t.files.IsPrivate(t.app.Exchange<StateFiles>().RecFilePath));
}

TEST_F(RecentRecordTest, SaysWhenItCannotBeWritten) {
    t.files.AddFile(t.app.Exchange<StateFiles>().RecFilePath, "old\r\n");
    t.files.Faults().FailNth(FileStep::OpenToWrite, 1, u"Permission denied");
    t.user.Answer({u"Cannot save this file :\r\n\r\nC:\\Korvane\\Korvane.rec\r\n\r\n"
                   u"The error was probably triggered for the following reason : \r\n\r\n"
                   u"\"Permission denied\"\r\n\r\n",
                   MessageIcon::Stop},
                  Answer::Ok);
    record.Write(t.app);
    EXPECT_EQ(Written(), "old\r\n");
}

} // namespace
} // namespace korvane
