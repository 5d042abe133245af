#pragma once

#include "common/number/DateTime.h"
#include "common/text/Text.h"

#include <cstdint>

namespace korvane {

// The list sorts by its texts. While it is filled, the column by which it is sorted has texts of which the
// order is that of the sizes or dates; afterwards all sorts look alike.

/// The text of a size while the list is filled that is sorted by `sortColumn`.
Text SizeText(std::int64_t size, std::int16_t sortColumn);
Text DateText(const DateTime& modified, std::int16_t sortColumn);

// The texts as they are shown, of those for the sort.

Text ShownSize(TextView sorted);
Text ShownDate(TextView sorted);

} // namespace korvane
