#pragma once

#include "common/text/SortOrder.h"
#include "common/text/Text.h"

#include <cstdint>
#include <span>
#include <vector>

namespace korvane {

/// For each place in the sorted order the index of the text there. The texts are compared unit by unit with
/// case ignored, and those that are alike keep their order, whichever way it goes. A text ends at a null.
std::vector<std::uint32_t> FoldedOrder(std::span<const TextView> texts,
                                       SortOrder order = SortOrder::Ascending);

} // namespace korvane
