#include "common/path/WebAddress.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

TEST(WebAddressTest, ASchemeComesBeforeTheFirstColon) {
    EXPECT_EQ(SchemeOf(u"https://x.org"), u"https");
    EXPECT_EQ(SchemeOf(u"HTTP://x.org"), u"http");
    EXPECT_EQ(SchemeOf(u"about:blank"), u"about");
    EXPECT_EQ(SchemeOf(u"view-source:x"), u"view-source");
}

TEST(WebAddressTest, DrivesPortsAndOtherTextsAreNoSchemes) {
    for (const TextView address : {u"", u"www.x.org", u"C:\\a.htm", u"localhost:8080", u"localhost:8080/a:b",
                                   u"x.org:80?q", u":x", u"a b:c", u"-x:y", u"1a:b", u"a/b:c", u"ä:b"})
        EXPECT_EQ(SchemeOf(address), u"") << std::string(address.begin(), address.end());
}

TEST(WebAddressTest, AnAddressWithoutASchemeIsOnTheWeb) {
    EXPECT_EQ(WithScheme(u"www.x.org/a"), u"https://www.x.org/a");
    EXPECT_EQ(WithScheme(u"localhost:8080"), u"https://localhost:8080");
    EXPECT_EQ(WithScheme(u"http://x.org"), u"http://x.org");
    EXPECT_EQ(WithScheme(u"about:blank"), u"about:blank");
}

TEST(WebAddressTest, ServersOfTheWebHaveTwoSchemes) {
    for (const TextView address : {u"http://x", u"HTTPS://x"})
        EXPECT_TRUE(IsOfNet(address));
    for (const TextView address : {u"x.org", u"file:///x", u"ftp://x", u""})
        EXPECT_FALSE(IsOfNet(address));
}

TEST(WebAddressTest, OnlyAddressesThatShowSomethingAreForBrowsers) {
    for (const TextView address : {u"http://x", u"HTTPS://x", u"ftp://x", u"file:///x"})
        EXPECT_TRUE(IsForBrowsers(address));
    for (const TextView address : {u"", u"x.org", u"javascript:alert(1)", u"ssh://x", u"ms-settings:x"})
        EXPECT_FALSE(IsForBrowsers(address));
}

} // namespace
} // namespace korvane
