// Tests the lock and the clock of the real program with real keys.

#include "e2e/DeskTest.h"

namespace korvane::e2e {
namespace {

constexpr auto kLock = "^Wallpaper$";
constexpr auto kClock = "^Time & Date;  press any key to continue...$";

/// A picture of 2 x 2 white pixels.
std::string Bmp() {
    const std::string head("BM\x46\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\x02\0\0\0\x02\0\0\0\x01\0\x18\0", 30);
    return head + std::string(24, '\0') + std::string(16, '\xFF');
}

class LockTest : public DeskTest {
protected:
    void Start() {
        program = desk.Start({file.string()});
        main = desk.GoTo(kMain);
        ASSERT_NE(main, "");
    }
    /// Waits for a window of the program's name above all others.
    std::string BoxAbove(const std::string& window) {
        std::string box;
        const bool came = desk.Until([&] {
            box = desk.Screen().Topmost();
            return !box.empty() && box != window && box != lock && box != main;
        });
        return came ? box : "";
    }
    /// Presses a key of the lock and gives the answer to its question.
    void Answer(const std::string& answer) {
        desk.Press({"a"});
        box = BoxAbove(lock);
        ASSERT_NE(box, "");
        ASSERT_EQ(desk.GoTo(kMain, main), box);
        desk.Type(answer);
        desk.Press({"Return"});
    }
    void ExpectWrong() {
        const std::string message = BoxAbove(box);
        ASSERT_NE(message, "");
        ASSERT_TRUE(desk.Until([&] { return desk.GoTo(kMain, main) == message; }));
        desk.Press({"Return"});
        ASSERT_TRUE(desk.Gone(kMain, main));
        ASSERT_EQ(desk.GoTo(kLock), lock);
        EXPECT_EQ(desk.Screen().Topmost(), lock);
    }

    std::unique_ptr<Process> program;
    std::string main;
    std::string lock;
    std::string box;
};

TEST_F(LockTest, CoversTheDeskUntilThePasswordIsGiven) {
    WriteBytes(desk.Path("sea.bmp"), Bmp());
    Set(kWallpaperFile, desk.Path("sea.bmp").string());
    Set(kReturnPassword, "open sesame");
    ASSERT_NO_FATAL_FAILURE(Start());
    desk.Press({"F7"});
    lock = desk.GoTo(kLock);
    ASSERT_NE(lock, "");
    EXPECT_EQ(desk.Screen().Topmost(), lock);
    ASSERT_NO_FATAL_FAILURE(Answer("Open Sesame"));
    ASSERT_NO_FATAL_FAILURE(ExpectWrong());
    ASSERT_NO_FATAL_FAILURE(Answer(""));
    ASSERT_NO_FATAL_FAILURE(ExpectWrong());
    ASSERT_NO_FATAL_FAILURE(Answer("open sesame"));
    ASSERT_TRUE(desk.Gone(kLock));
    ASSERT_EQ(desk.GoTo(kMain), main);
    Edit(" and new");
    EXPECT_TRUE(SavedAs(file, "old and new")) << ReadBytes(file);
    Exit();
    EXPECT_EQ(program->ExitStatus(), 0);
}

TEST_F(LockTest, ASecondStartLeavesTheLockAboveAndItsFileIsOpenAfterwards) {
    const std::filesystem::path other = desk.Path("other.tbx");
    WriteBytes(other, Table(other, "old"));
    WriteBytes(desk.Path("sea.bmp"), Bmp());
    Set(kWallpaperFile, desk.Path("sea.bmp").string());
    Set(kReturnPassword, "sesame");
    ASSERT_NO_FATAL_FAILURE(Start());
    desk.Press({"F7"});
    lock = desk.GoTo(kLock);
    ASSERT_NE(lock, "");
    EXPECT_EQ(desk.Start({})->ExitStatus(), 0);
    EXPECT_TRUE(desk.Until([this] { return desk.Screen().Topmost() == lock; }));
    EXPECT_EQ(desk.Start({other.string()})->ExitStatus(), 0);
    EXPECT_TRUE(desk.Until([this] { return desk.Screen().Topmost() == lock; }));
    ASSERT_EQ(desk.GoTo(kLock), lock);
    ASSERT_NO_FATAL_FAILURE(Answer("wrong"));
    ASSERT_NO_FATAL_FAILURE(ExpectWrong());
    ASSERT_NO_FATAL_FAILURE(Answer("sesame"));
    ASSERT_TRUE(desk.Gone(kLock));
    ASSERT_EQ(desk.GoTo(kMain), main);
    Edit(" and new");
    EXPECT_TRUE(SavedAs(other, "old and new")) << ReadBytes(other);
    Exit();
    EXPECT_EQ(program->ExitStatus(), 0);
}

TEST_F(LockTest, ALostPictureIsReportedAndTheDeskIsCoveredAllTheSame) {
    Set(kWallpaperFile, desk.Path("lost.png").string());
    Set(kReturnPassword, "sesame");
    ASSERT_NO_FATAL_FAILURE(Start());
    desk.Press({"F7"});
    ASSERT_NE(desk.GoTo(kMain, main), "");
    desk.Press({"Return"});
    lock = desk.GoTo(kLock);
    ASSERT_NE(lock, "");
    ASSERT_NO_FATAL_FAILURE(Answer("sesame"));
    ASSERT_TRUE(desk.Gone(kLock));
    ASSERT_EQ(desk.GoTo(kMain), main);
    Exit();
    EXPECT_EQ(program->ExitStatus(), 0);
}

TEST_F(LockTest, TheClockGoesAtAnyKey) {
    ASSERT_NO_FATAL_FAILURE(Start());
    desk.Press({"alt+f", "Right", "Right", "Right", "Right", "Right", "Right", "Right", "Right", "t"});
    ASSERT_NE(desk.GoTo(kClock), "");
    desk.Press({"space"});
    ASSERT_TRUE(desk.Gone(kClock));
    ASSERT_EQ(desk.GoTo(kMain), main);
    Exit();
    EXPECT_EQ(program->ExitStatus(), 0);
}

} // namespace
} // namespace korvane::e2e
