#pragma once

#include "common/text/Text.h"

#include <string>
#include <string_view>

namespace korvane {

/// The text in the system's ANSI code page, which the windows of other programs use. A character that isn't
/// in the page becomes "?".
std::string ToAnsi(TextView text);
Text FromAnsi(std::string_view bytes);

} // namespace korvane
