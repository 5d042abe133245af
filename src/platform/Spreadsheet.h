#pragma once

#include "common/text/Text.h"

namespace korvane {

/// The number of the file format `.xls`, for `Spreadsheet::SaveAs`.
inline constexpr int kNormalWorkbook = -4143;

/// A spreadsheet application that the program controls. Ranges have names: "B3" is a cell, "B:B" a column. A
/// step that can't be done has no effect.
class Spreadsheet {
public:
    virtual ~Spreadsheet() = default;

    /// Adds a workbook with one empty sheet, whose active cell is "A1". The other steps concern the one that
    /// was added last.
    virtual void AddWorkbook() = 0;
    /// Makes the cell the active one; false when there is none of this name.
    virtual bool SelectRange(TextView cell) = 0;
    /// An empty value makes the cell empty.
    virtual void SetActiveCellValue(TextView value) = 0;
    /// The width in characters of the standard font, up to 255.
    virtual void SetColumnWidth(TextView column, int characters) = 0;
    /// Fills the cell with a colour of the palette, numbered from 1 to 56.
    virtual void SetInteriorColorIndex(TextView cell, int index) = 0;
    /// Writes the workbook to a file. `format` is the number of a file format. False when the file can't be
    /// written.
    virtual bool SaveAs(TextView path, int format) = 0;
    /// Shows the application to the user, who goes on in the workbook.
    virtual void MakeVisible() = 0;
};

} // namespace korvane
