// Pages in Qt WebEngine, which is loaded as in the program.

#include "PagesContract.h"
#include "controls/Form.h"
#include "platform/qt/net/LoadedWebEngines.h"
#include "support/ScriptedUser.h"
#include "support/TempDir.h"

#include <signal.h>

#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>
#include <QVBoxLayout>
#include <QWebEngineView>

namespace korvane {
namespace {

class WebEngineStage {
public:
    WebEngineStage() {
        new QVBoxLayout(&window_);
        window_.resize(400, 300);
        window_.show();
        view_.DownloadBegin = [this] { begins(); };
        view_.DownloadComplete = [this] { completes(); };
        Renew();
    }
    WebEngine& Engine() { return *engine_; }
    void Renew() {
        engine_.reset();
        engine_ = engines_.EngineFor(view_);
    }
    Text Shown() {
        Text shown;
        QEventLoop loop;
        Page().page()->toPlainText([&](const QString& text) {
            shown = QStringView(text).toString().toStdU16String();
            loop.quit();
        });
        loop.exec();
        return shown;
    }
    Text AddFile(const std::string& name, const std::string& bytes) {
        WriteBytes(folder_ / name, bytes);
        return QUrl::fromLocalFile(QString::fromStdString((folder_ / name).string()))
            .toString(QUrl::FullyEncoded)
            .toStdU16String();
    }
    QWidget& Window() { return window_; }
    QWebEngineView& Page() { return *window_.findChildren<QWebEngineView*>().last(); }
    /// What a script of the page gives.
    QVariant Run(const QString& script) {
        QVariant result;
        QEventLoop loop;
        Page().page()->runJavaScript(script, [&](const QVariant& given) {
            result = given;
            loop.quit();
        });
        loop.exec();
        return result;
    }

    std::function<void()> begins = [] {};
    std::function<void()> completes = [] {};

private:
    TempDir folder_;
    QWidget window_;
    LoadedWebEngines engines_{[this](const WebView&) { return &window_; }, true, KORVANE_WEB};
    ScriptedUser user_;
    Form form_{user_, "frmBrowser", u""};
    WebView view_{form_, "WebBrowser1"};
    std::unique_ptr<WebEngine> engine_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(WebEngine, PagesContract, WebEngineStage);

class WebEnginePagesTest : public PagesContract<WebEngineStage> {
protected:
    /// Waits until a script of the page has written its title.
    QString Title() {
        QSignalSpy titles(&stage.Page(), &QWebEngineView::titleChanged);
        while (!stage.Page().title().startsWith("told ") && titles.wait()) {
        }
        return stage.Page().title();
    }
    void GoToScript(const std::string& script) {
        server.Put("/script", "<p>Page</p><script>" + script + "</script>");
        GoTo(server.Address("/script"));
    }
};

TEST(WebEngineForTheAdministratorTest, ThereIsNone) {
    ScriptedUser user;
    Form form(user, "frmBrowser", u"");
    WebView view(form, "WebBrowser1");
    const auto noPlace = [](const WebView&) -> QWidget* { return nullptr; };
    EXPECT_EQ(LoadedWebEngines(noPlace, false, KORVANE_WEB).EngineFor(view), nullptr);
    EXPECT_NE(LoadedWebEngines(noPlace, true, KORVANE_WEB).EngineFor(view), nullptr);
}

TEST_F(WebEnginePagesTest, ScriptsRun) {
    GoToScript("document.title = 'told ' + (1 + 2)");
    EXPECT_EQ(Title(), "told 3");
}

TEST_F(WebEnginePagesTest, NoPermissionIsGranted) {
    GoToScript("navigator.geolocation.getCurrentPosition(() => document.title = 'told yes', "
               "error => document.title = 'told ' + error.code)");
    EXPECT_EQ(Title(), "told 1");
    GoToScript("navigator.mediaDevices.getUserMedia({audio: true}).then(() => document.title = 'told yes', "
               "error => document.title = 'told ' + error.name)");
    EXPECT_NE(Title(), "told yes");
    GoToScript("Notification.requestPermission().then(answer => document.title = 'told ' + answer)");
    EXPECT_EQ(Title(), "told denied");
}

TEST_F(WebEnginePagesTest, NoWindowIsOpenedAndNoDialogShown) {
    GoToScript("alert('a'); const yes = confirm('b'); const text = prompt('c');"
               "document.title = 'told ' + yes + text + window.open('about:blank')");
    EXPECT_EQ(Title(), "told falsenullnull");
    EXPECT_EQ(std::ranges::count_if(QApplication::topLevelWidgets(), &QWidget::isVisible), 1);
}

TEST_F(WebEnginePagesTest, NothingIsDownloaded) {
    server.Put("/page", "<p>Page</p>");
    GoTo(server.Address("/page"));
    server.Put(
        "/file", std::string(1000, 'x'),
        "Content-Type: application/octet-stream\r\nContent-Disposition: attachment; filename=file.bin");
    GoTo(server.Address("/file"));
    EXPECT_TRUE(Shows(u"Page"));
    const std::filesystem::path home = std::getenv("HOME");
    for (const auto& entry : std::filesystem::recursive_directory_iterator(home))
        EXPECT_EQ(entry.path().string().find("file.bin"), std::string::npos) << entry.path();
}

TEST_F(WebEnginePagesTest, APageOfTheNetDoesNotLeadToAFile) {
    const std::string file = ToUtf8(stage.AddFile("secret.htm", "<p>secret</p>"));
    server.Put("/p", "<p>Public</p><a id=link href='" + file + "'>a</a>");
    GoTo(server.Address("/p"));
    stage.Run("document.getElementById('link').click()");
    stage.Run("location.href = '" + QString::fromStdString(file) + "'");
    stage.Run("0");
    EXPECT_TRUE(Shows(u"Public"));
    EXPECT_EQ(stage.Page().url().scheme(), "http");
}

TEST_F(WebEnginePagesTest, APageOfTheDiskReadsNoOtherFileAndTellsNobody) {
    const std::string secret = ToUtf8(stage.AddFile("secret.txt", "secret"));
    const std::string away = ToUtf8(server.Address("/told"));
    GoTo(stage.AddFile("page.htm", "<p>Page</p><script>fetch('" + secret +
                                       "').then(r => r.text()).then(t => document.title = 'told ' + t)"
                                       ".catch(e => document.title = 'told no')</script><img src='" +
                                       away + "'>"));
    EXPECT_EQ(Title(), "told no");
    EXPECT_EQ(Asked("/told"), 0);
}

TEST_F(WebEnginePagesTest, APageOfTheDiskLeadsToOtherFiles) {
    stage.AddFile("b.htm", "<p>Beside it</p>");
    GoTo(stage.AddFile("a.htm", "<a id=link href='b.htm'>b</a>"));
    After([this] { stage.Run("document.getElementById('link').click()"); });
    EXPECT_TRUE(Shows(u"Beside it"));
}

TEST_F(WebEnginePagesTest, LinksToOtherProgramsLeadNowhere) {
    server.Put("/p", "<p>Public</p><a id=link href='mailto:a@x.org'>a</a>");
    GoTo(server.Address("/p"));
    stage.Run("document.getElementById('link').click()");
    stage.Run("0");
    EXPECT_TRUE(Shows(u"Public"));
}

TEST_F(WebEnginePagesTest, ThePageFillsItsPlaceAndTakesTheKeyboard) {
    server.Put("/p", "<p>Public</p>");
    GoTo(server.Address("/p"));
    EXPECT_EQ(stage.Page().parentWidget()->focusProxy(), &stage.Page());
    EXPECT_GT(stage.Page().width(), 300);
    EXPECT_EQ(stage.Page().accessibleName(), "Page");
}

TEST_F(WebEnginePagesTest, APageWhoseProcessEndsIsTold) {
    server.Put("/p", "<p>Public</p>");
    GoTo(server.Address("/p"));
    After([this] { kill(static_cast<pid_t>(stage.Page().page()->renderProcessPid()), SIGKILL); });
    EXPECT_TRUE(Shows(u"stopped working"));
    EXPECT_TRUE(Shows(server.Address("/p")));
    server.Put("/q", "<p>Next</p>");
    GoTo(server.Address("/q"));
    EXPECT_TRUE(Shows(u"Next"));
}

/// Counts how often a window gets the key with which its user leaves it.
class EscapeEar final : public QObject {
public:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return false;
        if (static_cast<const QKeyEvent&>(*event).key() != Qt::Key_Escape) return false;
        ++heard;
        act();
        return true;
    }

    int heard = 0;
    std::function<void()> act = [] {};
};

class WebEngineEscapeTest : public WebEnginePagesTest {
protected:
    void SetUp() override {
        stage.Window().installEventFilter(&ear);
        // A page that keeps the key for itself, as menus and boxes of pages do.
        GoToScript("addEventListener('keydown', key => key.preventDefault())");
        stage.Window().activateWindow();
        stage.Page().setFocus();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&stage.Window()));
    }
    void Press() { QTest::keyClick(stage.Window().windowHandle(), Qt::Key_Escape); }

    EscapeEar ear;
};

TEST_F(WebEngineEscapeTest, TheKeyLeavesThePageEachTimeOnce) {
    Press();
    EXPECT_EQ(ear.heard, 1);
    Press();
    EXPECT_EQ(ear.heard, 2);
}

TEST_F(WebEngineEscapeTest, TheEngineMayGoWithTheKey) {
    ear.act = [this] { stage.Renew(); };
    Press();
    EXPECT_EQ(ear.heard, 1);
    server.Put("/next", "<p>Next</p>");
    GoTo(server.Address("/next"));
    EXPECT_TRUE(Shows(u"Next"));
}

} // namespace
} // namespace korvane
