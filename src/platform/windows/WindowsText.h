#pragma once

#include "common/text/Text.h"

#include <string>
#include <string_view>

namespace korvane {

// The system's calls take its own kind of 16-bit units, which are the same ones.

inline std::wstring ToWide(TextView text) {
    return {text.begin(), text.end()};
}

inline Text FromWide(std::wstring_view text) {
    return {text.begin(), text.end()};
}

} // namespace korvane
