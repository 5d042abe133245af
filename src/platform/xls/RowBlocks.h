#pragma once

#include "platform/xls/LittleEndian.h"
#include "platform/xls/Workbook.h"

#include <string>
#include <vector>

namespace korvane::xls {

/// The cells of a sheet as records, in blocks of 32 rows, so that a reader finds a row without reading all.
struct RowBlocks {
    std::string bytes;
    /// For each block, the place of the record that ends it.
    std::vector<U32> ends;
};

RowBlocks MakeRowBlocks(const Workbook& book);

} // namespace korvane::xls
