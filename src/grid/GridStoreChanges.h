#pragma once

#include "grid/GridStore.h"

#include <cstdint>
#include <memory>
#include <utility>
#include <variant>
#include <vector>

namespace korvane {

/// What changed in a grid, in order. A note is about one thing: a text, a row, a column and so on. It holds
/// that thing's other state, and turning the note exchanges the two. So the same note takes a change back and
/// makes it again, and it costs as much memory as the thing, not the table. Rows and columns that are away
/// are those that were removed, and that a note keeps until they are put back.
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
    /// The contents of rows after the last one, while they are away.
    struct RowsAway {
        std::vector<RowState> states;
        std::vector<LookTable::RowLooks> looks;
        std::vector<TextNote> texts;
    };
    struct RowCountNote {
        Row other;
        std::unique_ptr<RowsAway> away{};
    };
    /// The contents of a column while it is away.
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
    /// A move of texts by one column to the right, and the texts of the last column, which were lost.
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

    /// Whether the changes want a note of a change to the row, cell or column. They don't for rows and
    /// columns that they added themselves, because these go as a whole.
    bool Wants(Row row) const { return row <= oldRows_; }
    bool Wants(Row row, Col col) const { return row <= oldRows_ && col <= oldCols_; }
    bool Wants(Col col) const { return col <= oldCols_; }

    /// Notes what is about to change.
    void Add(const GridStore& grid, Note note);
    /// Makes the change by turning its note, and keeps the note.
    void Do(GridStore& grid, Note note);
    /// Ends the changes: nothing is added any more.
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
    // The last row and column that were there before these changes; those after them are new.
    Row oldRows_ = kMaxRows;
    Col oldCols_ = kAllCols;
    std::size_t memoryUse_ = 0;

    static constexpr Col kAllCols{INT16_MAX};
};

} // namespace korvane
