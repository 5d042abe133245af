#include "document/rtf/RowDefinition.h"

#include <algorithm>
#include <utility>

namespace korvane::doc::rtf {

namespace {

/// The widest page of common programs. A wider cell is a mistake.
constexpr std::int32_t kWidestCell = 31680;

} // namespace

void RowDefinition::SetLeft(std::int32_t left) {
    leftGiven_ = true;
    edge_ = std::clamp(left, -kWidestCell, kWidestCell);
}

void RowDefinition::SetCellGap(Side side, std::int32_t gap) {
    (side == Side::Left ? cell_.gapLeft : cell_.gapRight) = gap;
    (side == Side::Left ? cellGapLeft_ : cellGapRight_) = true;
}

void RowDefinition::EndCell(std::int32_t edge, std::size_t mostCells) {
    if (cells_.size() >= mostCells) return;
    if (cells_.empty() && leftGiven_) cell_.left = edge_;
    cell_.width = std::clamp(std::clamp(edge, -kWidestCell, kWidestCell * 64) - edge_, 0, kWidestCell);
    if (!cellGapLeft_) cell_.gapLeft = gapLeft_;
    if (!cellGapRight_) cell_.gapRight = gapRight_;
    edge_ += cell_.width;
    cells_.push_back(std::exchange(cell_, {}));
    cellGapLeft_ = cellGapRight_ = false;
}

} // namespace korvane::doc::rtf
