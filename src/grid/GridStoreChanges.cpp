#include "grid/GridStoreChanges.h"

#include "common/text/ScopedValue.h"
#include "grid/GridUpdate.h"

#include <algorithm>
#include <optional>
#include <set>
#include <tuple>

namespace korvane {

namespace {

std::size_t HeapOf(const Text& text) {
    return text.capacity() * sizeof(char16_t);
}

/// What a note is about: its kind, and the row and column if it is about one.
using Thing = std::tuple<std::size_t, Row, Col>;

template <class AnyNote>
Thing ThingOf(const AnyNote& note) {
    Thing thing{note.index(), Row{0}, Col{0}};
    std::visit(
        [&thing](const auto& each) {
            if constexpr (requires { each.row; }) std::get<Row>(thing) = each.row;
            if constexpr (requires { each.col; }) std::get<Col>(thing) = each.col;
        },
        note);
    return thing;
}

} // namespace

/// Turns a note: exchanges what the grid has with what the note holds.
class GridStore::Changes::Turner {
public:
    explicit Turner(GridStore& grid) : grid_(grid) {}

    void operator()(TextNote& note) { PutText(note.row, note.col, note.other); }
    void operator()(RowNote& note) {
        RowState& now = grid_.OwnStateOf(note.row);
        std::swap(now, note.other);
        const bool samePlace = now.height == note.other.height && now.visible == note.other.visible;
        if (samePlace)
            grid_.notifier_.RowChanged(note.row);
        else
            grid_.notifier_.TableChanged();
    }
    void operator()(CellLookNote& note) {
        const CellLook now = grid_.LookAt(note.row, note.col);
        grid_.looks_.ChangeCell(Index(note.row), Index(note.col), [&](CellLook& look) { look = note.other; });
        note.other = now;
        grid_.notifier_.RowChanged(note.row);
    }
    void operator()(RowLooksNote& note) {
        grid_.looks_.ExchangeRow(Index(note.row), note.other);
        grid_.notifier_.RowChanged(note.row);
    }
    void operator()(ColumnNote& note) {
        std::swap(grid_.cols_[Index(note.col)], *note.other);
        grid_.notifier_.ColumnChanged(note.col);
    }
    void operator()(LookNote& note) {
        std::swap(grid_.look_, *note.other);
        grid_.notifier_.LookChanged();
    }
    void operator()(RowCountNote& note);
    void operator()(ColumnPresenceNote& note);
    void operator()(ShiftNote& note);
    void operator()(OrderNote& note);

private:
    void PutText(Row row, Col col, Text& text) {
        Text now = grid_.CellValue(row, col);
        grid_.PutHandle(row, col, grid_.texts_.Put(text));
        text = std::move(now);
    }
    void PutTexts(Col col, const RowTexts& texts) {
        for (const auto& [row, text] : texts)
            grid_.PutHandle(row, col, grid_.texts_.Put(text));
    }
    RowTexts TextsOf(Col col) const;
    RowsAway TakeRowsAfter(Row last) const;
    void PutRows(RowsAway rows, Row after);
    ColumnAway TakeColumn(Col col);
    void PutColumn(ColumnAway away, Col col);

    GridStore& grid_;
};

GridStore::Changes::RowTexts GridStore::Changes::Turner::TextsOf(Col col) const {
    RowTexts texts;
    for (Row row{1}; row <= grid_.RowCount(); ++row)
        if (!grid_.HandleAt(row, col).IsEmpty()) texts.push_back({row, grid_.CellValue(row, col)});
    return texts;
}

void GridStore::Changes::Turner::operator()(RowCountNote& note) {
    const Row now = grid_.RowCount();
    if (note.other < now) note.away = std::make_unique<RowsAway>(TakeRowsAfter(note.other));
    grid_.ResizeRows(note.other);
    if (note.away != nullptr && note.other > now) PutRows(std::move(*std::exchange(note.away, nullptr)), now);
    note.other = now;
}

GridStore::Changes::RowsAway GridStore::Changes::Turner::TakeRowsAfter(Row last) const {
    RowsAway away;
    for (Row row = last + 1; row <= grid_.RowCount(); ++row) {
        away.states.push_back(grid_.StateOf(row));
        away.looks.push_back(grid_.looks_.OfRow(Index(row)));
        for (Col col{1}; col <= grid_.ColCount(); ++col)
            if (!grid_.HandleAt(row, col).IsEmpty())
                away.texts.push_back({row, col, grid_.CellValue(row, col)});
    }
    return away;
}

void GridStore::Changes::Turner::PutRows(RowsAway rows, Row after) {
    std::ranges::copy(rows.states, grid_.rows_.Own().begin() + after.Number());
    for (LookTable::RowLooks& looks : rows.looks)
        grid_.looks_.ExchangeRow(Index(++after), looks);
    for (TextNote& text : rows.texts)
        PutText(text.row, text.col, text.other);
}

void GridStore::Changes::Turner::operator()(ColumnPresenceNote& note) {
    if (note.away == nullptr)
        note.away = std::make_unique<ColumnAway>(TakeColumn(note.col));
    else
        PutColumn(std::move(*std::exchange(note.away, nullptr)), note.col);
}

GridStore::Changes::ColumnAway GridStore::Changes::Turner::TakeColumn(Col col) {
    ColumnAway away{std::move(grid_.cols_[Index(col)]), {}, TextsOf(col)};
    for (Row row{1}; col == Col{1} && row <= grid_.RowCount(); ++row) {
        const RowState& state = grid_.StateOf(row);
        if (state.check != 0 || state.checkShown) away.checked.emplace_back(row, state);
    }
    away.looks = grid_.EraseCol(col);
    return away;
}

void GridStore::Changes::Turner::PutColumn(ColumnAway away, Col col) {
    grid_.cols_.insert(grid_.cols_.begin() + (col.Number() - 1), std::move(away.column));
    grid_.cells_.InsertCol(Index(col));
    grid_.looks_.InsertCol(Index(col), std::move(away.looks));
    for (const auto& [row, state] : away.checked) {
        grid_.OwnStateOf(row).check = state.check;
        grid_.OwnStateOf(row).checkShown = state.checkShown;
    }
    PutTexts(col, away.texts);
    grid_.ColsChanged();
}

void GridStore::Changes::Turner::operator()(ShiftNote& note) {
    const Col last = grid_.ColCount();
    if (!note.shifted) {
        note.lost = TextsOf(last);
        grid_.ShiftTextsRight(note.first);
    } else {
        grid_.GiveUpTexts(note.first, note.first);
        grid_.cells_.ShiftLeft(Index(note.first));
        PutTexts(last, std::exchange(note.lost, {}));
        grid_.notifier_.TableChanged();
    }
    note.shifted = !note.shifted;
}

void GridStore::Changes::Turner::operator()(OrderNote& note) {
    const std::vector<std::size_t> order(note.order.begin(), note.order.end());
    grid_.PermuteRows(order);
    for (std::size_t to = 0; to < order.size(); ++to)
        note.order[order[to]] = static_cast<std::uint16_t>(to);
}

/// Tells whether what a note is about is as it was then. Of rows and columns that came, went or moved it
/// isn't.
class GridStore::Changes::Comparison {
    // All of what each has: a new field doesn't compile until it is here.
    static auto Parts(const RowState& state) {
        const auto& [height, check, hasHeight, visible, checkShown] = state;
        return std::tie(height, check, hasHeight, visible, checkShown);
    }
    static auto Parts(const LookTable::RowLooks& looks) {
        const auto& [row, others] = looks;
        return std::tie(row, others);
    }
    static auto Parts(const Column& column) {
        const auto& [key, header, width] = column;
        return std::tie(key, header, width);
    }
    static auto Parts(const Look& look) {
        const auto& [back, fore, fontName, fontSize] = look;
        return std::tie(back, fore, fontName, fontSize);
    }

public:
    explicit Comparison(const GridStore& grid) : grid_(grid) {}

    bool operator()(const TextNote& note) const { return grid_.CellValue(note.row, note.col) == note.other; }
    bool operator()(const RowNote& note) const {
        return grid_.HasRow(note.row) && Parts(grid_.StateOf(note.row)) == Parts(note.other);
    }
    bool operator()(const CellLookNote& note) const { return grid_.LookAt(note.row, note.col) == note.other; }
    bool operator()(const RowLooksNote& note) const {
        if (!grid_.HasRow(note.row)) return false;
        const LookTable::RowLooks now = grid_.looks_.OfRow(Index(note.row));
        return Parts(now) == Parts(note.other);
    }
    bool operator()(const ColumnNote& note) const {
        return grid_.HasCol(note.col) && Parts(grid_.cols_[Index(note.col)]) == Parts(*note.other);
    }
    bool operator()(const LookNote& note) const { return Parts(grid_.look_) == Parts(*note.other); }
    template <class Other>
    bool operator()(const Other&) const {
        return false;
    }

private:
    const GridStore& grid_;
};

namespace {

/// Whether the last note makes the next one unnecessary: both are about the same thing, and the last one
/// already holds what was there before.
struct Covers {
    template <class Note>
    bool operator()(const Note& last, const Note& note) const {
        if constexpr (requires { note.away; })
            return false;
        else if constexpr (requires { note.row == note.row, note.col == note.col; })
            return last.row == note.row && last.col == note.col;
        else if constexpr (requires { note.row == note.row; })
            return last.row == note.row;
        else if constexpr (requires { note.col == note.col; })
            return last.col == note.col;
        else
            return requires {
                note.other;
            };
    }
    template <class Note, class Other>
    bool operator()(const Note&, const Other&) const {
        return false;
    }
};

} // namespace

/// The first note about a thing tells how it was; the later ones hold what came between.
bool GridStore::Changes::LeaveAllAsItWas(const GridStore& grid) const {
    std::set<Thing> compared;
    return std::ranges::all_of(notes_, [&](const Note& note) {
        return !compared.insert(ThingOf(note)).second || std::visit(Comparison(grid), note);
    });
}

void GridStore::Changes::Add(const GridStore& grid, Note note) {
    if (!notes_.empty() && std::visit(Covers(), notes_.back(), note)) return;
    NoteWhere(grid);
    if (const auto* presence = std::get_if<ColumnPresenceNote>(&note))
        oldCols_ = std::min(oldCols_, presence->col - 1);
    notes_.push_back(std::move(note));
}

/// Rows that these changes append need no further notes, because turning takes them away as a whole. Any
/// other note may move texts between them and the other rows, so from then on all is noted again.
void GridStore::Changes::Do(GridStore& grid, Note note) {
    NoteWhere(grid);
    const Row rowsBefore = grid.RowCount();
    const bool onlyRows = std::holds_alternative<RowCountNote>(note);
    const bool covered = GoesOnAppending(note, rowsBefore);
    {
        const ScopedValue unnoted(grid.noted_, nullptr);
        std::visit(Turner(grid), note);
    }
    oldRows_ = onlyRows ? std::min(oldRows_, rowsBefore) : kMaxRows;
    oldCols_ = onlyRows ? oldCols_ : kAllCols;
    if (!covered) notes_.push_back(std::move(note));
}

/// Whether the note appends rows right after those that the last note appended. Turning that one takes both
/// away.
bool GridStore::Changes::GoesOnAppending(const Note& note, Row rows) const {
    const auto* const next = std::get_if<RowCountNote>(&note);
    const auto* const last = notes_.empty() ? nullptr : std::get_if<RowCountNote>(&notes_.back());
    if (next == nullptr || last == nullptr || last->away != nullptr) return false;
    return last->other <= rows && rows <= next->other;
}

void GridStore::Changes::NoteWhere(const GridStore& grid) {
    if (notes_.empty()) before_ = {grid.CurRow(), grid.CurCol()};
}

void GridStore::Changes::Finish(const GridStore& grid) {
    after_ = {grid.CurRow(), grid.CurCol()};
    notes_.shrink_to_fit();
    Measure();
}

void GridStore::Changes::Turn(GridStore& grid) {
    TurnNotes(grid);
    grid.PackTextsIfWorthwhile();
    Measure();
}

void GridStore::Changes::TurnNotes(GridStore& grid) {
    std::optional<GridUpdate> update;
    if (notes_.size() > 1) update.emplace(grid);
    const auto turn = [&grid](Note& note) { std::visit(Turner(grid), note); };
    if (takenBack_)
        std::ranges::for_each(notes_, turn);
    else
        std::for_each(notes_.rbegin(), notes_.rend(), turn);
    takenBack_ = !takenBack_;
    grid.GoTo(takenBack_ ? before_ : after_);
}

// The members of the grid that deal with its changes.

void GridStore::NoteChanges(bool on) {
    noted_ = on ? std::make_unique<Changes>() : nullptr;
}

std::unique_ptr<GridChanges> GridStore::TakeNotedChanges() {
    if (noted_ == nullptr) return nullptr;
    std::unique_ptr<Changes> changes = std::exchange(noted_, std::make_unique<Changes>());
    if (changes->LeaveAllAsItWas(*this)) return nullptr;
    changes->Finish(*this);
    return changes;
}

void GridStore::TurnChanges(GridChanges& changes) {
    const ScopedValue unnoted(noted_, nullptr);
    static_cast<Changes&>(changes).Turn(*this);
}

void GridStore::NoteText(Row row, Col col) {
    if (noted_->Wants(row, col)) noted_->Add(*this, Changes::TextNote{row, col, CellValue(row, col)});
}

void GridStore::NoteRow(Row row) {
    if (noted_->Wants(row)) noted_->Add(*this, Changes::RowNote{row, StateOf(row)});
}

void GridStore::NoteColumn(Col col) {
    if (!noted_->Wants(col)) return;
    noted_->Add(*this, Changes::ColumnNote{col, std::make_unique<Column>(cols_[Index(col)])});
}

void GridStore::NoteLook() {
    noted_->Add(*this, Changes::LookNote{std::make_unique<Look>(look_)});
}

namespace {

/// About how much memory a note takes on the heap.
struct HeapMeasure {
    template <class Note>
    std::size_t operator()(const Note& note) const {
        if constexpr (requires { note.order; })
            return note.order.capacity() * sizeof note.order[0];
        else if constexpr (requires { note.lost; })
            return OfTexts(note.lost);
        else if constexpr (requires { note.away; })
            return note.away == nullptr ? 0 : sizeof *note.away + OfAway(*note.away);
        else
            return OfOther(note.other);
    }

private:
    template <class Texts>
    static std::size_t OfTexts(const Texts& texts) {
        std::size_t size = texts.capacity() * sizeof texts[0];
        for (const auto& entry : texts) {
            if constexpr (requires { entry.text; })
                size += HeapOf(entry.text);
            else
                size += HeapOf(entry.other);
        }
        return size;
    }
    template <class Items>
    static std::size_t OfItems(const Items& items) {
        return items.capacity() * sizeof(typename Items::value_type);
    }
    template <class Away>
    static std::size_t OfAway(const Away& away) {
        std::size_t size = OfTexts(away.texts);
        if constexpr (requires { away.states; })
            size += OfItems(away.states) + OfItems(away.looks);
        else
            size += OfItems(away.looks.own) + OfItems(away.looks.rows) + OfItems(away.checked);
        return size;
    }
    static std::size_t OfOther(const Text& text) { return HeapOf(text); }
    static std::size_t OfOther(const LookTable::RowLooks& looks) { return OfItems(looks.others); }
    template <class Boxed>
    static std::size_t OfOther(const std::unique_ptr<Boxed>&) {
        return sizeof(Boxed);
    }
    template <class Plain>
    static std::size_t OfOther(const Plain&) {
        return 0;
    }
};

} // namespace

void GridStore::Changes::Measure() {
    memoryUse_ = sizeof *this + notes_.capacity() * sizeof(Note);
    for (const Note& note : notes_)
        memoryUse_ += std::visit(HeapMeasure(), note);
}

} // namespace korvane
