#pragma once

#include "common/text/Text.h"

#include <vector>

namespace korvane {

/// The words of a command line written as one text. Blanks separate words; double quotes hold blanks together
/// and are left out, a lone one holding up to the end. Nothing else is special, and no file name can be more
/// than an argument: `$`, `;`, `\`, a line end stand for themselves.
std::vector<Text> SplitCommandLine(TextView line);

} // namespace korvane
