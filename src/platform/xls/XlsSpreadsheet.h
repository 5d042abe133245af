#pragma once

#include "platform/FileSystem.h"
#include "platform/Shell.h"
#include "platform/Spreadsheet.h"
#include "platform/xls/Workbook.h"

#include <optional>

namespace korvane {

/// Stands for a spreadsheet application where none can be driven: writes the workbook itself, and shows it by
/// having the desktop open the file with whatever program is there for such files.
class XlsSpreadsheet final : public Spreadsheet {
public:
    /// Both outlive the object.
    XlsSpreadsheet(FileSystem& files, Shell& shell) : files_(files), shell_(shell) {}

    void AddWorkbook() override;
    bool SelectRange(TextView cell) override;
    void SetActiveCellValue(TextView value) override;
    void SetColumnWidth(TextView column, int characters) override;
    void SetInteriorColorIndex(TextView cell, int index) override;
    /// Knows `kNormalWorkbook` alone. A file that can't be written whole doesn't stay. The file opens at
    /// "A1", whichever cell is active: a caller goes there only behind the save.
    void SaveAs(TextView path, int format) override;
    /// Nothing happens unless the workbook was saved.
    void MakeVisible() override;

private:
    bool Write(TextView path) const;

    FileSystem& files_;
    Shell& shell_;
    std::optional<xls::Workbook> book_;
    xls::CellPlace active_;
    /// Empty until the workbook is saved.
    Text savedAs_;
};

} // namespace korvane
