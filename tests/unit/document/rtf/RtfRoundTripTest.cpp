// Documents with everything that RTF can hold come back as they were.

#include "document/rtf/Rtf.h"
#include "support/RandomDocument.h"

#include <gtest/gtest.h>

namespace korvane::doc {
namespace {

class RtfRoundTrip : public testing::TestWithParam<unsigned> {};

TEST_P(RtfRoundTrip, EverythingComesBack) {
    for (unsigned i = 0; i < 50; ++i) {
        const Document document = RandomDocument(GetParam() * 1000 + i);
        const std::string bytes = WriteRtf(document);
        const ReadResult read = ReadRtf(bytes);
        ASSERT_EQ(read.trouble, Trouble::None) << i;
        ASSERT_TRUE(IsSound(read.document)) << i;
        ASSERT_EQ(FirstDifference(read.document, document), "") << i << "\n" << bytes;
    }
}

TEST_P(RtfRoundTrip, TheSecondWritingIsTheFirst) {
    for (unsigned i = 0; i < 10; ++i) {
        const std::string first = WriteRtf(ReadRtf(WriteRtf(RandomDocument(GetParam() * 1000 + i))).document);
        ASSERT_EQ(WriteRtf(ReadRtf(first).document), first) << i;
    }
}

TEST_P(RtfRoundTrip, AFragmentHasNoPage) {
    const Document document = RandomDocument(GetParam());
    const ReadResult read = ReadRtf(WriteRtf(document, RtfExtent::Fragment));
    EXPECT_EQ(PlainText(read.document), PlainText(document));
    EXPECT_EQ(read.pageGiven, (std::array<bool, Page::kSizes>{}));
    EXPECT_EQ(read.document.page, Page{});
}

INSTANTIATE_TEST_SUITE_P(Seeds, RtfRoundTrip, testing::Range(1u, 11u));

TEST(RtfRoundTrip, AFieldOverTwoParagraphsStaysOne) {
    Document document = FromPlainText(u"abcd\r\nefgh");
    document.fields[1] = {FieldKind::Hyperlink, u"x", {}};
    document.paragraphs[0].runs = {{2, 0}, {2, 0, 1}};
    document.paragraphs[1].runs = {{2, 0, 1}, {2, 0}};
    document.paragraphs[1].format = document.paras.Add(ParaFormat{.left = 300});
    const Document read = ReadRtf(WriteRtf(document)).document;
    EXPECT_EQ(FirstDifference(read, document), "");
    EXPECT_EQ(read.fields.size(), 1u);
}

TEST(RtfRoundTrip, FrameBitsWithoutAWordOfTheirOwnComeBack) {
    for (const int frame : {16 | 32, 128 | 1 | 64, 256 + 512 + 1024 + 2048 + 4096 + 32, 15, 1 | 32 | 64}) {
        Document document = FromPlainText(u"x");
        document.paragraphs[0].format =
            document.paras.Add(ParaFormat{.frame = static_cast<std::uint16_t>(frame)});
        EXPECT_EQ(FirstDifference(ReadRtf(WriteRtf(document)).document, document), "") << frame;
    }
}

TEST(RtfRoundTrip, TheLeftEdgeOfARowComesBack) {
    Document document;
    document.tables[1].rows = {TableRow{{CellFormat{.left = 350}, CellFormat{}}}};
    document.paragraphs = {doc::Paragraph{.cell = {1, 0, 0}}, doc::Paragraph{.cell = {1, 0, 1}},
                           doc::Paragraph{}};
    EXPECT_EQ(FirstDifference(ReadRtf(WriteRtf(document)).document, document), "");
}

TEST(RtfRoundTrip, ListsThatDisagreeGetNumbersOfTheirOwn) {
    Document document = FromPlainText(u"a\r\nb\r\nc");
    const ListMark marks[] = {
        {ListKind::Bullet, 0, 1, 1}, {ListKind::Decimal, 0, 3, 1}, {ListKind::Bullet, 0, 1, 2}};
    for (std::size_t i = 0; i < 3; ++i)
        document.paragraphs[i].format = document.paras.Add(ParaFormat{.list = marks[i]});
    const Document read = ReadRtf(WriteRtf(document)).document;
    EXPECT_EQ(read.FormatOf(read.paragraphs[0]).list, marks[0]);
    EXPECT_EQ(read.FormatOf(read.paragraphs[1]).list.kind, ListKind::Decimal);
    EXPECT_EQ(read.FormatOf(read.paragraphs[1]).list.start, 3);
    EXPECT_NE(read.FormatOf(read.paragraphs[1]).list.list, 1u);
    EXPECT_EQ(read.FormatOf(read.paragraphs[2]).list.kind, ListKind::Bullet);
}

} // namespace
} // namespace korvane::doc
