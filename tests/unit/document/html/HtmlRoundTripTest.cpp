// Documents with everything that HTML can hold come back as they were.

#include "document/html/Html.h"
#include "support/RandomDocument.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace korvane::doc {
namespace {

class HtmlRoundTrip : public testing::TestWithParam<unsigned> {};

TEST_P(HtmlRoundTrip, EverythingButNotesComesBack) {
    for (unsigned i = 0; i < 50; ++i) {
        const Document document = RandomDocument(GetParam() * 1000 + i, {.notes = false});
        const std::string bytes = WriteHtml(document);
        const ReadResult read = ReadHtml(bytes);
        ASSERT_EQ(read.trouble, Trouble::None) << i;
        ASSERT_TRUE(IsSound(read.document)) << i;
        ASSERT_EQ(FirstDifference(read.document, document), "") << i << "\n" << bytes;
    }
}

TEST_P(HtmlRoundTrip, TheSecondWritingIsTheFirst) {
    for (unsigned i = 0; i < 10; ++i) {
        const std::string first =
            WriteHtml(ReadHtml(WriteHtml(RandomDocument(GetParam() * 1000 + i))).document);
        ASSERT_EQ(WriteHtml(ReadHtml(first).document), first) << i;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, HtmlRoundTrip, testing::Range(1u, 11u));

TEST(HtmlRoundTrip, ANotesTextStays) {
    Document document = FromPlainText(u"a note");
    document.fields[1] = {FieldKind::Note, u"note", u"data"};
    document.paragraphs[0].runs = {{2}, {4, 0, 1}};
    const Document read = ReadHtml(WriteHtml(document)).document;
    EXPECT_EQ(PlainText(read), u"a note");
    EXPECT_TRUE(read.fields.empty());
}

TEST(HtmlRoundTrip, BreaksAtTheEndComeBack) {
    for (const TextView text : {u"", u"\v", u"a\v\v", u"\va", u" \v "}) {
        const Document document = FromPlainText(text);
        EXPECT_EQ(PlainText(ReadHtml(WriteHtml(document)).document), text) << text.size();
    }
}

TEST(HtmlRoundTrip, AFileInPiecesIsTheSame) {
    Text text(3 * kPieceOfText, u'x');
    // A character of two units is where the text is cut.
    text.replace(kPieceOfText - 1, 2, u"\xD83D\xDE00");
    const Document document = FromPlainText(text + u"\r\n" + text);
    std::string joined;
    std::size_t longest = 0;
    WriteHtml(document, [&](std::string_view piece) {
        joined += piece;
        longest = std::max(longest, piece.size());
    });
    EXPECT_EQ(joined, WriteHtml(document));
    EXPECT_EQ(PlainText(ReadHtml(joined).document), PlainText(document));
    EXPECT_LT(longest, 2 * kPieceOfText);
}

} // namespace
} // namespace korvane::doc
