// Tests what the user can do in the main window with the keyboard and the mouse.

#include "e2e/DeskTest.h"

namespace korvane::e2e {
namespace {

namespace fs = std::filesystem;

constexpr auto kRecentFiles = "^Recent files list$";
constexpr auto kLoadedFiles = "^Following asterisks mean text has been altered$";

// These are places in the main window at the size from the shipped settings.
constexpr int kStripY = 70;
constexpr int kTabX = 210;
constexpr int kFreeStripX = 900;

class ShellTest : public DeskTest {
protected:
    /// Starts the program with the table.
    void Start() {
        program = desk.Start({file.string()});
        main = desk.GoTo(kMain);
        ASSERT_NE(main, "");
    }
    /// Waits for a window of this title and closes it.
    void ExpectWindow(const std::string& title) {
        ASSERT_NE(desk.GoTo(title), "") << title;
        desk.Press({"Escape"});
        ASSERT_TRUE(desk.Gone(title)) << title;
        ASSERT_EQ(desk.GoTo(kMain), main);
    }
    void ExitInPeace() {
        Exit();
        EXPECT_EQ(program->ExitStatus(), 0);
    }

    std::unique_ptr<Process> program;
    std::string main;
};

TEST_F(ShellTest, MenusAreWalkedByTheirLetters) {
    ASSERT_NO_FATAL_FAILURE(Start());
    desk.Press({"alt+f", "f"});
    ASSERT_NO_FATAL_FAILURE(ExpectWindow(kFileInfo));
    desk.Press({"alt+w", "s"});
    ASSERT_NO_FATAL_FAILURE(ExpectWindow(kLoadedFiles));
    ExitInPeace();
}

TEST_F(ShellTest, KeysReachTheirCommands) {
    ASSERT_NO_FATAL_FAILURE(Start());
    desk.Press({"F5"});
    ASSERT_NO_FATAL_FAILURE(ExpectWindow(kRecentFiles));
    desk.Press({"F8"});
    ASSERT_NO_FATAL_FAILURE(ExpectWindow(kLoadedFiles));
    ExitInPeace();
}

TEST_F(ShellTest, TheNextTabComesByKey) {
    const fs::path other = desk.Path("other.tbx");
    WriteBytes(other, Table(other, "old"));
    ASSERT_NO_FATAL_FAILURE(Start());
    EXPECT_EQ(desk.Start({other.string()})->ExitStatus(), 0);
    ASSERT_EQ(desk.GoTo(kMain), main);
    desk.Press({"F12"});
    Edit(" on the first tab");
    EXPECT_TRUE(SavedAs(file, "old on the first tab")) << ReadBytes(file);
    EXPECT_EQ(ReadBytes(other), Table(other, "old"));
    ExitInPeace();
}

TEST_F(ShellTest, TheSideBarIsWalkedByTheKeyboardAndLeftAgain) {
    ASSERT_NO_FATAL_FAILURE(Start());
    desk.Press({"alt+x", "Down", "Down", "Return"});
    ASSERT_NO_FATAL_FAILURE(ExpectWindow(kFileInfo));
    desk.Press({"alt+x"});
    Edit(" and new");
    EXPECT_TRUE(SavedAs(file, "old and new")) << ReadBytes(file);
    ExitInPeace();
}

TEST_F(ShellTest, AContextClickOnATabTellsOfItsFile) {
    ASSERT_NO_FATAL_FAILURE(Start());
    desk.ContextClick(main, kTabX, kStripY);
    ASSERT_NO_FATAL_FAILURE(ExpectWindow(kFileInfo));
    ExitInPeace();
}

TEST_F(ShellTest, ThePopUpOfTheStripOpensByTheMouseAndIsChosenFromByTheKeyboard) {
    ASSERT_NO_FATAL_FAILURE(Start());
    desk.ContextClick(main, kFreeStripX, kStripY);
    ASSERT_TRUE(desk.Until([this] { return desk.Screen().Topmost() != main; }));
    desk.Press({"s"});
    ASSERT_NO_FATAL_FAILURE(ExpectWindow(kLoadedFiles));
    ExitInPeace();
}

TEST_F(ShellTest, ASecondStartBringsTheWindowToTheFrontAndGivesItTheKeyboard) {
    ASSERT_NO_FATAL_FAILURE(Start());
    desk.Screen().Cover();
    ASSERT_TRUE(desk.Until([this] { return desk.Screen().Topmost() != main; }));
    EXPECT_EQ(desk.Start({})->ExitStatus(), 0);
    EXPECT_TRUE(desk.Until([this] { return desk.Screen().Topmost() == main; }));
    EXPECT_TRUE(desk.Until([this] { return desk.Focused() == main; }));
    ExitInPeace();
}

TEST_F(ShellTest, TheStateFilesAreForTheirOwnersEyesOnly) {
    fs::permissions(desk.Path("Korvane.ini"), static_cast<fs::perms>(0644));
    ASSERT_NO_FATAL_FAILURE(Start());
    ExitInPeace();
    for (const auto* name : {"Korvane.ini", "Korvane.rec"}) {
        EXPECT_EQ(fs::status(desk.Path(name)).permissions(), fs::perms::owner_read | fs::perms::owner_write)
            << name;
    }
}

TEST_F(ShellTest, ComesUpWithStateFilesFullOfEveryByte) {
    std::string bytes;
    for (int line = 0; line < 300; ++line) {
        for (int i = 0; i < 16; ++i)
            bytes += static_cast<char>(16 * line + i);
        bytes += "\r\n";
    }
    WriteBytes(desk.Path("Korvane.ini"), bytes);
    WriteBytes(desk.Path("Korvane.rec"), bytes);
    ASSERT_NO_FATAL_FAILURE(Start());
    Edit(" and new");
    EXPECT_TRUE(SavedAs(file, "old and new")) << ReadBytes(file);
    ExitInPeace();
    EXPECT_TRUE(ReadBytes(desk.Path("Korvane.rec")).starts_with(file.string() + " | 0*"));
}

} // namespace
} // namespace korvane::e2e
