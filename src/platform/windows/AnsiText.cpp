#include "platform/windows/AnsiText.h"

#include "platform/windows/WindowsText.h"

#include <windows.h>

namespace korvane {

namespace {

/// Stops Windows from using a similar character instead, because this could name another file. The call fails
/// with this flag when the code page is UTF-8.
DWORD WithoutLookalikes() {
    return GetACP() == CP_UTF8 ? 0 : WC_NO_BEST_FIT_CHARS;
}

} // namespace

std::string ToAnsi(TextView text) {
    const std::wstring wide = ToWide(text);
    const auto length = static_cast<int>(wide.size());
    const auto convert = [&](char* bytes, int room) {
        return WideCharToMultiByte(CP_ACP, WithoutLookalikes(), wide.data(), length, bytes, room, nullptr,
                                   nullptr);
    };
    std::string bytes(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
    convert(bytes.data(), static_cast<int>(bytes.size()));
    return bytes;
}

Text FromAnsi(std::string_view bytes) {
    const auto length = static_cast<int>(bytes.size());
    const auto convert = [&](wchar_t* text, int room) {
        return MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, text, room);
    };
    std::wstring wide(static_cast<std::size_t>(convert(nullptr, 0)), L'\0');
    convert(wide.data(), static_cast<int>(wide.size()));
    return FromWide(wide);
}

} // namespace korvane
