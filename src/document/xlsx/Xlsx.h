#pragma once

#include "document/model/Reading.h"

#include <string_view>

namespace korvane::doc {

/// Reads the sheets of an XLSX file, each as its name and a table of its cells' texts. Numbers are as the
/// file has them, since their formats aren't read. Nothing that the file refers to outside is opened.
ReadResult ReadXlsx(std::string_view bytes, const Limits& limits = {});

} // namespace korvane::doc
