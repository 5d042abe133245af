#include "extras/web/frmBrowser.h"

#include "context/exchange/ListerRequest.h"
#include "extras/web/Pages.h"
#include "support/DesignerFile.h"
#include "support/MenuEntries.h"
#include "support/PageFiles.h"
#include "support/TestApp.h"
#include "testing/MemoryNetwork.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class BrowserTest : public testing::Test {
protected:
    BrowserTest() {
        t.app.SetPort<Network>(&net);
        net.PutPage(u"https://x.org", "<p>Start <a href='two.htm'>on</a></p>");
        net.PutPage(u"https://x.org/two.htm", "<p>Two</p>");
    }

    void InWindow(TextView start, const std::function<void(frmBrowser&)>& act) {
        frmBrowser window(t.app, start);
        t.user.On<frmBrowser>([](frmBrowser&) {});
        window.Show();
        act(window);
        window.Close();
    }
    static bool Press(Control& control, int code) {
        KeyEvent key{code, Mask::None};
        control.KeyDown(key);
        return key.consumed;
    }
    static bool Shows(const frmBrowser& f, TextView part) {
        return f.pageText.All().find(part) != Text::npos;
    }

    TestApp t;
    PageFiles files{t.app};
    MemoryNetwork net;
};

TEST_F(BrowserTest, OpensWithItsPage) {
    InWindow(u"x.org", [this](frmBrowser& f) {
        EXPECT_EQ(f.Caption.Get(), u"Internet browser");
        EXPECT_EQ(f.txtAddress.Text.Get(), u"x.org");
        EXPECT_TRUE(f.WebBrowser1.Visible);
        EXPECT_EQ(f.StatusBar1.Caption.Get(), u" Loading page ...");
        EXPECT_THAT(t.screen.Pointers(), ElementsAre(Pointer::Hourglass, Pointer::Default));
        net.AnswerAll();
        EXPECT_EQ(f.StatusBar1.Caption.Get(), u" Done.");
        EXPECT_TRUE(Shows(f, u"Start on"));
    });
}

TEST_F(BrowserTest, WithoutAnAddressTheKeyboardIsInTheAddressLine) {
    InWindow(u"", [this](frmBrowser& f) {
        EXPECT_EQ(f.Focused(), &f.txtAddress);
        EXPECT_FALSE(f.WebBrowser1.Visible);
        f.cmdHome.Press();
        EXPECT_TRUE(Press(f.txtAddress, Key::Return));
        f.cmdLoad.Press();
        EXPECT_FALSE(f.WebBrowser1.Visible);
        EXPECT_THAT(net.Requests(), IsEmpty());
        EXPECT_EQ(f.StatusBar1.Caption.Get(), u"");
    });
}

TEST_F(BrowserTest, TheButtonOfTheStartGoesNowhereWithoutOne) {
    InWindow(u"", [this](frmBrowser& f) {
        f.txtAddress.Type(u"x.org");
        f.cmdLoad.Press();
        net.AnswerAll();
        f.cmdHome.Press();
        net.AnswerAll();
        EXPECT_EQ(f.txtAddress.Text.Get(), u"");
        EXPECT_TRUE(Shows(f, u"Start on"));
        EXPECT_EQ(net.Requests().size(), 1U);
    });
}

TEST_F(BrowserTest, LoadsTheTypedAddress) {
    InWindow(u"", [this](frmBrowser& f) {
        f.txtAddress.Type(u"x.org");
        EXPECT_TRUE(Press(f.txtAddress, Key::Return));
        EXPECT_TRUE(f.WebBrowser1.Visible);
        net.AnswerAll();
        EXPECT_TRUE(Shows(f, u"Start"));
        f.txtAddress.Type(u"x.org/two.htm");
        f.OfficeMenu1.Choose("mnuLoad");
        net.AnswerAll();
        EXPECT_TRUE(Shows(f, u"Two"));
    });
}

TEST_F(BrowserTest, LoadsAFileFromTheDisk) {
    t.files.AddFile(u"C:\\x\\a.htm", "<p>Of the disk</p>");
    const Text before = t.files.CurrentDir();
    InWindow(u"", [this](frmBrowser& f) {
        t.user.CancelChooser();
        f.OfficeMenu1.Choose("mnuOpen");
        EXPECT_FALSE(f.WebBrowser1.Visible);
        t.user.OnChooser([this](ListerRequest& request) {
            t.files.ChangeDir(u"C:\\x");
            request.ChosenFilePath = u"C:\\x\\a.htm";
        });
        f.cmdGetFile.Press();
        EXPECT_EQ(f.txtAddress.Text.Get(), u"C:\\x\\a.htm");
        EXPECT_TRUE(f.WebBrowser1.Visible);
        EXPECT_TRUE(Shows(f, u"Of the disk"));
    });
    EXPECT_EQ(t.user.Requests().front().FileDialogFilter, u"*.htm;*.html;*.xhtml");
    EXPECT_EQ(t.files.CurrentDir(), before);
}

TEST_F(BrowserTest, TheButtonsMoveAmongThePages) {
    InWindow(u"x.org", [this](frmBrowser& f) {
        net.AnswerAll();
        f.pageText.Click(1);
        net.AnswerAll();
        EXPECT_TRUE(Shows(f, u"Two"));
        f.cmdBack.Press();
        net.AnswerAll();
        EXPECT_TRUE(Shows(f, u"Start"));
        f.cmdforward.Press();
        net.AnswerAll();
        EXPECT_TRUE(Shows(f, u"Two"));
        f.cmdRefresh.Press();
        EXPECT_EQ(net.Waits(), 1U);
        f.cmdStop.Press();
        EXPECT_EQ(net.Waits(), 0U);
        EXPECT_EQ(f.StatusBar1.Caption.Get(), u" Done.");
        f.txtAddress.Type(u"elsewhere");
        f.cmdHome.Press();
        net.AnswerAll();
        EXPECT_EQ(f.txtAddress.Text.Get(), u"x.org");
        EXPECT_TRUE(Shows(f, u"Start"));
    });
}

TEST_F(BrowserTest, ReturnFollowsTheLinkAtTheCursor) {
    InWindow(u"x.org", [this](frmBrowser& f) {
        net.AnswerAll();
        EXPECT_TRUE(Press(f.pageText, Key::Return));
        EXPECT_EQ(net.Waits(), 0U);
        f.pageText.MoveSelection(7, 0);
        Press(f.pageText, Key::Return);
        net.AnswerAll();
        EXPECT_TRUE(Shows(f, u"Two"));
    });
}

// Kept for compatibility: status-bar-tip-forward.
TEST_F(BrowserTest, TheStatusBarIsShownAndHidden) {
    InWindow(u"", [](frmBrowser& f) {
        EXPECT_EQ(f.cmdStatusBar.ToolTipText.Get(), u"Move forward a page");
        EXPECT_EQ(f.cmdforward.ToolTipText.Get(), u"Move forward a page");
        f.cmdStatusBar.Press();
        EXPECT_FALSE(f.StatusBar1.Visible);
        f.cmdStatusBar.Press();
        EXPECT_TRUE(f.StatusBar1.Visible);
    });
}

TEST_F(BrowserTest, TheWindowKeepsItsLeastSize) {
    InWindow(u"", [](frmBrowser& f) {
        f.Resize();
        EXPECT_EQ(f.Width.Get(), Twips{0}) << "a window without a place gets none";
        f.Width = Twips{5000};
        f.Height = Twips{3000};
        f.Resize();
        EXPECT_EQ(f.Width.Get(), Twips{8600});
        EXPECT_EQ(f.Height.Get(), Twips{4000});
        f.Width = Twips{9000};
        f.Resize();
        EXPECT_EQ(f.Width.Get(), Twips{9000});
    });
}

TEST_F(BrowserTest, ClosingStopsWhatIsLoaded) {
    InWindow(u"x.org", [this](frmBrowser& f) {
        f.OfficeMenu1.Choose("mnuExit");
        EXPECT_FALSE(f.Shown());
        EXPECT_EQ(net.Waits(), 0U);
    });
}

TEST_F(BrowserTest, HasItsTipsAndItsMenu) {
    InWindow(u"", [](frmBrowser& f) {
        for (const auto& [button, tip] :
             std::vector<std::pair<CommandButton*, Text>>{{&f.cmdExit, u"Exit this level"},
                                                          {&f.cmdGetFile, u"Load file from disk"},
                                                          {&f.cmdHome, u"Back to outset address"},
                                                          {&f.cmdBack, u"Move back a page"},
                                                          {&f.cmdforward, u"Move forward a page"},
                                                          {&f.cmdRefresh, u"Refresh current page"},
                                                          {&f.cmdStop, u"Stop loading current page"},
                                                          {&f.cmdLoad, u"Proceed with operation"}})
            EXPECT_EQ(button->ToolTipText.Get(), tip) << button->Name();
        EXPECT_THAT(TitlesOf(f.OfficeMenu1), ElementsAre(u"E&xit", u"&Open", u"&Load"));
        ExpectLook(f, "extras/web", {});
    });
}

// ---- The one that is opened ----------------------------------------------------------------------------

TEST_F(BrowserTest, PagesAnswerTheirPortUntilTheyGo) {
    {
        Pages pages(t.app);
        EXPECT_EQ(t.app.Port<PageViewer>(), &pages);
    }
    EXPECT_EQ(t.app.Port<PageViewer>(), static_cast<PageViewer*>(nullptr));
}

TEST_F(BrowserTest, OneWindowStaysOpenForAllPages) {
    Pages pages(t.app);
    t.user.On<frmBrowser>([](frmBrowser&) {});
    pages.View(u"x.org");
    pages.View(u"x.org/two.htm");
    ASSERT_EQ(t.user.Shown().size(), 1U);
    EXPECT_EQ(t.user.Raised(), (std::vector<std::string>{"frmBrowser"}));
    auto& window = dynamic_cast<frmBrowser&>(*t.user.Shown().front());
    EXPECT_EQ(window.txtAddress.Text.Get(), u"x.org/two.htm");
    EXPECT_EQ(window.BrowserStartFile, u"x.org/two.htm");
    pages.View(u"");
    EXPECT_EQ(window.BrowserStartFile, u"x.org/two.htm");
    window.Close();
    t.user.On<frmBrowser>([](frmBrowser& again) { EXPECT_EQ(again.BrowserStartFile, u""); });
    pages.View(u"");
}

TEST_F(BrowserTest, OverAModalWindowItIsModalToo) {
    Pages pages(t.app);
    Form modal(t.user, "frmModal", u"");
    t.user.On<Form>([&](Form& under) {
        t.user.On<frmBrowser>([](frmBrowser& f) {
            EXPECT_EQ(f.BrowserStartFile, u"x.org");
            f.cmdExit.Press();
        });
        pages.View(u"x.org");
        EXPECT_THAT(t.user.Shown(), IsEmpty());
        under.Close();
    });
    modal.ShowModal();
}

} // namespace
} // namespace korvane
