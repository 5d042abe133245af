#include "extras/web/PageText.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string kPng = "\x89PNG\r\n\x1A\n...";

std::vector<Text> AddressesIn(std::string_view html) {
    std::vector<Text> addresses;
    for (const PictureSource& source : PicturesOf(html)) {
        EXPECT_LE(source.at + source.length, html.size());
        addresses.push_back(source.address);
    }
    return addresses;
}

TEST(PageTextTest, FindsThePicturesOfAPage) {
    EXPECT_THAT(AddressesIn("<p>a<img src=\"a.png\"><IMG alt='x>y' SRC = 'b.png' /><img width=1 src=c.png>"),
                ElementsAre(u"a.png", u"b.png", u"c.png"));
    EXPECT_THAT(AddressesIn("<img src=\"a?b&amp;c\">"), ElementsAre(u"a?b&c"));
}

TEST(PageTextTest, OnlyTheFirstSourceCounts) {
    EXPECT_THAT(AddressesIn("<img src='' src='b'><img src=a src=b>"), ElementsAre(u"a"));
}

TEST(PageTextTest, CommentsScriptsStylesAndOtherTagsHaveNoPictures) {
    EXPECT_THAT(AddressesIn("<!-- <img src=a> --><script>'<img src=b>'</script><style><img src=c></style>"
                            "<video src=d></video><image src=e><imgs src=f></img src=g>"),
                IsEmpty());
    EXPECT_THAT(AddressesIn("<img src='data:image/png;base64,AA'><img src='DATA:x'>"), IsEmpty());
}

TEST(PageTextTest, TagsThatAreCutShortAreHarmless) {
    const std::string whole = "<p <img src=\"a.png\" =<x y='><img src=b><script><!-- </script";
    for (std::size_t length = 0; length <= whole.size(); ++length)
        AddressesIn(std::string_view(whole).substr(0, length));
    EXPECT_THAT(AddressesIn("<img src="), IsEmpty());
    EXPECT_THAT(AddressesIn("<img src='a"), ElementsAre(u"a"));
    EXPECT_THAT(AddressesIn("<img =a src=b>"), ElementsAre(u"b"));
}

TEST(PageTextTest, PicturesArePutInTheirPlaces) {
    const std::string html = "<img src=\"a\"><img src=b><img src='c'>";
    const auto sources = PicturesOf(html);
    ASSERT_EQ(sources.size(), 3U);
    EXPECT_EQ(
        WithPictures(html, {{sources[0].at, kPng}, {sources[2].at, "\xFF\xD8\xFF\"><script>"}}, sources),
        "<img src=\"data:image/png;base64,iVBORw0KGgouLi4=\"><img src=b>"
        "<img src='data:image/jpeg;base64,/9j/Ij48c2NyaXB0Pg=='>");
    EXPECT_EQ(WithPictures(html, {}, sources), html);
}

TEST(PageTextTest, LinksGetALook) {
    EXPECT_EQ(
        WithLinkLook("<A HREF=x>a</A><a name=y>b</a><abbr href=z><!-- <a href=x> --><a href='q' style='r'>",
                     "s"),
        "<A style=\"s\" HREF=x>a</A><a name=y>b</a><abbr href=z><!-- <a href=x> -->"
        "<a style=\"s\" href='q' style='r'>");
    EXPECT_EQ(WithLinkLook("<a", "s"), "<a");
    EXPECT_EQ(WithLinkLook("", "s"), "");
}

TEST(PageTextTest, APictureIsKnownByItsBytes) {
    EXPECT_TRUE(IsPicture(kPng));
    EXPECT_TRUE(IsPicture("\xFF\xD8\xFF..."));
    EXPECT_FALSE(IsPicture("<html>"));
    EXPECT_FALSE(IsPicture(""));
    EXPECT_EQ(PageOfPicture(kPng), "<img src=\"data:image/png;base64,iVBORw0KGgouLi4=\">");
}

TEST(PageTextTest, ANoteIsTextAlone) {
    EXPECT_EQ(PageOfNote(u"<b>", u"a & b\n\u00E4"),
              "<meta charset=\"utf-8\"><h2>&lt;b></h2><p>a &amp; b<br>\xC3\xA4</p>");
}

TEST(PageTextTest, TheServersEncodingGoesFirst) {
    EXPECT_EQ(WithEncoding("<p>", u"text/html; charset=ISO-8859-1"), "<meta charset=\"iso-8859-1\"><p>");
    EXPECT_EQ(WithEncoding("<p>", u"text/html; Charset=\"utf-8\"; x=y"), "<meta charset=\"utf-8\"><p>");
    EXPECT_EQ(WithEncoding("<p>", u"text/html; charset=\"><script>"), "<meta charset=\"script\"><p>");
    EXPECT_EQ(WithEncoding("<p>", u"text/html"), "<p>");
    EXPECT_EQ(WithEncoding("\xEF\xBB\xBF<p>", u"text/html; charset=x"), "\xEF\xBB\xBF<p>");
}

TEST(PageTextTest, ATypeIsBareWithoutItsParameters) {
    EXPECT_EQ(BareType(u"Text/HTML ; charset=utf-8"), u"text/html");
    EXPECT_EQ(BareType(u""), u"");
}

} // namespace
} // namespace korvane
