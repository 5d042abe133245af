#pragma once

#include "platform/FileSystem.h"
#include "platform/Shell.h"
#include "platform/Spreadsheet.h"
#include "platform/xls/Workbook.h"

#include <optional>

namespace korvane {

/// Takes the place of a spreadsheet application that can be controlled: it writes the workbook itself, and
/// shows it by letting the desktop open the file with its program for such files.
class XlsSpreadsheet final : public Spreadsheet {
public:
    /// Both outlive the object.
    XlsSpreadsheet(FileSystem& files, Shell& shell) : files_(files), shell_(shell) {}

    void AddWorkbook() override;
    bool SelectRange(TextView cell) override;
    void SetActiveCellValue(TextView value) override;
    void SetColumnWidth(TextView column, int characters) override;
    void SetInteriorColorIndex(TextView cell, int index) override;
    /// Only `kNormalWorkbook` is known. A file that was there stays as it was when the new one can't be
    /// written. The file opens at "A1", whichever cell is active, because callers go there only after the
    /// save.
    bool SaveAs(TextView path, int format) override;
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
