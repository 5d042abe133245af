#pragma once

#include "grid/CopyOnWrite.h"
#include "grid/TextHandle.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <vector>

namespace korvane {

/// The handles of a table's cells, row by row; rows and columns count from 0 here. Rows are kept in chunks,
/// so that a growing table never moves, and a chunk without any text takes no memory. Copies share the chunks
/// that neither has changed.
class CellTable {
public:
    std::size_t Rows() const { return rows_; }
    std::size_t Cols() const { return cols_; }

    /// Appends empty rows or drops rows from the end.
    void SetRows(std::size_t rows);
    /// Appends empty columns or drops columns from the end.
    void SetCols(std::size_t cols);
    void EraseCol(std::size_t col);
    /// Puts an empty column before the one at `col`.
    void InsertCol(std::size_t col);
    /// Moves the cells of the columns from `first` on one column to the right, over those of the last one,
    /// and empties `first`.
    void ShiftRight(std::size_t first);
    /// Moves the cells of the columns after `first` one column to the left, over those of `first`, and
    /// empties the last column.
    void ShiftLeft(std::size_t first);
    /// Puts row `order[i]` in the place of row i.
    void Permute(std::span<const std::size_t> order);

    TextHandle At(std::size_t row, std::size_t col) const {
        const Chunk& chunk = chunks_[row / kChunkRows];
        return chunk ? (*chunk)[IndexOf(row, col)] : TextHandle();
    }
    /// The handle of the cell, to be changed.
    TextHandle& Place(std::size_t row, std::size_t col) {
        Handles& handles = chunks_[row / kChunkRows].Own();
        if (handles.empty()) [[unlikely]]
            handles.resize(kChunkRows * cols_);
        return handles[IndexOf(row, col)];
    }

    /// The cells of a row; none when no row of its chunk has a text.
    std::span<const TextHandle> Row(std::size_t row) const {
        const Chunk& chunk = chunks_[row / kChunkRows];
        if (!chunk) return {};
        return std::span(*chunk).subspan(IndexOf(row, 0), cols_);
    }

    /// Puts the rows of another table of as many columns after those of this one. `taken(handle)` gives the
    /// handle that takes the place of one of the other's.
    template <class Taken>
    void Append(const CellTable& other, const Taken& taken) {
        const std::size_t before = rows_;
        SetRows(before + other.rows_);
        for (std::size_t row = 0; row < other.rows_; ++row) {
            const std::span<const TextHandle> handles = other.Row(row);
            if (!handles.empty()) std::ranges::transform(handles, &Place(before + row, 0), taken);
        }
    }

    /// Visits every handle that isn't empty, in the rows from `firstRow` on.
    template <class Visit>
    void ForEach(const Visit& visit, std::size_t firstRow = 0) const {
        for (std::size_t row = firstRow; row < rows_; ++row)
            for (const TextHandle handle : Row(row))
                if (!handle.IsEmpty()) visit(handle);
    }
    /// The same for handles that are to be changed.
    template <class Visit>
    void ChangeEach(const Visit& visit) {
        for (Chunk& chunk : chunks_) {
            if (!chunk) continue;
            for (TextHandle& handle : chunk.Own())
                if (!handle.IsEmpty()) visit(handle);
        }
    }

private:
    using Handles = std::vector<TextHandle>;
    /// Nothing when no row of it has a text.
    using Chunk = CopyOnWrite<Handles>;
    static constexpr std::size_t kChunkRows = 64;

    std::size_t IndexOf(std::size_t row, std::size_t col) const { return row % kChunkRows * cols_ + col; }
    /// A table of `cols` columns, filled with the cells of this one; `source(col)` gives a column's old
    /// number.
    template <class Source>
    void Rebuild(std::size_t cols, const Source& source);

    std::vector<Chunk> chunks_;
    std::size_t rows_ = 0;
    std::size_t cols_ = 0;
};

} // namespace korvane
