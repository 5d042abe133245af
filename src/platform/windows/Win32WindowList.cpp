#include "platform/windows/Win32WindowList.h"

#include "platform/windows/AnsiText.h"

#include <windows.h>

#include <algorithm>
#include <string>

namespace korvane {

namespace {

constexpr DWORD kRestMilliseconds = 10;
constexpr std::size_t kLongestPath = 32768;

HWND ToHwnd(WindowHandle window) {
    return reinterpret_cast<HWND>(window);
}

WindowHandle ToHandle(HWND window) {
    return reinterpret_cast<WindowHandle>(window);
}

BOOL CALLBACK Collect(HWND window, LPARAM list) {
    reinterpret_cast<std::vector<WindowHandle>*>(list)->push_back(ToHandle(window));
    return TRUE;
}

/// The executable's path as the name of a system object. Such a name must not contain "\".
std::wstring ExecutableName() {
    std::wstring path(kLongestPath, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    CharLowerBuffW(path.data(), static_cast<DWORD>(path.size()));
    std::replace(path.begin(), path.end(), L'\\', L'/');
    // Names of system objects must be shorter than paths may be. The end is kept, because it differs most
    // between two folders.
    constexpr std::size_t kMostKept = 200;
    return path.substr(path.size() - std::min(path.size(), kMostKept));
}

} // namespace

/// A named system object that exists while a copy of the executable runs.
class Win32WindowList::InstanceMark {
public:
    InstanceMark() : mutex_(CreateMutexW(nullptr, FALSE, (L"Local\\Korvane-" + ExecutableName()).c_str())) {
        others_ = mutex_ != nullptr && GetLastError() == ERROR_ALREADY_EXISTS;
    }
    InstanceMark(const InstanceMark&) = delete;
    InstanceMark& operator=(const InstanceMark&) = delete;
    ~InstanceMark() {
        if (mutex_) CloseHandle(mutex_);
    }

    bool WasThere() const { return others_; }

private:
    HANDLE mutex_;
    bool others_ = false;
};

Win32WindowList::Win32WindowList() = default;

Win32WindowList::~Win32WindowList() = default;

bool Win32WindowList::AnotherCopyRuns() {
    if (!mark_) mark_ = std::make_unique<InstanceMark>();
    return mark_->WasThere();
}

std::vector<WindowHandle> Win32WindowList::TopLevel() const {
    std::vector<WindowHandle> windows;
    EnumWindows(Collect, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

bool Win32WindowList::IsOwn(WindowHandle window) const {
    DWORD process = 0;
    GetWindowThreadProcessId(ToHwnd(window), &process);
    return process == GetCurrentProcessId();
}

WindowHandle Win32WindowList::FirstChild(WindowHandle parent) const {
    return ToHandle(GetWindow(ToHwnd(parent), GW_CHILD));
}

WindowHandle Win32WindowList::NextSibling(WindowHandle window) const {
    return ToHandle(GetWindow(ToHwnd(window), GW_HWNDNEXT));
}

std::string Win32WindowList::ClassName(WindowHandle window, std::size_t room) const {
    std::string name(room, '\0');
    name.resize(static_cast<std::size_t>(GetClassNameA(ToHwnd(window), name.data(), static_cast<int>(room))));
    return name;
}

Text Win32WindowList::WindowText(WindowHandle window, std::size_t room) const {
    std::string text(room, '\0');
    text.resize(
        static_cast<std::size_t>(GetWindowTextA(ToHwnd(window), text.data(), static_cast<int>(room))));
    return FromAnsi(text);
}

std::size_t Win32WindowList::TextLength(WindowHandle window) const {
    const LRESULT length = SendMessageA(ToHwnd(window), WM_GETTEXTLENGTH, 0, 0);
    return static_cast<std::size_t>(std::max<LRESULT>(length, 0));
}

bool Win32WindowList::SetText(WindowHandle window, TextView text) {
    const std::string bytes = ToAnsi(text);
    return SendMessageA(ToHwnd(window), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(bytes.c_str())) != 0;
}

void Win32WindowList::Activate(WindowHandle window) {
    if (IsIconic(ToHwnd(window))) ShowWindow(ToHwnd(window), SW_RESTORE);
    SetForegroundWindow(ToHwnd(window));
}

void Win32WindowList::Rest() {
    Sleep(kRestMilliseconds);
}

} // namespace korvane
