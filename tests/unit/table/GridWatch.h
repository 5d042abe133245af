#pragma once

#include "grid/Grid.h"

namespace korvane {

/// Counts what a shown grid would be told.
class GridWatch final : public GridListener {
public:
    int wanted = 0;
    int tableChanges = 0;
    int rowChanges = 0;

    void RowsChanged(Row, Row) override { ++rowChanges; }
    void TableChanged() override { ++tableChanges; }
    void ColumnChanged(Col) override {}
    void LookChanged() override {}
    void CurrentCellChanged() override {}
    void FocusWanted() override { ++wanted; }
    void RowWantedInView(Row) override {}
};

} // namespace korvane
