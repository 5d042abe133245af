#include "grid/CellTable.h"

#include <algorithm>
#include <utility>

namespace korvane {

void CellTable::SetRows(std::size_t rows) {
    chunks_.resize((rows + kChunkRows - 1) / kChunkRows);
    const bool shrinksInChunk = rows < rows_ && rows % kChunkRows != 0;
    if (shrinksInChunk && chunks_.back())
        std::ranges::fill(std::span(chunks_.back().Own()).subspan(IndexOf(rows, 0)), TextHandle());
    rows_ = rows;
}

template <class Source>
void CellTable::Rebuild(std::size_t cols, const Source& source) {
    CellTable rebuilt;
    rebuilt.cols_ = cols;
    rebuilt.SetRows(rows_);
    for (std::size_t row = 0; row < rows_; ++row)
        for (std::size_t col = 0; col < cols; ++col)
            if (const TextHandle handle = source(row, col); !handle.IsEmpty())
                rebuilt.Place(row, col) = handle;
    *this = std::move(rebuilt);
}

void CellTable::SetCols(std::size_t cols) {
    if (std::ranges::none_of(chunks_, &Chunk::operator bool)) {
        cols_ = cols;
        return;
    }
    Rebuild(cols,
            [this](std::size_t row, std::size_t col) { return col < cols_ ? At(row, col) : TextHandle(); });
}

void CellTable::EraseCol(std::size_t erased) {
    Rebuild(cols_ - 1,
            [=, this](std::size_t row, std::size_t col) { return At(row, col < erased ? col : col + 1); });
}

void CellTable::InsertCol(std::size_t inserted) {
    Rebuild(cols_ + 1, [=, this](std::size_t row, std::size_t col) {
        if (col == inserted) return TextHandle();
        return At(row, col < inserted ? col : col - 1);
    });
}

void CellTable::ShiftRight(std::size_t first) {
    const auto left = static_cast<std::ptrdiff_t>(first);
    const auto width = static_cast<std::ptrdiff_t>(cols_);
    for (Chunk& chunk : chunks_) {
        if (!chunk) continue;
        Handles& handles = chunk.Own();
        for (auto row = handles.begin(); row != handles.end(); row += width) {
            std::move_backward(row + left, row + width - 1, row + width);
            row[left] = TextHandle();
        }
    }
}

void CellTable::ShiftLeft(std::size_t first) {
    const auto left = static_cast<std::ptrdiff_t>(first);
    const auto width = static_cast<std::ptrdiff_t>(cols_);
    for (Chunk& chunk : chunks_) {
        if (!chunk) continue;
        Handles& handles = chunk.Own();
        for (auto row = handles.begin(); row != handles.end(); row += width) {
            std::move(row + left + 1, row + width, row + left);
            row[width - 1] = TextHandle();
        }
    }
}

void CellTable::Permute(std::span<const std::size_t> order) {
    Rebuild(cols_, [=, this](std::size_t row, std::size_t col) { return At(order[row], col); });
}

} // namespace korvane
