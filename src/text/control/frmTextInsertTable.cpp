#include "text/control/frmTextInsertTable.h"

#include "common/number/Number.h"
#include "controls/text/TextControl.h"
#include "dialogs/Questions.h"

#include <algorithm>

namespace korvane {

namespace {

constexpr int kMostColumns = 64;
constexpr int kMostRows = 10'000;
/// Lines that can be seen and columns in which something can be typed.
constexpr int kLine = 15;
constexpr int kLeastWidth = 300;

int NumberIn(const TextBox& box, int most) {
    return static_cast<int>(std::clamp(Val(TextView(box.Text.Get())), 0.0, static_cast<double>(most)));
}

int WidthOfText(const TextControl& control) {
    return control.PageSize(doc::Page::Width) - control.PageSize(doc::Page::MarginLeft) -
           control.PageSize(doc::Page::MarginRight);
}

} // namespace

frmTextInsertTable::frmTextInsertTable(App& app, TextControl& target)
    : ControlForm(app, target, "frmTextInsertTable", u"Insert table") {}

void frmTextInsertTable::Load() {
    txtColumns.SetFocus();
    txtColumns.SelectAll();
}

bool frmTextInsertTable::Accept() {
    const int columns = NumberIn(txtColumns, kMostColumns);
    const int rows = NumberIn(txtRows, kMostRows);
    if (columns < 1 || rows < 1) {
        Warn(Context(), u"A table needs at least one column and one row.");
        return false;
    }
    const int table = Target().InsertTable(rows, columns);
    if (table >= 0) {
        Warn(Context(), u"The text cursor is currently inside a table.\r\nMove it outside and try again.");
        return true;
    }
    const int width = std::max(WidthOfText(Target()) / columns, kLeastWidth);
    Target().FormatCells(table, [width](int, int, doc::CellFormat& cell) {
        cell.width = width;
        cell.border.fill(kLine);
    });
    Target().SetSelStart(Target().CellStart(table, 1, 1) - 1);
    return true;
}

} // namespace korvane
