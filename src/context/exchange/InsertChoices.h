#pragma once

#include "common/text/Text.h"

#include <cstdint>

namespace korvane {

/// What the windows that put characters and dates into a text keep as long as the program runs.
struct InsertChoices {
    std::int16_t ShapeSize = 14;
    std::int16_t ShapeSizeIndex = 4;
    std::int16_t SymbolSize = 14;
    std::int16_t SymbolSizeIndex = 4;
    Text AsciiFontName = u"Arial";
    /// The current cell of the table of characters.
    std::int16_t AsciiCol = 0;
    std::int16_t AsciiRow = 0;
    std::int16_t DateFormatIndex = 0;
    std::int16_t TimeFormatIndex = 0;
    /// The line that the window of dates has built.
    Text DateResult;
};

} // namespace korvane
