#pragma once

#include "grid/EndQuietly.h"
#include "grid/Grid.h"

namespace korvane {

/// Brackets a mass change as long as it lives. Nothing is painted meanwhile.
class GridUpdate {
public:
    /// The grid outlives the bracket.
    explicit GridUpdate(Grid& grid) : grid_(grid) { grid_.GridBeginUpdate(); }
    GridUpdate(const GridUpdate&) = delete;
    GridUpdate& operator=(const GridUpdate&) = delete;
    ~GridUpdate() {
        EndQuietly([this] { grid_.GridEndUpdate(); });
    }

private:
    Grid& grid_;
};

/// Hides the grid as long as it lives.
class GridHidden {
public:
    /// The grid outlives the object.
    explicit GridHidden(Grid& grid) : grid_(grid) { grid_.SetGridVisible(false); }
    GridHidden(const GridHidden&) = delete;
    GridHidden& operator=(const GridHidden&) = delete;
    ~GridHidden() {
        EndQuietly([this] { grid_.SetGridVisible(true); });
    }

private:
    Grid& grid_;
};

} // namespace korvane
