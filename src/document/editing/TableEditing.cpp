#include "document/editing/TextEditing.h"

#include <algorithm>

namespace korvane::doc {

namespace {

void SetAttribute(CellFormat& cell, int attribute, int value) {
    switch (attribute) {
    case TextEditing::kCellLeft:
        cell.left = value;
        return;
    case TextEditing::kCellWidth:
        cell.width = std::max(value, 0);
        return;
    case TextEditing::kCellBorder:
        cell.border.fill(std::max(value, 0));
        return;
    case TextEditing::kCellBack:
        cell.back = {value};
        return;
    case TextEditing::kCellGapLeft:
        cell.gapLeft = std::max(value, 0);
        return;
    case TextEditing::kCellGapRight:
        cell.gapRight = std::max(value, 0);
        return;
    default:
        return;
    }
}

} // namespace

CellPlace TextEditing::PlaceOf(int table, int row, int column) {
    if (row < 1 || column < 1) return {};
    return {TableNumber(table), static_cast<Index>(row - 1), static_cast<Index>(column - 1)};
}

int TextEditing::InsertTable(int rows, int columns) {
    if (TableAtInputPos() != 0) return 0;
    if (rows < 1 || columns < 1) return kTableOfNone;
    const std::optional<Index> table =
        store_->InsertTable(start_, static_cast<std::size_t>(rows), static_cast<std::size_t>(columns));
    if (!table) return 0;
    NoteChange(true);
    return -static_cast<int>(*table);
}

int TextEditing::TableAtInputPos() const {
    return static_cast<int>(store_->TableAt(start_).value_or(CellPlace{}).table);
}

CellPlace TextEditing::CellAtInputPos() const {
    const auto cell = store_->TableAt(start_);
    return cell ? CellPlace{cell->table, cell->row + 1, cell->column + 1} : CellPlace{};
}

std::optional<CellFormat> TextEditing::FormatOfCell(int table, int row, int column) const {
    return store_->CellAt(PlaceOf(table, row, column));
}

Text TextEditing::CellText(int table, int row, int column) const {
    const auto range = store_->CellRange(PlaceOf(table, row, column));
    return range ? All().substr(range->first, range->second - range->first) : Text();
}

void TextEditing::SetCellText(int table, int row, int column, TextView text) {
    const auto range = store_->CellRange(PlaceOf(table, row, column));
    if (!range) return;
    const auto [from, to] = *range;
    store_->Replace(from, to, LineLike(text, LookIn(from, to), 0, store_->ParaAt(from)));
    NoteChange(true);
}

int TextEditing::CellStart(int table, int row, int column) const {
    const auto range = store_->CellRange(PlaceOf(table, row, column));
    return range ? static_cast<int>(range->first) + 1 : 0;
}

void TextEditing::SetCellAttribute(int table, int row, int column, int attribute, int value) {
    const CellPlace wanted = PlaceOf(table, row, column);
    if (!store_->CellRange(wanted)) return;
    store_->FormatCells(wanted.table, [&](const CellPlace& place, CellFormat& cell) {
        if (place == wanted) SetAttribute(cell, attribute, value);
    });
    NoteChange(false);
}

void TextEditing::FormatCells(int table, const std::function<void(int, int, CellFormat&)>& change) {
    store_->FormatCells(TableNumber(table), [&](const CellPlace& place, CellFormat& cell) {
        change(static_cast<int>(place.row) + 1, static_cast<int>(place.column) + 1, cell);
    });
    NoteChange(false);
}

} // namespace korvane::doc
