#pragma once

#include "platform/memory/MemoryGrid.h"
#include "support/TestApp.h"
#include "table/TabContext.h"
#include "table/TableHost.h"
#include "table/TableModel.h"

#include <initializer_list>
#include <vector>

namespace korvane {

/// Counts what a shown grid would be asked to do.
class GridWatcher final : public GridListener {
public:
    int focusWanted = 0;
    int refreshes = 0;
    std::vector<Row> rowsWanted;

    void RowsChanged(Row, Row) override {}
    void TableChanged() override { ++refreshes; }
    void ColumnChanged(Col) override {}
    void LookChanged() override {}
    void CurrentCellChanged() override {}
    void FocusWanted() override { ++focusWanted; }
    void RowWantedInView(Row row) override { rowsWanted.push_back(row); }
};

/// The tab's window, as far as the commands ask of it.
class RecordingHost final : public TableHost {
public:
    std::vector<std::int16_t> heights;

    void ShowRowHeight(std::int16_t height) override { heights.push_back(height); }
    void SetTabCaption(TextView) override {}
    void ClearDirty() override {}
};

/// A program with one table in memory, open on a tab.
class TestTab : public TestApp {
public:
    TestTab() { grid.SetListener(&watcher); }

    using TextRow = std::initializer_list<Text>;

    /// Makes the table hold exactly these rows, as wide as the first; row and column 1 are the current ones.
    void Fill(std::initializer_list<TextRow> rows) {
        grid.SetColCount(Col{static_cast<int>(rows.begin()->size())});
        grid.SetRowCount(Row{static_cast<int>(rows.size())});
        Row row{1};
        for (const TextRow& texts : rows) {
            Col col{1};
            for (const Text& text : texts) {
                grid.SetCellValue(row, col, text);
                ++col;
            }
            ++row;
        }
        GoTo(1, 1);
    }
    void GoTo(int row, int col) {
        grid.SetCurRow(Row{row});
        grid.SetCurCol(Col{col});
    }
    CellPosition Current() const { return {grid.CurRow(), grid.CurCol()}; }
    Text Cell(int row, int col) const { return grid.CellText(Row{row}, Col{col}); }
    void SetCell(int row, int col, const Text& text) { grid.SetCellValue(Row{row}, Col{col}, text); }
    void Tick(std::initializer_list<int> rows) {
        for (const int row : rows)
            grid.SetCellCheck(Row{row}, 1);
    }

    MemoryGrid grid{CodePage::Windows1252()};
    GridWatcher watcher;
    TableModel table{grid};
    RecordingHost host;
    TabContext tab{app, table, host};
};

/// The place of a cell in one word.
inline CellPosition At(int row, int col) {
    return {Row{row}, Col{col}};
}

} // namespace korvane
