#pragma once

#include <cstdint>

namespace korvane {

/// Whether a save belongs to the end of a tab.
struct ClosingSave {
    /// 1 while the closing question of a tab runs its save.
    std::int16_t ClosingTabSave = 0;
};

} // namespace korvane
