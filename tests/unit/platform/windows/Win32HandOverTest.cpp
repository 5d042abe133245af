// Tests a real second start against a real running copy. Windows can be listed only on a display.

#include "platform/windows/AnsiText.h"
#include "platform/windows/Win32Shell.h"
#include "platform/windows/Win32WindowList.h"
#include "platform/windows/WindowHandOver.h"
#include "unit/platform/windows/Probe.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

/// A box of this process that is never written into.
class NoBox final : public CommandBox {
public:
    void Open(std::function<void(TextView text)>) override {}
};

struct Win32HandOver : testing::Test {
    ~Win32HandOver() override {
        if (process_ == nullptr) return;
        TerminateProcess(process_, 1);
        CloseHandle(process_);
    }

    bool Start(const Text& kind) {
        const int task =
            Win32Shell().Run(Probe::Program(), {kind, probe.File(), probe.Event()}, WindowState::Normal);
        process_ = OpenProcess(SYNCHRONIZE | PROCESS_TERMINATE, FALSE, static_cast<DWORD>(task));
        return process_ != nullptr && probe.Ready();
    }

    bool HandOver(TextView path) {
        return channel.FindReceiver() && channel.WaitUntilSlotEmpty() && channel.Deliver(path);
    }

    bool Ends() const { return WaitForSingleObject(process_, 60'000) == WAIT_OBJECT_0; }

    Probe probe;
    Win32WindowList windows;
    NoBox box;
    WindowHandOver channel{windows, box};

private:
    HANDLE process_ = nullptr;
};

TEST_F(Win32HandOver, FindsNobodyWhereNoCopyRuns) {
    EXPECT_FALSE(channel.FindReceiver());
    EXPECT_FALSE(channel.Deliver(u"C:\\a.tbx"));
}

TEST_F(Win32HandOver, EachPathArrivesAndLeavesTheSlotEmpty) {
    ASSERT_TRUE(Start(u"copy"));
    EXPECT_TRUE(HandOver(u"C:\\Data\\a b.tbx"));
    EXPECT_TRUE(HandOver(u"C:\\Data\\c.tbx"));
    EXPECT_EQ(probe.Told(), "C:\\Data\\a b.tbx\nC:\\Data\\c.tbx\n");
    EXPECT_TRUE(HandOver(u"end"));
    EXPECT_TRUE(Ends());
}

TEST_F(Win32HandOver, APathArrivesInTheSystemsCodePage) {
    constexpr TextView kPath = u"C:\\K\u00E4se \u4E2D.tbx";
    ASSERT_TRUE(Start(u"copy"));
    EXPECT_TRUE(HandOver(kPath));
    EXPECT_EQ(probe.Told(), ToUtf8(FromAnsi(ToAnsi(kPath))) + "\n");
}

TEST_F(Win32HandOver, APathArrivesBeforeTheMainWindowIsThere) {
    ASSERT_TRUE(Start(u"early"));
    EXPECT_TRUE(HandOver(u"C:\\Data\\a b.tbx"));
    EXPECT_EQ(probe.Told(), "C:\\Data\\a b.tbx\n");
}

TEST_F(Win32HandOver, TheRunningCopyComesToTheFront) {
    ASSERT_TRUE(Start(u"copy"));
    ASSERT_TRUE(channel.FindReceiver());
    channel.ActivateRunning();
    const auto front = reinterpret_cast<WindowHandle>(GetForegroundWindow());
    EXPECT_EQ(windows.WindowText(front, 100), u"Korvane");
}

} // namespace
} // namespace korvane
