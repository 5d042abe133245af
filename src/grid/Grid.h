#pragma once

#include "common/number/Units.h"
#include "common/text/SharedBytes.h"
#include "common/text/SortOrder.h"
#include "common/text/Text.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

namespace korvane {

class CodePage;
class GridTail;

/// The place of a cell.
struct CellPosition {
    Row row;
    Col col;
    constexpr auto operator<=>(const CellPosition&) const = default;
};

/// The flags of a cell's own font.
enum class CellFlag : std::uint8_t { Italic, Bold, Strikethrough };

/// Tells a shown grid what changed in its store. Between `GridBeginUpdate` and `GridEndUpdate` nothing is
/// told; what was held back arrives as one `TableChanged`.
class GridListener {
public:
    virtual ~GridListener() = default;

    /// Texts, colours, flags or check boxes in these rows (both ends included) changed.
    virtual void RowsChanged(Row first, Row last) = 0;
    /// Rows were added, removed, hidden, shown, sorted or resized, or columns changed: read everything again.
    virtual void TableChanged() = 0;
    /// A column's caption or width changed.
    virtual void ColumnChanged(Col col) = 0;
    /// Colours or font of the whole table, or whether the grid is shown.
    virtual void LookChanged() = 0;
    virtual void CurrentCellChanged() = 0;
    virtual void FocusWanted() = 0;
    virtual void RowWantedInView(Row row) = 0;
};

/// Changes to a grid that belong together. Only the grid that noted them can use them.
class GridChanges {
public:
    virtual ~GridChanges() = default;
    /// About how many bytes they take.
    virtual std::size_t MemoryUse() const = 0;
};

/// The table's data and the vocabulary in which every command speaks about it. There is no second copy.
///
/// Rows and columns count from 1. Nothing throws: a write to a cell that isn't there has no effect, and a
/// read from it gives the value of an empty cell. Every access by row and column takes constant time.
class Grid {
public:
    virtual ~Grid() = default;

    virtual Row RowCount() const = 0;
    /// A larger number appends empty rows, at most up to `kMaxRows`; a smaller one drops rows from the end.
    virtual void SetRowCount(Row count) = 0;
    virtual Col ColCount() const = 0;
    /// A larger number appends columns without key and caption; a smaller one drops columns from the end.
    virtual void SetColCount(Col count) = 0;
    /// Appends a column. Nothing happens when there is one with this key already.
    virtual void AddCol(TextView key, TextView header) = 0;
    virtual void RemoveCol(Col col) = 0;

    /// The current cell; 0 in an empty grid. A write past the last row or column has no effect.
    virtual Row CurRow() const = 0;
    virtual Col CurCol() const = 0;
    virtual void SetCurRow(Row row) = 0;
    virtual void SetCurCol(Col col) = 0;

    virtual Text CellValue(Row row, Col col) const = 0;
    virtual void SetCellValue(Row row, Col col, TextView value) = 0;
    /// The text that the cell shows, which is its value.
    Text CellText(Row row, Col col) const { return CellValue(row, col); }

    virtual Text ColKey(Col col) const = 0;
    /// Valid until the next change.
    virtual const Text& ColHeaderText(Col col) const = 0;
    virtual void SetColHeaderText(Col col, TextView header) = 0;
    /// Widths and heights are grid units: pixels at 96 dpi.
    virtual int ColWidth(Col col) const = 0;
    virtual void SetColWidth(Col col, int width) = 0;
    virtual int RowHeight(Row row) const = 0;
    virtual void SetRowHeight(Row row, int height) = 0;
    /// Whether a height was ever written to the row; until then it has the grid's own.
    virtual bool HasRowHeight(Row row) const = 0;
    /// Hidden rows keep their data and are still counted.
    virtual bool RowVisible(Row row) const = 0;
    virtual void SetRowVisible(Row row, bool visible) = 0;

    virtual Colour CellBackColor(Row row, Col col) const = 0;
    virtual void SetCellBackColor(Row row, Col col, Colour colour) = 0;
    virtual Colour CellForeColor(Row row, Col col) const = 0;
    virtual void SetCellForeColor(Row row, Col col, Colour colour) = 0;
    virtual bool CellFontFlag(Row row, Col col, CellFlag flag) const = 0;
    virtual void SetCellFontFlag(Row row, Col col, CellFlag flag, bool on) = 0;
    /// A display flag of the cell that nothing reads back.
    virtual void SetCellColourMode(Row row, Col col, int mode) = 0;
    /// The check box beside the text of column 1: 1 ticked, 0 not.
    virtual int CellCheck(Row row) const = 0;
    virtual void SetCellCheck(Row row, int check) = 0;
    virtual bool CellCheckShown(Row row) const = 0;
    virtual void SetCellCheckShown(Row row, bool shown) = 0;

    /// The same value for every column that the grid has now.
    virtual void SetRowBackColor(Row row, Colour colour) = 0;
    virtual void SetRowForeColor(Row row, Colour colour) = 0;
    virtual void SetRowFontFlag(Row row, CellFlag flag, bool on) = 0;
    virtual void SetRowColourMode(Row row, int mode) = 0;

    virtual Colour GridBackColor() const = 0;
    virtual void SetGridBackColor(Colour colour) = 0;
    virtual Colour GridForeColor() const = 0;
    virtual void SetGridForeColor(Colour colour) = 0;
    virtual const Text& GridFontName() const = 0;
    virtual void SetGridFontName(TextView name) = 0;
    virtual int GridFontSize() const = 0;
    virtual void SetGridFontSize(int points) = 0;
    virtual bool SortOnHeaderClick() const = 0;
    virtual void SetSortOnHeaderClick(bool on) = 0;
    virtual bool GridVisible() const = 0;
    virtual void SetGridVisible(bool visible) = 0;

    /// Bracket mass changes; brackets nest.
    virtual void GridBeginUpdate() = 0;
    virtual void GridEndUpdate() = 0;
    virtual void GridRefresh() = 0;
    /// Commands end with this call. It also closes a bracket that a command left open when it stopped.
    virtual void GridSetFocus() = 0;
    virtual void EnsureRowVisible(Row row) = 0;

    /// Reorders whole rows by the texts of a column: numbers by their value, other texts as the user expects
    /// them, and blank ones at the end in both orders. Rows that compare alike keep their order.
    virtual void SortByColumn(Col col, SortOrder order) = 0;

    // The following make a table at the format's limit load, save and search at the speed of memory.

    /// The code page in which the store keeps texts as bytes.
    virtual const CodePage& Page() const = 0;
    /// Hands the grid a file's bytes, to which `SetCellSlice` then points.
    virtual void AdoptBytes(SharedBytes bytes) = 0;
    /// Sets the cell's value to `length` of the adopted bytes from `offset` on, without copying them.
    virtual void SetCellSlice(Row row, Col col, std::size_t offset, std::size_t length) = 0;
    /// Sets the cell's value to a copy of these bytes of `Page()`.
    virtual void SetCellBytes(Row row, Col col, std::string_view bytes) = 0;
    /// The cell's value as bytes of `Page()`, valid until the next change; nullopt when the page can't hold
    /// it.
    virtual std::optional<std::string_view> CellBytes(Row row, Col col) const = 0;
    /// How many characters the texts of these cells of a row have together.
    virtual std::size_t TextLength(Row row, std::span<const Col> cols) const = 0;
    /// Begins rows that are to follow those of the table. The table has to outlive them.
    virtual std::unique_ptr<GridTail> BeginTail() = 0;
    /// Moves the texts of the columns from `first` on one column to the right: those of the last column are
    /// lost, and `first` is left empty.
    virtual void ShiftTextsRight(Col first) = 0;
    /// The first cell from `from` on, row by row, whose text contains `part`. Case counts.
    virtual std::optional<CellPosition> FindText(TextView part, CellPosition from) const = 0;

    // The following take changes back. Moves of the current cell, `GridVisible` and `SortOnHeaderClick`
    // aren't changes.

    /// Sets whether the grid notes from now on how to take changes back. What it has noted is forgotten.
    virtual void NoteChanges(bool on) = 0;
    /// What was noted since the last call; nullptr when nothing changed.
    virtual std::unique_ptr<GridChanges> TakeNotedChanges() = 0;
    /// Takes the changes back, or makes them again when they were taken back, and goes to the cell that was
    /// the current one then. This isn't noted itself. The table has to be as the changes left it.
    virtual void TurnChanges(GridChanges& changes) = 0;

    /// This number grows with each change of what the table holds or how it looks, and sometimes without one.
    virtual std::uint64_t ChangeCount() const = 0;
    /// The table as it is now, which another thread may read while this one changes. It shares what hasn't
    /// changed since, so it costs little however large the table is. It isn't to be changed.
    virtual std::unique_ptr<Grid> Snapshot() const = 0;

    /// At most one listener; nullptr takes it away. The caller owns it.
    virtual void SetListener(GridListener* listener) = 0;

    bool HasRow(Row row) const { return row >= Row{1} && row <= RowCount(); }
    bool HasCol(Col col) const { return col >= Col{1} && col <= ColCount(); }
};

} // namespace korvane
