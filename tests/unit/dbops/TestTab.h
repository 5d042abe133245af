#pragma once

#include "grid/GridStore.h"
#include "support/TestApp.h"
#include "table/TabContext.h"
#include "table/model/TableHost.h"
#include "table/model/TableModel.h"

#include <initializer_list>
#include <vector>

namespace korvane {

/// Counts what a shown grid would be asked to do.
class GridWatcher final : public GridListener {
public:
    int focusWanted = 0;
    int refreshes = 0;
    int rowChanges = 0;
    /// Whether the grid was visible, each time that its look changed.
    std::vector<bool> looks;
    std::vector<Row> rowsWanted;
    /// The grid whose changes of look are recorded.
    const Grid* watched = nullptr;

    void RowsChanged(Row, Row) override { ++rowChanges; }
    void TableChanged() override { ++refreshes; }
    void ColumnChanged(Col) override {}
    void LookChanged() override { looks.push_back(watched->GridVisible()); }
    void CurrentCellChanged() override {}
    void FocusWanted() override { ++focusWanted; }
    void RowWantedInView(Row row) override { rowsWanted.push_back(row); }
};

/// Takes the place of the tab's window and records what the commands ask of it.
class RecordingHost final : public TableHost {
public:
    std::vector<std::int16_t> heights;

    Twips gridWidth;

    void ShowRowHeight(std::int16_t height) override { heights.push_back(height); }
    Twips GridWidth() const override { return gridWidth; }
    Text TabCaption() const override { return {}; }
    void SetTabCaption(TextView) override {}
    void ClearDirty() override {}
};

/// A program with one table in memory, open on a tab.
class TestTab : public TestApp {
public:
    TestTab() {
        watcher.watched = &grid;
        grid.SetListener(&watcher);
    }

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
    /// The texts of a column, from the first row to the last.
    std::vector<Text> Column(int col) const {
        std::vector<Text> texts;
        for (Row row{1}; row <= grid.RowCount(); ++row)
            texts.push_back(grid.CellText(row, Col{col}));
        return texts;
    }
    /// What `measure(Row)` gives for each row.
    template <class Measure>
    auto OfRows(const Measure& measure) const {
        std::vector<decltype(measure(Row{1}))> values;
        for (Row row{1}; row <= grid.RowCount(); ++row)
            values.push_back(measure(row));
        return values;
    }
    std::vector<int> Heights() const {
        return OfRows([this](Row row) { return grid.RowHeight(row); });
    }
    std::vector<int> Ticks() const {
        return OfRows([this](Row row) { return grid.CellCheck(row); });
    }
    std::vector<bool> Visible() const {
        return OfRows([this](Row row) { return grid.RowVisible(row); });
    }
    void Hide(std::initializer_list<int> rows) {
        for (const int row : rows)
            grid.SetRowVisible(Row{row}, false);
    }
    /// Answers the next message box, which has to ask this with Yes and No.
    void AnswerQuestion(const Text& text, Answer answer, int defaultButton = 1) {
        user.Answer({text, MessageIcon::Question, MessageButtons::YesNo, defaultButton}, answer);
    }
    /// Closes the next message box, which has to say this.
    void AnswerInformation(const Text& text) { user.Answer({text, MessageIcon::Information}, Answer::Ok); }
    void Tick(std::initializer_list<int> rows) {
        for (const int row : rows)
            grid.SetCellCheck(Row{row}, 1);
    }

    GridStore grid{CodePage::Windows1252()};
    GridWatcher watcher;
    TableModel table{grid};
    RecordingHost host;
    TabContext tab{app, table, host};
};

/// A short way to write the place of a cell.
inline CellPosition At(int row, int col) {
    return {Row{row}, Col{col}};
}

} // namespace korvane
