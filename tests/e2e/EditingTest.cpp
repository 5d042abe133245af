#include "e2e/DeskTest.h"

namespace korvane::e2e {
namespace {

class EditingTest : public DeskTest {};

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
    // The question's title is the same as the main window's.
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

TEST_F(EditingTest, TheFontOfTheTableIsChosenByTheKeyboard) {
    const auto program = desk.Start({file.string()});
    const std::string main = desk.GoTo(kMain);
    ASSERT_NE(main, "");
    desk.Press({"alt+v", "t"});
    ASSERT_NE(desk.GoTo("^Fonts and text styles$"), "");
    // From the fonts to the sizes, and to the last of them.
    desk.Press({"Tab", "End", "Return"});
    ASSERT_TRUE(desk.Gone("^Fonts and text styles$"));
    ASSERT_EQ(desk.GoTo(kMain), main);
    // A first save can come before the table has the font.
    EXPECT_TRUE(desk.Until([&] {
        desk.Press({"ctrl+s"});
        return ReadBytes(file).find("\n!72\r") != std::string::npos;
    })) << ReadBytes(file);
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

TEST_F(EditingTest, ASecondStartDuringADialogLeavesTheKeyboardToTheTable) {
    const std::filesystem::path other = desk.Path("other.tbx");
    WriteBytes(other, Table(other, "old"));
    const auto first = desk.Start({file.string()});
    const std::string main = desk.GoTo(kMain);
    ASSERT_NE(main, "");
    desk.Press({"shift+F9"});
    ASSERT_NE(desk.GoTo(kFileInfo), "");
    EXPECT_EQ(desk.Start({other.string()})->ExitStatus(), 0);
    ASSERT_NE(desk.GoTo(kFileInfo), "");
    desk.Press({"Escape"});
    ASSERT_TRUE(desk.Gone(kFileInfo));
    ASSERT_EQ(desk.GoTo(kMain), main);
    Edit(" and typed after the dialog");
    EXPECT_TRUE(SavedAs(other, "old and typed after the dialog")) << ReadBytes(other);
    EXPECT_EQ(ReadBytes(file), Table(file, "old"));
    Exit();
    EXPECT_EQ(first->ExitStatus(), 0);
}

} // namespace
} // namespace korvane::e2e
