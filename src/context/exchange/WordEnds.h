#pragma once

#include <array>

namespace korvane {

/// Where words end.
struct WordEnds {
    /// Whether the character of a byte ends a word in the text find.
    std::array<bool, 257> DelimiterTable{};
};

} // namespace korvane
