#pragma once

#include "grid/GridStore.h"

#include <cstdint>
#include <memory>
#include <utility>
#include <variant>
#include <vector>

namespace korvane {

/// What changed in a grid, in the order in which it did. A note holds the other state of the thing that it is
/// about, and turning it exchanges the two: the same note takes a change back and makes it again. So it costs
/// what the change is about, never the table.
class GridStore::Changes final : public GridChanges {
public:
    struct RowText {
        Row row;
        Text text;
    };
    using RowTexts = std::vector<RowText>;

    struct TextNote {
        Row row;
        Col col;
        Text other;
    };
    struct RowNote {
        Row row;
        RowState other;
    };
    struct CellLookNote {
        Row row;
        Col col;
        CellLook other;
    };
    struct RowLooksNote {
        Row row;
        LookTable::RowLooks other;
    };
    struct ColumnNote {
        Col col;
        std::unique_ptr<Column> other;
    };
    struct LookNote {
        std::unique_ptr<Look> other;
    };
    /// What stands in the rows behind the last one, while they are away.
    struct RowsAway {
        std::vector<RowState> states;
        std::vector<LookTable::RowLooks> looks;
        std::vector<TextNote> texts;
    };
    struct RowCountNote {
        Row other;
        std::unique_ptr<RowsAway> away{};
    };
    /// What stands in a column while it is away.
    struct ColumnAway {
        Column column;
        LookTable::ColumnLooks looks;
        RowTexts texts;
        std::vector<std::pair<Row, RowState>> checked{}; ///< only of column 1
    };
    struct ColumnPresenceNote {
        Col col;
        std::unique_ptr<ColumnAway> away{};
    };
    /// Texts moved one column to the right, and those that fell off the end.
    struct ShiftNote {
        Col first;
        bool shifted = false;
        RowTexts lost{};
    };
    struct OrderNote {
        static_assert(kMaxRows.Number() <= UINT16_MAX);
        std::vector<std::uint16_t> order;
    };

    using Note = std::variant<TextNote, RowNote, CellLookNote, RowLooksNote, ColumnNote, LookNote,
                              RowCountNote, ColumnPresenceNote, ShiftNote, OrderNote>;

    std::size_t MemoryUse() const override { return memoryUse_; }
    /// Whether everything is as it was, though it may have been otherwise meanwhile.
    bool LeaveAllAsItWas(const GridStore& grid) const;

    /// Whether a change to the row or cell has to be noted: what came within these changes goes as a whole.
    bool Wants(Row row) const { return row <= oldRows_; }
    bool Wants(Row row, Col col) const { return row <= oldRows_ && col <= oldCols_; }
    bool Wants(Col col) const { return col <= oldCols_; }

    /// Notes what is about to change.
    void Add(const GridStore& grid, Note note);
    /// Makes the change by turning its note, and keeps that.
    void Do(GridStore& grid, Note note);
    /// No more changes come.
    void Finish(const GridStore& grid);
    /// Takes the changes back or makes them again, by turns.
    void Turn(GridStore& grid);

private:
    class Turner;
    class Comparison;

    bool GoesOnAppending(const Note& note, Row rows) const;
    void NoteWhere(const GridStore& grid);
    void TurnNotes(GridStore& grid);
    void Measure();

    std::vector<Note> notes_;
    CellPosition before_;
    CellPosition after_;
    bool takenBack_ = false;
    // The rows and columns that stood there before: up to these.
    Row oldRows_ = kMaxRows;
    Col oldCols_ = kAllCols;
    std::size_t memoryUse_ = 0;

    static constexpr Col kAllCols{INT16_MAX};
};

} // namespace korvane
