#include "platform/windows/Win32CommandBox.h"

#include "platform/windows/AnsiText.h"

#include <windows.h>

#include <string>
#include <utility>

namespace korvane {

namespace {

constexpr const char* kStandInClass = "KorvaneStandIn";
constexpr const char* kPictureBoxClass = "ThunderKorvanePictureBoxDC";
constexpr const char* kTextBoxClass = "ThunderKorvaneTextBox";
constexpr const char* kTitle = "Korvane";

HWND ToHwnd(WindowHandle window) {
    return reinterpret_cast<HWND>(window);
}

void RegisterOnce(const char* className, WNDPROC procedure) {
    WNDCLASSA windowClass{};
    windowClass.lpfnWndProc = procedure;
    windowClass.hInstance = GetModuleHandleA(nullptr);
    windowClass.lpszClassName = className;
    RegisterClassA(&windowClass);
}

WindowHandle Create(const char* className, const char* title, WindowHandle parent, void* owner) {
    const DWORD style = parent == kNoWindow ? WS_POPUP : WS_CHILD;
    return reinterpret_cast<WindowHandle>(CreateWindowExA(
        0, className, title, style, 0, 0, 0, 0, ToHwnd(parent), nullptr, GetModuleHandleA(nullptr), owner));
}

Text OwnText(HWND window) {
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(window)) + 1, '\0');
    text.resize(static_cast<std::size_t>(GetWindowTextA(window, text.data(), static_cast<int>(text.size()))));
    return FromAnsi(text);
}

} // namespace

struct Win32CommandBox::Procedure {
    static LRESULT CALLBACK Run(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_NCCREATE) {
            const auto* create = reinterpret_cast<const CREATESTRUCTA*>(lParam);
            SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(create->lpCreateParams));
        }
        const LRESULT result = DefWindowProcA(window, message, wParam, lParam);
        auto* box = reinterpret_cast<Win32CommandBox*>(GetWindowLongPtrA(window, GWLP_USERDATA));
        if (box && message == WM_SETTEXT) box->TextArrived();
        // The text box is destroyed together with the picture box.
        if (box && message == WM_NCDESTROY) box->pictureBox_ = box->textBox_ = kNoWindow;
        return result;
    }
};

Win32CommandBox::~Win32CommandBox() {
    if (pictureBox_ != kNoWindow) DestroyWindow(ToHwnd(pictureBox_));
    CloseStandIn();
}

void Win32CommandBox::Open(std::function<void(TextView text)> changed) {
    changed_ = std::move(changed);
    RegisterOnce(kStandInClass, DefWindowProcA);
    RegisterOnce(kPictureBoxClass, DefWindowProcA);
    RegisterOnce(kTextBoxClass, Procedure::Run);
    standIn_ = Create(kStandInClass, kTitle, kNoWindow, nullptr);
    pictureBox_ = Create(kPictureBoxClass, "", standIn_, nullptr);
    textBox_ = Create(kTextBoxClass, "", pictureBox_, this);
}

void Win32CommandBox::MoveTo(WindowHandle mainWindow) {
    SetParent(ToHwnd(pictureBox_), ToHwnd(mainWindow));
    CloseStandIn();
}

void Win32CommandBox::CloseStandIn() {
    const WindowHandle window = std::exchange(standIn_, kNoWindow);
    if (window != kNoWindow) DestroyWindow(ToHwnd(window));
}

/// Emptying the box sends WM_SETTEXT again. The empty text is ignored.
void Win32CommandBox::TextArrived() {
    const Text text = OwnText(ToHwnd(textBox_));
    if (text.empty()) return;
    changed_(text);
    SetWindowTextA(ToHwnd(textBox_), "");
}

} // namespace korvane
