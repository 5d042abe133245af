#include "extras/web/WebsiteFile.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Lines = std::vector<Text>;

const Text kMarker(kSeparatorMarker);

TEST(WebsiteFileTest, ThreeLinesAreARow) {
    const WebsiteLists lists = WebsitesOfLines({u"A", u"http://a", u"1", u"B", u"http://b", u"0"});
    EXPECT_THAT(lists.websites,
                ElementsAre(Website{u"A", u"http://a", true}, Website{u"B", u"http://b", false}));
    EXPECT_THAT(lists.groups, IsEmpty());
}

TEST(WebsiteFileTest, CommentsAreSkippedAtAnyPlace) {
    const WebsiteLists lists =
        WebsitesOfLines({u";", u"A", u"; between", u"http://a", u";1", u"1", u"***", u";g", u"http://g"});
    EXPECT_THAT(lists.websites, ElementsAre(Website{u"A", u"http://a", true}));
    EXPECT_THAT(lists.groups, ElementsAre(u"http://g"));
}

TEST(WebsiteFileTest, OnlyASingleOneChecksARow) {
    for (const auto& [flag, checked] : {std::pair(u" 1 ", true),
                                        {u"1", true},
                                        {u"11", false},
                                        {u"0", false},
                                        {u"", false},
                                        {u"true", false}}) {
        EXPECT_EQ(WebsitesOfLines({u"A", u"http://a", flag}).websites.front().checked, checked);
    }
}

TEST(WebsiteFileTest, ARowWithTheMarkerInItsAddressIsNeverChecked) {
    const Text url = u"x" + kMarker;
    EXPECT_FALSE(WebsitesOfLines({u"A", url, u"1"}).websites.front().checked);
    EXPECT_THAT(LinesOfWebsites({{{u"A", url, true}}, {}}), ElementsAre(u"A", url, u"0", u"***", u""));
}

TEST(WebsiteFileTest, ASeparatorKeepsItsCheck) {
    const WebsiteLists lists{{{kMarker, {}, true}, {u"A", u"http://a", true}}, {}};
    const Lines written = LinesOfWebsites(lists);
    EXPECT_THAT(written, ElementsAre(kMarker, u"", u"1", u"A", u"http://a", u"1", u"***", u""));
    EXPECT_EQ(WebsitesOfLines(written).websites, lists.websites);
}

TEST(WebsiteFileTest, ARowThatIsCutShortKeepsWhatItHas) {
    EXPECT_THAT(WebsitesOfLines({u"A"}).websites, ElementsAre(Website{u"A", {}, false}));
    EXPECT_THAT(WebsitesOfLines({u"A", u"http://a"}).websites,
                ElementsAre(Website{u"A", u"http://a", false}));
}

TEST(WebsiteFileTest, LinesAfterTheStarsAreGroups) {
    const WebsiteLists lists = WebsitesOfLines({u"***", u" http://a http://b ", u"", u"*** again", u"c"});
    EXPECT_THAT(lists.websites, IsEmpty());
    EXPECT_THAT(lists.groups, ElementsAre(u"http://a http://b", u"", u"c"));
}

TEST(WebsiteFileTest, WritesRowsThenGroupsThenAnEmptyLine) {
    EXPECT_THAT(LinesOfWebsites({{{u"A", u"http://a", true}, {kMarker, {}, false}}, {u"http://a http://b "}}),
                ElementsAre(u"A", u"http://a", u"1", kMarker, u"", u"0", u"***", u"http://a http://b", u""));
}

TEST(WebsiteFileTest, DeletedRowsAndGroupsAreNotWritten) {
    EXPECT_THAT(
        LinesOfWebsites({{{u"---", u"---", true}, {u"---", u"http://a", false}}, {u"---", u"  ", u" --- "}}),
        ElementsAre(u"---", u"http://a", u"0", u"***", u""));
}

// Kept for compatibility: website-list-ends-in-empty-group.
TEST(WebsiteFileTest, TheEmptyLineAtTheEndComesBackAsAGroupThatIsNotWritten) {
    const Lines written = LinesOfWebsites({{{u"A", u"http://a", false}}, {u"g"}});
    const WebsiteLists read = WebsitesOfLines(written);
    EXPECT_THAT(read.groups, ElementsAre(u"g", u""));
    EXPECT_EQ(LinesOfWebsites(read), written);
}

// Kept for compatibility: website-names-not-escaped.
TEST(WebsiteFileTest, ANameThatLooksLikeACommentIsOne) {
    const WebsiteLists read = WebsitesOfLines(LinesOfWebsites({{{u";A", u"http://a", true}}, {}}));
    EXPECT_THAT(read.websites, ElementsAre(Website{u"http://a", u"1", false}));
}

} // namespace
} // namespace korvane
