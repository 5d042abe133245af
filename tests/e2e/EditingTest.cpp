#include "e2e/Desk.h"

#include <gtest/gtest.h>

namespace korvane::e2e {
namespace {

constexpr auto kMain = "^Korvane$";
constexpr auto kFileInfo = "^File information$";

/// A table of two columns and two rows as the program writes it to `path`.
std::string Table(const std::filesystem::path& path, const std::string& changedCell) {
    const std::vector<std::string> lines{";",
                                         "; Values for colour, font type, font size, cell height, cell width",
                                         ";",
                                         "!16777215",
                                         "!Calibri",
                                         "!12",
                                         "!372",
                                         ";",
                                         "; Column names",
                                         ";",
                                         "!Name",
                                         "!1920",
                                         "!Note",
                                         "!1920",
                                         ";",
                                         "; File data",
                                         ";",
                                         "@row_1",
                                         "?1000",
                                         "\xA7-1",
                                         "\xA7-1",
                                         "@col_1",
                                         "Anna",
                                         "@col_2",
                                         "first line",
                                         "second line",
                                         "@row_2",
                                         "?00B0",
                                         "\xA7"
                                         "65535",
                                         "\xA7"
                                         "0",
                                         "@col_1",
                                         "Bert",
                                         "@col_2",
                                         changedCell,
                                         ";",
                                         "; End of File: " + path.string(),
                                         ";"};
    std::string bytes;
    for (const std::string& line : lines)
        bytes += line + "\r\n";
    return bytes;
}

class EditingTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(desk.Stands()) << "Xvfb didn't start";
        WriteBytes(file, Table(file, "old"));
    }

    /// Edits the second cell of the second row behind its text.
    void Edit(const std::string& typed) {
        desk.Press({"ctrl+Home", "Down", "Right", "F2"});
        desk.Type(typed);
        desk.Press({"Return"});
    }
    /// Saves, and waits until the file holds the table with this cell.
    bool SavedAs(const std::filesystem::path& saved, const std::string& cell) {
        desk.Press({"ctrl+s"});
        return Until([&] { return ReadBytes(saved) == Table(saved, cell); });
    }
    void Exit() { desk.Press({"alt+f", "x"}); }

    Desk desk;
    std::filesystem::path file = desk.Path("table of people.tbx");
};

TEST_F(EditingTest, ACellIsEditedAndSavedByTheKeyboard) {
    const auto program = desk.Start({file.string()});
    ASSERT_NE(desk.GoTo(kMain), "");
    Edit(" and new");
    EXPECT_TRUE(SavedAs(file, "old and new")) << ReadBytes(file);
    Exit();
    EXPECT_EQ(program->ExitStatus(), 0);
}

TEST_F(EditingTest, TheClosingQuestionKeepsOrDropsAChange) {
    const auto program = desk.Start({file.string()});
    const std::string main = desk.GoTo(kMain);
    ASSERT_NE(main, "");
    desk.Press({"ctrl+Home"});
    desk.Type("typed over");
    Exit();
    // The question has the program's name, too.
    ASSERT_NE(desk.GoTo(kMain, main), "");
    desk.Press({"Escape"});
    ASSERT_TRUE(desk.Gone(kMain, main));
    ASSERT_EQ(desk.GoTo(kMain), main);
    EXPECT_TRUE(program->Running());
    Exit();
    ASSERT_NE(desk.GoTo(kMain, main), "");
    desk.Press({"alt+n"});
    EXPECT_EQ(program->ExitStatus(), 0);
    EXPECT_EQ(ReadBytes(file), Table(file, "old"));
}

TEST_F(EditingTest, TheFileInformationComesAndGoes) {
    const auto program = desk.Start({file.string()});
    ASSERT_NE(desk.GoTo(kMain), "");
    desk.Press({"shift+F9"});
    ASSERT_NE(desk.GoTo(kFileInfo), "");
    desk.Press({"Escape"});
    ASSERT_TRUE(desk.Gone(kFileInfo));
    ASSERT_NE(desk.GoTo(kMain), "");
    Exit();
    EXPECT_EQ(program->ExitStatus(), 0);
}

TEST_F(EditingTest, ASecondStartHandsItsFileOver) {
    const std::filesystem::path other = desk.Path("other.tbx");
    WriteBytes(other, Table(other, "old"));
    const auto first = desk.Start({file.string()});
    ASSERT_NE(desk.GoTo(kMain), "");
    const auto second = desk.Start({other.string()});
    EXPECT_EQ(second->ExitStatus(), 0);
    ASSERT_NE(desk.GoTo(kMain), "");
    Edit(" but handed over");
    EXPECT_TRUE(SavedAs(other, "old but handed over")) << ReadBytes(other);
    EXPECT_EQ(ReadBytes(file), Table(file, "old"));
    Exit();
    EXPECT_EQ(first->ExitStatus(), 0);
}

} // namespace
} // namespace korvane::e2e
