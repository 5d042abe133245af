// The net on a server of the test's own on the loopback address.

#include "platform/qt/web/QtNetwork.h"

#include "PageServer.h"
#include "UntrustedServer.h"

#include <gmock/gmock.h>

#include <QEventLoop>
#include <QSslSocket>
#include <algorithm>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Outcome = Fetched::Outcome;
using test::PageServer;

class QtNetworkTest : public testing::Test {
protected:
    Fetched Get(const FetchRequest& request) {
        Fetched result;
        QEventLoop loop;
        const auto fetch = network.Get(request, [&](Fetched fetched) {
            result = std::move(fetched);
            loop.quit();
        });
        loop.exec();
        return result;
    }
    Fetched Get(const Text& address) { return Get(FetchRequest{.address = address}); }

    PageServer server;
    PageServer other;
    QtNetwork network;
};

TEST_F(QtNetworkTest, FetchesAPage) {
    server.Put("/a?b=c", "<p>\xC3\xA4</p>", "Content-Type: text/html; charset=utf-8");
    const Fetched page = Get(server.Address("/a?b=c"));
    EXPECT_EQ(page.outcome, Outcome::Done);
    EXPECT_EQ(page.address, server.Address("/a?b=c"));
    EXPECT_EQ(page.type, u"text/html; charset=utf-8");
    EXPECT_EQ(page.bytes, "<p>\xC3\xA4</p>");
    EXPECT_EQ(page.reason, u"");
    EXPECT_THAT(server.Paths(), ElementsAre("/a?b=c"));
}

TEST_F(QtNetworkTest, SendsNoCookies) {
    server.Put("/a", "a", "Set-Cookie: who=me; Path=/");
    Get(server.Address("/a"));
    Get(server.Address("/a"));
    ASSERT_THAT(server.Heads(), SizeIs(2));
    EXPECT_EQ(server.Heads()[1].find("Cookie"), std::string::npos);
}

TEST_F(QtNetworkTest, FollowsTheServerToAnotherOne) {
    server.Redirect("/a", other.Address("/b"));
    other.Put("/b", "there");
    const Fetched page = Get(server.Address("/a"));
    EXPECT_EQ(page.bytes, "there");
    EXPECT_EQ(page.address, other.Address("/b"));
}

TEST_F(QtNetworkTest, StaysOnTheServerWhereItHasTo) {
    server.Redirect("/a", server.Address("/b"));
    server.Redirect("/b", other.Address("/c"));
    other.Put("/c", "there");
    const Fetched page = Get({.address = server.Address("/a"), .otherServers = false});
    EXPECT_EQ(page.outcome, Outcome::Failed);
    EXPECT_EQ(page.bytes, "");
    EXPECT_THAT(server.Paths(), ElementsAre("/a", "/b"));
    EXPECT_THAT(other.Paths(), IsEmpty());
}

TEST_F(QtNetworkTest, IsNotSentToFiles) {
    for (const Text& to :
         {Text(u"file:///etc/passwd"), Text(u"data:text/html,x"), Text(u"qrc:/icons/cmdOpen.svg")}) {
        server.Redirect("/a", to);
        const Fetched page = Get(server.Address("/a"));
        EXPECT_EQ(page.outcome, Outcome::Failed) << ToUtf8(to);
        EXPECT_EQ(page.bytes, "");
    }
}

TEST_F(QtNetworkTest, FetchesNothingButPagesOfTheNet) {
    for (const Text& address :
         {Text(u"file:///etc/passwd"), Text(u"qrc:/icons/cmdOpen.svg"), Text(u"data:,x"),
          Text(u"ftp://127.0.0.1/"), Text(u"/etc/passwd"), Text(u"")}) {
        const Fetched page = Get(address);
        EXPECT_EQ(page.outcome, Outcome::Failed) << ToUtf8(address);
        EXPECT_EQ(page.bytes, "");
        EXPECT_NE(page.reason, u"");
    }
}

TEST_F(QtNetworkTest, LeavesACircleOfRedirects) {
    server.Redirect("/a", server.Address("/b"));
    server.Redirect("/b", server.Address("/a"));
    const Fetched page = Get(server.Address("/a"));
    EXPECT_EQ(page.outcome, Outcome::Failed);
    // Qt asks once more when the server has closed a connection that it was just going to use.
    auto asked = server.Paths();
    asked.erase(std::unique(asked.begin(), asked.end()), asked.end());
    EXPECT_THAT(asked, SizeIs(11));
}

TEST_F(QtNetworkTest, StopsWhereAPageIsTooLarge) {
    constexpr std::int64_t kMost = 1'000'000;
    for (const auto* const head : {"", "Content-Length: 1073741824\r\n"}) {
        server.SendWithoutEnd("/a", head);
        const std::int64_t before = server.Sent();
        const Fetched page = Get({.address = server.Address("/a"), .bytes = kMost});
        EXPECT_EQ(page.outcome, Outcome::TooLarge);
        EXPECT_EQ(page.bytes, "");
        EXPECT_LT(server.Sent() - before, 64 * kMost);
    }
}

TEST_F(QtNetworkTest, TakesAPageOfExactlyTheMost) {
    server.Put("/a", std::string(1000, 'x'));
    EXPECT_EQ(Get({.address = server.Address("/a"), .bytes = 1000}).outcome, Outcome::Done);
    EXPECT_EQ(Get({.address = server.Address("/a"), .bytes = 999}).outcome, Outcome::TooLarge);
}

TEST_F(QtNetworkTest, StopsWhenTheTimeIsUp) {
    server.Hang("/a");
    server.SendWithoutEnd("/b", "");
    for (const char* const path : {"/a", "/b"}) {
        const Fetched page = Get({.address = server.Address(path),
                                  .bytes = std::int64_t{1} << 40,
                                  .time = std::chrono::milliseconds(50)});
        EXPECT_EQ(page.outcome, Outcome::TooSlow) << path;
        EXPECT_GT(page.took, std::chrono::milliseconds(0)) << path;
    }
}

TEST_F(QtNetworkTest, GarbageIsAFailure) {
    for (const std::string& garbage : {std::string("no page at all\r\n\r\n"), std::string(2000, '\0'),
                                       std::string("HTTP/1.1 999999 x\r\n\r\n")}) {
        server.On("/a", [&](QTcpSocket& socket) {
            PageServer::Write(socket, garbage);
            socket.disconnectFromHost();
        });
        const Fetched page = Get(server.Address("/a"));
        EXPECT_EQ(page.outcome, Outcome::Failed);
        EXPECT_NE(page.reason, u"");
    }
}

TEST_F(QtNetworkTest, APageThatTellsOfAnErrorIsAPage) {
    server.Put("/a", "not here", "Content-Type: text/plain", "404 Not Found");
    const Fetched page = Get(server.Address("/a"));
    EXPECT_EQ(page.outcome, Outcome::Done);
    EXPECT_EQ(page.bytes, "not here");
    const Fetched none = Get(server.Address("/none"));
    EXPECT_EQ(none.outcome, Outcome::Failed);
    EXPECT_NE(none.reason, u"");
}

TEST_F(QtNetworkTest, APageThatIsCutShortIsAFailure) {
    server.On("/a", [](QTcpSocket& socket) {
        PageServer::Write(socket, "HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\nshort");
        socket.disconnectFromHost();
    });
    EXPECT_EQ(Get(server.Address("/a")).outcome, Outcome::Failed);
}

TEST_F(QtNetworkTest, AServerThatIsNotThereIsAFailure) {
    Text address;
    {
        const PageServer gone;
        address = gone.Address("/");
    }
    const Fetched page = Get(address);
    EXPECT_EQ(page.outcome, Outcome::Failed);
    EXPECT_EQ(page.address, address);
    EXPECT_NE(page.reason, u"");
}

TEST_F(QtNetworkTest, NothingComesOfAFetchThatIsDropped) {
    server.Put("/a", "a");
    server.Put("/b", "b");
    bool came = false;
    network.Get({.address = server.Address("/a")}, [&came](const Fetched&) { came = true; });
    EXPECT_EQ(Get(server.Address("/b")).bytes, "b");
    EXPECT_FALSE(came);
}

TEST_F(QtNetworkTest, AServerWithoutAGoodCertificateGetsNoRequest) {
    if (!QSslSocket::supportsSsl()) GTEST_SKIP() << "Qt has no TLS here";
    PageServer untrusted(test::UntrustedServer());
    untrusted.Put("/a", "secret");
    const Fetched page = Get(untrusted.Address("/a", "https"));
    EXPECT_EQ(page.outcome, Outcome::NotTrusted);
    EXPECT_EQ(page.bytes, "");
    EXPECT_NE(page.reason, u"");
    EXPECT_THAT(untrusted.Paths(), IsEmpty());
}

} // namespace
} // namespace korvane
