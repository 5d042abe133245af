#include "app/WindowsColours.h"

#include <windows.h>

#include <QByteArray>
#include <string_view>
#include <utility>

namespace korvane {

namespace {

/// Windows sends this to all windows of the desktop.
bool TellsOfColours(const MSG& message) {
    const auto* const what = reinterpret_cast<const wchar_t*>(message.lParam);
    return message.message == WM_SETTINGCHANGE && what != nullptr &&
           std::wstring_view(what) == L"ImmersiveColorSet";
}

} // namespace

WindowsColours::WindowsColours(std::function<void()> changed) : changed_(std::move(changed)) {}

bool WindowsColours::nativeEventFilter(const QByteArray& type, void* message, qintptr*) {
    if (type == "windows_generic_MSG" && TellsOfColours(*static_cast<const MSG*>(message))) changed_();
    return false;
}

} // namespace korvane
