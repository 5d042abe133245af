#include "files/lister/rows/ListPatterns.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;

TEST(ListPatterns, AreOfferedInTheirOrder) {
    EXPECT_THAT(OfferedPatterns(),
                ElementsAre(u"*.*", u"*.tbx", u"*.rtf", u"*.doc;*.docx", u"*.rtf;*.doc;*.docx",
                            u"*.lst;*.txt;*.asc", u"*.pdf", u"*.htm;*.html;*.xhtml", u"*.exe",
                            u"*.jpg;*.jpeg;*.bmp;*.png;*.gif;*.tif;*.ico", u"*.xls;*.xlsx", u"*.ppt;*.pptx",
                            u"*.dbf"));
}

TEST(ListPatterns, FollowEachOtherRoundAgain) {
    Text pattern = u"*.*";
    std::vector<Text> cycle;
    for (int step = 0; step < 5; ++step)
        cycle.push_back(pattern = NextPattern(pattern));
    EXPECT_THAT(cycle, ElementsAre(u"*.rtf", u"*.docx", u"*.rtf;*.doc;*.docx", u"*.txt;*.lst", u"*.*"));
}

TEST(ListPatterns, AreComparedWithoutCase) {
    EXPECT_EQ(NextPattern(u"*.RTF"), u"*.docx");
    EXPECT_EQ(NextPattern(u"*.Txt;*.Lst"), u"*.*");
}

TEST(ListPatterns, OneOutsideTheCycleStays) {
    EXPECT_EQ(NextPattern(u"*.tbx"), u"*.tbx");
    EXPECT_EQ(NextPattern(u""), u"");
}

} // namespace
} // namespace korvane
