#pragma once

#include "document/model/Table.h"

#include <vector>

namespace korvane::doc::rtf {

/// The row of a table as the words define it, cell by cell.
class RowDefinition {
public:
    void SetLeft(std::int32_t left);
    void SetGap(Side side, std::int32_t gap) { (side == Side::Left ? gapLeft_ : gapRight_) = gap; }
    /// The cell that is being defined.
    CellFormat& Cell() { return cell_; }
    void SetCellGap(Side side, std::int32_t gap);
    /// Ends the cell at that place.
    void EndCell(std::int32_t edge, std::size_t mostCells);
    const std::vector<CellFormat>& Cells() const { return cells_; }

private:
    std::vector<CellFormat> cells_;
    CellFormat cell_{};
    bool leftGiven_ = false;
    std::int32_t edge_ = 0;
    std::int32_t gapLeft_ = 0;
    std::int32_t gapRight_ = 0;
    bool cellGapLeft_ = false;
    bool cellGapRight_ = false;
};

} // namespace korvane::doc::rtf
