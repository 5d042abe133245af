#pragma once

#include "common/text/Text.h"

#include <vector>

namespace korvane {

/// Adds the lines of a selected text to the words that are kept between two openings of the list. Each is
/// ended by CR.
void AddSelection(Text& buffer, TextView selection);

/// The words in their order, with the empty ones. What comes after the last CR is none.
std::vector<TextView> WordsOf(TextView buffer);

} // namespace korvane
