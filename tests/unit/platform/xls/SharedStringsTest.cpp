#include "platform/xls/SharedStrings.h"

#include "support/PlainXlsReader.h"

#include <gtest/gtest.h>

#include <string>

namespace korvane::xls {
namespace {

using namespace std::string_view_literals;

constexpr std::size_t kMaxData = 8224;
/// The sizes of the counts before the first text, and of a text's length and width.
constexpr std::size_t kCounts = 8;
constexpr std::size_t kHead = 3;

class StringFile final : public FileWriter {
public:
    std::string bytes;

    bool Write(std::string_view more) override {
        bytes += more;
        return true;
    }
    bool Close() override { return true; }
};

std::string Written(const SharedStrings& strings) {
    StringFile file;
    ChunkedOutput output(file);
    strings.Write(output);
    EXPECT_TRUE(output.Flush());
    EXPECT_EQ(file.bytes.size(), strings.RecordsSize());
    return file.bytes;
}

std::vector<PlainRecord> RecordsOf(std::initializer_list<Text> texts) {
    SharedStrings strings;
    for (const Text& text : texts)
        strings.Add(text);
    return ReadRecords(Written(strings));
}

TEST(SharedStrings, CountsTextsFromZeroAndGivesEachOnce) {
    SharedStrings strings;
    EXPECT_EQ(strings.Add(u"a"), 0u);
    EXPECT_EQ(strings.Add(u"b"), 1u);
    EXPECT_EQ(strings.Add(u"a"), 0u);
    EXPECT_EQ(strings.Add(u"A"), 2u);
    EXPECT_EQ(strings.Count(), 3u);
}

TEST(SharedStrings, FindsEachOfManyTextsAgain) {
    SharedStrings strings;
    const auto text = [](U32 i) { return FromAscii("text " + std::to_string(i)); };
    for (U32 i = 0; i < 5000; ++i)
        ASSERT_EQ(strings.Add(text(i)), i);
    for (U32 i = 0; i < 5000; ++i)
        ASSERT_EQ(strings.Add(text(i)), i);
}

TEST(SharedStrings, WithoutTextsWritesTheCountsAlone) {
    EXPECT_EQ(Written(SharedStrings()), "\xFC\0\x08\0\0\0\0\0\0\0\0\0"sv);
}

TEST(SharedStrings, CountsUsesAndTexts) {
    SharedStrings strings;
    for (const TextView text : {u"a", u"b", u"a"})
        strings.Add(text);
    EXPECT_EQ(Written(strings), "\xFC\0\x10\0\x03\0\0\0\x02\0\0\0\x01\0\0a\x01\0\0b"sv);
}

TEST(SharedStrings, ATextOfSmallCharactersTakesOneByteEach) {
    EXPECT_EQ(RecordsOf({u"\u00E4\u00FF"}).at(0).data.substr(kCounts), "\x02\0\0\xE4\xFF"sv);
}

TEST(SharedStrings, OneLargeCharacterMakesAllOfATextWide) {
    EXPECT_EQ(RecordsOf({u"a\u0100"}).at(0).data.substr(kCounts), "\x02\0\x01\x61\0\0\x01"sv);
    EXPECT_EQ(RecordsOf({u"\U0001F600"}).at(0).data.substr(kCounts), "\x02\0\x01\x3D\xD8\0\xDE"sv);
}

TEST(SharedStrings, ATextThatJustFitsNeedsNoSecondRecord) {
    const auto records = RecordsOf({Text(kMaxData - kCounts - kHead, u'x')});
    ASSERT_EQ(records.size(), 1u);
    EXPECT_EQ(records[0].data.size(), kMaxData);
}

TEST(SharedStrings, ATextOfOneCharacterMoreGoesOnInARecordThatRepeatsItsWidth) {
    const auto records = RecordsOf({Text(kMaxData - kCounts - kHead, u'x') + u"y"});
    ASSERT_EQ(records.size(), 2u);
    EXPECT_EQ(records[0].data.size(), kMaxData);
    EXPECT_EQ(records[1].type, 0x3C);
    EXPECT_EQ(records[1].data, "\0y"sv);
}

TEST(SharedStrings, AWideCharacterIsNeverCut) {
    // The room is an odd number of bytes, so one byte stays unused.
    const auto records = RecordsOf({Text(kMaxData / 2, u'\u4E2D')});
    ASSERT_EQ(records.size(), 2u);
    EXPECT_EQ(records[0].data.size(), kMaxData - 1);
    EXPECT_EQ(records[1].data.substr(0, 3), "\x01\x2D\x4E"sv);
    EXPECT_EQ(records[0].data.size() - kCounts - kHead + records[1].data.size() - 1, kMaxData);
}

TEST(SharedStrings, AHeadWithoutRoomForACharacterGoesToTheNextRecord) {
    // After the first text 0 to 5 bytes are free.
    for (std::size_t room = 0; room <= 5; ++room) {
        const Text first(kMaxData - kCounts - kHead - room, u'x');
        const auto narrow = RecordsOf({first, u"yz"});
        const bool fitsOne = room >= kHead + 1;
        ASSERT_EQ(narrow.size(), room == kHead + 2 ? 1u : 2u) << room;
        if (narrow.size() == 2) {
            EXPECT_EQ(narrow[1].data, fitsOne ? "\0z"sv : "\x02\0\0yz"sv) << room;
        }
        const auto wide = RecordsOf({first, u"\u4E2Dz"});
        ASSERT_EQ(wide.size(), 2u) << room;
        EXPECT_EQ(wide[1].data, room == kHead + 2 ? "\x01z\0"sv : "\x02\0\x01\x2D\x4Ez\0"sv) << room;
    }
}

TEST(SharedStrings, TheLongestTextSpansSeveralRecords) {
    const auto records = RecordsOf({Text(SharedStrings::kMaxLength, u'\u4E2D'), u"behind"});
    ASSERT_EQ(records.size(), 8u);
    for (std::size_t i = 1; i + 1 < records.size(); ++i) {
        EXPECT_EQ(records[i].data.size(), kMaxData - 1) << i;
        EXPECT_EQ(records[i].data[0], 1) << i;
    }
    EXPECT_TRUE(records.back().data.ends_with("\x06\0\0behind"sv));
}

} // namespace
} // namespace korvane::xls
