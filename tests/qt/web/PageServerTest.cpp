// Pages of a real server in the program's own view.

#include "PagesContract.h"
#include "common/path/ResolveAddress.h"
#include "controls/Form.h"
#include "controls/text/TextControl.h"
#include "extras/web/PageEngine.h"
#include "platform/qt/web/QtNetwork.h"
#include "support/PageFiles.h"
#include "support/TestApp.h"

#include <gmock/gmock.h>

#include <QEventLoop>

namespace korvane {
namespace {

using test::PageServer;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string kPng = "\x89PNG\r\n\x1A\n...";

/// The program's own page view.
class PageViewStage {
public:
    PageViewStage() {
        t_.app.SetPort<Network>(&network_);
        view_.DownloadBegin = [this] { begins(); };
        view_.DownloadComplete = [this] { completes(); };
        Renew();
    }
    WebEngine& Engine() { return *engine_; }
    void Renew() { engine_ = std::make_unique<PageEngine>(t_.app, view_, text_); }
    Text Shown() { return text_.All(); }
    Text AddFile(const std::string& name, const std::string& bytes) {
        const Text path = u"C:\\" + FromUtf8(name);
        t_.files.AddFile(path, bytes);
        return AddressOfFile(path);
    }

    std::function<void()> begins = [] {};
    std::function<void()> completes = [] {};

private:
    TestApp t_;
    PageFiles files_{t_.app};
    QtNetwork network_;
    Form form_{t_.user, "frmBrowser", u""};
    WebView view_{form_, "WebBrowser1"};
    TextControl text_{form_, "pageText"};
    std::unique_ptr<PageEngine> engine_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(PageView, PagesContract, PageViewStage);

class PageServerTest : public testing::Test {
protected:
    PageServerTest() {
        t.app.SetPort<Network>(&network);
        view.DownloadComplete = [this] {
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
        After([&] { engine.Navigate(address); });
    }
    bool Shows(TextView part) const { return text.All().find(part) != Text::npos; }
    std::size_t Pictures() const { return text.Store().Slice(0, text.All().size()).images.size(); }

    TestApp t;
    PageFiles files{t.app};
    PageServer server;
    PageServer other;
    QtNetwork network;
    Form form{t.user, "frmBrowser", u""};
    WebView view{form, "WebBrowser1"};
    TextControl text{form, "pageText"};
    PageEngine engine{
        t.app, view, text, {.bytes = 1'000'000, .time = std::chrono::milliseconds(15'000), .pictures = 20}};
    QEventLoop loop;
    int completed = 0;
};

TEST_F(PageServerTest, PagesAreVisitedByLinksAndButtons) {
    server.Put("/d/a.htm", "<p>First <a href='../b.htm'>on</a></p>");
    server.Put("/b.htm", "<p>Second</p>");
    GoTo(server.Address("/d/a.htm"));
    EXPECT_TRUE(Shows(u"First on"));
    After([this] { text.Click(1); });
    EXPECT_TRUE(Shows(u"Second"));
    After([this] { engine.GoBack(); });
    EXPECT_TRUE(Shows(u"First"));
    After([this] { engine.GoForward(); });
    After([this] { engine.Refresh(); });
    EXPECT_THAT(server.Paths(), ElementsAre("/d/a.htm", "/b.htm", "/d/a.htm", "/b.htm", "/b.htm"));
    EXPECT_EQ(completed, 5);
}

TEST_F(PageServerTest, OnlyPicturesOfTheSameServerAreFetched) {
    server.Put("/p", "<img src=i.png><img src='" + ToUtf8(other.Address("/x.png")) +
                         "'><img src=away.png><img src='file:///C:/x.png'><script src=s.js></script>"
                         "<link rel=stylesheet href=s.css><iframe src=f.htm></iframe>");
    server.Put("/i.png", kPng, "Content-Type: image/png");
    server.Redirect("/away.png", other.Address("/y.png"));
    other.Put("/x.png", kPng);
    other.Put("/y.png", kPng);
    t.files.AddFile(u"C:\\x.png", kPng);
    GoTo(server.Address("/p"));
    EXPECT_EQ(Pictures(), 1U);
    EXPECT_THAT(server.Paths(), testing::UnorderedElementsAre("/p", "/i.png", "/away.png"));
    EXPECT_THAT(other.Paths(), IsEmpty());
}

TEST_F(PageServerTest, EndlessPagesAndCirclesEndInANote) {
    server.SendWithoutEnd("/endless", "Content-Length: 1073741824\r\n");
    GoTo(server.Address("/endless"));
    EXPECT_TRUE(Shows(u"too large"));
    server.Redirect("/circle", server.Address("/circle"));
    GoTo(server.Address("/circle"));
    EXPECT_TRUE(Shows(u"can't be reached"));
    server.Redirect("/file", u"file:///etc/passwd");
    GoTo(server.Address("/file"));
    EXPECT_TRUE(Shows(u"can't be reached"));
}

TEST_F(PageServerTest, AHangingServerEndsInANote) {
    PageEngine hasty(t.app, view, text,
                     {.bytes = 1000, .time = std::chrono::milliseconds(50), .pictures = 1});
    server.Hang("/hang");
    After([&] { hasty.Navigate(server.Address("/hang")); });
    EXPECT_TRUE(Shows(u"takes too long"));
}

TEST_F(PageServerTest, APictureThatHangsLeavesThePage) {
    // The page itself comes in time on the busiest machine.
    PageEngine hasty(t.app, view, text,
                     {.bytes = 1000, .time = std::chrono::milliseconds(2000), .pictures = 1});
    server.Put("/p", "<p>Text</p><img src=hang.png>");
    server.Hang("/hang.png");
    After([&] { hasty.Navigate(server.Address("/p")); });
    EXPECT_TRUE(Shows(u"Text"));
}

} // namespace
} // namespace korvane
