// Writes a text with the keyboard alone: it is typed, formatted, saved and opened once more.

#include "e2e/DeskTest.h"

namespace korvane::e2e {
namespace {

namespace fs = std::filesystem;

constexpr auto kUntitled = "^Untitled.rtf$";
constexpr auto kParagraph = "^Paragraph$";
constexpr auto kAlign = "^Align and indent$";
constexpr auto kSave = "^Save text to disk$";
constexpr auto kLoad = "^Load a file into text window$";

class WritingTest : public DeskTest {
protected:
    void SetUp() override {
        ASSERT_NO_FATAL_FAILURE(DeskTest::SetUp());
        fs::create_directories(papers);
        desk.Watch(papers);
        program = desk.Start({file.string()}, papers);
        ASSERT_NE(desk.GoTo(kMain), "");
        ASSERT_NO_FATAL_FAILURE(OpenText());
    }
    void OpenText() {
        desk.Press({"ctrl+e"});
        ASSERT_NE(desk.GoTo(kUntitled), "");
    }
    void CloseText(const std::string& title) {
        desk.Press({"alt+f", "x"});
        ASSERT_TRUE(desk.Gone(title)) << title;
        ASSERT_NE(desk.GoTo(kMain), "");
    }
    /// Saves the text until its file has this. A first save can come before what a window does when it has
    /// closed.
    bool Saved(const std::string& piece) {
        return desk.Until([&] {
            desk.Press({"ctrl+s"});
            return Written("Untitled.rtf").find(piece) != std::string::npos;
        });
    }
    std::string Written(const std::string& name) const { return ReadBytes(papers / name); }
    /// Opens a window by keys of the text window.
    void Show(const std::vector<std::string>& keys, const std::string& title) {
        desk.Press(keys);
        ASSERT_NE(desk.GoTo(title), "") << title;
    }
    /// Presses the last keys in a window of the text, which close it.
    void Finish(const std::vector<std::string>& keys, const std::string& title) {
        desk.Press(keys);
        ASSERT_TRUE(desk.Gone(title)) << title;
    }
    /// Saves the text under a name that replaces the whole proposed one.
    void SaveAs(const std::string& name) {
        ASSERT_NO_FATAL_FAILURE(Show({"alt+f", "v"}, kSave));
        desk.Press({"ctrl+a"});
        desk.Type(name);
        ASSERT_NO_FATAL_FAILURE(Finish({"Return"}, kSave));
        ASSERT_NE(desk.GoTo(name + "$"), "");
    }
    /// Opens the only file of the folder.
    void Open(const std::string& name) {
        ASSERT_NO_FATAL_FAILURE(Show({"alt+f", "o"}, kLoad));
        ASSERT_NO_FATAL_FAILURE(Finish({"Return"}, kLoad));
        ASSERT_NE(desk.GoTo(name + "$"), "");
    }
    /// Types two paragraphs, and makes a word of each bold or italic. The cursor is at the end after that.
    void Write() {
        desk.Type("One strong word");
        desk.Press({"Return"});
        desk.Type("and a leaning");
        desk.Press({"ctrl+shift+Left", "ctrl+shift+i", "ctrl+Home", "ctrl+Right", "ctrl+shift+Right",
                    "ctrl+shift+b", "ctrl+End"});
    }

    fs::path papers = desk.Path("papers");
    std::unique_ptr<Process> program;
};

TEST_F(WritingTest, ALetterIsTypedFormattedSavedAndOpenedAgain) {
    Write();
    ASSERT_NO_FATAL_FAILURE(Show({"ctrl+2"}, kParagraph));
    ASSERT_NO_FATAL_FAILURE(Finish({"c", "Return"}, kParagraph));
    ASSERT_NE(desk.GoTo(kUntitled), "");
    ASSERT_NO_FATAL_FAILURE(SaveAs("letter.rtf"));
    ASSERT_TRUE(desk.Until([&] { return Written("letter.rtf").ends_with("}\n"); }));
    const std::string letter = Written("letter.rtf");
    for (const char* const piece : {"\\ql ", "One ", "\\b strong ", "\\qc and a ", "\\i leaning\\par\n}"})
        EXPECT_NE(letter.find(piece), std::string::npos) << piece << " in " << letter;
    ASSERT_NO_FATAL_FAILURE(CloseText("letter.rtf$"));

    ASSERT_NO_FATAL_FAILURE(OpenText());
    ASSERT_NO_FATAL_FAILURE(Open("letter.rtf"));
    ASSERT_NO_FATAL_FAILURE(SaveAs("copy.rtf"));
    EXPECT_TRUE(desk.Holds(papers / "copy.rtf", letter)) << Written("copy.rtf");
    ASSERT_NO_FATAL_FAILURE(SaveAs("plain.txt"));
    EXPECT_TRUE(desk.Holds(papers / "plain.txt", "One strong word\r\nand a leaning")) << Written("plain.txt");
    ASSERT_NO_FATAL_FAILURE(CloseText("plain.txt$"));
    Exit();
    EXPECT_EQ(program->ExitStatus(), 0);
}

TEST_F(WritingTest, AParagraphIsAlignedAndIndentedInTheWindowForIt) {
    Write();
    ASSERT_NO_FATAL_FAILURE(Show({"alt+e", "a"}, kAlign));
    // A button that is pressed by Alt and its letter acts a moment later. The blank acts at once, so that the
    // window can't close before.
    desk.Press({"End", "Up", "Up", "Up", "Tab", "space"});
    // The left indents are next, then the right ones, the hanging line, and the button.
    desk.Press({"Tab", "Down", "Down", "Tab", "Tab", "Tab", "space"});
    ASSERT_NO_FATAL_FAILURE(Finish({"Escape"}, kAlign));
    ASSERT_NE(desk.GoTo(kUntitled), "");
    EXPECT_TRUE(Saved("\\qj\\li1440")) << Written("Untitled.rtf");
    EXPECT_NE(Written("Untitled.rtf").find("\\ql \\plain"), std::string::npos) << Written("Untitled.rtf");
}

} // namespace
} // namespace korvane::e2e
