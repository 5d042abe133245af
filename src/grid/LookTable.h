#pragma once

#include "grid/CopyOnWrite.h"
#include "grid/Grid.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

namespace korvane {

/// How one cell looks.
struct CellLook {
    Colour back = kNoColour;
    Colour fore = kNoColour;
    std::uint8_t flags = 0;

    bool Has(CellFlag flag) const { return (flags & Bit(flag)) != 0; }
    void Set(CellFlag flag, bool on) {
        flags = static_cast<std::uint8_t>(on ? flags | Bit(flag) : flags & ~Bit(flag));
    }
    bool operator==(const CellLook&) const = default;

private:
    static std::uint8_t Bit(CellFlag flag) {
        return static_cast<std::uint8_t>(1u << static_cast<unsigned>(flag));
    }
};

/// The looks of a table's cells; rows and columns count from 0 here. Rows are nearly always uniform, so there
/// is one look for each row. A column in which a cell once differed from its row has looks of its own. Copies
/// share what neither has changed.
class LookTable {
public:
    using Looks = std::vector<CellLook>;
    /// The looks of one row's cells.
    struct RowLooks {
        CellLook row;
        /// The cells that look different, by column.
        std::vector<std::pair<std::size_t, CellLook>> others;
    };
    /// The looks of one column's cells.
    struct ColumnLooks {
        Looks own;  ///< empty where the column follows its rows
        Looks rows; ///< those of the rows, when it was the only column
    };

    void SetRows(std::size_t rows);
    /// Appends columns of the plain look or drops columns from the end.
    void SetCols(std::size_t cols);
    /// Puts the rows of another table of as many columns after those of this one.
    void Append(const LookTable& other);
    ColumnLooks TakeCol(std::size_t col);
    /// Puts a column back where it was taken.
    void InsertCol(std::size_t col, ColumnLooks looks);
    /// Puts row `order[i]` in the place of row i.
    void Permute(std::span<const std::size_t> order);

    const CellLook& At(std::size_t row, std::size_t col) const {
        return ownLooks_[col] ? (*ownLooks_[col])[row] : (*rowLooks_)[row];
    }
    RowLooks OfRow(std::size_t row) const;
    /// Exchanges the looks of a row with these.
    void ExchangeRow(std::size_t row, RowLooks& looks);
    /// Changes one cell by `change(CellLook&)`; false when the cell stayed as it was.
    template <class Change>
    bool ChangeCell(std::size_t row, std::size_t col, const Change& change) {
        CellLook look = At(row, col);
        change(look);
        if (look == At(row, col)) return false;
        if (!ownLooks_[col]) GiveOwnLooks(col, *rowLooks_);
        ownLooks_[col].Own()[row] = look;
        return true;
    }
    /// Changes every cell of a row by `change(CellLook&)`; false when all stayed as they were.
    template <class Change>
    bool ChangeRow(std::size_t row, const Change& change) {
        bool changed = false;
        const auto apply = [&](SharedLooks& looks) {
            CellLook look = (*looks)[row];
            change(look);
            if (look == (*looks)[row]) return;
            looks.Own()[row] = look;
            changed = true;
        };
        if (HasFollowingCol()) apply(rowLooks_);
        if (ownCols_ == 0) return changed;
        for (SharedLooks& looks : ownLooks_)
            if (looks) apply(looks);
        return changed;
    }

private:
    using SharedLooks = CopyOnWrite<Looks>;

    bool HasPlainRowsOnly() const;
    void CountOwnCols();
    bool HasFollowingCol() const { return ownCols_ < ownLooks_.size(); }
    void GiveOwnLooks(std::size_t col, Looks looks) {
        ownLooks_[col] = SharedLooks(std::move(looks));
        ++ownCols_;
    }

    SharedLooks rowLooks_{Looks()};
    std::vector<SharedLooks> ownLooks_; // one for each column, nothing where the column follows its rows
    std::size_t ownCols_ = 0;           // how many don't
};

} // namespace korvane
