#pragma once

#include <cstdint>

namespace korvane {

/// What `frmDelimiterType` keeps as long as the program runs.
struct DelimiterChoice {
    /// Whether the check box adds line breaks, 1 or 0.
    std::int16_t BreakAfterFieldThree = 0;
};

} // namespace korvane
