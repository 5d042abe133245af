#pragma once

#include "common/text/Text.h"

#include <string>
#include <string_view>

namespace korvane {

/// Bytes of the system's ANSI code page, whichever it is, as windows of other programs take them: "?" for
/// what has no place in the page.
std::string ToAnsi(TextView text);
Text FromAnsi(std::string_view bytes);

} // namespace korvane
