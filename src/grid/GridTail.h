#pragma once

namespace korvane {

class Grid;

/// Rows that aren't in the table yet, with a grid of their own. That grid has the table's columns and the
/// bytes that it adopted, so that another thread can fill it while the table is filled too.
class GridTail {
public:
    virtual ~GridTail() = default;

    /// Where the rows are put.
    virtual Grid& Rows() = 0;
    /// Moves the rows to the end of the table. False, and nothing is done, when they are too many for it. The
    /// table must still have the columns and the bytes, and no change of it may be noted.
    virtual bool Append() = 0;
};

} // namespace korvane
