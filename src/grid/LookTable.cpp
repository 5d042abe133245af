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
    rowLooks_.Own().resize(rows);
    for (SharedLooks& looks : ownLooks_)
        if (looks) looks.Own().resize(rows);
    if (rows > 0) return;
    // Without rows, no column has looks of its own.
    std::ranges::fill(ownLooks_, SharedLooks());
    CountOwnCols();
}

bool LookTable::HasPlainRowsOnly() const {
    return std::ranges::all_of(*rowLooks_, [](const CellLook& look) { return look == CellLook(); });
}

void LookTable::SetCols(std::size_t cols) {
    const std::size_t before = ownLooks_.size();
    ownLooks_.resize(cols);
    for (std::size_t col = before; col < cols && !HasPlainRowsOnly(); ++col)
        GiveOwnLooks(col, Looks(rowLooks_->size()));
    CountOwnCols();
}

void LookTable::Append(const LookTable& other) {
    for (std::size_t col = 0; col < ownLooks_.size(); ++col) {
        const SharedLooks& added = other.ownLooks_[col];
        if (!ownLooks_[col] && !added) continue;
        if (!ownLooks_[col]) GiveOwnLooks(col, *rowLooks_);
        AddTo(ownLooks_[col].Own(), added ? *added : *other.rowLooks_);
    }
    AddTo(rowLooks_.Own(), *other.rowLooks_);
}

LookTable::ColumnLooks LookTable::TakeCol(std::size_t col) {
    ColumnLooks taken;
    if (ownLooks_[col]) taken.own = std::move(ownLooks_[col].Own());
    ownLooks_.erase(ownLooks_.begin() + static_cast<std::ptrdiff_t>(col));
    if (ownLooks_.empty()) taken.rows = *rowLooks_;
    CountOwnCols();
    return taken;
}

void LookTable::InsertCol(std::size_t col, ColumnLooks looks) {
    if (ownLooks_.empty()) rowLooks_ = SharedLooks(std::move(looks.rows));
    SharedLooks own = looks.own.empty() ? SharedLooks() : SharedLooks(std::move(looks.own));
    ownLooks_.insert(ownLooks_.begin() + static_cast<std::ptrdiff_t>(col), std::move(own));
    CountOwnCols();
}

LookTable::RowLooks LookTable::OfRow(std::size_t row) const {
    RowLooks looks{(*rowLooks_)[row], {}};
    for (std::size_t col = 0; col < ownLooks_.size() && ownCols_ > 0; ++col)
        if (At(row, col) != looks.row) looks.others.emplace_back(col, At(row, col));
    return looks;
}

void LookTable::ExchangeRow(std::size_t row, RowLooks& looks) {
    RowLooks before = OfRow(row);
    rowLooks_.Own()[row] = looks.row;
    for (SharedLooks& own : ownLooks_)
        if (own) own.Own()[row] = looks.row;
    for (const auto& [col, look] : looks.others)
        ChangeCell(row, col, [&look = look](CellLook& changed) { changed = look; });
    looks = std::move(before);
}

/// Columns were added or removed. When none are left, no cell has a look.
void LookTable::CountOwnCols() {
    ownCols_ = static_cast<std::size_t>(std::ranges::count_if(ownLooks_, &SharedLooks::operator bool));
    if (ownLooks_.empty()) std::ranges::fill(rowLooks_.Own(), CellLook());
}

void LookTable::Permute(std::span<const std::size_t> order) {
    rowLooks_ = SharedLooks(Permuted(*rowLooks_, order));
    for (SharedLooks& looks : ownLooks_)
        if (looks) looks = SharedLooks(Permuted(*looks, order));
}

} // namespace korvane
