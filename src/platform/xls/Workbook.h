#pragma once

#include "common/text/Text.h"
#include "platform/xls/CellFormats.h"
#include "platform/xls/CellName.h"
#include "platform/xls/SharedStrings.h"

#include <map>
#include <vector>

namespace korvane::xls {

/// A cell in its row.
struct Cell {
    static constexpr U32 kNoText = 0xFFFFFFFF;

    U16 col = 0;
    /// The number is that of `CellFormats`.
    U16 format = CellFormats::kFirst;
    /// The number is that of `SharedStrings`.
    U32 text = kNoText;
};

/// The cells of a row by their columns.
struct SheetRow {
    std::vector<Cell> cells;
    /// The largest number of lines of a text in the row.
    U16 lines = 1;
};

/// A workbook of one sheet of texts.
class Workbook {
public:
    /// Puts the text into the cell as it is, also when it looks like a number or a formula. A line break is a
    /// line feed in a workbook, and a cell with one shows its lines. A text that is too long for a cell is
    /// cut. An empty text leaves only the look of the cell.
    void SetText(CellPlace place, TextView text);
    /// Fills the cell with a colour of the palette, from 1 to 56.
    void SetFill(CellPlace place, U8 colour);
    /// The width in characters of the standard font, up to 255.
    void SetColumnWidth(U16 col, U8 characters) { widths_[col] = characters; }

    const std::map<U16, U8>& ColumnWidths() const { return widths_; }
    const SharedStrings& Strings() const { return strings_; }
    const CellFormats& Formats() const { return formats_; }
    /// The rows up to the last one with a cell.
    const std::vector<SheetRow>& Rows() const { return rows_; }

private:
    Cell* FindCell(CellPlace place);
    /// The cell; it is made when it isn't there.
    Cell& CellAt(CellPlace place);
    void SetWraps(Cell& cell, bool wraps);
    void EmptyCell(CellPlace place);

    SharedStrings strings_;
    CellFormats formats_;
    std::vector<SheetRow> rows_;
    std::map<U16, U8> widths_;
    /// Used again for each text that needs a change.
    Text changed_;
};

} // namespace korvane::xls
