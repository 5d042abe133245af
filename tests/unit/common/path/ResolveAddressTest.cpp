#include "common/path/ResolveAddress.h"

#include "common/path/PathStyle.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

const Text kPage = u"http://x.org/a/b.htm?q=1";

TEST(ResolveAddressTest, AReferenceIsTakenFromThePage) {
    const std::pair<TextView, TextView> kCases[] = {
        {u"c.htm", u"http://x.org/a/c.htm"},
        {u"./c.htm", u"http://x.org/a/c.htm"},
        {u"../c.htm", u"http://x.org/c.htm"},
        {u"../../../c.htm", u"http://x.org/c.htm"},
        {u"..", u"http://x.org/"},
        {u".", u"http://x.org/a/"},
        {u"d/./e/../f", u"http://x.org/a/d/f"},
        {u"/c.htm", u"http://x.org/c.htm"},
        {u"?q=2", u"http://x.org/a/b.htm?q=2"},
        {u"", u"http://x.org/a/b.htm?q=1"},
        {u"#place", u"http://x.org/a/b.htm?q=1"},
        {u"c.htm#place", u"http://x.org/a/c.htm"},
        {u"//y.org/c", u"http://y.org/c"},
        {u"//y.org", u"http://y.org"},
        {u"https://y.org/c#place", u"https://y.org/c"},
        {u"file:///etc/passwd", u"file:///etc/passwd"},
        {u" c\r\n.htm\t", u"http://x.org/a/c.htm"},
        {u"c?d=/../e", u"http://x.org/a/c?d=/../e"},
    };
    for (const auto& [reference, resolved] : kCases)
        EXPECT_EQ(ResolveAddress(kPage, reference), resolved) << ToUtf8(reference);
}

TEST(ResolveAddressTest, AServerWithoutAPathIsItsTop) {
    EXPECT_EQ(ResolveAddress(u"https://x.org", u"c.htm"), u"https://x.org/c.htm");
    EXPECT_EQ(ResolveAddress(u"https://x.org?q", u"c.htm"), u"https://x.org/c.htm");
}

TEST(ResolveAddressTest, FilesReferToFilesBesideThem) {
    EXPECT_EQ(ResolveAddress(u"file:///C:/d/a.htm", u"b.png"), u"file:///C:/d/b.png");
}

TEST(ResolveAddressTest, TheOriginIsSchemeAndServer) {
    EXPECT_TRUE(SameOrigin(u"http://x.org/a", u"HTTP://X.ORG/b?c"));
    EXPECT_TRUE(SameOrigin(u"file:///a", u"file:///b/c"));
    for (const TextView other : {u"https://x.org/", u"http://y.org/", u"http://x.org:81/", u"file:///x.org",
                                 u"http://x.org.evil/", u"http://me@x.org/"})
        EXPECT_FALSE(SameOrigin(u"http://x.org/", other)) << ToUtf8(other);
}

TEST(ResolveAddressTest, AFileHasAnAddress) {
    EXPECT_EQ(AddressOfFile(u"C:\\My pages\\a#b?c%d.htm"), u"file:///C:/My%20pages/a%23b%3Fc%25d.htm");
    EXPECT_EQ(AddressOfFile(u"/home/\u00E4.htm"), u"file:///home/%C3%A4.htm");
}

TEST(ResolveAddressTest, TheAddressOfAFileLeadsBackToIt) {
    for (const TextView path : {u"C:\\My pages\\a#b?c%d.htm", u"C:\\\u00E4\\\u4E00", u"C:\\%41"})
        EXPECT_EQ(PathOfAddress(PathStyle::Windows, AddressOfFile(path)), path);
    for (const TextView path : {u"/home/a b", u"/home/100%", u"/home/\u00E4;&"})
        EXPECT_EQ(PathOfAddress(PathStyle::Posix, AddressOfFile(path)), path);
    EXPECT_EQ(PathOfAddress(PathStyle::Posix, u"file://localhost/a?b#c"), u"/a");
    EXPECT_EQ(PathOfAddress(PathStyle::Posix, u"FILE:/a%2"), u"/a%2");
}

TEST(ResolveAddressTest, OtherAddressesHaveNoPath) {
    for (const TextView address : {u"http://x.org/a", u"file://server/share", u"/a", u"", u"file:///a%00b"})
        EXPECT_EQ(PathOfAddress(PathStyle::Posix, address), u"") << ToUtf8(address);
}

} // namespace
} // namespace korvane
