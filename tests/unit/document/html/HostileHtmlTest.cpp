// Files that are cut, wrong or made to do harm. Each must give a sound document.

#include "document/html/Html.h"
#include "support/RandomDocument.h"

#include <gtest/gtest.h>

namespace korvane::doc {
namespace {

ReadResult Read(const std::string& bytes, const Limits& limits = {}) {
    ReadResult read = ReadHtml(bytes, limits);
    EXPECT_TRUE(IsSound(read.document));
    return read;
}

std::string Repeated(std::string_view part, int times) {
    std::string text;
    for (int i = 0; i < times; ++i)
        text += part;
    return text;
}

TEST(HostileHtml, AFileCutAnywhereGivesADocument) {
    const std::string whole = WriteHtml(RandomDocument(7));
    for (std::size_t end = 0; end < whole.size(); end += 1 + end / 200)
        Read(whole.substr(0, end));
}

TEST(HostileHtml, NestingHasALimit) {
    EXPECT_EQ(Read("a" + Repeated("<div>", 200'000)).trouble, Trouble::OverLimit);
    EXPECT_EQ(Read(Repeated("<table><tr><td>", 100'000)).trouble, Trouble::OverLimit);
    EXPECT_EQ(Read(Repeated("<b>", 200'000) + "x").trouble, Trouble::OverLimit);
}

TEST(HostileHtml, EndsWithoutBeginningsAreIgnored) {
    EXPECT_EQ(PlainText(Read("a</table></td></p></b></html>b").document), u"ab");
    Read("<table></tr></td><td>a</table></table><tr><td>b</td></tr>");
    Read("<li>a</ul></ol><ul><li><table><li></ul>x");
}

TEST(HostileHtml, TagsCutShortAreHarmless) {
    for (const char* bytes : {"<", "</", "<!", "<!--", "<a", "<a href", "<a href=", "<a href=\"x", "</a",
                              "<script>", "<td", "&#"})
        Read(bytes);
}

TEST(HostileHtml, ColumnsAndCellsHaveLimits) {
    EXPECT_LE(
        Read("<table><tr>" + Repeated("<td colspan=10000>x", 500)).document.tables.at(1).rows[0].cells.size(),
        64u);
    Limits limits;
    limits.cells = 10;
    EXPECT_EQ(Read("<table>" + Repeated("<tr><td>x", 50), limits).trouble, Trouble::OverLimit);
}

TEST(HostileHtml, APictureMayHaveAnyStyle) {
    Read("<img style=\"text-align:left;border:1pt "
         "solid;margin:1pt;background:red;line-height:2;vertical-align:1pt\" "
         "src=\"data:image/png;base64,AAEC\">");
}

TEST(HostileHtml, TextHasALimit) {
    Limits limits;
    limits.characters = 100;
    EXPECT_EQ(Read(Repeated("<p>words", 100), limits).trouble, Trouble::OverLimit);
}

TEST(HostileHtml, NumbersAreBounded) {
    Read("<p style=\"margin:99999999999in;line-height:1e300;font-size:99999999%\" "
         "data-kv-frame=\"99999999999 -1 -1\">x");
    Read("<ol start=-99999999999><li>x<table data-kv-left=1><tr data-kv-left=99999999><td width=99999999999 "
         "colspan=-1>x");
    Read("<body data-kv-page=\"-1 99999999999 x\"><font size=-99>x<img width=-5 "
         "src=\"data:image/png;base64,\">");
}

} // namespace
} // namespace korvane::doc
