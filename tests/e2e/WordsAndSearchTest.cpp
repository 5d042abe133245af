// The word list and the search of the text window, by the keyboard alone.

#include "e2e/DeskTest.h"

namespace korvane::e2e {
namespace {

constexpr auto kText = "^Untitled.rtf$";
constexpr auto kFind = "^Find string$";

class WordsAndSearchTest : public DeskTest {
protected:
    /// Starts the program in the table's folder and opens the text window.
    void Start() {
        program = desk.Start({file.string()}, file.parent_path());
        main = desk.GoTo(kMain);
        ASSERT_NE(main, "");
        desk.Press({"ctrl+e"});
        ASSERT_NE(desk.GoTo(kText), "");
    }
    /// Adds a word to the list, which is open.
    void AddWord(const std::string& word) {
        desk.Press({"Insert"});
        ASSERT_NE(desk.GoTo(kMain, main), "");
        desk.Type(word);
        desk.Press({"Return"});
        ASSERT_TRUE(desk.Gone(kMain, main));
    }
    bool TextIsSavedWith(const std::string& word) {
        return desk.Until([&] { return ReadBytes(text).find(word) != std::string::npos; });
    }
    void LeaveTextAndProgram() {
        desk.Press({"alt+f", "x"});
        ASSERT_TRUE(desk.Gone(kText));
        ASSERT_NE(desk.GoTo(kMain), "");
        Exit();
        EXPECT_EQ(program->ExitStatus(), 0);
    }

    std::unique_ptr<Process> program;
    std::string main;
    std::filesystem::path text = desk.Path("Untitled.rtf");
};

TEST_F(WordsAndSearchTest, AWordOfTheListIsPutIntoATextAndFoundThere) {
    ASSERT_NO_FATAL_FAILURE(Start());
    desk.Press({"alt+e", "w"});
    ASSERT_NE(desk.GoTo("^File: .not yet saved!.  . Items: 0$"), "");
    ASSERT_NO_FATAL_FAILURE(AddWord("garden"));
    ASSERT_NE(desk.GoTo("^File: .not yet saved!.  . Items: 1$"), "");
    desk.Press({"Return"});
    ASSERT_TRUE(desk.Gone("^File: "));
    ASSERT_NE(desk.GoTo(kText), "");
    desk.Type(" and house");

    desk.Press({"ctrl+Home", "alt+e", "f"});
    ASSERT_NE(desk.GoTo(kFind), "");
    desk.Type("GARDEN");
    desk.Press({"Return", "Escape"});
    ASSERT_TRUE(desk.Gone(kFind));
    ASSERT_NE(desk.GoTo(kText), "");
    desk.Type("meadow");
    desk.Press({"ctrl+s"});
    EXPECT_TRUE(TextIsSavedWith("meadow and house")) << ReadBytes(text);
    ASSERT_NO_FATAL_FAILURE(LeaveTextAndProgram());
}

TEST_F(WordsAndSearchTest, ASearchWithoutAHitTellsSoAndStaysOpen) {
    ASSERT_NO_FATAL_FAILURE(Start());
    desk.Press({"alt+e", "f"});
    ASSERT_NE(desk.GoTo(kFind), "");
    desk.Type("garden");
    desk.Press({"Return"});
    ASSERT_NE(desk.GoTo(kMain, main), "");
    desk.Press({"Return"});
    ASSERT_TRUE(desk.Gone(kMain, main));
    ASSERT_NE(desk.GoTo(kFind), "");
    desk.Press({"Escape"});
    ASSERT_NE(desk.GoTo(kText), "");
    ASSERT_NO_FATAL_FAILURE(LeaveTextAndProgram());
}

} // namespace
} // namespace korvane::e2e
