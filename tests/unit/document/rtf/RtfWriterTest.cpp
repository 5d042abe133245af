#include "document/rtf/Rtf.h"

#include <gtest/gtest.h>

namespace korvane::doc {
namespace {

bool Writes(const Document& document, std::string_view part) {
    return WriteRtf(document).find(part) != std::string::npos;
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

TEST(RtfWriter, ControlCharactersAreLeftOut) {
    EXPECT_TRUE(Writes(FromPlainText(Text(u"a\u0001\u0007b")), "ab\\par"));
}

} // namespace
} // namespace korvane::doc
