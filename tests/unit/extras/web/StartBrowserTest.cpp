#include "extras/web/StartBrowser.h"

#include "support/TestApp.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class StartBrowserTest : public testing::Test {
protected:
    StartBrowserTest() { t.files.AddFile(kBrowser); }

    void Start(TextView browser, TextView urls) { StartBrowser(t.app, browser, urls); }

    const Text kBrowser = u"C:\\Program Files\\b.exe";
    TestApp t;
};

TEST_F(StartBrowserTest, OneProgramGetsAllAddresses) {
    Start(kBrowser, u"http://a http://b ");
    EXPECT_THAT(t.shell.Starts(), ElementsAre(ProgramStart{kBrowser, {u"http://a", u"http://b"}}));
    EXPECT_THAT(t.shell.Browsed(), IsEmpty());
}

TEST_F(StartBrowserTest, ABlankAddressStartsTheBrowserAlone) {
    Start(kBrowser, u" ");
    EXPECT_THAT(t.shell.Starts(), ElementsAre(ProgramStart{kBrowser}));
}

// Kept for compatibility: urls-not-quoted.
TEST_F(StartBrowserTest, AddressesAreWordsOfACommandLineAndNothingElse) {
    Start(kBrowser, u"http://a/my page --new \"x y\" $(touch z);`id`|& 'q' a\r\nb\tc");
    EXPECT_THAT(t.shell.Starts(),
                ElementsAre(ProgramStart{kBrowser,
                                         {u"http://a/my", u"page", u"--new", u"x y", u"$(touch", u"z);`id`|&",
                                          u"'q'", u"a\r\nb\tc"}}));
}

TEST_F(StartBrowserTest, AnAddressInQuotesKeepsItsOuterCharacters) {
    Start(kBrowser, u"http://a/\"b\"c");
    EXPECT_THAT(t.shell.Starts(), ElementsAre(ProgramStart{kBrowser, {u"http://a/bc"}}));
}

TEST_F(StartBrowserTest, TakesTenThousandAddresses) {
    Text urls;
    for (int number = 0; number < 10'000; ++number)
        urls += u"http://www.example.org/ ";
    Start(kBrowser, urls);
    ASSERT_EQ(t.shell.Starts().size(), 1U);
    EXPECT_EQ(t.shell.Starts().front().arguments.size(), 10'000U);
}

TEST_F(StartBrowserTest, TheBrowserCanHaveOptionsAndQuotes) {
    Start(u"\"C:\\Program Files\\b.exe\" --private", u"http://a");
    EXPECT_THAT(t.shell.Starts(), ElementsAre(ProgramStart{kBrowser, {u"--private", u"http://a"}}));
}

TEST_F(StartBrowserTest, ANameWithoutAFolderIsLookedForByTheSystem) {
    Start(u"firefox --private", u"http://a");
    EXPECT_THAT(t.shell.Starts(), ElementsAre(ProgramStart{u"firefox", {u"--private", u"http://a"}}));
}

TEST_F(StartBrowserTest, WithoutAPathTheDesktopsBrowserTakesEachAddress) {
    for (const TextView browser : {u"", u"  ", u"\"\"", u"C:\\Gone\\b.exe"})
        Start(browser, u"http://a www.b.org ");
    EXPECT_THAT(t.shell.Starts(), IsEmpty());
    EXPECT_EQ(t.shell.Browsed().size(), 8U);
    EXPECT_THAT(std::vector(t.shell.Browsed().begin(), t.shell.Browsed().begin() + 2),
                ElementsAre(u"http://a", u"https://www.b.org"));
}

TEST_F(StartBrowserTest, ABrowserThatDoesNotStartIsReplacedByTheDesktops) {
    t.shell.SetStartable([](TextView) { return false; });
    Start(u"firefox", u"http://a");
    EXPECT_THAT(t.shell.Browsed(), ElementsAre(u"http://a"));
}

TEST_F(StartBrowserTest, TheDesktopOpensAnAddressThatIsAFileAsAFile) {
    t.files.AddFile(u"C:\\d\\page.htm");
    Start(u"", u"C:\\d\\page.htm");
    EXPECT_THAT(t.shell.Opened(), ElementsAre(OpenRequest{.file = u"C:\\d\\page.htm"}));
    EXPECT_THAT(t.shell.Browsed(), IsEmpty());
}

} // namespace
} // namespace korvane
