#include "tbx/TableCheck.h"
#include "tbx/Verb.h"
#include "tbx/base/Files.h"
#include "tbx/base/Workbench.h"
#include "tbx/formats/CsvTable.h"

namespace korvane {

namespace {

// A new table looks as the program makes one.
constexpr int kColWidth = 240;
constexpr std::int16_t kRowHeight = 24;
constexpr std::int16_t kFontSize = 12;
constexpr TextView kFontName = u"Calibri";
constexpr Colour kBackColour{0xFFFFFF};

void SetLook(TableModel& table) {
    table.SetRowHeight = kRowHeight;
    table.TableBackColour = kBackColour;
    table.TableFontName = kFontName;
    table.TableFontSize = kFontSize;
}

void SetSizes(Grid& grid) {
    for (Col col{1}; col <= grid.ColCount(); ++col)
        grid.SetColWidth(col, kColWidth);
    for (Row row{1}; row <= grid.RowCount(); ++row) {
        grid.SetRowHeight(row, kRowHeight);
        grid.SetCellCheckShown(row, true);
    }
    grid.SetCurRow(Row{1});
}

/// Tells which parts of the table a load of the new file won't bring back.
ExitStatus ReportLosses(const std::string& name, const Grid& grid, Environment& environment) {
    FindingStream findings(
        [&](const Finding& finding) { Complain(environment, Quoted(name) + ": " + FindingText(finding)); });
    CheckTable(grid, findings);
    return findings.IsEmpty() ? ExitStatus::Success : ExitStatus::Problem;
}

} // namespace

ExitStatus RunImport(const Call& call, Environment& environment) {
    const std::string& in = call.operands[0];
    const std::string& out = call.operands[1];
    auto bytes = ReadInput(in, environment);
    if (!bytes) return ExitStatus::Error;
    Workbench workbench(call.page);
    SetLook(workbench.Table());
    const std::string fault = FillFromCsv(workbench.Grid(), bytes->View(), call.delimiter);
    if (!fault.empty()) return Fail(environment, Quoted(in) + ": " + fault);
    bytes.reset();
    SetSizes(workbench.Grid());
    const std::string table = workbench.Save(PathOfArgument(out, environment));
    const ExitStatus status = ReportLosses(out, workbench.Grid(), environment);
    // What the table loses would be lost for good with the file from which it came.
    if (status != ExitStatus::Success && LeadToOneFile(in, out, environment))
        return LeaveAsItWas(out, environment);
    return WriteOutput(out, table, environment) ? status : ExitStatus::Error;
}

} // namespace korvane
