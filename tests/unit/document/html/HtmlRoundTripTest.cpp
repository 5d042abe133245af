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

Paragraph Item(Document& document, TextView text, ListMark mark) {
    ParaFormat format;
    format.list = mark;
    return {.text = Text(text),
            .runs = {{static_cast<Index>(text.size())}},
            .format = document.paras.Add(format)};
}

/// The written tags of lists, with a letter for each item.
std::string ListsOf(const Document& document) {
    std::string lists;
    const std::string html = WriteHtml(document);
    for (std::size_t at = html.find("<body"); at < html.size(); ++at) {
        const std::string_view rest = std::string_view(html).substr(at);
        if (rest.starts_with("<ul") || rest.starts_with("<ol") || rest.starts_with("</ul") ||
            rest.starts_with("</ol"))
            lists += rest.substr(0, rest.find('>') + 1);
        else if (rest.starts_with("</li>") || rest.starts_with("</p>"))
            lists += html[at - 1];
    }
    return lists;
}

TEST(HtmlRoundTrip, ListsAreListsForOtherPrograms) {
    Document document;
    document.paragraphs = {Item(document, u"a", {ListKind::Bullet, 0, 1, 1}),
                           Item(document, u"b", {ListKind::LowerLetter, 1, 3, 1}),
                           Item(document, u"c", {ListKind::LowerLetter, 1, 3, 1}),
                           Item(document, u"d", {ListKind::Bullet, 0, 1, 1}),
                           Item(document, u"e", {}),
                           Item(document, u"f", {ListKind::Decimal, 0, 1, 2}),
                           Item(document, u"g", {}),
                           Item(document, u"h", {ListKind::Decimal, 0, 1, 2}),
                           Item(document, u"i", {ListKind::Decimal, 0, 1, 3})};
    EXPECT_EQ(ListsOf(document),
              "<ul>a<ol type=\"a\" start=\"3\">bc</ol>d</ul>e<ol>f</ol>g<ol start=\"2\">h</ol><ol>i</ol>");
    const std::string html = WriteHtml(document);
    EXPECT_EQ(FirstDifference(ReadHtml(html).document, document), "");
    EXPECT_EQ(WriteHtml(ReadHtml(html).document), html);
}

TEST(HtmlRoundTrip, AListOfTheDeepestLevelIsReadAgain) {
    Document document;
    document.paragraphs = {Item(document, u"a", {ListKind::Bullet, 8, 1, 1}),
                           Item(document, u"b", {ListKind::Bullet, 0, 1, 1})};
    EXPECT_EQ(FirstDifference(ReadHtml(WriteHtml(document)).document, document), "");
}

} // namespace
} // namespace korvane::doc
