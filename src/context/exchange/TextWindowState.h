#pragma once

#include <cstdint>

namespace korvane {

/// Whether the text window is open.
struct TextWindowState {
    /// 1 while it is open. A caller that wants the clipboard's contents for itself sets it to 0 meanwhile.
    std::int16_t TextWindowOpen = 0;
};

} // namespace korvane
