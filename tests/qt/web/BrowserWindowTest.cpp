// The window of pages as the user sees it.

#include "QtSupport.h"
#include "extras/web/frmBrowser.h"
#include "platform/qt/base/Convert.h"
#include "platform/qt/binder/QtFormHost.h"
#include "platform/qt/text/QtTextView.h"
#include "support/PageFiles.h"
#include "support/TestApp.h"
#include "testing/MemoryNetwork.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QScrollBar>
#include <QToolButton>

namespace korvane {
namespace {

const QSize kLeast(ToPixels(Twips{8600}), ToPixels(Twips{4000}));

class BrowserWindowTest : public testing::Test {
protected:
    BrowserWindowTest() { app.SetPort<Network>(&net); }
    QWidget& Open(TextView start) {
        form = std::make_unique<frmBrowser>(app, start);
        form->Show();
        test::Settle();
        return *host.WidgetOf(*form);
    }
    template <class W>
    W& Find(const char* name) {
        return *host.WidgetOf(*form)->findChild<W*>(name);
    }
    /// The distance from the page to the lower edge of the window.
    int BelowPage() {
        test::Settle();
        QWidget& window = *host.WidgetOf(*form);
        QWidget& page = Find<QWidget>("WebBrowser1");
        return window.height() - (page.mapTo(&window, QPoint(0, 0)).y() + page.height());
    }

    TestApp program;
    MemoryNetwork net;
    QtFormHost host{KorvaneForms()};
    App app{{program.files, program.user, program.clipboard, program.clock, program.screen, program.shell,
             program.instance, host, nullptr}};
    PageFiles files{app};
    std::unique_ptr<frmBrowser> form;
};

TEST_F(BrowserWindowTest, HasItsLeastSizeFromTheBeginning) {
    QWidget& window = Open(u"");
    EXPECT_GE(window.width(), kLeast.width());
    EXPECT_GE(window.height(), kLeast.height());
    window.resize(10, 10);
    test::Settle();
    EXPECT_GE(window.width(), kLeast.width());
    EXPECT_GE(window.height(), kLeast.height());
}

TEST_F(BrowserWindowTest, ThePageEndsFortyTwipsAboveTheWindowsEdgeOrTheStatusBar) {
    QWidget& window = Open(u"x.org");
    auto& bar = Find<QLabel>("StatusBar1");
    const int gap = ToPixels(Twips{40});
    EXPECT_EQ(BelowPage(), bar.height() + gap);
    Find<QToolButton>("cmdStatusBar").click();
    EXPECT_FALSE(bar.isVisible());
    EXPECT_EQ(BelowPage(), gap);
    window.resize(window.width() + 100, window.height() + 100);
    EXPECT_EQ(BelowPage(), gap);
    Find<QToolButton>("cmdStatusBar").click();
    EXPECT_EQ(BelowPage(), bar.height() + gap);
    window.resize(window.width(), window.height() - 60);
    EXPECT_EQ(BelowPage(), bar.height() + gap);
}

TEST_F(BrowserWindowTest, APictureThatComesLaterLeavesThePageWhereItIs) {
    std::string page = "<img src=i.png>";
    for (int line = 0; line < 200; ++line)
        page += "<p>line</p>";
    net.PutPage(u"https://x.org", page);
    net.Put(u"https://x.org/i.png", {.outcome = Fetched::Outcome::Done, .bytes = "\x89PNG\r\n\x1A\n..."});
    Open(u"x.org");
    net.AnswerNext();
    test::Settle();
    QScrollBar& bar = *Find<QtTextView>("pageText").verticalScrollBar();
    bar.setValue(bar.maximum() / 2);
    const int before = bar.value();
    ASSERT_GT(before, 0);
    net.AnswerAll();
    test::Settle();
    EXPECT_GE(bar.value(), before);
}

TEST_F(BrowserWindowTest, AnotherPageIsShownFromItsBeginning) {
    std::string page;
    for (int line = 0; line < 200; ++line)
        page += "<p>line</p>";
    net.PutPage(u"https://x.org", page);
    net.PutPage(u"https://x.org/b", page);
    Open(u"x.org");
    net.AnswerAll();
    test::Settle();
    QScrollBar& bar = *Find<QtTextView>("pageText").verticalScrollBar();
    bar.setValue(bar.maximum());
    ASSERT_GT(bar.value(), 0);
    form->txtAddress.Text = u"x.org/b";
    form->cmdLoad.Press();
    net.AnswerAll();
    test::Settle();
    EXPECT_EQ(bar.value(), bar.minimum());
}

} // namespace
} // namespace korvane
