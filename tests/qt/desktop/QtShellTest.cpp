#include "platform/qt/desktop/QtShell.h"

#include "platform/native/NativePath.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDesktopServices>
#include <QDir>
#include <QUrl>
#include <vector>

namespace korvane {
namespace {

/// Catches what would be opened by the desktop's own programs.
class UrlCatcher : public QObject {
    Q_OBJECT
public:
    UrlCatcher() {
        for (const char* scheme : {"file", "trash", "http", "https", "ssh"})
            QDesktopServices::setUrlHandler(scheme, this, "Catch");
    }
    ~UrlCatcher() override {
        for (const char* scheme : {"file", "trash", "http", "https", "ssh"})
            QDesktopServices::unsetUrlHandler(scheme);
    }

    std::vector<QUrl> urls;

public slots:
    void Catch(const QUrl& url) { urls.push_back(url); }
};

std::vector<QUrl> Files(std::initializer_list<QString> paths) {
    std::vector<QUrl> urls;
    for (const QString& path : paths)
        urls.push_back(QUrl::fromLocalFile(path));
    return urls;
}

TEST(QtShell, OpensAFileWithTheDesktopsProgram) {
    UrlCatcher desktop;
    QtShell shell;
    shell.Open({.file = u"/data/a file.rtf"});
    shell.Open({u"explore", u"/data", u"", u"/data"});
    shell.Open({u"Open", u"explorer.exe", u"/data/page.url", u""});
    EXPECT_EQ(desktop.urls, Files({"/data/a file.rtf", "/data", "/data/page.url"}));
}

TEST(QtShell, TakesANameForAFileEvenIfItReadsLikeAnAddressOrAnOption) {
    UrlCatcher desktop;
    QtShell shell;
    shell.Open({.file = u"trash:///x"});
    shell.Open({.file = u"--exec=evil"});
    shell.Open({.file = u"/d/a%20b#c?d"});
    const QString here = QDir::currentPath();
    EXPECT_EQ(desktop.urls, Files({here + "/trash:///x", here + "/--exec=evil", "/d/a%20b#c?d"}));
}

TEST(QtShell, OpensAFileWhoseNameIsNoText) {
    UrlCatcher desktop;
    QtShell shell;
    shell.Open({.file = FromNativePath("/data/not \xFF text.mp3")});
    ASSERT_EQ(desktop.urls.size(), 1u);
    EXPECT_EQ(desktop.urls.front().toEncoded(), "file:///data/not%20%FF%20text.mp3");
}

TEST(QtShell, OpensTheHomeFolderAndTheTrashForTheFileManager) {
    UrlCatcher desktop;
    QtShell shell;
    shell.Open({u"Open", u"explorer.exe", u"", u"0"});
    shell.Open({u"Open", u"explorer.exe", Text(kRecycleStoreParameters), u"0"});
    EXPECT_EQ(desktop.urls, (std::vector<QUrl>{QUrl::fromLocalFile(QDir::homePath()), QUrl("trash:///")}));
}

TEST(QtShell, ExploresAFolder) {
    UrlCatcher desktop;
    QtShell shell;
    shell.Explore(u"/data/sub folder");
    shell.Explore(u"");
    EXPECT_EQ(desktop.urls, Files({"/data/sub folder"}));
}

TEST(QtShell, BrowsesAddressesOfTheWebAlone) {
    UrlCatcher desktop;
    QtShell shell;
    shell.Browse(u"https://x.org/a b?c#d");
    shell.Browse(u"HTTP://x.org");
    shell.Browse(u"ssh://x.org");
    shell.Browse(u"/data/page.htm");
    shell.Browse(u"");
    EXPECT_EQ(desktop.urls, (std::vector<QUrl>{QUrl("https://x.org/a b?c#d"), QUrl("http://x.org")}));
}

TEST(QtShell, MovesAFileToTheTrashOfTheUser) {
    const TempDir dir;
    qputenv("XDG_DATA_HOME", QByteArray::fromStdString((dir / "data").native()));
    WriteBytes(dir / "a file.txt", "contents");
    const Text path = FromUtf8((dir / "a file.txt").native());
    QtShell shell;
    EXPECT_TRUE(shell.Recycle(path, RecycleTalk::Silent));
    EXPECT_FALSE(shell.Recycle(path, RecycleTalk::Silent));
    EXPECT_EQ(ReadBytes(dir / "data/Trash/files/a file.txt"), "contents");
    EXPECT_FALSE(std::filesystem::exists(dir / "a file.txt"));
    qunsetenv("XDG_DATA_HOME");
}

TEST(QtShell, OpensNothingForNothing) {
    UrlCatcher desktop;
    QtShell().Open({});
    EXPECT_TRUE(desktop.urls.empty());
}

TEST(QtShell, StartsNeitherALostNorAnEmptyProgram) {
    QtShell shell;
    EXPECT_EQ(shell.Run(u"/no/such/program", {u"x"}, WindowState::Normal), 0);
    EXPECT_EQ(shell.Run(u"", {u"/bin/true"}, WindowState::Normal), 0);
    EXPECT_EQ(shell.Run(u"/bin/true; touch x", {}, WindowState::Normal), 0);
}

TEST(QtShell, HandsEachArgumentOverAsItStands) {
    const TempDir dir;
    const std::filesystem::path source = dir / "-a $(touch b);`id` \"c'\n*&|> \\d";
    WriteBytes(source, "payload");
    const std::filesystem::path pipe = dir / "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    QtShell shell;
    ASSERT_EQ(
        shell.Run(u"/bin/cp", {FromUtf8(source.native()), FromUtf8(pipe.native())}, WindowState::Normal), 1);
    // Opening the pipe waits until the program opens it for writing.
    EXPECT_EQ(ReadBytes(pipe), "payload");
}

TEST(QtShell, HandsTenThousandAddressesOver) {
    const TempDir dir;
    const std::filesystem::path pipe = dir / "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    std::vector<Text> words{u"-c", u"echo $# \"$1\" > " + FromUtf8(pipe.native()), u"sh"};
    words.resize(words.size() + 10'000, u"https://www.example.org/a/page?of=many&with=a+long+address");
    ASSERT_EQ(QtShell().Run(u"/bin/sh", words, WindowState::Normal), 1);
    EXPECT_EQ(ReadBytes(pipe), "10000 https://www.example.org/a/page?of=many&with=a+long+address\n");
}

} // namespace
} // namespace korvane

#include "QtShellTest.moc"
