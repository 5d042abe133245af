#pragma once

#include "grid/Grid.h"

#include <cstdint>
#include <optional>

namespace korvane {

/// Tells a grid's listener what changed, or holds it back while an update bracket is open.
class GridNotifier {
public:
    /// How often the table has changed, also inside brackets.
    std::uint64_t Changes() const { return changes_; }

    void SetListener(GridListener* listener) { listener_ = listener; }

    void Open() { ++depth_; }
    /// Nothing happens when no bracket is open.
    void Close();
    void CloseAll();
    bool IsOpen() const { return depth_ > 0; }

    /// Something in the row changed.
    void RowChanged(Row row) {
        ++changes_;
        if (Hears()) listener_->RowsChanged(row, row);
    }
    void TableChanged() {
        ++changes_;
        if (Hears()) listener_->TableChanged();
    }
    void ColumnChanged(Col col) {
        ++changes_;
        if (Hears()) listener_->ColumnChanged(col);
    }
    void LookChanged() {
        ++changes_;
        if (Hears()) listener_->LookChanged();
    }
    void CurrentCellChanged() {
        if (Hears()) listener_->CurrentCellChanged();
    }
    void FocusWanted() {
        if (listener_ != nullptr) listener_->FocusWanted();
    }
    void RowWantedInView(Row row);

private:
    /// Whether the listener is told now. Inside a bracket, it is noted that something was held back.
    bool Hears() {
        keptBack_ = keptBack_ || IsOpen();
        return !IsOpen() && listener_ != nullptr;
    }
    void TellWhatWasKeptBack();

    GridListener* listener_ = nullptr;
    std::uint64_t changes_ = 0;
    int depth_ = 0;
    bool keptBack_ = false;
    std::optional<Row> wantedRow_;
};

} // namespace korvane
