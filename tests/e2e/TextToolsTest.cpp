// Opens the tools of the text window with the keyboard alone, and uses each of them.

#include "e2e/DeskTest.h"

namespace korvane::e2e {
namespace {

constexpr auto kText = "^Untitled.rtf$";
constexpr auto kFonts = "^Fonts and text styles$";

class TextToolsTest : public DeskTest {
protected:
    void SetUp() override {
        ASSERT_NO_FATAL_FAILURE(DeskTest::SetUp());
        WriteBytes(symbols, "sigma");
        Set(kSymbolListFile, symbols.string());
        program = desk.Start({file.string()}, desk.Path("."));
        main = desk.GoTo(kMain);
        ASSERT_NE(main, "");
        desk.Press({"ctrl+e"});
        ASSERT_NE(desk.GoTo(kText), "");
    }

    /// Opens a window by keys of the text window.
    void Open(const std::vector<std::string>& keys, const std::string& title) {
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

    /// Adds a word to the list and takes it.
    void TakeWord(const std::string& word) {
        const std::string list = "^File: .not yet saved!.  . Items: ";
        ASSERT_NO_FATAL_FAILURE(Open({"alt+e", "w"}, list));
        desk.Press({"Insert"});
        ASSERT_NE(desk.GoTo(kMain, main), "");
        desk.Type(word);
        desk.Press({"Return"});
        ASSERT_TRUE(desk.Gone(kMain, main));
        ASSERT_NE(desk.GoTo(list), "");
        ASSERT_NO_FATAL_FAILURE(Leave("Return", list));
    }
    /// Uses a window that stays open until Esc.
    void Use(const std::vector<std::string>& way, const std::string& title,
             const std::vector<std::string>& keys) {
        ASSERT_NO_FATAL_FAILURE(Open(way, title));
        desk.Press(keys);
        ASSERT_NO_FATAL_FAILURE(Leave("Escape", title));
    }
    /// Makes the whole text bold and red.
    void MakeBoldAndRed() {
        const std::string colours = "^Colours for selected text$";
        desk.Press({"ctrl+a"});
        ASSERT_NO_FATAL_FAILURE(Open({"ctrl+1"}, kFonts));
        desk.Press({"alt+b", "alt+o"});
        ASSERT_NE(desk.GoTo(colours), "");
        desk.Press({"Down", "Return"});
        ASSERT_TRUE(desk.Gone(colours));
        ASSERT_NE(desk.GoTo(kFonts), "");
        ASSERT_NO_FATAL_FAILURE(Leave("alt+a", kFonts));
    }
    /// Selects the word in the text by the search.
    void Find(const std::string& word) {
        const std::string find = "^Find string$";
        desk.Press({"ctrl+Home"});
        ASSERT_NO_FATAL_FAILURE(Open({"alt+e", "f"}, find));
        desk.Type(word);
        desk.Press({"Return"});
        ASSERT_NO_FATAL_FAILURE(Leave("Escape", find));
    }

    std::filesystem::path document = desk.Path("Untitled.rtf");
    std::filesystem::path symbols = desk.Path("symbols.lst");
    std::string main;
    std::unique_ptr<Process> program;
};

TEST_F(TextToolsTest, EveryWindowOpensAndCloses) {
    const std::pair<std::vector<std::string>, std::string> kWindows[] = {
        {{"ctrl+1"}, kFonts},
        {{"alt+e", "o"}, kFonts},
        {{"alt+e", "u"}, "^Symbol tables$"},
        {{"alt+e", "c"}, "^Insert symbols / characters$"},
        {{"alt+e", "b"}, "^Shapes & Symbols$"},
        {{"alt+m", "d"}, "^Date and time$"},
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

TEST_F(TextToolsTest, ATourOfAllToolsLeavesWhatEachOfThemDoes) {
    ASSERT_NO_FATAL_FAILURE(TakeWord("garden"));
    ASSERT_NO_FATAL_FAILURE(Use({"alt+e", "b"}, "^Shapes & Symbols$", {"Return"}));
    ASSERT_NO_FATAL_FAILURE(Use({"alt+e", "c"}, "^Insert symbols / characters$",
                                {"Down", "Down", "Down", "Down", "Right", "Right", "Return"}));
    ASSERT_NO_FATAL_FAILURE(Use({"alt+e", "u"}, "^Symbol tables$", {"ctrl+a", "Return"}));
    ASSERT_NO_FATAL_FAILURE(Open({"alt+m", "d"}, "^Date and time$"));
    ASSERT_NO_FATAL_FAILURE(Leave("alt+a", "^Date and time$"));
    ASSERT_NO_FATAL_FAILURE(MakeBoldAndRed());
    ASSERT_NO_FATAL_FAILURE(Find("garden"));
    desk.Type("meadow");
    ASSERT_TRUE(Saved("meadow")) << ReadBytes(document);
    const std::string written = ReadBytes(document);
    for (const char* const piece : {"Wingdings", "sigma", "\\b", "\\red255\\green0\\blue0"})
        EXPECT_NE(written.find(piece), std::string::npos) << piece << " in " << written;
    EXPECT_EQ(written.find("garden"), std::string::npos) << written;
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
