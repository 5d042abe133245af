#pragma once

#include <string_view>

namespace korvane {

/// What some programs put in front of a UTF-8 file.
inline constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

} // namespace korvane
