#pragma once

#include "PageServer.h"
#include "UntrustedServer.h"
#include "platform/WebEngine.h"

#include <gmock/gmock.h>

#include <QEventLoop>
#include <QSslSocket>
#include <QTimer>
#include <algorithm>

namespace korvane {

/// The tests that every engine of pages must pass. A stage for an engine has:
///     std::function<void()> begins, completes;  // what the engine tells
///     WebEngine& Engine();
///     void Renew();                   // another engine takes the place of this one
///     Text Shown();                   // the text of the page
///     Text AddFile(name, bytes);      // the address of a new file
template <class StageT>
class PagesContract : public testing::Test {
protected:
    PagesContract() {
        stage.begins = [this] { ++begun; };
        stage.completes = [this] {
            ++completed;
            loop.quit();
        };
    }
    /// Returns when the page is complete.
    void After(const std::function<void()>& act) {
        const int before = completed;
        act();
        if (completed == before) loop.exec();
    }
    void GoTo(const Text& address) {
        After([&] { stage.Engine().Navigate(address); });
    }
    bool Shows(TextView part) { return stage.Shown().find(part) != Text::npos; }
    /// How often a path was asked for.
    auto Asked(const std::string& path) { return std::ranges::count(server.Paths(), path); }

    test::PageServer server;
    test::PageServer other;
    QEventLoop loop;
    int begun = 0;
    int completed = 0;
    StageT stage;
};

TYPED_TEST_SUITE_P(PagesContract);

TYPED_TEST_P(PagesContract, APageIsLoadedAndShown) {
    this->server.Put("/a?b=c", "<p>A page</p>");
    this->GoTo(this->server.Address("/a?b=c"));
    EXPECT_TRUE(this->Shows(u"A page"));
    EXPECT_EQ(this->Asked("/a?b=c"), 1);
    EXPECT_EQ(this->begun, 1);
    EXPECT_EQ(this->completed, 1);
}

TYPED_TEST_P(PagesContract, NothingHappensWhereNothingWasVisited) {
    this->stage.Engine().GoBack();
    this->stage.Engine().GoForward();
    this->stage.Engine().Refresh();
    this->stage.Engine().Stop();
    EXPECT_EQ(this->begun, 0);
    EXPECT_EQ(this->completed, 0);
}

TYPED_TEST_P(PagesContract, VisitedPagesAreShownAgain) {
    this->server.Put("/a", "<p>First</p>");
    this->server.Put("/b", "<p>Second</p>");
    this->GoTo(this->server.Address("/a"));
    this->GoTo(this->server.Address("/b"));
    EXPECT_TRUE(this->Shows(u"Second"));
    this->stage.Engine().GoForward();
    this->After([this] { this->stage.Engine().GoBack(); });
    EXPECT_TRUE(this->Shows(u"First"));
    this->stage.Engine().GoBack();
    this->After([this] { this->stage.Engine().GoForward(); });
    EXPECT_TRUE(this->Shows(u"Second"));
}

TYPED_TEST_P(PagesContract, ARefreshAsksTheServerAgain) {
    this->server.Put("/a", "<p>Old</p>");
    this->GoTo(this->server.Address("/a"));
    this->server.Put("/a", "<p>New</p>");
    this->After([this] { this->stage.Engine().Refresh(); });
    EXPECT_TRUE(this->Shows(u"New"));
    EXPECT_EQ(this->Asked("/a"), 2);
}

TYPED_TEST_P(PagesContract, AServerThatHangsIsLeftWithAStop) {
    this->server.Put("/a", "<p>Before</p>");
    this->GoTo(this->server.Address("/a"));
    this->server.On("/hang", [this](QTcpSocket&) { this->stage.Engine().Stop(); });
    this->GoTo(this->server.Address("/hang"));
    EXPECT_TRUE(this->Shows(u"Before"));
}

TYPED_TEST_P(PagesContract, APageWithoutAnEndIsLeftWithAStop) {
    this->server.SendWithoutEnd("/endless", "");
    this->server.Put("/a", "<p>After</p>");
    this->After([this] {
        this->stage.Engine().Navigate(this->server.Address("/endless"));
        QTimer::singleShot(0, &this->loop, [this] { this->stage.Engine().Stop(); });
    });
    this->GoTo(this->server.Address("/a"));
    EXPECT_TRUE(this->Shows(u"After"));
}

TYPED_TEST_P(PagesContract, WhatGoesWrongIsToldOnThePage) {
    Text gone;
    {
        const test::PageServer lost;
        gone = lost.Address("/");
    }
    this->server.Redirect("/circle", this->server.Address("/circle"));
    this->server.Redirect("/file", u"file:///etc/passwd");
    this->server.On("/garbage", [](QTcpSocket& socket) {
        test::PageServer::Write(socket, std::string(2000, '\0'));
        socket.disconnectFromHost();
    });
    for (const Text& address : {gone, this->server.Address("/circle"), this->server.Address("/file"),
                                this->server.Address("/garbage")}) {
        this->GoTo(address);
        EXPECT_NE(Trim(this->stage.Shown()), u"") << ToUtf8(address);
        EXPECT_FALSE(this->Shows(u"root:")) << ToUtf8(address);
    }
    EXPECT_LE(this->Asked("/circle"), 25);
}

TYPED_TEST_P(PagesContract, AFileIsShown) {
    this->GoTo(this->stage.AddFile("a b.htm", "<p>Of the disk</p>"));
    EXPECT_TRUE(this->Shows(u"Of the disk"));
}

TYPED_TEST_P(PagesContract, APageOfTheNetReadsNoFile) {
    const std::string file =
        ToUtf8(this->stage.AddFile("secret.htm", "secret<script>told='secret'</script>"));
    this->server.Put("/p", "<p>Public</p><iframe src='" + file + "'></iframe><object data='" + file +
                               "'></object><script src='" + file +
                               "'></script><script>"
                               "fetch('" +
                               file +
                               "').then(r => r.text()).then(t => document.body.append(t));"
                               "location='" +
                               file + "'</script>");
    this->GoTo(this->server.Address("/p"));
    EXPECT_TRUE(this->Shows(u"Public"));
    EXPECT_FALSE(this->Shows(u"secret\r"));
    this->server.Put("/b", "<p>Next</p>");
    this->GoTo(this->server.Address("/b"));
    EXPECT_TRUE(this->Shows(u"Next"));
}

TYPED_TEST_P(PagesContract, OtherSchemesAreNotShown) {
    for (const Text& address :
         {Text(u"javascript:alert(1)"), Text(u"about:blank"), Text(u"ftp://x.org/a"),
          Text(u"data:text/html,secret"), Text(u"qrc:/a"), Text(u"chrome://version/")}) {
        this->GoTo(address);
        EXPECT_TRUE(this->Shows(address)) << ToUtf8(address);
        EXPECT_TRUE(this->Shows(u"can't be shown")) << ToUtf8(address);
    }
}

TYPED_TEST_P(PagesContract, NothingIsKeptOfAVisit) {
    this->server.Put("/a", "a", "Content-Type: text/html\r\nSet-Cookie: who=me; Path=/; Max-Age=100000");
    this->GoTo(this->server.Address("/a"));
    this->stage.Renew();
    this->GoTo(this->server.Address("/a"));
    ASSERT_EQ(this->Asked("/a"), 2);
    EXPECT_EQ(this->server.Heads().back().find("Cookie"), std::string::npos);
}

TYPED_TEST_P(PagesContract, AServerWithoutAGoodCertificateGetsNoRequest) {
    if (!QSslSocket::supportsSsl()) GTEST_SKIP() << "Qt has no TLS here";
    test::PageServer untrusted(test::UntrustedServer());
    untrusted.Put("/a", "secret");
    this->GoTo(untrusted.Address("/a", "https"));
    EXPECT_THAT(untrusted.Paths(), testing::IsEmpty());
    EXPECT_FALSE(this->Shows(u"secret"));
    EXPECT_NE(Trim(this->stage.Shown()), u"");
}

TYPED_TEST_P(PagesContract, CanGoWhileItLoads) {
    this->server.On("/hang", [this](QTcpSocket&) { this->loop.quit(); });
    this->stage.Engine().Navigate(this->server.Address("/hang"));
    this->loop.exec();
    this->stage.Renew();
    this->server.Put("/a", "<p>After</p>");
    this->GoTo(this->server.Address("/a"));
    EXPECT_TRUE(this->Shows(u"After"));
}

REGISTER_TYPED_TEST_SUITE_P(PagesContract, APageIsLoadedAndShown, NothingHappensWhereNothingWasVisited,
                            VisitedPagesAreShownAgain, ARefreshAsksTheServerAgain,
                            AServerThatHangsIsLeftWithAStop, APageWithoutAnEndIsLeftWithAStop,
                            WhatGoesWrongIsToldOnThePage, AFileIsShown, APageOfTheNetReadsNoFile,
                            OtherSchemesAreNotShown, NothingIsKeptOfAVisit,
                            AServerWithoutAGoodCertificateGetsNoRequest, CanGoWhileItLoads);

} // namespace korvane
