#pragma once

#include "common/text/Text.h"

#include <string>
#include <string_view>

namespace korvane {

// The system's calls take `wchar_t`, which here is a 16-bit code unit just like `char16_t`.

inline std::wstring ToWide(TextView text) {
    return {text.begin(), text.end()};
}

inline Text FromWide(std::wstring_view text) {
    return {text.begin(), text.end()};
}

} // namespace korvane
