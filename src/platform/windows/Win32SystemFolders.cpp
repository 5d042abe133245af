#include "platform/windows/Win32SystemFolders.h"

#include "platform/windows/WindowsText.h"

#include <windows.h>
#include <objbase.h>
#include <shlobj.h>

#include <array>
#include <memory>
#include <type_traits>

namespace korvane {

namespace {

constexpr int kFontsFolder = 20;
constexpr int kDocumentsFolder = 5;

using Buffer = std::array<wchar_t, MAX_PATH>;
using DirectoryCall = UINT(WINAPI*)(LPWSTR buffer, UINT room);

Text SystemDirectory(DirectoryCall call) {
    Buffer buffer{};
    const UINT length = call(buffer.data(), static_cast<UINT>(buffer.size()));
    return length < buffer.size() ? FromWide({buffer.data(), length}) : Text();
}

struct FreeByTask {
    void operator()(void* memory) const { CoTaskMemFree(memory); }
};
using OwnedItems = std::unique_ptr<std::remove_pointer_t<LPITEMIDLIST>, FreeByTask>;

Text SpecialFolder(int number) {
    LPITEMIDLIST items = nullptr;
    if (SHGetSpecialFolderLocation(nullptr, number, &items) != S_OK) return {};
    const OwnedItems owned(items);
    Buffer buffer{};
    return SHGetPathFromIDListW(owned.get(), buffer.data()) ? FromWide(buffer.data()) : Text();
}

/// A text from the machine's part of the registry, up to its first null, or an empty text when there is none.
Text MachineText(const wchar_t* key, const wchar_t* name) {
    const auto read = [&](wchar_t* buffer, DWORD& bytes) {
        return RegGetValueW(HKEY_LOCAL_MACHINE, key, name, RRF_RT_REG_SZ, nullptr, buffer, &bytes) ==
               ERROR_SUCCESS;
    };
    DWORD bytes = 0;
    if (!read(nullptr, bytes)) return {};
    std::wstring value(bytes / sizeof(wchar_t), L'\0');
    return read(value.data(), bytes) ? FromWide(value.c_str()) : Text();
}

} // namespace

Text Win32SystemFolders::ProgramFiles() const {
    return MachineText(L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion", L"ProgramFilesDir");
}

Text Win32SystemFolders::Windows() const {
    return SystemDirectory(GetWindowsDirectoryW);
}

Text Win32SystemFolders::System() const {
    return SystemDirectory(GetSystemDirectoryW);
}

Text Win32SystemFolders::Fonts() const {
    return SpecialFolder(kFontsFolder);
}

Text Win32SystemFolders::Documents() const {
    return SpecialFolder(kDocumentsFolder);
}

} // namespace korvane
