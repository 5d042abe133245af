#pragma once

#include <cstdint>

namespace korvane {

/// What the window of colours keeps as long as the program runs.
struct ColourMarks {
    /// Nothing uses it.
    std::int16_t AltYStrikethru = 0;
};

} // namespace korvane
