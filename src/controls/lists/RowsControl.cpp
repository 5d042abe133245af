#include "controls/lists/RowsControl.h"

#include <utility>

namespace korvane {

bool RowsControl::Hears() {
    keptBack_ = keptBack_ || depth_ > 0;
    return depth_ == 0 && listener_ != nullptr;
}

void RowsControl::EndUpdate() {
    if (depth_ == 0 || --depth_ > 0 || listener_ == nullptr) return;
    if (std::exchange(keptBack_, false)) listener_->RowsReset();
    if (wanted_) listener_->RowWantedInView();
}

std::optional<int> RowsControl::TakeWantedRow() {
    return std::exchange(wanted_, std::nullopt);
}

void RowsControl::TellReset() {
    wanted_.reset();
    if (Hears()) listener_->RowsReset();
}

void RowsControl::TellInserted(int first, int last) {
    if (wanted_ && *wanted_ >= first) *wanted_ += last - first + 1;
    if (Hears()) listener_->RowsInserted(first, last);
}

void RowsControl::TellRemoved(int first, int last) {
    if (wanted_ && *wanted_ >= first && *wanted_ <= last) wanted_.reset();
    if (wanted_ && *wanted_ > last) *wanted_ -= last - first + 1;
    if (Hears()) listener_->RowsRemoved(first, last);
}

void RowsControl::TellChanged(int first, int last) {
    if (Hears()) listener_->RowsChanged(first, last);
}

void RowsControl::TellPicks() {
    if (Hears()) listener_->PicksChanged();
}

void RowsControl::TellCurrent(int row) {
    if (Hears()) listener_->CurrentChanged();
    TellWanted(row);
}

void RowsControl::TellWanted(int row) {
    wanted_.reset();
    if (row >= 0) wanted_ = row;
    if (wanted_ && depth_ == 0 && listener_ != nullptr) listener_->RowWantedInView();
}

} // namespace korvane
