// The lister on folders of a real disk with which programs have trouble.

#include "context/exchange/ListerRequest.h"
#include "files/lister/frmGetFileFromTree.h"
#include "platform/native/NativeFileSystem.h"
#include "platform/native/NativePath.h"
#include "support/TempDir.h"
#include "support/TestApp.h"

#include <gmock/gmock.h>
#include <sys/fsuid.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <string>

namespace korvane {
namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::IsEmpty;

/// As long as it lives, the disk is used with the rights of a user who has none.
class WithoutRights {
public:
    WithoutRights() : before_(setfsuid(kNobody)) {}
    WithoutRights(const WithoutRights&) = delete;
    WithoutRights& operator=(const WithoutRights&) = delete;
    ~WithoutRights() { setfsuid(static_cast<uid_t>(before_)); }

private:
    static constexpr uid_t kNobody = 65534;
    int before_;
};

class AwkwardDisk : public testing::Test {
protected:
    AwkwardDisk() {
        app.Exchange<ListerRequest>().FileDialogFilter = u"*.*";
        app.Settings.FavGeoTree = -1;
    }
    // The lister makes its folder the current directory, and that goes with the test.
    ~AwkwardDisk() override { fs::current_path(fs::temp_directory_path()); }

    template <class ScriptT>
    void OpenOn(const fs::path& folder, ScriptT script) {
        app.Settings.TreeFormLastPath = FromNativePath(folder);
        t.user.On<frmGetFileFromTree>([script](frmGetFileFromTree& f) {
            f.Activate();
            f.FolderTimer.Elapse();
            script(f);
            if (f.Shown()) f.cmdCancel.Press();
        });
        frmGetFileFromTree(app).ShowModal();
    }
    static std::vector<Text> NamesIn(const frmGetFileFromTree& f) {
        std::vector<Text> names;
        for (int row = 1; row <= f.ListView1.Count(); ++row)
            names.emplace_back(f.ListView1.TextAt(row, 1));
        return names;
    }
    static void MakeSocket(const fs::path& path) {
        const int file = socket(AF_UNIX, SOCK_STREAM, 0);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        path.string().copy(static_cast<char*>(address.sun_path), sizeof address.sun_path - 1);
        ASSERT_EQ(bind(file, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
        close(file);
    }

    TempDir dir;
    NativeFileSystem files{u"/opt/korvane"};
    TestApp t;
    App app{{files, t.user, t.clipboard, t.clock, t.screen, t.shell, t.instance, t.user, nullptr}};
};

TEST_F(AwkwardDisk, AFolderThatMayNotBeReadIsEmptyAndCanBeLeft) {
    const fs::path closed = dir / "closed";
    fs::create_directory(closed);
    WriteBytes(closed / "a.txt", "a");
    fs::permissions(dir.Path(), fs::perms::all);
    fs::permissions(closed, fs::perms::none);
    WriteBytes(dir / "b.txt", "b");
    {
        const WithoutRights user;
        OpenOn(closed, [&](frmGetFileFromTree& f) {
            EXPECT_THAT(NamesIn(f), IsEmpty());
            EXPECT_EQ(f.txtFullPath.Text.Get(), FromNativePath(closed));
            f.TreeView1.Select(FromNativePath(dir.Path()));
            EXPECT_THAT(NamesIn(f), ElementsAre(u"b.txt"));
        });
    }
    fs::permissions(closed, fs::perms::all);
    EXPECT_THAT(t.user.Messages(), IsEmpty());
}

TEST_F(AwkwardDisk, PipesSocketsAndLinksAreListedAndNotOpened) {
    ASSERT_EQ(mkfifo((dir / "a pipe").c_str(), 0600), 0);
    MakeSocket(dir / "a socket");
    fs::create_symlink("nowhere", dir / "dangling");
    fs::create_symlink("circle", dir / "circle");
    fs::create_directory_symlink(".", dir / "folder");
    OpenOn(dir.Path(), [&](frmGetFileFromTree& f) {
        EXPECT_THAT(NamesIn(f), ElementsAre(u"a pipe", u"a socket", u"circle", u"dangling"));
        for (int row = 1; row <= f.ListView1.Count(); ++row) {
            t.user.Answer(Answer::Ok);
            f.ListView1.Select(row);
            f.cmdViewFile.Press();
        }
        EXPECT_EQ(t.user.Messages().size(), 4U);
        EXPECT_NE(f.TreeView1.Node(FromNativePath(dir / "folder")), nullptr);
    });
    EXPECT_THAT(t.shell.Starts(), IsEmpty());
}

TEST_F(AwkwardDisk, AnyNameIsListedAndFoundAgain) {
    const std::string longest(255, 'n');
    for (const std::string& name : {std::string("line\nbreak"), std::string("not \xFF text"), longest})
        WriteBytes(dir / name, "12345");
    OpenOn(dir.Path(), [&](frmGetFileFromTree& f) {
        ASSERT_EQ(f.ListView1.Count(), 3);
        for (int row = 1; row <= 3; ++row) {
            EXPECT_EQ(f.ListView1.TextAt(row, 2), u"5");
            const Text path = f.txtFullPath.Text.Get() + u"/" + Text(f.ListView1.TextAt(row, 1));
            EXPECT_TRUE(files.FileExists(path));
        }
    });
}

TEST_F(AwkwardDisk, AFolderBelowMoreNamesThanAPathMayHaveIsNotEntered) {
    fs::current_path(dir.Path());
    const std::string name(250, 'd');
    fs::path path = dir.Path();
    for (int level = 0; level < 20; ++level) {
        fs::create_directory(name);
        fs::current_path(name);
        path /= name;
    }
    fs::current_path(fs::temp_directory_path());
    ASSERT_GT(path.native().size(), 4096U);
    OpenOn(path, [&](frmGetFileFromTree& f) { EXPECT_EQ(f.txtFullPath.Text.Get(), files.CurrentDir()); });
    // As far as the system's paths reach, the tree does too.
    fs::path reached = dir.Path();
    for (int level = 0; level < 15; ++level)
        reached /= name;
    OpenOn(reached, [&](frmGetFileFromTree& f) {
        EXPECT_EQ(f.txtFullPath.Text.Get(), FromNativePath(reached));
        EXPECT_EQ(f.TreeView1.Selected(), FromNativePath(reached));
        f.TreeView1.SetExpanded(f.TreeView1.Selected(), true);
        f.FolderTimer.Elapse();
    });
}

TEST_F(AwkwardDisk, FilesThatVanishWhileTheyAreListedHaveTheirNamesAlone) {
    for (int number = 0; number < 1500; ++number)
        WriteBytes(dir / ("f" + std::to_string(10'000 + number)), "1");
    app.Settings.TreeFormLastPath = FromNativePath(dir.Path());
    t.user.On<frmGetFileFromTree>([this](frmGetFileFromTree& f) {
        t.screen.QueueMessage([this] {
            for (const auto& entry : fs::directory_iterator(dir.Path()))
                fs::remove(entry);
        });
        f.Activate();
        EXPECT_EQ(f.ListView1.Count(), 1500);
        EXPECT_EQ(f.ListView1.TextAt(1500, 1), u"f11499");
        EXPECT_EQ(f.ListView1.TextAt(1500, 2), u"");
        f.cmdCancel.Press();
    });
    frmGetFileFromTree(app).ShowModal();
}

} // namespace
} // namespace korvane
