#pragma once

#include "common/number/Number.h"
#include "platform/Spreadsheet.h"

#include <string>
#include <vector>

namespace korvane {

/// A spreadsheet application that only writes down its steps, one line each. It knows the cells of the
/// columns A to Z.
class MemorySpreadsheet final : public Spreadsheet {
public:
    /// The steps outlive the application.
    explicit MemorySpreadsheet(std::vector<std::string>& steps, bool saves = true)
        : steps_(steps), saves_(saves) {}

    void AddWorkbook() override { Note(u"add workbook"); }
    bool SelectRange(TextView cell) override {
        if (cell.empty() || cell.front() < u'A' || cell.front() > u'Z') return false;
        Note(u"select " + Text(cell));
        return true;
    }
    void SetActiveCellValue(TextView value) override { Note(u"value " + Text(value)); }
    void SetColumnWidth(TextView column, int characters) override {
        Note(u"width of " + Text(column) + u" " + NumberText(characters));
    }
    void SetInteriorColorIndex(TextView cell, int index) override {
        Note(u"colour of " + Text(cell) + u" " + NumberText(index));
    }
    bool SaveAs(TextView path, int format) override {
        Note(u"save " + Text(path) + u" as " + NumberText(format));
        return saves_;
    }
    void MakeVisible() override { Note(u"visible"); }

private:
    void Note(const Text& step) { steps_.push_back(ToUtf8(step)); }

    std::vector<std::string>& steps_;
    bool saves_;
};

} // namespace korvane
