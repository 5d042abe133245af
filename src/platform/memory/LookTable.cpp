#include "platform/memory/LookTable.h"

#include "platform/memory/Permuted.h"

#include <algorithm>

namespace korvane {

void LookTable::SetRows(std::size_t rows) {
    rowLooks_.resize(rows);
    for (Looks& looks : ownLooks_)
        if (!looks.empty()) looks.resize(rows);
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

void LookTable::EraseCol(std::size_t col) {
    ownLooks_.erase(ownLooks_.begin() + static_cast<std::ptrdiff_t>(col));
    CountOwnCols();
}

/// Columns came or went. Where none are left, no cell has a look.
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
