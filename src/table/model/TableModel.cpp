#include "table/model/TableModel.h"

#include "common/number/Number.h"

#include <algorithm>

namespace korvane {

void TableModel::TakeHeightOfCurrentRow() {
    const Row row = std::max(grid_.CurRow(), Row{1});
    if (!grid_.HasRow(row)) return;
    std::int16_t height = 0;
    if (StoreRounded(grid_.RowHeight(row), height)) SetRowHeight = height;
}

} // namespace korvane
