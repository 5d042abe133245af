#include "dbops/commands/CopyCommands.h"

#include "context/App.h"
#include "context/ports/ClipboardView.h"
#include "context/ports/TextWindow.h"
#include "dbops/rules/CellsText.h"
#include "dbops/rules/DeleteMark.h"
#include "dbops/rules/Rows.h"
#include "dbops/windows/frmChooseRange.h"
#include "dbops/windows/frmDelimiterType.h"
#include "dialogs/Questions.h"
#include "platform/Clipboard.h"
#include "table/model/TableModel.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace korvane {

namespace {

enum class RowsToCopy : std::uint8_t { Ticked, All };

void ShowClipboard(App& app) {
    if (auto* clipboardView = app.Port<ClipboardView>()) clipboardView->Show();
}

void PutInClipboard(App& app, Text text) {
    app.Clipboard().Clear();
    app.Clipboard().SetText(std::move(text));
    ShowClipboard(app);
}

void PutInTextWindow(App& app, TextView text) {
    if (auto* textWindow = app.Port<TextWindow>()) textWindow->TextWindowInsert(text);
}

std::vector<Col> ColumnsToCopy(const Grid& grid, const ColumnsIncluded& included) {
    std::vector<Col> columns;
    for (Col col{1}; col <= grid.ColCount(); ++col)
        if (included[col]) columns.push_back(col);
    return columns;
}

/// Turns rows into text, with one record for each row.
class Records {
public:
    Records(const TabContext& tab, RowsToCopy rows, const ColumnsIncluded& included)
        : grid_(tab.table.GridStore()),
          rows_(rows),
          columns_(ColumnsToCopy(grid_, included)),
          delimiter_(tab.app.Settings.DelimiterString) {}

    /// Rows that are marked for deletion, and hidden ones, are copied like others. Kept for compatibility:
    /// copies-take-all-rows.
    Text MakeText() const {
        CellsText text(grid_, LengthAtMost());
        const Ends ends{text.SeparatorOf(delimiter_), text.SeparatorOf(kCrLf)};
        ForEachRowToCopy([&](Row row) { Append(text, row, ends); });
        return std::move(text).Take();
    }

private:
    /// What comes after a cell, and after a record.
    struct Ends {
        CellsText::Separator cell;
        CellsText::Separator line;
    };

    /// Appends the included cells, each but the table's last column followed by the delimiter, and an empty
    /// line. Kept for compatibility: copied-record-ends.
    void Append(CellsText& text, Row row, const Ends& ends) const {
        const Col last = grid_.ColCount();
        for (const Col col : columns_) {
            text.AppendCell(row, col);
            text.Append(col < last ? ends.cell : ends.line);
        }
        if (!text.EndsInCrLf()) text.Append(ends.line);
        text.Append(ends.line);
    }

    std::size_t LengthAtMost() const {
        const std::size_t afterCells = columns_.size() * std::max(delimiter_.size(), kCrLf.size());
        std::size_t length = 0;
        ForEachRowToCopy(
            [&](Row row) { length += grid_.TextLength(row, columns_) + afterCells + 2 * kCrLf.size(); });
        return length;
    }

    template <class Visit>
    void ForEachRowToCopy(const Visit& visit) const {
        ForEachRow(grid_, [&](Row row) {
            if (rows_ == RowsToCopy::All || IsTicked(grid_, row)) visit(row);
        });
    }

    const Grid& grid_;
    RowsToCopy rows_;
    std::vector<Col> columns_;
    TextView delimiter_;
};

int CountRowsToCopy(const Grid& grid, RowsToCopy rows) {
    if (rows == RowsToCopy::All) return grid.RowCount().Number();
    return CountRows(grid, [&grid](Row row) { return IsTicked(grid, row); });
}

void CopyRows(const TabContext& tab, RowsToCopy rows, CopyDestination destination) {
    Grid& grid = tab.table.GridStore();
    CopyRequest request{destination, CountRowsToCopy(grid, rows), {}};
    if (rows == RowsToCopy::Ticked && request.rowsToCopy == 0) {
        Inform(tab.app, u"No rows with ticks in check boxes.");
        return;
    }
    frmDelimiterType form(tab, request);
    if (ShowForResult(tab.app, form) == 0) return;
    Text text = Records(tab, rows, request.ColumnIncluded).MakeText();
    if (destination == CopyDestination::Clipboard)
        PutInClipboard(tab.app, std::move(text));
    else
        PutInTextWindow(tab.app, text);
    grid.GridSetFocus();
}

} // namespace

void mnuEdit_CopyCellToText_Clack(const TabContext& tab) {
    const Grid& grid = tab.table.GridStore();
    PutInTextWindow(tab.app, grid.CellText(grid.CurRow(), grid.CurCol()));
}

void mnuEdit_CopyRowToText_Clack(const TabContext& tab) {
    const Grid& grid = tab.table.GridStore();
    CellsText text(grid);
    for (Col col{1}; col <= grid.ColCount(); ++col) {
        if (col > Col{1}) text.Append(u"\t");
        text.AppendCell(grid.CurRow(), col);
    }
    text.Append(kCrLf);
    PutInTextWindow(tab.app, std::move(text).Take());
}

void mnuCopyColumn_Clack(const TabContext& tab) {
    if (!ChooseRange(tab.app)) return;
    Grid& grid = tab.table.GridStore();
    CellsText text(grid);
    // Nothing goes between the values. Kept for compatibility: copied-column-runs-together.
    ForEachRow(grid, [&](Row row) {
        if (!IsInChosenRange(tab.app, grid, row) || IsMarkedForDeletion(grid, row)) return;
        text.AppendCell(row, grid.CurCol());
    });
    PutInClipboard(tab.app, std::move(text).Take());
    grid.GridSetFocus();
}

void mnuCopyCheckedRows_Clack(const TabContext& tab) {
    CopyRows(tab, RowsToCopy::Ticked, CopyDestination::TextWindow);
}

void mnuCopyCheckedRowsToClipb_Clack(const TabContext& tab) {
    CopyRows(tab, RowsToCopy::Ticked, CopyDestination::Clipboard);
}

void mnuCopyTableToText_Clack(const TabContext& tab) {
    CopyRows(tab, RowsToCopy::All, CopyDestination::TextWindow);
}

void mnuCopyTableToClipboard_Clack(const TabContext& tab) {
    CopyRows(tab, RowsToCopy::All, CopyDestination::Clipboard);
}

void mnuEdit_WinClip_Clack(const TabContext& tab) {
    ShowClipboard(tab.app);
}

} // namespace korvane
