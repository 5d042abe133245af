// Tests the list of websites and the window of pages, with the keyboard alone.

#include "e2e/DeskTest.h"
#include "e2e/LoopbackServer.h"

#include <unistd.h>

#include <csignal>

namespace korvane::e2e {
namespace {

namespace fs = std::filesystem;

constexpr auto kWebsites = "^Website list :";
constexpr auto kSaveList = "^Save website list to disk$";
constexpr auto kLister = "^Directory lister$";
constexpr auto kBrowser = "^Internet browser$";

class WebTest : public DeskTest {
protected:
    void Start(const fs::path& folder) {
        program = desk.Start({file.string()}, folder);
        main = desk.GoTo(kMain);
        ASSERT_NE(main, "");
    }
    /// Adds a website before the current one.
    void Add(const std::string& name, const std::string& url) {
        desk.Press({"Insert"});
        desk.Type(name);
        desk.Press({"Tab"});
        desk.Type(url);
        desk.Press({"Return"});
    }
    void Answer(const std::string& key) {
        ASSERT_NE(desk.GoTo(kMain, main), "");
        desk.Press({key});
        ASSERT_TRUE(desk.Gone(kMain, main));
    }
    void End() {
        ASSERT_EQ(desk.GoTo(kMain), main);
        Exit();
        EXPECT_EQ(program->ExitStatus(), 0);
    }

    std::unique_ptr<Process> program;
    std::string main;
};

TEST_F(WebTest, WebsitesAreTypedLoadedAndSaved) {
    desk.Provide("mybrowser");
    ASSERT_NO_FATAL_FAILURE(Start(desk.Path("")));
    desk.Press({"ctrl+F7"});
    ASSERT_NE(desk.GoTo(kWebsites), "");
    Add("News", "http://news.example/?a=b");
    Add("Books", "http://books.example");
    desk.Press({"space", "Down", "space", "Tab", "Tab"});
    desk.Type("mybrowser --new");
    desk.Press({"alt+l"});
    EXPECT_TRUE(desk.Until([&] {
        return desk.Started() == "mybrowser --new http://books.example http://news.example/?a=b\n";
    })) << desk.Started();
    desk.Press({"alt+c"});
    ASSERT_NO_FATAL_FAILURE(Answer("alt+y"));
    ASSERT_NE(desk.GoTo(kSaveList), "");
    const fs::path list = desk.Path("sites.lst");
    desk.Type(list.string());
    desk.Press({"Return"});
    EXPECT_TRUE(desk.Holds(list,
                           "Books\r\nhttp://books.example\r\n1\r\nNews\r\nhttp://news.example/?a=b\r\n1\r\n"
                           "***\r\n\r\n"));
    ASSERT_TRUE(desk.Gone(kWebsites));
    ASSERT_NO_FATAL_FAILURE(End());
}

TEST_F(WebTest, APageOpensFromTheListerAndClosesAgain) {
    const fs::path pages = desk.Path("pages");
    fs::create_directories(pages);
    WriteBytes(pages / "page.htm", "<h1>A page</h1><p>with <a href='page.htm'>a link</a></p>");
    ASSERT_NO_FATAL_FAILURE(Start(pages));
    desk.Press({"ctrl+F5"});
    ASSERT_NE(desk.GoTo(kLister), "");
    desk.Press({"space"});
    ASSERT_NE(desk.GoTo(kBrowser), "");
    desk.Press({"shift+Tab", "shift+Tab", "Return", "Escape"});
    ASSERT_TRUE(desk.Gone(kBrowser));
    ASSERT_NE(desk.GoTo(kLister), "");
    desk.Press({"Escape"});
    ASSERT_TRUE(desk.Gone(kLister));
    ASSERT_NO_FATAL_FAILURE(End());
}

TEST_F(WebTest, APageOfAServerIsShownWithItsPictureAndItsLink) {
    LoopbackServer server;
    server.Put("/page.htm", "text/html", "<a href='next.htm'>A link</a><p>and <img src='picture.png'></p>");
    server.Put("/picture.png", "image/png", "\x89PNG\r\n\x1A\n...");
    server.Put("/next.htm", "text/html", "<p>The next page</p>");
    const auto asked = [&](const std::vector<std::string>& paths) {
        return Until([&] { return server.Paths() == paths; }, {&server, &desk.Screen()});
    };
    const fs::path pages = desk.Path("pages");
    fs::create_directories(pages);
    WriteBytes(pages / "start.htm", "<p>A page of the disk</p>");
    ASSERT_NO_FATAL_FAILURE(Start(pages));
    desk.Press({"ctrl+F5"});
    ASSERT_NE(desk.GoTo(kLister), "");
    desk.Press({"space"});
    ASSERT_NE(desk.GoTo(kBrowser), "");
    desk.Press({"shift+Tab", "shift+Tab", "ctrl+a"});
    desk.Type(server.Address("/page.htm"));
    desk.Press({"Return"});
    EXPECT_TRUE(asked({"/page.htm", "/picture.png"}));
    desk.Press({"Tab", "Tab", "ctrl+Home", "Return"});
    EXPECT_TRUE(asked({"/page.htm", "/picture.png", "/next.htm"}));
    desk.Press({"Escape"});
    ASSERT_TRUE(desk.Gone(kBrowser));
    ASSERT_NE(desk.GoTo(kLister), "");
    desk.Press({"Escape"});
    ASSERT_TRUE(desk.Gone(kLister));
    ASSERT_NO_FATAL_FAILURE(End());
}

#ifdef KORVANE_WEB
class ScriptTest : public WebTest {
protected:
    void SetUp() override {
        ASSERT_NO_FATAL_FAILURE(WebTest::SetUp());
        fs::copy_file(KORVANE_WEB, desk.Path(fs::path(KORVANE_WEB).filename().string()));
        fs::create_directories(pages);
        server.Put("/page.htm", "text/html", "<script>location = 'next.htm'</script>");
        server.Put("/next.htm", "text/html", "<p>The last page</p>");
        WriteBytes(pages / "start.htm", "<script>location = '" + server.Address("/page.htm") + "'</script>");
    }
    void GoToLister() {
        ASSERT_NO_FATAL_FAILURE(Start(pages));
        desk.Press({"ctrl+F5"});
        ASSERT_NE(desk.GoTo(kLister), "");
    }
    void OpenPage() {
        desk.Press({"space"});
        ASSERT_NE(desk.GoTo(kBrowser), "");
    }
    void LeavePage() {
        desk.Press({"Escape"});
        ASSERT_TRUE(desk.Gone(kBrowser));
        ASSERT_NE(desk.GoTo(kLister), "");
    }
    void LeaveLister() {
        desk.Press({"Escape"});
        ASSERT_TRUE(desk.Gone(kLister));
        ASSERT_NO_FATAL_FAILURE(End());
    }
    /// The requests of a page that comes so many times.
    bool Asks(int times) {
        std::vector<std::string> paths;
        for (int i = 0; i < times; ++i)
            paths.insert(paths.end(), {"/page.htm", "/next.htm"});
        return Until([&] { return server.Paths() == paths; }, {&server, &desk.Screen()});
    }

    LoopbackServer server;
    fs::path pages = desk.Path("pages");
};

TEST_F(ScriptTest, TheAdministratorGetsPagesWithoutScripts) {
    if (geteuid() != 0) GTEST_SKIP() << "only the administrator sees this";
    ASSERT_NO_FATAL_FAILURE(GoToLister());
    ASSERT_NO_FATAL_FAILURE(OpenPage());
    ASSERT_NO_FATAL_FAILURE(LeavePage());
    server.Drain();
    EXPECT_TRUE(server.Paths().empty());
    ASSERT_NO_FATAL_FAILURE(LeaveLister());
}

class UserScriptTest : public ScriptTest {
protected:
    void SetUp() override {
        if (kSanitized)
            GTEST_SKIP()
                << "the sanitizer takes widgets of Qt WebEngine, which have no type information, for lost";
        ASSERT_NO_FATAL_FAILURE(ScriptTest::SetUp());
        ASSERT_TRUE(desk.GiveRightsAway()) << "there is no user without rights";
    }
};

TEST_F(UserScriptTest, PagesRunTheirScriptsEachTimeThatTheyAreOpened) {
    ASSERT_NO_FATAL_FAILURE(GoToLister());
    for (int times = 1; times <= 2; ++times) {
        ASSERT_NO_FATAL_FAILURE(OpenPage());
        EXPECT_TRUE(Asks(times));
        ASSERT_NO_FATAL_FAILURE(LeavePage());
    }
    ASSERT_NO_FATAL_FAILURE(LeaveLister());
}

TEST_F(UserScriptTest, TheProgramEndsInOrderWhileAPageIsShown) {
    ASSERT_NO_FATAL_FAILURE(GoToLister());
    ASSERT_NO_FATAL_FAILURE(OpenPage());
    EXPECT_TRUE(Asks(1));
    program->Signal(SIGTERM);
    EXPECT_EQ(program->ExitStatus(), 0);
}
#endif

} // namespace
} // namespace korvane::e2e
