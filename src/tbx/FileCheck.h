#pragma once

#include "common/text/CodePage.h"
#include "tbx/Check.h"

#include <string_view>

namespace korvane {

/// Finds what doesn't reach the table when the `.tbx` file is loaded, what is read as something else than it
/// was written for, and what a save of the table would write differently. The findings are in the order of
/// the lines; those about the whole file come first or last. A line in the form in which the program writes
/// it gives no finding; the numbers of rows don't matter.
void CheckFile(std::string_view bytes, const CodePage& page, FindingStream& findings);

} // namespace korvane
