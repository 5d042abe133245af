#include "tbx/base/Files.h"
#include "tbx/base/LoadedTable.h"
#include "tbx/formats/CsvRows.h"
#include "tbx/formats/JsonRows.h"
#include "tbx/formats/TsvRows.h"

namespace korvane {

namespace {

void WriteRows(const Grid& grid, RowFormat& format, Output& out) {
    std::vector<TextView> headers;
    for (Col col{1}; col <= grid.ColCount(); ++col)
        headers.emplace_back(grid.ColHeaderText(col));
    format.Begin(headers, out);
    std::vector<CellText> cells;
    for (Row row{1}; row <= grid.RowCount() && out.Works(); ++row) {
        cells.clear();
        for (Col col{1}; col <= grid.ColCount(); ++col)
            cells.emplace_back(grid, row, col);
        format.AddRow(cells, out);
    }
    format.End(out);
}

ExitStatus Export(const Call& call, Environment& environment, RowFormat&& format) {
    const auto workbench = LoadTable(call, environment);
    if (!workbench) return ExitStatus::Error;
    WriteRows(workbench->Grid(), format, environment.out);
    return ReportMessages(*workbench, environment);
}

} // namespace

ExitStatus RunCsv(const Call& call, Environment& environment) {
    return Export(call, environment, CsvRows(call.delimiter));
}

ExitStatus RunTsv(const Call& call, Environment& environment) {
    return Export(call, environment, TsvRows());
}

ExitStatus RunJson(const Call& call, Environment& environment) {
    return Export(call, environment, JsonRows());
}

ExitStatus RunRewrite(const Call& call, Environment& environment) {
    const auto workbench = LoadTable(call, environment);
    if (!workbench) return ExitStatus::Error;
    const ExitStatus status = ReportMessages(*workbench, environment);
    const std::string& out = call.operands[1];
    // A load that stopped leaves an empty table. A save over the file itself would destroy it.
    if (status != ExitStatus::Success && LeadToOneFile(call.operands[0], out, environment))
        return LeaveAsItWas(out, environment);
    const std::string bytes = workbench->Save(PathOfArgument(out, environment));
    return WriteOutput(out, bytes, environment) ? status : ExitStatus::Error;
}

} // namespace korvane
