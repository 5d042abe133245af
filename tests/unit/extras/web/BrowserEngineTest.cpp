#include "extras/web/BrowserEngine.h"

#include "context/exchange/ListerRequest.h"
#include "context/ports/WebEngines.h"
#include "extras/web/frmBrowser.h"
#include "support/PageFiles.h"
#include "support/TestApp.h"
#include "testing/MemoryNetwork.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Notes what engines of the platform are asked.
class FakeWebEngines final : public WebEngines {
public:
    explicit FakeWebEngines(App& app) { app.SetPort<WebEngines>(this); }

    std::unique_ptr<WebEngine> EngineFor(WebView&) override {
        ++made;
        if (none) return nullptr;
        return std::make_unique<Engine>(*this);
    }

    bool none = false;
    int made = 0;
    int gone = 0;
    std::vector<Text> calls;

private:
    class Engine final : public WebEngine {
    public:
        explicit Engine(FakeWebEngines& owner) : owner_(owner) {}
        Engine(const Engine&) = delete;
        Engine& operator=(const Engine&) = delete;
        ~Engine() override { ++owner_.gone; }
        void Navigate(TextView address) override { owner_.calls.emplace_back(address); }
        void GoBack() override { owner_.calls.emplace_back(u"back"); }
        void GoForward() override { owner_.calls.emplace_back(u"forward"); }
        void Refresh() override { owner_.calls.emplace_back(u"refresh"); }
        void Stop() override { owner_.calls.emplace_back(u"stop"); }

    private:
        FakeWebEngines& owner_;
    };
};

class BrowserEngineTest : public testing::Test {
protected:
    BrowserEngineTest() {
        t.app.SetPort<Network>(&net);
        net.PutPage(u"https://x.org", "<p>Start</p>");
    }
    void InWindow(TextView start, const std::function<void(frmBrowser&)>& act) {
        frmBrowser window(t.app, start);
        t.user.On<frmBrowser>([](frmBrowser&) {});
        window.Show();
        act(window);
        window.Close();
    }

    TestApp t;
    PageFiles files{t.app};
    MemoryNetwork net;
    FakeWebEngines engines{t.app};
};

TEST_F(BrowserEngineTest, TheEngineOfThePlatformIsMadeForTheFirstPage) {
    InWindow(u"", [this](frmBrowser& f) {
        f.cmdBack.Press();
        f.cmdRefresh.Press();
        f.cmdLoad.Press();
        EXPECT_EQ(engines.made, 0);
        f.txtAddress.Type(u"x.org");
        f.cmdLoad.Press();
        EXPECT_EQ(engines.made, 1);
        f.cmdLoad.Press();
        EXPECT_EQ(engines.made, 1);
        EXPECT_FALSE(f.pageText.Visible);
        EXPECT_TRUE(f.WebBrowser1.Visible);
    });
    EXPECT_THAT(net.Requests(), IsEmpty());
}

TEST_F(BrowserEngineTest, ItGetsWholeAddressesAndEveryButton) {
    t.files.AddFile(u"C:\\a b.htm");
    InWindow(u"x.org", [](frmBrowser& f) {
        EXPECT_EQ(f.Focused(), &f.WebBrowser1);
        f.txtAddress.Type(u" C:\\a b.htm ");
        f.cmdLoad.Press();
        f.cmdBack.Press();
        f.cmdforward.Press();
        f.cmdRefresh.Press();
        f.cmdStop.Press();
        f.cmdHome.Press();
    });
    EXPECT_THAT(engines.calls, ElementsAre(u"https://x.org", u"file:///C:/a%20b.htm", u"back", u"forward",
                                           u"refresh", u"stop", u"https://x.org", u"stop"));
    EXPECT_EQ(engines.gone, 1);
}

TEST_F(BrowserEngineTest, AnEmptyStartAsksItNothing) {
    InWindow(u"", [](frmBrowser& f) { f.cmdHome.Press(); });
    EXPECT_EQ(engines.made, 0);
}

TEST_F(BrowserEngineTest, WithoutOneTheProgramsOwnViewShowsThePage) {
    engines.none = true;
    InWindow(u"x.org", [this](frmBrowser& f) {
        net.AnswerAll();
        EXPECT_TRUE(f.pageText.Visible);
        EXPECT_EQ(f.Focused(), &f.pageText);
        EXPECT_NE(f.pageText.All().find(u"Start"), Text::npos);
        EXPECT_EQ(f.StatusBar1.Caption.Get(), u" Done.");
    });
    EXPECT_EQ(engines.made, 1);
    EXPECT_EQ(net.Waits(), 0U);
}

} // namespace
} // namespace korvane
