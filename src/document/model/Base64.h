#pragma once

#include <string>
#include <string_view>

namespace korvane::doc {

std::string ToBase64(std::string_view bytes);
/// Characters that aren't of the alphabet are skipped.
std::string FromBase64(std::string_view text);

} // namespace korvane::doc
