#pragma once

#ifdef _WIN32
#include <windows.h>
#endif

namespace korvane {

/// Whether Wine stands for Windows. It doesn't do all that Windows does.
inline bool UnderWine() {
#ifdef _WIN32
    return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
#else
    return false;
#endif
}

} // namespace korvane
