#include "platform/qt/net/LoadedNetwork.h"

#include "PageServer.h"

#include <gtest/gtest.h>

#include <QEventLoop>

namespace korvane {
namespace {

Fetched Get(Network& network, const Text& address) {
    Fetched result;
    QEventLoop loop;
    const auto fetch = network.Get({.address = address}, [&](Fetched fetched) {
        result = std::move(fetched);
        loop.quit();
    });
    loop.exec();
    return result;
}

TEST(LoadedNetworkTest, FetchesWithTheLibrary) {
    test::PageServer server;
    server.Put("/a", "page");
    LoadedNetwork network(KORVANE_NET);
    EXPECT_EQ(Get(network, server.Address("/a")).bytes, "page");
    EXPECT_EQ(Get(network, server.Address("/a")).outcome, Fetched::Outcome::Done);
}

TEST(LoadedNetworkTest, WithoutTheLibraryNothingIsFetched) {
    test::PageServer server;
    LoadedNetwork network("/no/such/library");
    const Fetched page = Get(network, server.Address("/a"));
    EXPECT_EQ(page.outcome, Fetched::Outcome::Failed);
    EXPECT_EQ(page.address, server.Address("/a"));
    EXPECT_NE(page.reason, u"");
    EXPECT_TRUE(server.Paths().empty());
}

} // namespace
} // namespace korvane
