#include "document/html/Html.h"
#include "support/RandomDocument.h"

#include <gtest/gtest.h>

namespace korvane::doc {
namespace {

Document Read(const std::string& bytes) {
    const ReadResult read = ReadHtml(bytes);
    EXPECT_TRUE(IsSound(read.document)) << bytes;
    return read.document;
}

std::string TextOf(const std::string& bytes) {
    return ToUtf8(PlainText(Read(bytes)));
}

CharFormat LookOf(const std::string& bytes, std::size_t run = 0) {
    const Document document = Read(bytes);
    return document.FormatOf(document.paragraphs[0].runs.at(run));
}

ParaFormat ShapeOf(const std::string& bytes) {
    const Document document = Read(bytes);
    return document.FormatOf(document.paragraphs[0]);
}

TEST(HtmlReader, BlanksAreOne) {
    EXPECT_EQ(TextOf("<p>  a \n b <b> c</b> </p>"), "a b c");
    EXPECT_EQ(TextOf("<p>a</p>\n\n  <p>b</p>"), "a\r\nb");
    EXPECT_EQ(TextOf("<p style=\"white-space:pre-wrap\"> a  b\tc</p>"), " a  b\tc");
}

TEST(HtmlReader, ParagraphsEndAtTheirTagOrBeforeTheNext) {
    EXPECT_EQ(TextOf("<p>a<p>b<div>c</div>d"), "a\r\nb\r\nc\r\nd");
    EXPECT_EQ(TextOf("a<br>b<br/>"), "a\vb");
    EXPECT_EQ(TextOf("<p></p><p><br></p><p>x</p>"), "\r\nx");
    EXPECT_EQ(TextOf("<h1>a</h1>b"), "a\r\nb");
}

TEST(HtmlReader, PreformattedTextKeepsItsLines) {
    EXPECT_EQ(TextOf("<pre>\na\n  b\n</pre>c"), "a\v  b\r\nc");
}

TEST(HtmlReader, ReferencesStandForCharacters) {
    EXPECT_EQ(TextOf("&lt;&amp;&gt;&nbsp;&eacute;&euro;&#65;&#x20AC;&#128;&copy x"), "<&>\u00A0é€A€€© x");
    EXPECT_EQ(TextOf("a & b &unknown; &#; &"), "a & b &unknown; &#; &");
    EXPECT_EQ(TextOf("&#0;&#xD800;&#x110000;&#x1F600;"), "\uFFFD\uFFFD\uFFFD😀");
}

TEST(HtmlReader, WhatIsntShownIsLeftOut) {
    EXPECT_EQ(
        TextOf("<head><title>t</title><style>p{}</style></head>a<script>if (a<b) x</script>b<!-- c -->d"),
        "abd");
    EXPECT_EQ(TextOf("a<svg><text>no</text><svg></svg>no</svg>b<?x y?>c"), "abc");
    EXPECT_EQ(TextOf("a<unknown x=1>b</unknown>c < d"), "abc < d");
}

TEST(HtmlReader, TheEncodingIsTold) {
    EXPECT_EQ(TextOf("<meta charset=\"windows-1250\">\xB9"), "ą");
    EXPECT_EQ(TextOf("<meta charset=utf-8>ż"), "ż");
    EXPECT_EQ(TextOf("caf\xE9"), "café");
    EXPECT_EQ(TextOf("żółć"), "żółć");
    EXPECT_EQ(TextOf(std::string("\xFF\xFE<\0b\0>\0a\0", 10)), "a");
}

TEST(HtmlReader, LooksOfCharacters) {
    const CharFormat look =
        LookOf("<b><i><u><s><span style=\"font-family:'Calibri',x;font-size:9.5pt;color:#010203;"
               "background-color:red;font-variant:small-caps;vertical-align:-3pt\">x");
    EXPECT_TRUE(look.bold && look.italic && look.underline && look.strike && look.smallCaps);
    EXPECT_EQ(look.halfPoints, 19);
    EXPECT_EQ(look.fore, Colour{0x030201});
    EXPECT_EQ(look.back, Colour{0x0000FF});
    EXPECT_EQ(look.baseLine, -60);
    EXPECT_EQ(LookOf("<sup>x</sup>").script, Script::Raised);
    EXPECT_EQ(LookOf("<font size=5 color=blue face=\"A &amp; B\">x</font>").halfPoints, 36);
    EXPECT_FALSE(LookOf("<b>a</b>b", 1).bold);
    EXPECT_FALSE(LookOf("<b style=\"font-weight:normal\">a").bold);
}

TEST(HtmlReader, LooksEndWithTheirElement) {
    EXPECT_TRUE(LookOf("<b>a<i>b</b>c</i>", 1).italic);
    EXPECT_FALSE(LookOf("<b>a<i>b</b>c</i>", 2).bold);
}

TEST(HtmlReader, ShapesOfParagraphs) {
    const ParaFormat shape =
        ShapeOf("<p style=\"margin:1pt 2pt 3pt 4pt;text-indent:-5pt;text-align:center;line-height:150%;"
                "page-break-before:always\" data-kv-tabs=\"100l 200r 50c x\">x");
    EXPECT_EQ(shape.before, 20);
    EXPECT_EQ(shape.right, 40);
    EXPECT_EQ(shape.after, 60);
    EXPECT_EQ(shape.left, 80);
    EXPECT_EQ(shape.first, -100);
    EXPECT_EQ(shape.alignment, Alignment::Centred);
    EXPECT_EQ(shape.spacingPercent, 150);
    EXPECT_TRUE(shape.pageBreakBefore);
    EXPECT_EQ(shape.tabs, (std::vector<TabStop>{{100, TabType::Left}, {200, TabType::Right}}));
    EXPECT_EQ(ShapeOf("<p style=\"line-height:16pt\">x").spacingExact, 320);
    EXPECT_EQ(ShapeOf("<p style=\"border:2pt double red;padding:3pt\">x").frame, kFrameSides | kFrameDouble);
    EXPECT_EQ(ShapeOf("<p align=right>x").alignment, Alignment::Right);
}

TEST(HtmlReader, ListsHaveMarks) {
    const Document document = Read("<ul><li>a<li>b<ol start=3 type=i><li>c</ol></ul><ol><li>d</ol>");
    EXPECT_EQ(PlainText(document), u"a\r\nb\r\nc\r\nd");
    EXPECT_EQ(document.FormatOf(document.paragraphs[1]).list, (ListMark{ListKind::Bullet, 0, 1, 1}));
    EXPECT_EQ(document.FormatOf(document.paragraphs[2]).list, (ListMark{ListKind::LowerRoman, 1, 3, 1}));
    EXPECT_EQ(document.FormatOf(document.paragraphs[3]).list, (ListMark{ListKind::Decimal, 0, 1, 2}));
}

TEST(HtmlReader, TablesHaveRowsAndCells) {
    const Document document =
        Read("x<table><tr><td style=\"width:50pt;padding-left:2pt;border-top:1pt solid\" bgcolor=red>a<p>b"
             "<td>c<tr><th colspan=2>d</table>y");
    EXPECT_EQ(PlainText(document), u"x\r\na\r\nb\r\nc\r\nd\r\ny");
    const Table& table = document.tables.at(1);
    ASSERT_EQ(table.rows.size(), 2u);
    EXPECT_EQ(table.rows[0].cells[0].width, 1000);
    EXPECT_EQ(table.rows[0].cells[0].gapLeft, 40);
    EXPECT_EQ(table.rows[0].cells[0].border[static_cast<std::size_t>(Side::Top)], 20);
    EXPECT_EQ(table.rows[0].cells[0].back, Colour{0x0000FF});
    EXPECT_EQ(table.rows[1].cells[0].width, 3600);
    EXPECT_EQ(document.paragraphs[2].cell, (CellPlace{1, 0, 0}));
}

TEST(HtmlReader, ATableInACellBecomesText) {
    const Document document =
        Read("<table><tr><td>a<table><tr><td>b<td>c</table>d</td><td>e</td></tr></table>");
    EXPECT_EQ(PlainText(document), u"a\r\nb\r\nc\r\nd\r\ne\r\n");
    EXPECT_EQ(document.tables.at(1).rows[0].cells.size(), 2u);
}

TEST(HtmlReader, HarmlessLinksAreFields) {
    const auto addressOf = [](const std::string& href) {
        const Document document = Read("<a href=\"" + href + "\">x</a>");
        const Index field = document.paragraphs[0].runs[0].field;
        return field == 0 ? std::string("(none)") : ToUtf8(document.fields.at(field).typeData);
    };
    EXPECT_EQ(addressOf("http://a.b/?x=1&amp;y=2"), "http://a.b/?x=1&y=2");
    EXPECT_EQ(addressOf("MAILTO:a@b"), "MAILTO:a@b");
    EXPECT_EQ(addressOf("sub/page.htm#x:y"), "sub/page.htm#x:y");
    EXPECT_EQ(addressOf("C:\\a.rtf"), "C:\\a.rtf");
    EXPECT_EQ(addressOf("javascript:alert(1)"), "(none)");
    EXPECT_EQ(addressOf("java&#10;script:alert(1)"), "(none)");
    EXPECT_EQ(addressOf("data:text/html,x"), "(none)");
    EXPECT_EQ(addressOf(""), "(none)");
}

TEST(HtmlReader, OnlyPicturesInTheFileAreShown) {
    EXPECT_TRUE(
        Read("<img src=\"http://a.b/c.png\"><img src=\"file:///etc/passwd\"><img src=x.png>").images.empty());
    const Document document =
        Read("a<img src=\"data:image/png;base64,AAEC\" width=10 style=\"height:20pt\">b");
    ASSERT_EQ(document.images.size(), 1u);
    EXPECT_EQ(document.images[0].bytes.View(), std::string_view("\0\1\2", 3));
    EXPECT_EQ(document.images[0].width, 150);
    EXPECT_EQ(document.images[0].height, 400);
    EXPECT_EQ(PlainText(document), u"a\uFFFCb");
}

TEST(HtmlReader, ForeignParagraphsHaveAGap) {
    EXPECT_GT(ShapeOf("<p>x").after, 0);
    EXPECT_EQ(ShapeOf("<meta name=generator content=Korvane><p>x").after, 0);
}

TEST(HtmlReader, ThePageIsTold) {
    const ReadResult read = ReadHtml("<body data-kv-page=\"1 2 3 4 5 6 7\">x");
    EXPECT_EQ(read.document.page.sizes, (std::array<std::int32_t, 6>{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(read.document.defaultTab, 7);
    EXPECT_TRUE(read.pageGiven[5]);
    EXPECT_FALSE(ReadHtml("<p>x").pageGiven[0]);
}

} // namespace
} // namespace korvane::doc
