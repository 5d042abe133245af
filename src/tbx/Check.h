#pragma once

#include "grid/Grid.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace korvane {

/// One place of a table or its file that a load or a save would lose or change.
struct Finding {
    /// The cell; column 0 when it is the whole row, row 0 when it is no row.
    CellPosition cell;
    /// The line of the file, counted from 1; 0 when there is none.
    std::size_t line = 0;
    std::string what;
    /// How often it was found in the cell. The line is that of the first time.
    std::size_t times = 1;
    /// The line of the cell, counted from 1; 0 when it is about no line of its text.
    std::size_t cellLine = 0;

    bool operator==(const Finding&) const = default;
};

/// "3:2: line 27: what (5 times)" without the numbers that aren't known, and without a line break.
std::string FindingText(const Finding& finding);

/// Passes findings on as they come. What is found again in the same cell is only counted, so that a cell
/// with millions of faults needs no more memory than one with a few.
class FindingStream {
public:
    using Take = std::function<void(const Finding&)>;
    explicit FindingStream(Take take) : take_(std::move(take)) {}

    /// What was found is `what` followed by `rest`.
    void Add(CellPosition cell, std::size_t line, std::string_view what, std::string_view rest = {},
             std::size_t cellLine = 0);
    /// The same for what is told each time, because it can't be found often.
    void AddEach(CellPosition cell, std::size_t line, std::string what);
    /// Passes on what was found in the last cell. This has to be called at the end.
    void Finish();
    bool IsEmpty() const { return isEmpty_; }

private:
    void Enter(CellPosition cell);

    Take take_;
    /// All of one cell, in the order in which they were first found.
    std::vector<Finding> found_;
    bool isEmpty_ = true;
};

} // namespace korvane
