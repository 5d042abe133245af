#include "app/WindowsColours.h"

#include <windows.h>
#include <gtest/gtest.h>

#include <QByteArray>

namespace korvane {
namespace {

class WindowsColoursTest : public testing::Test {
protected:
    bool Passes(UINT number, const wchar_t* what, const QByteArray& type = "windows_generic_MSG") {
        MSG message{};
        message.message = number;
        message.lParam = reinterpret_cast<LPARAM>(what);
        return !colours.nativeEventFilter(type, &message, nullptr);
    }

    int changes = 0;
    WindowsColours colours{[this] { ++changes; }};
};

TEST_F(WindowsColoursTest, ANewChoiceOfColoursIsTold) {
    EXPECT_TRUE(Passes(WM_SETTINGCHANGE, L"ImmersiveColorSet"));
    EXPECT_EQ(changes, 1);
}

TEST_F(WindowsColoursTest, OtherMessagesAreNot) {
    EXPECT_TRUE(Passes(WM_SETTINGCHANGE, nullptr));
    EXPECT_TRUE(Passes(WM_SETTINGCHANGE, L"intl"));
    EXPECT_TRUE(Passes(WM_PAINT, L"ImmersiveColorSet"));
    EXPECT_TRUE(Passes(WM_SETTINGCHANGE, L"ImmersiveColorSet", "xcb_generic_event_t"));
    EXPECT_EQ(changes, 0);
}

} // namespace
} // namespace korvane
