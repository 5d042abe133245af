#pragma once

#include <cstdint>

namespace korvane {

/// How the lister sorts its files: kept as long as the program runs.
struct ListSort {
    static constexpr std::int16_t kName = 0;
    static constexpr std::int16_t kSize = 1;
    static constexpr std::int16_t kDate = 2;

    std::int16_t ListSortColumn = kName;
    /// 0 ascending, 1 descending.
    std::int16_t ListSortOrder = 0;
};

} // namespace korvane
