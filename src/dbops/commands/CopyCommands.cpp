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

std::size_t CellLength(const Grid& grid, Row row, Col col) {
    const auto bytes = grid.CellBytes(row, col);
    return bytes ? bytes->size() : grid.CellText(row, col).size();
}

/// Turns rows into text, with one record for each row.
class Records {
public:
    /// The request outlives the object.
    Records(const TabContext& tab, RowsToCopy rows, const ColumnsIncluded& included)
        : grid_(tab.table.GridStore()),
          rows_(rows),
          included_(included),
          delimiter_(tab.app.Settings.DelimiterString) {}

    /// Rows that are marked for deletion, and hidden ones, are copied like others. Kept for compatibility:
    /// copies-take-all-rows.
    Text MakeText() const {
        CellsText text(grid_, LengthAtMost());
        ForEachRowToCopy([&](Row row) { Append(text, row); });
        return std::move(text).Take();
    }

private:
    /// Appends the included cells, each but the table's last column followed by the delimiter, and an empty
    /// line. Kept for compatibility: copied-record-ends.
    void Append(CellsText& text, Row row) const {
        ForEachColumnToCopy([&](Col col) {
            text.AppendCell(row, col);
            text.Append(col < grid_.ColCount() ? delimiter_ : kCrLf);
        });
        if (!text.EndsInCrLf()) text.Append(kCrLf);
        text.Append(kCrLf);
    }

    std::size_t LengthAtMost() const {
        const std::size_t behindCell = std::max(delimiter_.size(), kCrLf.size());
        std::size_t length = 0;
        ForEachRowToCopy([&](Row row) {
            ForEachColumnToCopy([&](Col col) { length += CellLength(grid_, row, col) + behindCell; });
            length += 2 * kCrLf.size();
        });
        return length;
    }

    template <class Visit>
    void ForEachRowToCopy(const Visit& visit) const {
        ForEachRow(grid_, [&](Row row) {
            if (rows_ == RowsToCopy::All || IsTicked(grid_, row)) visit(row);
        });
    }
    template <class Visit>
    void ForEachColumnToCopy(const Visit& visit) const {
        for (Col col{1}; col <= grid_.ColCount(); ++col) {
            if (included_[col]) visit(col);
        }
    }

    const Grid& grid_;
    RowsToCopy rows_;
    const ColumnsIncluded& included_;
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
