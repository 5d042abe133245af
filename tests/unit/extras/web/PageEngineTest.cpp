#include "extras/web/PageEngine.h"

#include "context/exchange/ListerRequest.h"
#include "controls/Form.h"
#include "controls/text/TextControl.h"
#include "support/PageFiles.h"
#include "support/TestApp.h"
#include "testing/MemoryNetwork.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Outcome = Fetched::Outcome;

const std::string kPng = "\x89PNG\r\n\x1A\n...";

class PageEngineTest : public testing::Test {
protected:
    PageEngineTest() {
        t.app.SetPort<Network>(&net);
        view.DownloadBegin = [this] { events += 'B'; };
        view.DownloadComplete = [this] { events += 'C'; };
        net.PutPage(u"https://x.org", "<p>Start <a href='two.htm'>on</a></p>");
        net.PutPage(u"https://x.org/two.htm", "<p>Two</p>");
    }

    void GoTo(TextView address) {
        engine.Navigate(address);
        net.AnswerAll();
    }
    void ClickLink(int field = 1) {
        text.Click(field);
        net.AnswerAll();
    }
    std::vector<Text> Asked() const {
        std::vector<Text> asked;
        for (const FetchRequest& request : net.Requests())
            asked.push_back(request.address);
        return asked;
    }
    std::size_t Pictures() const { return text.Store().Slice(0, text.All().size()).images.size(); }
    bool Shows(TextView part) const { return text.All().find(part) != Text::npos; }

    TestApp t;
    PageFiles files{t.app};
    MemoryNetwork net;
    Form form{t.user, "frmBrowser", u""};
    WebView view{form, "WebBrowser1"};
    TextControl text{form, "pageText"};
    PageEngine engine{t.app, view, text};
    std::string events;
};

// ---- Addresses -----------------------------------------------------------------------------------------

TEST_F(PageEngineTest, ShowsAPageAndTellsOfIt) {
    engine.Navigate(u"https://x.org");
    EXPECT_EQ(events, "B");
    EXPECT_EQ(text.All(), u"");
    net.AnswerAll();
    EXPECT_EQ(events, "BC");
    EXPECT_TRUE(Shows(u"Start on"));
    EXPECT_TRUE(text.Locked);
    EXPECT_EQ(engine.Address(), u"https://x.org");
    EXPECT_EQ(net.Requests().front().bytes, 10'000'000);
    EXPECT_EQ(net.Requests().front().time, std::chrono::seconds(15));
    EXPECT_TRUE(net.Requests().front().otherServers);
}

TEST_F(PageEngineTest, AnAddressWithoutASchemeIsOnTheWeb) {
    GoTo(u"  x.org ");
    EXPECT_THAT(Asked(), ElementsAre(u"https://x.org"));
    EXPECT_TRUE(Shows(u"Start on"));
}

TEST_F(PageEngineTest, AnAddressThatNamesAFileIsTheFile) {
    t.files.AddFile(u"C:\\My pages\\a b.htm", "<p>Of the disk</p>");
    for (const TextView address : {u"C:\\My pages\\a b.htm", u"file:///C:/My%20pages/a%20b.htm"}) {
        GoTo(address);
        EXPECT_TRUE(Shows(u"Of the disk"));
        EXPECT_EQ(engine.Address(), u"file:///C:/My%20pages/a%20b.htm");
    }
    EXPECT_EQ(events, "BCBC");
    EXPECT_THAT(Asked(), IsEmpty());
}

TEST_F(PageEngineTest, AnEmptyAddressDoesNothing) {
    GoTo(u"");
    GoTo(u"  ");
    engine.Refresh();
    engine.GoBack();
    engine.GoForward();
    engine.Stop();
    EXPECT_EQ(events, "");
    EXPECT_EQ(engine.Address(), u"");
}

TEST_F(PageEngineTest, OtherSchemesAreNotShown) {
    for (const TextView address : {u"javascript:alert(1)", u"about:blank", u"ftp://x.org/a"}) {
        events.clear();
        GoTo(address);
        EXPECT_TRUE(Shows(address));
        EXPECT_EQ(events, "BC");
    }
    EXPECT_THAT(Asked(), IsEmpty());
}

// ---- Links and visits ----------------------------------------------------------------------------------

TEST_F(PageEngineTest, ALinkIsFollowedFromThePage) {
    GoTo(u"https://x.org");
    ClickLink();
    EXPECT_EQ(engine.Address(), u"https://x.org/two.htm");
    EXPECT_TRUE(Shows(u"Two"));
}

TEST_F(PageEngineTest, ALinkIsFollowedFromWhereTheServerSentTheProgram) {
    net.Put(u"https://y.org", {.outcome = Outcome::Done,
                               .address = u"https://x.org/sub/",
                               .type = u"text/html",
                               .bytes = "<a href='../two.htm'>on</a>"});
    GoTo(u"y.org");
    EXPECT_EQ(engine.Address(), u"https://x.org/sub/");
    ClickLink();
    EXPECT_EQ(engine.Address(), u"https://x.org/two.htm");
}

TEST_F(PageEngineTest, LinksAreUnderlinedInAColourOfTheWindow) {
    for (const auto& [dark, colour] : {std::pair{false, 0xAD4506}, {true, 0xF8B48A}}) {
        t.screen.SetDark(dark);
        GoTo(u"https://x.org");
        text.MoveSelection(6, 2);
        EXPECT_TRUE(text.FontUnderline());
        EXPECT_EQ(text.ForeColor().value, colour);
        text.MoveSelection(0, 5);
        EXPECT_FALSE(text.FontUnderline());
    }
}

TEST_F(PageEngineTest, LinksToPlacesAndToOtherProgramsLeadNowhere) {
    net.PutPage(u"https://x.org",
                "<a href='#a'>a</a> <a href='mailto:a@x.org'>b</a> <a href='ftp://x'>c</a>");
    GoTo(u"x.org");
    for (const int field : {1, 2, 3})
        ClickLink(field);
    EXPECT_EQ(engine.Address(), u"https://x.org");
    EXPECT_EQ(net.Requests().size(), 1U);
}

TEST_F(PageEngineTest, APageOfTheNetOpensNoFile) {
    t.files.AddFile(u"C:\\secret.htm", "secret");
    net.PutPage(u"https://x.org", "<a href='file:///C:/secret.htm'>a</a>");
    GoTo(u"x.org");
    ClickLink();
    EXPECT_FALSE(Shows(u"secret\r"));
    EXPECT_TRUE(Shows(u"A page of the net can't open files"));
    EXPECT_EQ(engine.Address(), u"https://x.org");
}

TEST_F(PageEngineTest, APageOfTheDiskOpensFilesAndPagesOfTheNet) {
    t.files.AddFile(u"C:\\d\\a.htm", "<a href='b.htm'>b</a> <a href='https://x.org/two.htm'>two</a>");
    t.files.AddFile(u"C:\\d\\b.htm", "Beside it");
    GoTo(u"C:\\d\\a.htm");
    ClickLink();
    EXPECT_TRUE(Shows(u"Beside it"));
    engine.GoBack();
    ClickLink(2);
    EXPECT_TRUE(Shows(u"Two"));
}

TEST_F(PageEngineTest, GoesBackAndForward) {
    GoTo(u"x.org");
    GoTo(u"x.org/two.htm");
    engine.GoForward();
    engine.GoBack();
    net.AnswerAll();
    EXPECT_TRUE(Shows(u"Start"));
    engine.GoBack();
    engine.GoForward();
    net.AnswerAll();
    EXPECT_TRUE(Shows(u"Two"));
    EXPECT_EQ(events, "BCBCBCBC");
    engine.GoBack();
    GoTo(u"gone.org");
    engine.GoForward();
    EXPECT_EQ(engine.Address(), u"https://gone.org");
}

TEST_F(PageEngineTest, ARefreshLoadsThePageAgain) {
    GoTo(u"x.org");
    net.PutPage(u"https://x.org", "<p>Changed</p>");
    engine.Refresh();
    net.AnswerAll();
    EXPECT_TRUE(Shows(u"Changed"));
    engine.GoBack();
    EXPECT_EQ(net.Requests().size(), 2U);
}

TEST_F(PageEngineTest, AStopLeavesTheShownPage) {
    GoTo(u"x.org");
    engine.Navigate(u"x.org/two.htm");
    engine.Stop();
    engine.Stop();
    EXPECT_EQ(net.Waits(), 0U);
    EXPECT_EQ(events, "BCBC");
    EXPECT_TRUE(Shows(u"Start"));
}

TEST_F(PageEngineTest, ANewPageTakesThePlaceOfOneThatIsLoading) {
    engine.Navigate(u"x.org");
    GoTo(u"x.org/two.htm");
    EXPECT_TRUE(Shows(u"Two"));
    EXPECT_EQ(events, "BBC");
}

// ---- Kinds and troubles --------------------------------------------------------------------------------

TEST_F(PageEngineTest, TheTypeDecidesHowAPageIsShown) {
    const std::string bytes = "<b>a</b>";
    for (const auto& [type, shown] : {std::pair<Text, Text>{u"text/html; charset=utf-8", u"a"},
                                      {u"", u"a"},
                                      {u"application/xhtml+xml", u"a"},
                                      {u"text/plain", u"<b>a</b>"},
                                      {u"text/css", u"<b>a</b>"},
                                      {u"application/zip", u"application/zip"}}) {
        net.Put(u"https://t.org", {.outcome = Outcome::Done, .type = type, .bytes = bytes});
        GoTo(u"t.org");
        EXPECT_TRUE(Shows(shown)) << ToUtf8(type);
        EXPECT_EQ(Shows(u"<b>"), shown == u"<b>a</b>") << ToUtf8(type);
    }
}

TEST_F(PageEngineTest, TheServersEncodingCounts) {
    net.Put(u"https://t.org", {.outcome = Outcome::Done,
                               .type = u"text/html; charset=windows-1251",
                               .bytes = "<meta charset='utf-8'>\xC4\xE0"});
    GoTo(u"t.org");
    EXPECT_TRUE(Shows(u"\u0414\u0430"));
}

TEST_F(PageEngineTest, WhatGoesWrongIsShownOnThePage) {
    for (const auto& [outcome, told] : {std::pair<Outcome, Text>{Outcome::Failed, u"can't be reached"},
                                        {Outcome::NotTrusted, u"can't be trusted"},
                                        {Outcome::TooLarge, u"too large"},
                                        {Outcome::TooSlow, u"takes too long"}}) {
        events.clear();
        net.Put(u"https://t.org", {.outcome = outcome, .reason = u"<The> reason"});
        GoTo(u"t.org");
        EXPECT_TRUE(Shows(told));
        EXPECT_TRUE(Shows(u"https://t.org"));
        EXPECT_TRUE(Shows(u"<The> reason"));
        EXPECT_EQ(events, "BC");
    }
}

TEST_F(PageEngineTest, AFileThatIsLostLargeOrUnreadableIsTold) {
    GoTo(u"file:///C:/lost.htm");
    EXPECT_TRUE(Shows(u"C:\\lost.htm"));
    t.files.AddFile(u"C:\\large.htm", std::string(10'000'001, 'x'));
    GoTo(u"C:\\large.htm");
    EXPECT_TRUE(Shows(u"too large"));
    t.files.AddFile(u"C:\\a.htm", "x");
    t.files.Faults().FailNth(FileStep::OpenToRead, 1);
    GoTo(u"C:\\a.htm");
    EXPECT_TRUE(Shows(u"can't be reached"));
}

TEST_F(PageEngineTest, WithoutANetPagesCannotBeReached) {
    t.app.SetPort<Network>(nullptr);
    GoTo(u"x.org");
    EXPECT_TRUE(Shows(u"can't be reached"));
    EXPECT_EQ(events, "BC");
}

// ---- Pictures ------------------------------------------------------------------------------------------

TEST_F(PageEngineTest, PicturesOfTheSameServerAreShown) {
    net.PutPage(u"https://x.org/p", "<p>a<img src='i.png'>b</p>");
    net.Put(u"https://x.org/i.png", {.outcome = Outcome::Done, .type = u"image/png", .bytes = kPng});
    engine.Navigate(u"x.org/p");
    net.AnswerAll();
    EXPECT_EQ(events, "BC");
    ASSERT_EQ(net.Requests().size(), 2U);
    EXPECT_EQ(net.Requests()[1].address, u"https://x.org/i.png");
    EXPECT_FALSE(net.Requests()[1].otherServers);
    EXPECT_EQ(Pictures(), 1U);
}

TEST_F(PageEngineTest, APictureThatComesLaterLeavesTheSelection) {
    net.PutPage(u"https://x.org/p", "<img src='i.png'><p>a <img src='i.png'>word here</p>");
    net.Put(u"https://x.org/i.png", {.outcome = Outcome::Done, .type = u"image/png", .bytes = kPng});
    engine.Navigate(u"x.org/p");
    net.AnswerNext();
    ASSERT_EQ(Pictures(), 0U);
    const std::size_t word = text.All().find(u"word");
    text.MoveSelection(static_cast<int>(word), 4);
    net.AnswerAll();
    ASSERT_EQ(Pictures(), 2U);
    EXPECT_EQ(text.SelText(), u"word");
}

TEST_F(PageEngineTest, NoPictureIsFetchedFromElsewhere) {
    net.PutPage(u"https://x.org/p",
                "<img src='https://y.org/a.png'><img src='http://x.org/b.png'><img src='//z.org/c.png'>"
                "<img src='file:///C:/d.png'><img src='https://x.org:444/e.png'>");
    t.files.AddFile(u"C:\\d.png", kPng);
    GoTo(u"x.org/p");
    EXPECT_THAT(Asked(), ElementsAre(u"https://x.org/p"));
    EXPECT_EQ(events, "BC");
    EXPECT_EQ(Pictures(), 0U);
}

TEST_F(PageEngineTest, APageOfTheDiskHasPicturesOfTheDiskAlone) {
    t.files.AddFile(u"C:\\d\\a.htm", "<img src='i.png'><img src='https://x.org/i.png'><img src='lost.png'>");
    t.files.AddFile(u"C:\\d\\i.png", kPng);
    GoTo(u"C:\\d\\a.htm");
    EXPECT_THAT(Asked(), IsEmpty());
    EXPECT_EQ(Pictures(), 1U);
    EXPECT_EQ(events, "BC");
}

TEST_F(PageEngineTest, WhatIsNoPictureIsLeftOut) {
    net.PutPage(u"https://x.org/p", "<img src='i.png'><img src='gone.png'>");
    net.Put(u"https://x.org/i.png", {.outcome = Outcome::Done, .bytes = "<script>"});
    GoTo(u"x.org/p");
    EXPECT_EQ(Pictures(), 0U);
    EXPECT_EQ(events, "BC");
}

TEST_F(PageEngineTest, PagesAndPicturesShareTheirLimits) {
    PageEngine small(t.app, view, text, {.bytes = 100, .time = std::chrono::milliseconds(50), .pictures = 2});
    Fetched page{.outcome = Outcome::Done,
                 .type = u"text/html",
                 .bytes = "<img src=1><img src=2><img src=3>",
                 .took = std::chrono::milliseconds(20)};
    net.Put(u"https://x.org/p", page);
    net.Put(u"https://x.org/1", {.outcome = Outcome::Done, .bytes = kPng + std::string(50, 'x')});
    net.Put(u"https://x.org/2", {.outcome = Outcome::Done, .bytes = kPng + std::string(20, 'x')});
    small.Navigate(u"x.org/p");
    net.AnswerAll();
    ASSERT_EQ(net.Requests().size(), 3U);
    EXPECT_EQ(net.Requests()[1].bytes, 100 - static_cast<std::int64_t>(page.bytes.size()));
    EXPECT_EQ(net.Requests()[1].time, std::chrono::milliseconds(30));
    EXPECT_EQ(Pictures(), 1U);
}

TEST_F(PageEngineTest, APictureIsShownAsAPage) {
    net.Put(u"https://x.org/i.png", {.outcome = Outcome::Done, .type = u"image/png", .bytes = kPng});
    GoTo(u"x.org/i.png");
    EXPECT_EQ(Pictures(), 1U);
}

} // namespace
} // namespace korvane
