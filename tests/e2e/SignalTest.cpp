// Ends the real program by the signals of the system.

#include "e2e/DeskTest.h"

#include <algorithm>
#include <csignal>

namespace korvane::e2e {
namespace {

namespace fs = std::filesystem;

class SignalTest : public DeskTest, public testing::WithParamInterface<int> {
protected:
    void Start() {
        program = desk.Start({file.string()});
        main = desk.GoTo(kMain);
        ASSERT_NE(main, "");
    }
    void ShowFileInfo() {
        desk.Press({"shift+F9"});
        ASSERT_NE(desk.GoTo(kFileInfo), "");
    }
    /// Whether the program has kept a table or a text with these words for its next start.
    bool KeepsUnsaved(const std::string& text) const {
        if (!fs::exists(desk.Path("state"))) return false;
        const fs::recursive_directory_iterator entries(desk.Path("state"));
        return std::any_of(begin(entries), end(entries), [&](const fs::directory_entry& entry) {
            return entry.is_regular_file() && ReadBytes(entry.path()).find(text) != std::string::npos;
        });
    }

    std::unique_ptr<Process> program;
    std::string main;
};

TEST_P(SignalTest, ClosesTheProgramInOrderWhereNothingIsChanged) {
    Start();
    fs::remove(desk.Path("Korvane.ini"));
    program->Signal(GetParam());
    EXPECT_EQ(program->ExitStatus(), 0);
    EXPECT_TRUE(fs::exists(desk.Path("Korvane.ini"))) << "a close writes the settings";
    EXPECT_FALSE(KeepsUnsaved("old"));
}

TEST_P(SignalTest, KeepsTheChangesThatAreNotSavedAndEnds) {
    Start();
    Edit("er");
    // The program takes keys in their order, so it has the edit when this window shows.
    ShowFileInfo();
    desk.Press({"Escape"});
    ASSERT_TRUE(desk.Gone(kFileInfo));
    program->Signal(GetParam());
    EXPECT_EQ(program->ExitStatus(), 0);
    EXPECT_EQ(ReadBytes(file), Table(file, "old")) << "nobody has agreed to a save";
    EXPECT_TRUE(KeepsUnsaved("older"));
}

TEST_P(SignalTest, KeepsATextThatIsNotSaved) {
    Start();
    desk.Press({"ctrl+e"});
    ASSERT_NE(desk.GoTo("^Untitled.rtf$"), "");
    desk.Type("unsaved words");
    // The program takes keys in their order, so it has the words when this window shows.
    desk.Press({"alt+f", "i"});
    ASSERT_NE(desk.GoTo(kFileInfo), "");
    program->Signal(GetParam());
    EXPECT_EQ(program->ExitStatus(), 0);
    EXPECT_TRUE(KeepsUnsaved("unsaved words"));
}

TEST_P(SignalTest, EndsTheProgramWhileAWindowWaitsForAnAnswer) {
    Start();
    fs::remove(desk.Path("Korvane.ini"));
    ShowFileInfo();
    program->Signal(GetParam());
    EXPECT_EQ(program->ExitStatus(), 0);
    EXPECT_TRUE(fs::exists(desk.Path("Korvane.ini")));
}

INSTANTIATE_TEST_SUITE_P(Signals, SignalTest, testing::Values(SIGTERM, SIGHUP));

} // namespace
} // namespace korvane::e2e
