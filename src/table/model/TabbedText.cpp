#include "table/model/TabbedText.h"

#include "grid/Grid.h"
#include "table/model/NewTable.h"

#include <algorithm>

namespace korvane {

namespace {

/// Rows and columns are counted in 16 bits.
constexpr std::ptrdiff_t kMaxCount = 32767;

/// The CR of a line end is a part of its last cell. Kept for compatibility: import-keeps-cr.
bool EndsCell(char16_t character) {
    return character == u'\t' || character == u'\n';
}

int AtMostMaxCount(std::ptrdiff_t count) {
    return static_cast<int>(std::min(count, kMaxCount));
}

} // namespace

Col ColumnsOfTabbedText(TextView text) {
    const TextView firstLine = text.substr(0, text.find(u'\n'));
    return Col{AtMostMaxCount(std::ranges::count(firstLine, u'\t') + 1)};
}

Row RowsOfTabbedText(TextView text) {
    const int unfinished = text.ends_with(u'\n') ? 0 : 1;
    return Row{AtMostMaxCount(std::ranges::count(text, u'\n') + unfinished)};
}

void FillFromTabbedText(Grid& grid, TextView text) {
    Row row{1};
    Col col{1};
    // Only the first row, and rows that a line end closes, get their height. Kept for compatibility:
    // import-row-heights.
    grid.SetRowHeight(row, kNewRowHeight);
    const auto* cell = text.begin();
    const auto* end = std::find_if(cell, text.end(), EndsCell);
    for (; end != text.end() && grid.HasRow(row); end = std::find_if(cell, text.end(), EndsCell)) {
        grid.SetCellValue(row, col, {cell, end});
        cell = end + 1;
        ++col;
        if (*end == u'\t') continue;
        grid.SetRowHeight(row, kNewRowHeight);
        ++row;
        col = Col{1};
    }
    // An empty cell that nothing closes isn't written. Kept for compatibility: import-unclosed-cell.
    if (cell != text.end() && end == text.end()) grid.SetCellValue(row, col, {cell, end});
}

} // namespace korvane
