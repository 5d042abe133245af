#pragma once

#include "platform/FileSystem.h"
#include "platform/xls/Workbook.h"

namespace korvane::xls {

/// Writes the workbook as an `.xls` file, which opens at its first cell. False when the file didn't take all
/// of it, and, with nothing written, when it has more than the 2 GB that such a file can hold.
bool WriteXls(const Workbook& book, FileWriter& file);

} // namespace korvane::xls
