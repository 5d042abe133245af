#include "grid/LookTable.h"

#include "grid/Permuted.h"

#include <algorithm>

namespace korvane {

namespace {

void AddTo(LookTable::Looks& looks, const LookTable::Looks& added) {
    looks.insert(looks.end(), added.begin(), added.end());
}

} // namespace

void LookTable::SetRows(std::size_t rows) {
    rowLooks_.resize(rows);
    for (Looks& looks : ownLooks_)
        if (!looks.empty()) looks.resize(rows);
    // Without rows, no column has looks of its own.
    if (rows == 0) CountOwnCols();
}

bool LookTable::HasPlainRowsOnly() const {
    return std::ranges::all_of(rowLooks_, [](const CellLook& look) { return look == CellLook(); });
}

void LookTable::SetCols(std::size_t cols) {
    const std::size_t before = ownLooks_.size();
    ownLooks_.resize(cols);
    for (std::size_t col = before; col < cols && !HasPlainRowsOnly(); ++col)
        GiveOwnLooks(col, Looks(rowLooks_.size()));
    CountOwnCols();
}

void LookTable::Append(const LookTable& other) {
    for (std::size_t col = 0; col < ownLooks_.size(); ++col) {
        const Looks& added = other.ownLooks_[col];
        if (ownLooks_[col].empty() && added.empty()) continue;
        if (ownLooks_[col].empty()) GiveOwnLooks(col, rowLooks_);
        AddTo(ownLooks_[col], added.empty() ? other.rowLooks_ : added);
    }
    AddTo(rowLooks_, other.rowLooks_);
}

LookTable::ColumnLooks LookTable::TakeCol(std::size_t col) {
    ColumnLooks taken{std::move(ownLooks_[col]), {}};
    ownLooks_.erase(ownLooks_.begin() + static_cast<std::ptrdiff_t>(col));
    if (ownLooks_.empty()) taken.rows = rowLooks_;
    CountOwnCols();
    return taken;
}

void LookTable::InsertCol(std::size_t col, ColumnLooks looks) {
    if (ownLooks_.empty()) rowLooks_ = std::move(looks.rows);
    ownLooks_.insert(ownLooks_.begin() + static_cast<std::ptrdiff_t>(col), std::move(looks.own));
    CountOwnCols();
}

LookTable::RowLooks LookTable::OfRow(std::size_t row) const {
    RowLooks looks{rowLooks_[row], {}};
    for (std::size_t col = 0; col < ownLooks_.size() && ownCols_ > 0; ++col)
        if (!ownLooks_[col].empty() && ownLooks_[col][row] != looks.row)
            looks.others.emplace_back(col, ownLooks_[col][row]);
    return looks;
}

void LookTable::ExchangeRow(std::size_t row, RowLooks& looks) {
    RowLooks before = OfRow(row);
    rowLooks_[row] = looks.row;
    for (Looks& own : ownLooks_)
        if (!own.empty()) own[row] = looks.row;
    for (const auto& [col, look] : looks.others)
        ChangeCell(row, col, [&look = look](CellLook& changed) { changed = look; });
    looks = std::move(before);
}

/// Columns were added or removed. When none are left, no cell has a look.
void LookTable::CountOwnCols() {
    ownCols_ = static_cast<std::size_t>(
        std::ranges::count_if(ownLooks_, [](const Looks& looks) { return !looks.empty(); }));
    if (ownLooks_.empty()) std::ranges::fill(rowLooks_, CellLook());
}

void LookTable::Permute(std::span<const std::size_t> order) {
    rowLooks_ = Permuted(rowLooks_, order);
    for (Looks& looks : ownLooks_)
        if (!looks.empty()) looks = Permuted(looks, order);
}

} // namespace korvane
