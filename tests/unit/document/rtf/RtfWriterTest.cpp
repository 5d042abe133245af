#include "document/rtf/Rtf.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace korvane::doc {
namespace {

bool Writes(const Document& document, std::string_view part) {
    return WriteRtf(document).find(part) != std::string::npos;
}

TEST(RtfWriter, TheFontIsForCharactersOfEastAsiaToo) {
    EXPECT_TRUE(Writes(FromPlainText(u"a\u6F22"), "\\plain\\dbch\\af0\\loch\\f0\\fs24"));
    EXPECT_FALSE(Writes(FromPlainText(u"a\u00E4"), "\\dbch"));
}

TEST(RtfWriter, TheLookIsForComplexWritingsToo) {
    Document document = FromPlainText(u"a\u05D0");
    CharFormat look;
    look.bold = look.italic = true;
    document.paragraphs[0].runs = {{2, document.chars.Add(look)}};
    EXPECT_TRUE(Writes(document, "\\plain\\rtlch\\af0\\afs24\\ab\\ai\\ltrch\\f0\\fs24\\b\\i"));
    EXPECT_FALSE(Writes(FromPlainText(u"a\u0424"), "\\rtlch"));
}

TEST(RtfWriter, ALinkWithoutALookOfItsOwnTellsSo) {
    Document document = FromPlainText(u"link");
    document.fields[1] = {FieldKind::Hyperlink, u"www.a.b", u""};
    document.paragraphs[0].runs = {{4, 0, 1}};
    EXPECT_TRUE(Writes(document, "\\fs24 \\ulnone \\cf0 link"));
    CharFormat look;
    look.underline = true;
    look.fore = Colour{0xFF0000};
    document.paragraphs[0].runs = {{4, document.chars.Add(look), 1}};
    EXPECT_FALSE(Writes(document, "\\ulnone"));
    EXPECT_FALSE(Writes(document, "\\cf0"));
}

TEST(RtfWriter, TheStyleOfLinksTellsThatALinkOnAColourHasNone) {
    Document document = FromPlainText(u"link");
    document.fields[1] = {FieldKind::Hyperlink, u"www.a.b", u""};
    CharFormat look;
    look.back = Colour{0x800000};
    document.paragraphs[0].runs = {{4, document.chars.Add(look), 1}};
    const std::string_view style = "{\\*\\cs10\\additive\\ulnone\\cf0 Internet Link;}";
    EXPECT_TRUE(Writes(document, style));
    EXPECT_TRUE(Writes(document, "\\highlight1 \\ulnone link"));
    EXPECT_EQ(PlainText(ReadRtf(WriteRtf(document)).document), u"link");
    // Where it is pasted, other styles count.
    EXPECT_NE(WriteRtf(document, RtfExtent::Fragment).find("\\highlight1 \\ulnone \\cf0 link"),
              std::string::npos);
    document.paragraphs[0].runs = {{4, 0, 1}};
    EXPECT_FALSE(Writes(document, style));
}

TEST(RtfWriter, AnEmptyDocumentIsAWholeFile) {
    EXPECT_EQ(WriteRtf({}),
              "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0\n"
              "{\\fonttbl{\\f0\\fnil\\fcharset0 Arial;}}\n"
              "{\\colortbl;}\n"
              "\\paperw11906\\paperh16838\\margl1134\\margt1134\\margr1134\\margb1134\\deftab720\n"
              "\\pard\\ql \\plain\\f0\\fs24 \\par\n"
              "}\n");
}

TEST(RtfWriter, TheBytesAreAscii) {
    for (const char byte : WriteRtf(FromPlainText(u"żółć {\\} €\xD83D\xDE00")))
        ASSERT_TRUE(byte == '\n' || (byte >= ' ' && byte < 127));
}

TEST(RtfWriter, RaisedTextHasANeighbourThatOthersKnow) {
    Document document = FromPlainText(u"x");
    document.paragraphs[0].runs[0].format = document.chars.Add(CharFormat{.baseLine = -36});
    EXPECT_TRUE(Writes(document, "\\dn4{\\*\\kvbase-36}"));
}

TEST(RtfWriter, AFixedColourIsAMarkerToo) {
    Document document = FromPlainText(u"x");
    document.paragraphs[0].runs[0].format = document.chars.Add(CharFormat{.back = Colour{65535}});
    EXPECT_TRUE(Writes(document, "\\chcbpat1\\highlight1"));
    document.paragraphs[0].runs[0].format = document.chars.Add(CharFormat{.back = Colour{65534}});
    EXPECT_FALSE(Writes(document, "\\highlight"));
}

TEST(RtfWriter, BlanksInARowAreParted) {
    EXPECT_TRUE(Writes(FromPlainText(u"a  b c   d "), "a {} b c {} {} d \\par"));
    EXPECT_TRUE(Writes(FromPlainText(u"  "), " {} \\par"));
}

TEST(RtfWriter, RaisedTextEndsBeforeItsParagraph) {
    Document document = FromPlainText(u"ab");
    const Index raised = document.chars.Add(CharFormat{.script = Script::Raised});
    document.paragraphs[0].runs = {{1}, {1, raised}};
    EXPECT_TRUE(Writes(document, "\\super b\\nosupersub\\par"));
    document.paragraphs[0] = {.emptyFormat = raised};
    EXPECT_TRUE(Writes(document, "\\fs24 {\\*\\kvsuper}\\par"));
    EXPECT_FALSE(Writes(document, "\\super"));
}

TEST(RtfWriter, ControlCharactersAreLeftOut) {
    EXPECT_TRUE(Writes(FromPlainText(Text(u"a\u0001\u0007b")), "ab\\par"));
}

TEST(RtfWriter, AFileInPiecesIsTheSame) {
    const Document document = FromPlainText(Text(3 * kPieceOfText, u'x') + u"\r\nend");
    std::string joined;
    std::size_t longest = 0;
    WriteRtf(document, [&](std::string_view piece) {
        joined += piece;
        longest = std::max(longest, piece.size());
    });
    EXPECT_EQ(joined, WriteRtf(document));
    EXPECT_LT(longest, 2 * kPieceOfText);
}

TEST(RtfWriter, ColoursHaveTheirNumbersInTheOrderOfTheText) {
    Document document = FromPlainText(u"ab");
    const Index second = document.chars.Add(CharFormat{.fore = Colour{0x0000FF}});
    const Index first = document.chars.Add(CharFormat{.fore = Colour{0x00FF00}, .back = Colour{0xFF0000}});
    document.paragraphs[0].runs = {{1, first}, {1, second}};
    EXPECT_TRUE(Writes(
        document, "{\\colortbl;\\red0\\green255\\blue0;\\red0\\green0\\blue255;\\red255\\green0\\blue0;}"));
}

} // namespace
} // namespace korvane::doc
