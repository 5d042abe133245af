#pragma once

#include "common/text/CodePage.h"
#include "common/text/TextOrder.h"
#include "grid/CellTable.h"
#include "grid/CopyOnWrite.h"
#include "grid/Grid.h"
#include "grid/GridNotifier.h"
#include "grid/LookTable.h"
#include "grid/TextBlocks.h"

#include <cstddef>
#include <memory>
#include <span>
#include <utility>
#include <vector>

namespace korvane {

/// The data of the table. A table at the format's limit takes little more memory than its file.
class GridStore final : public Grid {
public:
    /// The height of a row until one is written to it.
    static constexpr int kDefaultRowHeight = 24;
    static constexpr int kDefaultColWidth = 240;

    /// `order` is that in which columns are sorted; nullptr for the one that is the same for every user.
    explicit GridStore(const CodePage& page, std::shared_ptr<const TextOrder> order = nullptr);
    GridStore(const GridStore&) = delete;
    GridStore& operator=(const GridStore&) = delete;
    ~GridStore() override;

    Row RowCount() const override { return Row(static_cast<int>(cells_.Rows())); }
    void SetRowCount(Row count) override;
    Col ColCount() const override { return Col(static_cast<int>(cells_.Cols())); }
    void SetColCount(Col count) override;
    void AddCol(TextView key, TextView header) override;
    void RemoveCol(Col col) override;

    Row CurRow() const override { return curRow_; }
    Col CurCol() const override { return curCol_; }
    void SetCurRow(Row row) override;
    void SetCurCol(Col col) override;

    Text CellValue(Row row, Col col) const override;
    void SetCellValue(Row row, Col col, TextView value) override;

    Text ColKey(Col col) const override;
    const Text& ColHeaderText(Col col) const override;
    void SetColHeaderText(Col col, TextView header) override;
    int ColWidth(Col col) const override;
    void SetColWidth(Col col, int width) override;
    int RowHeight(Row row) const override;
    void SetRowHeight(Row row, int height) override;
    bool HasRowHeight(Row row) const override;
    bool RowVisible(Row row) const override;
    void SetRowVisible(Row row, bool visible) override;

    Colour CellBackColor(Row row, Col col) const override;
    void SetCellBackColor(Row row, Col col, Colour colour) override;
    Colour CellForeColor(Row row, Col col) const override;
    void SetCellForeColor(Row row, Col col, Colour colour) override;
    bool CellFontFlag(Row row, Col col, CellFlag flag) const override;
    void SetCellFontFlag(Row row, Col col, CellFlag flag, bool on) override;
    void SetCellColourMode(Row row, Col col, int mode) override;
    int CellCheck(Row row) const override;
    void SetCellCheck(Row row, int check) override;
    bool CellCheckShown(Row row) const override;
    void SetCellCheckShown(Row row, bool shown) override;

    void SetRowBackColor(Row row, Colour colour) override;
    void SetRowForeColor(Row row, Colour colour) override;
    void SetRowFontFlag(Row row, CellFlag flag, bool on) override;
    void SetRowColourMode(Row row, int mode) override;

    Colour GridBackColor() const override { return look_.back; }
    void SetGridBackColor(Colour colour) override { SetLook(look_.back, colour); }
    Colour GridForeColor() const override { return look_.fore; }
    void SetGridForeColor(Colour colour) override { SetLook(look_.fore, colour); }
    const Text& GridFontName() const override { return look_.fontName; }
    void SetGridFontName(TextView name) override { SetLook(look_.fontName, Text(name)); }
    int GridFontSize() const override { return look_.fontSize; }
    void SetGridFontSize(int points) override { SetLook(look_.fontSize, points); }
    bool SortOnHeaderClick() const override { return sortOnHeaderClick_; }
    void SetSortOnHeaderClick(bool on) override { sortOnHeaderClick_ = on; }
    bool GridVisible() const override { return visible_; }
    void SetGridVisible(bool visible) override;

    void GridBeginUpdate() override { notifier_.Open(); }
    void GridEndUpdate() override;
    void GridRefresh() override { notifier_.TableChanged(); }
    void GridSetFocus() override;
    void EnsureRowVisible(Row row) override;

    void SortByColumn(Col col, SortOrder order) override;

    const CodePage& Page() const override { return texts_.Page(); }
    void AdoptBytes(SharedBytes bytes) override;
    void SetCellSlice(Row row, Col col, std::size_t offset, std::size_t length) override;
    void SetCellBytes(Row row, Col col, std::string_view bytes) override;
    std::optional<std::string_view> CellBytes(Row row, Col col) const override;
    std::size_t TextLength(Row row, std::span<const Col> cols) const override;
    std::unique_ptr<GridTail> BeginTail() override;
    void ShiftTextsRight(Col first) override;
    std::optional<CellPosition> FindText(TextView part, CellPosition from) const override;

    void NoteChanges(bool on) override;
    std::unique_ptr<GridChanges> TakeNotedChanges() override;
    void TurnChanges(GridChanges& changes) override;

    std::uint64_t ChangeCount() const override { return notifier_.Changes(); }
    std::unique_ptr<Grid> Snapshot() const override;

    void SetListener(GridListener* listener) override { notifier_.SetListener(listener); }

private:
    struct Column {
        Text key;
        Text header;
        int width = kDefaultColWidth;
    };
    /// What a row has only once, such as its height and the check box of column 1.
    struct RowState {
        int height = kDefaultRowHeight;
        int check = 0;
        bool hasHeight = false;
        bool visible = true;
        bool checkShown = false;
    };
    struct Look {
        Colour back = kNoColour;
        Colour fore = kNoColour;
        Text fontName;
        int fontSize = 0;
    };

    class Tail;
    class Finder;
    class Changes;

    static std::size_t Index(Row row) { return static_cast<std::size_t>(row.Number() - 1); }
    static std::size_t Index(Col col) { return static_cast<std::size_t>(col.Number() - 1); }
    bool HasCell(Row row, Col col) const { return HasRow(row) && HasCol(col); }
    /// Whether the row has a check box: that of its cell in column 1.
    bool HasCheck(Row row) const { return HasCell(row, Col{1}); }
    TextHandle HandleAt(Row row, Col col) const { return cells_.At(Index(row), Index(col)); }
    const RowState& StateOf(Row row) const { return (*rows_)[Index(row)]; }
    RowState& OwnStateOf(Row row) { return rows_.Own()[Index(row)]; }
    CellLook LookAt(Row row, Col col) const {
        return HasCell(row, col) ? looks_.At(Index(row), Index(col)) : CellLook();
    }

    bool AppendRows(const GridStore& part);
    void PutHandle(Row row, Col col, TextHandle handle);
    void ResizeRows(Row count);
    /// Gives back the looks that the column had.
    LookTable::ColumnLooks EraseCol(Col col);
    void PermuteRows(std::span<const std::size_t> order);
    void GiveUpTexts(std::size_t firstRow);
    void GiveUpTexts(Col firstCol, Col lastCol);
    void PackTextsIfWorthwhile();
    void ColsChanged();
    void ForgetChecks();
    void KeepCurrentCellInside();
    void GoTo(CellPosition cell);
    /// The cell itself if there is one, or the first one after it.
    std::optional<CellPosition> FirstCellFrom(CellPosition from) const;
    std::vector<std::size_t> SortedOrder(Col col, SortOrder order) const;

    /// Writes a field of a row; false when it had the value already.
    template <class Field>
    bool SetRowField(Row row, Field RowState::*field, Field value);
    template <class Field, class Value>
    void SetLook(Field& field, Value value);
    template <class Field, class Value>
    void SetColumn(Col col, Field Column::*field, const Value& value);
    template <class Change>
    void ChangeCellLook(Row row, Col col, const Change& change);
    template <class Change>
    void ChangeRowLook(Row row, const Change& change);

    // Each of these is called before its change, while changes are noted.
    void NoteText(Row row, Col col);
    void NoteRow(Row row);
    void NoteColumn(Col col);
    void NoteLook();

    TextBlocks texts_;
    std::shared_ptr<const TextOrder> order_;
    CellTable cells_;
    LookTable looks_;
    CopyOnWrite<std::vector<RowState>> rows_{std::vector<RowState>()};
    std::vector<Column> cols_;
    Row curRow_;
    Col curCol_;
    Look look_;
    bool visible_ = true;
    bool sortOnHeaderClick_ = false;
    GridNotifier notifier_;
    std::unique_ptr<Changes> noted_; // nothing while changes aren't noted
};

template <class Field, class Value>
void GridStore::SetLook(Field& field, Value value) {
    if (field == value) return;
    if (noted_) NoteLook();
    // A name keeps the room of a longer one that it takes the place of, and strange files have huge names.
    static_cast<void>(std::exchange(field, std::move(value)));
    notifier_.LookChanged();
}

} // namespace korvane
