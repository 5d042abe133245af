// Files that are cut, wrong or made to do harm. Each must give a sound document.

#include "document/rtf/Rtf.h"
#include "support/RandomDocument.h"

#include <gtest/gtest.h>

namespace korvane::doc {
namespace {

ReadResult Read(const std::string& bytes, const Limits& limits = {}) {
    ReadResult read = ReadRtf(bytes, limits);
    EXPECT_TRUE(IsSound(read.document));
    return read;
}

std::string Repeated(std::string_view part, int times) {
    std::string text;
    for (int i = 0; i < times; ++i)
        text += part;
    return text;
}

TEST(HostileRtf, AnotherFormatIsTold) {
    EXPECT_EQ(Read("\x89PNG\r\n").trouble, Trouble::WrongFormat);
    EXPECT_EQ(Read("plain").trouble, Trouble::WrongFormat);
    EXPECT_EQ(Read("").trouble, Trouble::None);
}

TEST(HostileRtf, AFileCutAnywhereGivesADocument) {
    const std::string whole = WriteRtf(RandomDocument(7));
    for (std::size_t end = 0; end < whole.size(); end += 1 + end / 200)
        Read(whole.substr(0, end));
}

TEST(HostileRtf, NestingHasALimit) {
    EXPECT_EQ(Read("{\\rtf1 a" + Repeated("{", 200'000)).trouble, Trouble::OverLimit);
    EXPECT_EQ(PlainText(Read("{\\rtf1 a" + Repeated("{", 200'000)).document), u"a");
}

TEST(HostileRtf, ABracketTooManyEndsTheDocument) {
    EXPECT_EQ(PlainText(Read("{\\rtf1 a}}}}b").document), u"a");
}

TEST(HostileRtf, NumbersAreBounded) {
    Read("{\\rtf1\\li99999999999999999\\fi-99999999999\\fs-5\\up99999999\\sl-2147483647\\f-2147483648\\cf-1 "
         "x\\par}");
    Read("{\\rtf1\\u99999999999 \\uc99999999\\u1 abc\\bin-5 x}");
    Read("{\\rtf1\\trowd\\trleft-2147483648\\cellx2147483647\\cellx-2147483648\\intbl x\\cell\\cell\\row}");
}

TEST(HostileRtf, ALengthPastTheEndIsDamage) {
    EXPECT_EQ(Read("{\\rtf1 a\\bin100 xyz").trouble, Trouble::Damaged);
    Read("{\\rtf1 a{\\pict\\bin2147483647 xyz}}");
    Read("{\\rtf1 a{\\*\\x\\bin2147483647 xyz}}");
}

TEST(HostileRtf, CellsHaveALimit) {
    const ReadResult read =
        Read("{\\rtf1\\trowd" + Repeated("\\cellx9", 300) + Repeated("\\intbl x\\cell", 300) + "\\row}");
    EXPECT_EQ(read.document.tables.at(1).rows[0].cells.size(), 64u);
}

TEST(HostileRtf, TextHasALimit) {
    Limits limits;
    limits.characters = 1000;
    const ReadResult read = Read("{\\rtf1 " + Repeated("words ", 1000) + "}", limits);
    EXPECT_EQ(read.trouble, Trouble::OverLimit);
    EXPECT_LE(PlainText(read.document).size(), 1000u);
}

TEST(HostileRtf, FormatsHaveALimit) {
    Limits limits;
    limits.formats = 50;
    std::string bytes = "{\\rtf1";
    for (int i = 1; i < 200; ++i)
        bytes += "\\fs" + std::to_string(i) + " x\\li" + std::to_string(i) + "\\par";
    EXPECT_EQ(Read(bytes, limits).trouble, Trouble::OverLimit);
}

TEST(HostileRtf, PartsWithoutTheirGroupsAreHarmless) {
    Read("{\\rtf1\\fldrslt\\fldinst x}");
    Read("{\\rtf1{\\field\\field{\\*\\fldinst a}{\\*\\fldinst b}{\\fldrslt c}}}");
    Read("{\\rtf1{\\fldrslt a}\\cell\\row\\row\\cell}");
    Read("{\\rtf1\\ls5\\ilvl9\\levelnfc3\\listid1\\pict 00}");
    Read("{\\rtf1\\fonttbl\\f0 x;\\f1 y;\\colortbl;;;x}");
    Read("{\\rtf1{\\pict 0{\\fonttbl{\\pict 0}}0}}");
    Read("{\\rtf\\cell\\par\\row x\\cell y}");
    Read("{\\rtf1{\\*\\kvbase5}{\\*\\kvframe99999}\\par\\'\\'g\\");
}

} // namespace
} // namespace korvane::doc
