// Opens the windows for fonts, characters and dates from the text window with the keyboard alone.

#include "e2e/DeskTest.h"

namespace korvane::e2e {
namespace {

constexpr auto kText = "^Untitled.rtf$";

class TextToolsTest : public DeskTest {
protected:
    void SetUp() override {
        ASSERT_NO_FATAL_FAILURE(DeskTest::SetUp());
        program = desk.Start({file.string()}, desk.Path("."));
        ASSERT_NE(desk.GoTo(kMain), "");
        desk.Press({"ctrl+e"});
        ASSERT_NE(desk.GoTo(kText), "");
    }

    /// Opens a window by keys of the text window.
    void Open(const std::vector<std::string>& keys, const std::string& title) {
        desk.Press(keys);
        // The text window can have the keyboard before its text has it.
        if (desk.GoTo(title) != "") return;
        desk.Press(keys);
        ASSERT_NE(desk.GoTo(title), "") << title;
    }
    void Leave(const std::string& key, const std::string& title) {
        desk.Press({key});
        ASSERT_TRUE(desk.Gone(title)) << title;
        ASSERT_NE(desk.GoTo(kText), "");
    }
    /// Saves the text until its file has this. A first save can come before what a window does when it has
    /// closed.
    bool Saved(const std::string& piece) {
        return desk.Until([&] {
            desk.Press({"ctrl+s"});
            return ReadBytes(document).find(piece) != std::string::npos;
        });
    }

    std::filesystem::path document = desk.Path("Untitled.rtf");
    std::unique_ptr<Process> program;
};

TEST_F(TextToolsTest, EveryWindowOpensAndCloses) {
    const std::pair<std::vector<std::string>, std::string> kWindows[] = {
        {{"ctrl+1"}, "^Fonts and text styles$"}, {{"alt+e", "o"}, "^Fonts and text styles$"},
        {{"alt+e", "u"}, "^Symbol tables$"},     {{"alt+e", "c"}, "^Insert symbols / characters$"},
        {{"alt+e", "b"}, "^Shapes & Symbols$"},  {{"alt+m", "d"}, "^Date and time$"},
    };
    for (const auto& [keys, title] : kWindows) {
        ASSERT_NO_FATAL_FAILURE(Open(keys, title));
        ASSERT_NO_FATAL_FAILURE(Leave("Escape", title));
    }
}

TEST_F(TextToolsTest, ACharacterOfTheTableComesIntoTheText) {
    const std::string table = "^Insert symbols / characters$";
    desk.Type("typed");
    ASSERT_NO_FATAL_FAILURE(Open({"alt+e", "c"}, table));
    desk.Press({"Down", "Down", "Down", "Down", "Right", "Return", "Right", "Return"});
    ASSERT_NO_FATAL_FAILURE(Leave("Escape", table));
    EXPECT_TRUE(Saved("typedAB")) << ReadBytes(document);
}

TEST_F(TextToolsTest, TheDateComesIntoTheText) {
    const std::string window = "^Date and time$";
    ASSERT_NO_FATAL_FAILURE(Open({"alt+m", "d"}, window));
    // The time alone, whose last form has a colon and no words.
    desk.Press({"alt+t", "alt+a"});
    ASSERT_TRUE(desk.Gone(window));
    EXPECT_TRUE(Saved(":")) << ReadBytes(document);
}

} // namespace
} // namespace korvane::e2e
