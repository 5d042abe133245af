// A program that tests start. `arguments FILE EVENT ...` writes to the file how it was started and sets the
// event. `copy FILE EVENT` is a running copy with its main window, and `early FILE EVENT` is one that has no
// main window yet. Both set the event when they are ready, write each path that they get to the file, and end
// at the path "end".

#include "common/text/Text.h"
#include "platform/windows/Win32CommandBox.h"
#include "platform/windows/WindowsText.h"

#include <windows.h>
#include <shellapi.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace korvane {
namespace {

std::vector<Text> Arguments() {
    int count = 0;
    LPWSTR* words = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<Text> arguments;
    for (int i = 1; i < count; ++i)
        arguments.push_back(FromWide(words[i]));
    LocalFree(words);
    return arguments;
}

void AddLine(const Text& file, TextView line) {
    std::ofstream(std::filesystem::path(ToWide(file)), std::ios::binary | std::ios::app)
        << ToUtf8(line) << '\n';
}

void Set(const Text& name) {
    const HANDLE event = OpenEventW(EVENT_MODIFY_STATE, FALSE, ToWide(name).c_str());
    SetEvent(event);
    CloseHandle(event);
}

void TellArguments(const std::vector<Text>& arguments) {
    STARTUPINFOW start{};
    GetStartupInfoW(&start);
    AddLine(arguments[1], start.wShowWindow == SW_SHOWMINIMIZED ? u"minimised" : u"normal");
    for (std::size_t i = 3; i < arguments.size(); ++i)
        AddLine(arguments[1], u"<" + arguments[i] + u">");
    Set(arguments[2]);
}

WindowHandle ShowMainWindow() {
    WNDCLASSA windowClass{};
    windowClass.lpfnWndProc = DefWindowProcA;
    windowClass.hInstance = GetModuleHandleA(nullptr);
    windowClass.lpszClassName = "ProbeMainWindow";
    RegisterClassA(&windowClass);
    return reinterpret_cast<WindowHandle>(
        CreateWindowExA(0, "ProbeMainWindow", "Korvane", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 300, 200,
                        nullptr, nullptr, GetModuleHandleA(nullptr), nullptr));
}

void BeRunningCopy(const std::vector<Text>& arguments) {
    Win32CommandBox box;
    box.Open([&](TextView text) {
        if (text == u"end") return PostQuitMessage(0);
        AddLine(arguments[1], text);
    });
    if (arguments[0] == u"copy") box.MoveTo(ShowMainWindow());
    Set(arguments[2]);
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0)
        DispatchMessageA(&message);
}

void Run(const std::vector<Text>& arguments) {
    if (arguments.size() < 3) return;
    if (arguments[0] == u"arguments") return TellArguments(arguments);
    BeRunningCopy(arguments);
}

} // namespace
} // namespace korvane

int main() {
    korvane::Run(korvane::Arguments());
}
