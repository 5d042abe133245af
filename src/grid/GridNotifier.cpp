#include "grid/GridNotifier.h"

#include <utility>

namespace korvane {

void GridNotifier::Close() {
    if (!IsOpen()) return;
    --depth_;
    if (!IsOpen()) TellWhatWasKeptBack();
}

void GridNotifier::CloseAll() {
    if (!IsOpen()) return;
    depth_ = 0;
    TellWhatWasKeptBack();
}

void GridNotifier::RowWantedInView(Row row) {
    if (IsOpen())
        wantedRow_ = row;
    else if (listener_ != nullptr)
        listener_->RowWantedInView(row);
}

void GridNotifier::TellWhatWasKeptBack() {
    if (std::exchange(keptBack_, false)) TableChanged();
    if (const auto row = std::exchange(wantedRow_, std::nullopt)) RowWantedInView(*row);
}

} // namespace korvane
