#pragma once

#include <array>

namespace korvane {

/// Where words end.
struct WordEnds {
    /// By the byte of a character: whether it ends a word in the text find.
    std::array<bool, 257> DelimiterTable{};
};

} // namespace korvane
