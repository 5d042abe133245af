#pragma once

#include <cstdint>

namespace korvane {

enum class SortOrder : std::uint8_t { Ascending, Descending };

} // namespace korvane
