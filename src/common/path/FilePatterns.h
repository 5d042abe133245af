#pragma once

#include "common/text/Text.h"

#include <vector>

namespace korvane {

/// Whether the name matches one of the patterns, which semicolons separate ("*.rtf;*.doc"). "*" stands for
/// any characters and "?" for one; case is ignored. "*.*" matches every name, one without a point too.
bool MatchesPatterns(TextView name, TextView patterns);

/// Whether one of them is that of programs, "*.exe".
bool AskForPrograms(TextView patterns);

/// Brings names into the order in which they are listed, the same on every system: by character with case
/// ignored, and names that differ by nothing else by case.
void SortNames(std::vector<Text>& names);

} // namespace korvane
