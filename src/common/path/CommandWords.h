#pragma once

#include "common/text/Text.h"

#include <vector>

namespace korvane {

/// The words of a command line written as one text. Blanks separate words. Double quotes keep blanks in a
/// word and are left out; a lone quote counts up to the end. Nothing else is special: `$`, `;`, `\` and line
/// ends stay as they are, so a file name can't be more than an argument.
std::vector<Text> SplitCommandLine(TextView line);

} // namespace korvane
