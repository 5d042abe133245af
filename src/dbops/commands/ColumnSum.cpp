#include "dbops/commands/ColumnSum.h"

#include "common/number/Number.h"
#include "common/number/RoundedNumber.h"
#include "common/text/Shown.h"
#include "context/App.h"
#include "dbops/rules/DeleteMark.h"
#include "dbops/rules/Rows.h"
#include "dbops/windows/frmChooseRange.h"
#include "dialogs/Questions.h"
#include "table/TabContext.h"
#include "table/model/TableModel.h"

#include <cmath>

namespace korvane {

namespace {

/// As many as a double always holds: more would show that it counts in binary fractions.
constexpr int kDigitsOfTotal = 15;

double NumericValue(const Grid& grid, Row row, Col col) {
    if (const auto bytes = grid.CellBytes(row, col)) return Val(*bytes);
    return Val(TextView(grid.CellValue(row, col)));
}

/// The total of an earlier sum is a row like others. Kept for compatibility: second-sum-adds-first.
double SumOfColumn(const TabContext& tab, Col col) {
    const Grid& grid = tab.table.GridStore();
    double sum = 0;
    ForEachRow(grid, [&](Row row) {
        if (!IsInChosenRange(tab.app, grid, row) || IsMarkedForDeletion(grid, row)) return;
        const double next = sum + NumericValue(grid, row, col);
        // A number too large to be added leaves the sum as it was.
        if (std::isfinite(next)) sum = next;
    });
    return sum;
}

/// `TableAltered` stays as it is. Kept for compatibility: sum-is-no-change.
void AppendTotal(Grid& grid, Col col, double sum) {
    const Row total = grid.RowCount() + 1;
    grid.SetRowCount(total);
    grid.SetCellCheckShown(total, true);
    grid.SetRowHeight(total, grid.RowHeight(Row{1}));
    grid.SetCellValue(total, col, RoundedNumberText(sum, kDigitsOfTotal));
    if (col > Col{1}) grid.SetCellValue(total, col - 1, u"Total:");
}

} // namespace

void mnuCalc_Add_Clack(const TabContext& tab) {
    if (!ChooseRange(tab.app)) return;
    Grid& grid = tab.table.GridStore();
    const Col col = grid.CurCol();
    // The question shows the name as it was read or designed, which may be another column's once columns came
    // or went. Kept for compatibility: sum-asks-by-old-name.
    const Text question = u"Is this the column with values to use for calculating the total?\r\n\r\n\"" +
                          Text(Shown(tab.table.ColumnNames[col])) + u"\"";
    if (AskYesNo(tab.app, question)) AppendTotal(grid, col, SumOfColumn(tab, col));
    grid.GridSetFocus();
}

} // namespace korvane
