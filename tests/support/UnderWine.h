#pragma once

#ifdef _WIN32
#include <windows.h>
#endif

namespace korvane {

/// Whether the program runs under Wine, which lacks some things that Windows has.
inline bool UnderWine() {
#ifdef _WIN32
    return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
#else
    return false;
#endif
}

} // namespace korvane
