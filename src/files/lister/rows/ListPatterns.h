#pragma once

#include "common/text/Text.h"

#include <vector>

namespace korvane {

/// The patterns that the box of patterns offers.
std::vector<Text> OfferedPatterns();

/// The pattern that follows in the cycle of the key F3, case ignored; one outside the cycle stays.
Text NextPattern(TextView pattern);

} // namespace korvane
