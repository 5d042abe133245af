#pragma once

#include "common/text/Text.h"

#include <cstdint>

namespace korvane {

/// How the text window is opened, and whether it is open.
struct TextWindowState {
    /// 1 while it is open. A caller that wants the clipboard's contents for itself sets it to 0 meanwhile.
    std::int16_t TextWindowOpen = 0;
    /// The file with which it opens.
    Text TextWindowFile;
    /// 1 opens it without a file.
    std::int16_t TextWindowUntitled = 0;
    /// 1 shows pages on a dark ground.
    std::int16_t DarkPageBackground = 0;
};

} // namespace korvane
