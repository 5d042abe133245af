// Tests the window for files, with the keyboard alone: choosing files and managing them.

#include "e2e/DeskTest.h"

namespace korvane::e2e {
namespace {

namespace fs = std::filesystem;

constexpr auto kLoad = "^Select a text database to edit$";
constexpr auto kSave = "^Save database to disk$";
constexpr auto kLister = "^Directory lister$";
constexpr auto kRename = "^Enter new name for file$";
constexpr auto kDuplicate = "^Enter name for file duplicate$";
constexpr auto kCopy = "^ Target for: .* . Copy . $";
constexpr auto kMove = "^ Target for: .* . Move . $";
constexpr auto kOverwrite = "^Please confirm";

class FilesTest : public DeskTest {
protected:
    void SetUp() override {
        ASSERT_NO_FATAL_FAILURE(DeskTest::SetUp());
        fs::create_directories(archive);
        file = papers / "people.tbx";
        WriteBytes(file, Table(file, "old"));
    }
    void Start(const std::vector<std::string>& arguments) {
        program = desk.Start(arguments, papers);
        main = desk.GoTo(kMain);
        ASSERT_NE(main, "");
    }
    void OpenLister() {
        desk.Press({"ctrl+F5"});
        ASSERT_NE(desk.GoTo(kLister), "");
    }
    /// Answers the message box, which has the title of the main window.
    void Answer(const std::string& key) {
        ASSERT_NE(desk.GoTo(kMain, main), "");
        desk.Press({key});
        ASSERT_TRUE(desk.Gone(kMain, main));
    }
    /// Types a name where its window selects the old one up to the extension.
    void Name(const std::string& title, const std::string& name) {
        ASSERT_NE(desk.GoTo(title), "") << title;
        desk.Type(name);
        desk.Press({"Return"});
    }
    /// Copies or moves all files to the archive, over what is there.
    void SendAll(const std::string& key, const std::string& title,
                 const std::vector<std::string>& stepsToArchive) {
        desk.Press({"ctrl+a", key});
        ASSERT_NE(desk.GoTo(title), "") << title;
        desk.Press(stepsToArchive);
        desk.Press({"ctrl+v"});
        ASSERT_NE(desk.GoTo(kOverwrite), "");
        desk.Press({"alt+a"});
        ASSERT_TRUE(desk.Gone(kOverwrite));
        ASSERT_NO_FATAL_FAILURE(Answer("alt+n"));
        ASSERT_TRUE(desk.Gone(title));
        ASSERT_NE(desk.GoTo(kLister), "");
    }
    void CloseAll() {
        desk.Press({"Escape"});
        ASSERT_TRUE(desk.Gone(kLister));
        ASSERT_EQ(desk.GoTo(kMain), main);
        Exit();
        EXPECT_EQ(program->ExitStatus(), 0);
    }

    fs::path papers = desk.Path("papers");
    fs::path archive = papers / "archive";
    std::unique_ptr<Process> program;
    std::string main;
};

TEST_F(FilesTest, ATableIsLoadedAndSavedUnderANewNameAndOverAnOldOne) {
    ASSERT_NO_FATAL_FAILURE(Start({}));
    desk.Press({"ctrl+o"});
    ASSERT_NE(desk.GoTo(kLoad), "");
    desk.Press({"Return"});
    ASSERT_TRUE(desk.Gone(kLoad));
    ASSERT_EQ(desk.GoTo(kMain), main);
    Edit(" and new");
    desk.Press({"F10"});
    const fs::path second = papers / "second.tbx";
    ASSERT_NO_FATAL_FAILURE(Name(kSave, "second"));
    EXPECT_TRUE(desk.Holds(second, Table(second, "old and new"))) << ReadBytes(second);
    ASSERT_TRUE(desk.Gone(kSave));
    ASSERT_EQ(desk.GoTo(kMain), main);
    EXPECT_EQ(ReadBytes(file), Table(file, "old"));

    desk.Press({"F10"});
    ASSERT_NO_FATAL_FAILURE(Name(kSave, "people"));
    ASSERT_NO_FATAL_FAILURE(Answer("alt+n"));
    EXPECT_EQ(ReadBytes(file), Table(file, "old"));
    ASSERT_NE(desk.GoTo(kSave), "");
    desk.Press({"Return"});
    ASSERT_NO_FATAL_FAILURE(Answer("alt+y"));
    EXPECT_TRUE(desk.Holds(file, Table(file, "old and new"))) << ReadBytes(file);
    ASSERT_TRUE(desk.Gone(kSave));
    ASSERT_EQ(desk.GoTo(kMain), main);
    Exit();
    EXPECT_EQ(program->ExitStatus(), 0);
}

TEST_F(FilesTest, AFileIsRenamedDuplicatedAndThrownAway) {
    fs::remove(file);
    WriteBytes(papers / "a letter.txt", "Dear all");
    ASSERT_NO_FATAL_FAILURE(Start({}));
    ASSERT_NO_FATAL_FAILURE(OpenLister());
    desk.Press({"F2"});
    ASSERT_NO_FATAL_FAILURE(Name(kRename, "b letter"));
    EXPECT_TRUE(desk.Holds(papers / "b letter.txt", "Dear all"));
    EXPECT_FALSE(fs::exists(papers / "a letter.txt"));
    ASSERT_TRUE(desk.Gone(kRename));
    ASSERT_NE(desk.GoTo(kLister), "");

    // Two entries have this letter.
    desk.Press({"alt+e", "d", "Return"});
    ASSERT_NO_FATAL_FAILURE(Name(kDuplicate, "copy"));
    EXPECT_TRUE(desk.Holds(papers / "copy.txt", "Dear all"));
    ASSERT_TRUE(desk.Gone(kDuplicate));
    ASSERT_NE(desk.GoTo(kLister), "");

    desk.Press({"Home", "Delete"});
    ASSERT_NO_FATAL_FAILURE(Answer("alt+y"));
    EXPECT_TRUE(desk.Holds(desk.Path(".local/share/Trash/files/b letter.txt"), "Dear all"));
    EXPECT_FALSE(fs::exists(papers / "b letter.txt"));
    EXPECT_EQ(ReadBytes(papers / "copy.txt"), "Dear all");
    ASSERT_NE(desk.GoTo(kLister), "");
    CloseAll();
}

TEST_F(FilesTest, AllFilesAreCopiedAndMovedOverOldOnes) {
    for (const auto* name : {"one.txt", "two.txt"}) {
        WriteBytes(papers / name, std::string("new ") + name);
        WriteBytes(archive / name, "old");
    }
    ASSERT_NO_FATAL_FAILURE(Start({}));
    ASSERT_NO_FATAL_FAILURE(OpenLister());
    ASSERT_NO_FATAL_FAILURE(SendAll("ctrl+c", kCopy, {"Down"}));
    for (const auto* name : {"one.txt", "two.txt"}) {
        EXPECT_EQ(ReadBytes(papers / name), std::string("new ") + name);
        EXPECT_EQ(ReadBytes(archive / name), std::string("new ") + name);
    }
    EXPECT_EQ(ReadBytes(archive / "people.tbx"), Table(file, "old"));

    WriteBytes(papers / "one.txt", "newest");
    // The window begins where the last copies went.
    ASSERT_NO_FATAL_FAILURE(SendAll("ctrl+x", kMove, {}));
    EXPECT_EQ(ReadBytes(archive / "one.txt"), "newest");
    for (const auto* name : {"one.txt", "two.txt", "people.tbx"}) {
        EXPECT_FALSE(fs::exists(papers / name)) << name;
        EXPECT_TRUE(fs::exists(archive / name)) << name;
    }
    CloseAll();
}

} // namespace
} // namespace korvane::e2e
