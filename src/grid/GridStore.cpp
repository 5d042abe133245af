#include "grid/GridStore.h"

#include "grid/GridStoreChanges.h"
#include "grid/GridTail.h"
#include "grid/Permuted.h"
#include "grid/SortKeys.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <utility>

namespace korvane {

namespace {

bool HasTextsFrom(const CellTable& cells, std::size_t firstCol) {
    for (std::size_t row = 0; row < cells.Rows(); ++row) {
        const auto handles = cells.Row(row);
        if (!handles.empty() && !std::ranges::all_of(handles.subspan(firstCol), &TextHandle::IsEmpty))
            return true;
    }
    return false;
}

} // namespace

GridStore::GridStore(const CodePage& page, std::shared_ptr<const TextOrder> order)
    : texts_(page), order_(order != nullptr ? std::move(order) : std::make_shared<PlainTextOrder>()) {}

GridStore::~GridStore() = default;

// Rows and columns.

void GridStore::SetRowCount(Row count) {
    count = std::min(count, kMaxRows);
    if (count < Row{0} || count == RowCount()) return;
    if (noted_)
        noted_->Do(*this, Changes::RowCountNote{count});
    else
        ResizeRows(count);
}

void GridStore::ResizeRows(Row count) {
    const auto rows = static_cast<std::size_t>(count.Number());
    GiveUpTexts(rows);
    rows_.Own().resize(rows);
    cells_.SetRows(rows);
    looks_.SetRows(rows);
    KeepCurrentCellInside();
    notifier_.TableChanged();
    PackTextsIfWorthwhile();
}

void GridStore::SetColCount(Col count) {
    if (count < Col{0} || count == ColCount()) return;
    if (noted_) {
        while (ColCount() > count)
            RemoveCol(ColCount());
        while (ColCount() < count)
            AddCol({}, {});
        return;
    }
    GiveUpTexts(count + 1, ColCount());
    cols_.resize(static_cast<std::size_t>(count.Number()));
    cells_.SetCols(cols_.size());
    looks_.SetCols(cols_.size());
    if (count == Col{0}) ForgetChecks();
    ColsChanged();
}

void GridStore::AddCol(TextView key, TextView header) {
    if (!key.empty() && std::ranges::find(cols_, key, &Column::key) != cols_.end()) return;
    if (noted_) noted_->Add(*this, Changes::ColumnPresenceNote{ColCount() + 1});
    cols_.push_back({Text(key), Text(header)});
    cells_.SetCols(cols_.size());
    looks_.SetCols(cols_.size());
    ColsChanged();
}

void GridStore::RemoveCol(Col col) {
    if (!HasCol(col)) return;
    if (noted_)
        noted_->Do(*this, Changes::ColumnPresenceNote{col});
    else
        EraseCol(col);
}

LookTable::ColumnLooks GridStore::EraseCol(Col col) {
    GiveUpTexts(col, col);
    cols_.erase(cols_.begin() + (col.Number() - 1));
    cells_.EraseCol(Index(col));
    LookTable::ColumnLooks looks = looks_.TakeCol(Index(col));
    if (col == Col{1}) ForgetChecks();
    ColsChanged();
    return looks;
}

void GridStore::ColsChanged() {
    KeepCurrentCellInside();
    notifier_.TableChanged();
    PackTextsIfWorthwhile();
}

/// The check boxes belong to the cells of column 1 and go when it goes.
void GridStore::ForgetChecks() {
    for (RowState& row : rows_.Own()) {
        row.check = 0;
        row.checkShown = false;
    }
}

void GridStore::KeepCurrentCellInside() {
    GoTo({curRow_, curCol_});
}

/// Goes to the cell, or to the nearest one that there is.
void GridStore::GoTo(CellPosition cell) {
    const CellPosition before{curRow_, curCol_};
    curRow_ = std::min(cell.row, RowCount());
    curCol_ = std::min(cell.col, ColCount());
    if (before != CellPosition{curRow_, curCol_}) notifier_.CurrentCellChanged();
}

void GridStore::SetCurRow(Row row) {
    if (!HasRow(row) || row == curRow_) return;
    curRow_ = row;
    notifier_.CurrentCellChanged();
}

void GridStore::SetCurCol(Col col) {
    if (!HasCol(col) || col == curCol_) return;
    curCol_ = col;
    notifier_.CurrentCellChanged();
}

template <class Field, class Value>
void GridStore::SetColumn(Col col, Field Column::*field, const Value& value) {
    if (!HasCol(col) || cols_[Index(col)].*field == value) return;
    if (noted_) NoteColumn(col);
    cols_[Index(col)].*field = value;
    notifier_.ColumnChanged(col);
}

Text GridStore::ColKey(Col col) const {
    return HasCol(col) ? cols_[Index(col)].key : Text();
}

const Text& GridStore::ColHeaderText(Col col) const {
    static const Text kNone;
    return HasCol(col) ? cols_[Index(col)].header : kNone;
}

void GridStore::SetColHeaderText(Col col, TextView header) {
    SetColumn(col, &Column::header, header);
}

int GridStore::ColWidth(Col col) const {
    return HasCol(col) ? cols_[Index(col)].width : kDefaultColWidth;
}

void GridStore::SetColWidth(Col col, int width) {
    SetColumn(col, &Column::width, width);
}

int GridStore::RowHeight(Row row) const {
    return HasRow(row) ? StateOf(row).height : kDefaultRowHeight;
}

template <class Field>
bool GridStore::SetRowField(Row row, Field RowState::*field, Field value) {
    if (StateOf(row).*field == value) return false;
    if (noted_) NoteRow(row);
    OwnStateOf(row).*field = value;
    return true;
}

void GridStore::SetRowHeight(Row row, int height) {
    if (!HasRow(row)) return;
    SetRowField(row, &RowState::hasHeight, true);
    if (SetRowField(row, &RowState::height, height)) notifier_.TableChanged();
}

bool GridStore::HasRowHeight(Row row) const {
    return HasRow(row) && StateOf(row).hasHeight;
}

bool GridStore::RowVisible(Row row) const {
    return !HasRow(row) || StateOf(row).visible;
}

void GridStore::SetRowVisible(Row row, bool visible) {
    if (HasRow(row) && SetRowField(row, &RowState::visible, visible)) notifier_.TableChanged();
}

// Texts.

Text GridStore::CellValue(Row row, Col col) const {
    return HasCell(row, col) ? texts_.ToText(HandleAt(row, col)) : Text();
}

void GridStore::SetCellValue(Row row, Col col, TextView value) {
    if (!HasCell(row, col) || texts_.Equals(HandleAt(row, col), value)) return;
    PutHandle(row, col, texts_.Put(value));
    PackTextsIfWorthwhile();
}

void GridStore::PutHandle(Row row, Col col, TextHandle handle) {
    if (handle.IsEmpty() && HandleAt(row, col).IsEmpty()) return;
    if (noted_) [[unlikely]]
        NoteText(row, col);
    TextHandle& place = cells_.Place(Index(row), Index(col));
    if (!place.IsEmpty()) texts_.GiveUp(place);
    place = handle;
    notifier_.RowChanged(row);
}

void GridStore::AdoptBytes(SharedBytes bytes) {
    if (texts_.HasAdopted()) texts_.Pack([this](const auto& visit) { cells_.ChangeEach(visit); }, true);
    texts_.Adopt(std::move(bytes));
}

void GridStore::SetCellSlice(Row row, Col col, std::size_t offset, std::size_t length) {
    if (HasCell(row, col) && texts_.HasSlice(offset, length))
        PutHandle(row, col, texts_.Slice(offset, length));
}

void GridStore::SetCellBytes(Row row, Col col, std::string_view bytes) {
    if (!HasCell(row, col) || texts_.Bytes(HandleAt(row, col)) == bytes) return;
    PutHandle(row, col, texts_.PutBytes(bytes));
    PackTextsIfWorthwhile();
}

std::optional<std::string_view> GridStore::CellBytes(Row row, Col col) const {
    if (!HasCell(row, col)) return std::string_view();
    return texts_.Bytes(HandleAt(row, col));
}

std::size_t GridStore::TextLength(Row row, std::span<const Col> cols) const {
    if (!HasRow(row)) return 0;
    const auto handles = cells_.Row(Index(row));
    std::size_t length = 0;
    for (const Col col : cols)
        if (HasCol(col) && !handles.empty()) length += texts_.LengthOf(handles[Index(col)]);
    return length;
}

class GridStore::Tail final : public GridTail {
public:
    explicit Tail(GridStore& whole) : whole_(whole), rows_(whole.Page(), whole.order_) {
        rows_.cols_ = whole.cols_;
        rows_.cells_.SetCols(whole.cols_.size());
        rows_.looks_.SetCols(whole.cols_.size());
        rows_.texts_.Adopt(whole.texts_.Adopted());
    }

    Grid& Rows() override { return rows_; }
    bool Append() override { return whole_.AppendRows(rows_); }

private:
    GridStore& whole_;
    GridStore rows_;
};

std::unique_ptr<GridTail> GridStore::BeginTail() {
    return std::make_unique<Tail>(*this);
}

bool GridStore::AppendRows(const GridStore& part) {
    if (part.rows_->size() > Index(kMaxRows + 1) - rows_->size()) return false;
    std::vector<RowState>& rows = rows_.Own();
    rows.insert(rows.end(), part.rows_->begin(), part.rows_->end());
    if (texts_.TakeOverAll(part.texts_))
        cells_.Append(part.cells_, std::identity());
    else
        cells_.Append(part.cells_, [&](TextHandle handle) { return texts_.TakeOver(part.texts_, handle); });
    looks_.Append(part.looks_);
    notifier_.TableChanged();
    return true;
}

void GridStore::ShiftTextsRight(Col first) {
    if (!HasCol(first) || !HasTextsFrom(cells_, Index(first))) return;
    if (noted_) return noted_->Do(*this, Changes::ShiftNote{first});
    GiveUpTexts(ColCount(), ColCount());
    cells_.ShiftRight(Index(first));
    notifier_.TableChanged();
    PackTextsIfWorthwhile();
}

void GridStore::GiveUpTexts(std::size_t firstRow) {
    cells_.ForEach([this](TextHandle handle) { texts_.GiveUp(handle); }, firstRow);
}

void GridStore::GiveUpTexts(Col firstCol, Col lastCol) {
    for (Row row{1}; row <= RowCount(); ++row)
        for (Col col = firstCol; col <= lastCol; ++col)
            texts_.GiveUp(HandleAt(row, col));
}

/// Packing waits until no bracket is open: inside one, a load may have given up texts and may still be going
/// to point to the adopted bytes.
void GridStore::PackTextsIfWorthwhile() {
    if (notifier_.IsOpen() || !texts_.WantsPacking()) return;
    texts_.Pack([this](const auto& visit) { cells_.ChangeEach(visit); });
}

// Looks.

template <class Change>
void GridStore::ChangeCellLook(Row row, Col col, const Change& change) {
    if (!HasCell(row, col)) return;
    const CellLook before = LookAt(row, col);
    if (!looks_.ChangeCell(Index(row), Index(col), change)) return;
    if (noted_ && noted_->Wants(row, col)) noted_->Add(*this, Changes::CellLookNote{row, col, before});
    notifier_.RowChanged(row);
}

template <class Change>
void GridStore::ChangeRowLook(Row row, const Change& change) {
    if (!HasRow(row)) return;
    const bool noting = noted_ && noted_->Wants(row);
    Changes::RowLooksNote note{row, noting ? looks_.OfRow(Index(row)) : LookTable::RowLooks()};
    if (!looks_.ChangeRow(Index(row), change)) return;
    if (noting) noted_->Add(*this, std::move(note));
    notifier_.RowChanged(row);
}

Colour GridStore::CellBackColor(Row row, Col col) const {
    return LookAt(row, col).back;
}

void GridStore::SetCellBackColor(Row row, Col col, Colour colour) {
    ChangeCellLook(row, col, [colour](CellLook& look) { look.back = colour; });
}

Colour GridStore::CellForeColor(Row row, Col col) const {
    return LookAt(row, col).fore;
}

void GridStore::SetCellForeColor(Row row, Col col, Colour colour) {
    ChangeCellLook(row, col, [colour](CellLook& look) { look.fore = colour; });
}

bool GridStore::CellFontFlag(Row row, Col col, CellFlag flag) const {
    return LookAt(row, col).Has(flag);
}

void GridStore::SetCellFontFlag(Row row, Col col, CellFlag flag, bool on) {
    ChangeCellLook(row, col, [=](CellLook& look) { look.Set(flag, on); });
}

void GridStore::SetRowBackColor(Row row, Colour colour) {
    ChangeRowLook(row, [colour](CellLook& look) { look.back = colour; });
}

void GridStore::SetRowForeColor(Row row, Colour colour) {
    ChangeRowLook(row, [colour](CellLook& look) { look.fore = colour; });
}

void GridStore::SetRowFontFlag(Row row, CellFlag flag, bool on) {
    ChangeRowLook(row, [=](CellLook& look) { look.Set(flag, on); });
}

// Nothing reads the mode and nothing is drawn by it, so it isn't kept.
void GridStore::SetCellColourMode(Row, Col, int) {}
void GridStore::SetRowColourMode(Row, int) {}

int GridStore::CellCheck(Row row) const {
    return HasCheck(row) ? StateOf(row).check : 0;
}

void GridStore::SetCellCheck(Row row, int check) {
    if (HasCheck(row) && SetRowField(row, &RowState::check, check)) notifier_.RowChanged(row);
}

bool GridStore::CellCheckShown(Row row) const {
    return HasCheck(row) && StateOf(row).checkShown;
}

void GridStore::SetCellCheckShown(Row row, bool shown) {
    if (HasCheck(row) && SetRowField(row, &RowState::checkShown, shown)) notifier_.RowChanged(row);
}

// The grid as a whole.

std::unique_ptr<Grid> GridStore::Snapshot() const {
    auto copy = std::make_unique<GridStore>(texts_.Page());
    copy->texts_ = texts_;
    copy->cells_ = cells_;
    copy->looks_ = looks_;
    copy->rows_ = rows_;
    copy->cols_ = cols_;
    copy->look_ = look_;
    copy->GoTo({curRow_, curCol_});
    return copy;
}

void GridStore::SetGridVisible(bool visible) {
    if (std::exchange(visible_, visible) != visible) notifier_.LookChanged();
}

void GridStore::GridEndUpdate() {
    notifier_.Close();
    PackTextsIfWorthwhile();
}

void GridStore::GridSetFocus() {
    notifier_.CloseAll();
    PackTextsIfWorthwhile();
    notifier_.FocusWanted();
}

void GridStore::EnsureRowVisible(Row row) {
    if (HasRow(row)) notifier_.RowWantedInView(row);
}

std::vector<std::size_t> GridStore::SortedOrder(Col col, SortOrder order) const {
    std::vector<std::size_t> rows(rows_->size());
    std::iota(rows.begin(), rows.end(), std::size_t{0});
    std::vector<Text> texts(rows.size());
    std::ranges::transform(rows, texts.begin(),
                           [&](std::size_t row) { return texts_.ToText(cells_.At(row, Index(col))); });
    const SortKeys keys(texts, *order_);
    const auto comesBefore = [&](std::size_t a, std::size_t b) { return keys.ComesBefore(a, b, order); };
    std::ranges::stable_sort(rows, comesBefore);
    return rows;
}

void GridStore::SortByColumn(Col col, SortOrder order) {
    if (!HasCol(col)) return;
    const std::vector<std::size_t> rows = SortedOrder(col, order);
    if (std::ranges::is_sorted(rows)) return;
    if (noted_)
        noted_->Do(*this, Changes::OrderNote{{rows.begin(), rows.end()}});
    else
        PermuteRows(rows);
}

void GridStore::PermuteRows(std::span<const std::size_t> order) {
    cells_.Permute(order);
    looks_.Permute(order);
    rows_ = CopyOnWrite(Permuted(*rows_, order));
    notifier_.TableChanged();
}

} // namespace korvane
