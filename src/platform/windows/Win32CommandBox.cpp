#include "platform/windows/Win32CommandBox.h"

#include <windows.h>

#include <string>

namespace korvane {

namespace {

constexpr const char* kPictureBoxClass = "ThunderKorvanePictureBoxDC";
constexpr const char* kTextBoxClass = "ThunderKorvaneTextBox";

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

HWND CreateChild(const char* className, HWND parent, void* owner) {
    return CreateWindowExA(0, className, "", WS_CHILD, 0, 0, 0, 0, parent, nullptr, GetModuleHandleA(nullptr),
                           owner);
}

std::string OwnText(HWND window) {
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(window)) + 1, '\0');
    text.resize(static_cast<std::size_t>(GetWindowTextA(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

} // namespace

struct Win32CommandBox::Procedure {
    static LRESULT CALLBACK Run(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_NCCREATE) {
            const auto* create = reinterpret_cast<const CREATESTRUCTA*>(lParam);
            SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(create->lpCreateParams));
        }
        const LRESULT result = DefWindowProcA(window, message, wParam, lParam);
        if (message != WM_SETTEXT) return result;
        auto* box = reinterpret_cast<Win32CommandBox*>(GetWindowLongPtrA(window, GWLP_USERDATA));
        if (box) box->TextArrived();
        return result;
    }
};

Win32CommandBox::Win32CommandBox(WindowHandle mainWindow, const CodePage& page)
    : mainWindow_(mainWindow), page_(page) {}

Win32CommandBox::~Win32CommandBox() {
    // The text box goes with the picture box.
    if (pictureBox_ != kNoWindow) DestroyWindow(ToHwnd(pictureBox_));
}

void Win32CommandBox::Open(std::function<void(TextView text)> changed) {
    changed_ = std::move(changed);
    RegisterOnce(kPictureBoxClass, DefWindowProcA);
    RegisterOnce(kTextBoxClass, Procedure::Run);
    const HWND pictureBox = CreateChild(kPictureBoxClass, ToHwnd(mainWindow_), nullptr);
    pictureBox_ = reinterpret_cast<WindowHandle>(pictureBox);
    textBox_ = reinterpret_cast<WindowHandle>(CreateChild(kTextBoxClass, pictureBox, this));
}

/// Emptying the box sends the message once more, with a text that nobody needs to hear of.
void Win32CommandBox::TextArrived() {
    const std::string text = OwnText(ToHwnd(textBox_));
    if (text.empty()) return;
    changed_(page_.ToText(text));
    SetWindowTextA(ToHwnd(textBox_), "");
}

} // namespace korvane
