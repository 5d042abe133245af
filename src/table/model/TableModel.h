#pragma once

#include "common/number/DateTime.h"
#include "common/number/Units.h"
#include "common/text/SharedText.h"
#include "common/text/Text.h"
#include "grid/Grid.h"
#include "table/model/AlteredFlag.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace korvane {

/// One text for each column of a file, numbered from 1 to `MaxColumns`. The text of any other column is empty
/// and can't be set.
class ColumnTexts {
public:
    const Text& operator[](Col col) const { return Holds(col) ? texts_[Index(col)].Whole() : empty_; }
    void Set(Col col, Text text) {
        if (Holds(col)) texts_[Index(col)] = std::move(text);
    }
    void Clear() { texts_.fill({}); }
    bool operator==(const ColumnTexts&) const = default;

private:
    static bool Holds(Col col) { return col >= Col{1} && col <= MaxColumns; }
    static std::size_t Index(Col col) { return static_cast<std::size_t>(col.Number() - 1); }

    std::array<SharedText, MaxColumns.Number()> texts_{};
    Text empty_;
};

/// What a tab knows of its table and lets commands change.
struct TableAttributes {
    // These are unset until a load, a design or the user sets them. Unset ones count as 0 or empty.
    std::optional<std::int16_t> SetRowHeight{};
    std::optional<Colour> TableBackColour{};
    std::optional<SharedText> TableFontName{};
    std::optional<std::int16_t> TableFontSize{};
    /// The names as they were read or designed. They don't follow the grid's headers.
    ColumnTexts ColumnNames{};
};

/// What a tab knows of its table, except the rows and columns, which are in the grid.
class TableModel : public TableAttributes {
public:
    /// The grid is the tab's and outlives the model.
    explicit TableModel(Grid& grid) : grid_(grid) {}

    Grid& GridStore() { return grid_; }
    const Grid& GridStore() const { return grid_; }

    /// Sets `SetRowHeight` to the height of the current row, which stands for all rows in a file. Where no
    /// row is current the first one counts, and a table without rows keeps what it has.
    void TakeHeightOfCurrentRow();

    /// Full path of the file; empty for a table that has none.
    Text TxtDbFile;
    /// 1 when the table has changes that aren't on disk.
    AlteredFlag TableAltered;
    /// When the file was written; nothing for a table that isn't in a file yet.
    std::optional<DateTime> SavedAt;
    /// Used only between reading the column lines of a file and creating the columns.
    ColumnTexts ColumnWidths;
    /// The titles of the last design on this tab. Entries without a title are left out.
    std::vector<Text> lstNewTableColumns;

private:
    Grid& grid_;
};

} // namespace korvane
