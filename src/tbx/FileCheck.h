#pragma once

#include "common/text/CodePage.h"
#include "tbx/Check.h"

#include <string_view>
#include <vector>

namespace korvane {

/// What of a `.tbx` file doesn't arrive in the table, arrives as something else than it was written for, or
/// stands otherwise in the file once the table is saved. Order: by line, what concerns the whole file first
/// or last. What the file's writer would have written itself gives no finding, whatever its row numbers.
std::vector<Finding> CheckFile(std::string_view bytes, const CodePage& page);

} // namespace korvane
