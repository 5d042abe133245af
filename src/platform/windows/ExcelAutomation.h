#pragma once

#include "platform/Spreadsheet.h"

#include <windows.h>
#include <oaidl.h>

#include <memory>

namespace korvane {

struct ReleaseObject {
    void operator()(IUnknown* object) const { object->Release(); }
};
using AutomationObject = std::unique_ptr<IDispatch, ReleaseObject>;

/// Excel, controlled by the names of its objects and of their members, so that any version will do. It is
/// invisible until `MakeVisible`, and an Excel that was never made visible is ended.
class ExcelAutomation final : public Spreadsheet {
public:
    /// Takes the object "Excel.Application".
    explicit ExcelAutomation(AutomationObject application);
    ExcelAutomation(const ExcelAutomation&) = delete;
    ExcelAutomation& operator=(const ExcelAutomation&) = delete;
    ~ExcelAutomation() override;

    void AddWorkbook() override;
    bool SelectRange(TextView cell) override;
    void SetActiveCellValue(TextView value) override;
    void SetColumnWidth(TextView column, int characters) override;
    void SetInteriorColorIndex(TextView cell, int index) override;
    /// A file that is there is replaced without a question, which nobody would see.
    bool SaveAs(TextView path, int format) override;
    void MakeVisible() override;

private:
    AutomationObject application_;
    bool visible_ = false;
};

/// A new Excel, or nullptr when it isn't installed or can't be started.
std::unique_ptr<Spreadsheet> StartExcel();

} // namespace korvane
