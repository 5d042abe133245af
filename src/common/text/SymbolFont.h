#pragma once

#include <optional>

namespace korvane {

/// The character of Unicode that looks most like the one with this code in the font Wingdings, where that
/// font is missing; nothing for a code without one. Only characters that most systems can show are taken.
std::optional<char16_t> WingdingsLike(char16_t code);

} // namespace korvane
