// Runs the real program where there isn't enough memory.

#include "e2e/DeskTest.h"

namespace korvane::e2e {
namespace {

/// What the threads of the program and its message need.
constexpr std::uint64_t kRoom = 80U << 20U;
/// The text of the whole table takes twice as many bytes, which is more than that.
constexpr std::size_t kLines = 3'000;
constexpr std::size_t kLine = 20'000;

/// More rows for the end of the table, each of them one long line.
std::string ManyRows() {
    const std::string text(kLine, 'x');
    std::string rows;
    for (std::size_t row = 3; row < kLines; ++row)
        rows += "\r\n@row_" + std::to_string(row) + "\r\n?1000\r\n\xA7-1\r\n\xA7-1\r\n@col_1\r\n" + text;
    return rows;
}

TEST_F(DeskTest, ACommandThatNeedsTooMuchMemoryIsToldAndLeavesTheTable) {
    if (kSanitized) GTEST_SKIP() << "the sanitizer needs more memory than any limit leaves";
    WriteBytes(file, Table(file, "old" + ManyRows()));
    const auto program = desk.Start({file.string()});
    const std::string main = desk.GoTo(kMain);
    ASSERT_NE(main, "");
    desk.Press({"ctrl+shift+F7"});
    // The window that asks for the columns has no title.
    ASSERT_TRUE(desk.Until([&] { return desk.Screen().Topmost() != main; }));
    ASSERT_TRUE(program->LimitMemory(kRoom));
    desk.Press({"Return"});
    ASSERT_NE(desk.GoTo(kMain, main), "");
    desk.Press({"Return"});
    ASSERT_TRUE(desk.Gone(kMain, main));
    ASSERT_EQ(desk.GoTo(kMain), main);
    Exit();
    EXPECT_EQ(program->ExitStatus(), 0) << "the table isn't altered, so nothing is asked";
}

} // namespace
} // namespace korvane::e2e
