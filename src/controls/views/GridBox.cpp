#include "controls/views/GridBox.h"

#include <utility>

namespace korvane {

GridBox::GridBox(Form& owner, std::string_view name, std::unique_ptr<Grid> store)
    : Control(owner, name), store_(std::move(store)) {}

void GridBox::CommitEdit(Row row, Col col, TextView text) {
    if (!store_->HasRow(row) || !store_->HasCol(col) || store_->CellValue(row, col) == text) return;
    store_->SetCellValue(row, col, text);
    if (AfterEdit) AfterEdit(row, col);
    TellChange();
}

void GridBox::ClickCheck(Row row) {
    if (!store_->HasRow(row) || !store_->CellCheckShown(row)) return;
    store_->SetCellCheck(row, store_->CellCheck(row) == 1 ? 0 : 1);
    if (AfterEdit) AfterEdit(row, Col{1});
    TellChange();
}

void GridBox::ClickHeader(Col col) {
    if (!store_->HasCol(col)) return;
    if (HeaderClick) HeaderClick(col);
    if (!store_->SortOnHeaderClick()) return;
    const bool turn = col == sortedBy_ && order_ == SortOrder::Ascending;
    order_ = turn ? SortOrder::Descending : SortOrder::Ascending;
    sortedBy_ = col;
    store_->SortByColumn(col, order_);
    TellChange();
}

void GridBox::ClickCell(Row row, Col col) {
    if (!store_->HasRow(row) || !store_->HasCol(col)) return;
    store_->SetCurRow(row);
    store_->SetCurCol(col);
    if (CellClick) CellClick(row, col);
}

void GridBox::StepCell(int step) {
    const CellPosition current{store_->CurRow(), store_->CurCol()};
    if (store_->HasCol(current.col + step)) return store_->SetCurCol(current.col + step);
    if (const auto row = ShownRowBeside(current.row, step)) {
        store_->SetCurRow(*row);
        store_->SetCurCol(step > 0 ? Col{1} : store_->ColCount());
    } else if (step > 0 && store_->HasCol(current.col) && PastEnd) {
        PastEnd();
    }
}

std::optional<Row> GridBox::ShownRowBeside(Row row, int step) const {
    do
        row = row + step;
    while (store_->HasRow(row) && !store_->RowVisible(row));
    return store_->HasRow(row) ? std::optional(row) : std::nullopt;
}

void GridBox::DragColumn(Col col, int width) {
    store_->SetColWidth(col, width);
    dragged_ = true;
}

void GridBox::ReleaseColumn() {
    if (std::exchange(dragged_, false)) TellChange();
}

void GridBox::TellChange() {
    if (AfterChange) AfterChange();
}

} // namespace korvane
