#include "tbx/CsvRows.h"
#include "tbx/Files.h"
#include "tbx/JsonRows.h"
#include "tbx/LoadedTable.h"
#include "tbx/TsvRows.h"

namespace korvane {

namespace {

void WriteRows(const Grid& grid, RowFormat& format, Output& out) {
    std::vector<Text> texts(static_cast<std::size_t>(grid.ColCount().Number()));
    const auto textOf = [&texts](Col col) -> Text& {
        return texts[static_cast<std::size_t>(col.Number() - 1)];
    };
    for (Col col{1}; col <= grid.ColCount(); ++col)
        textOf(col) = grid.ColHeaderText(col);
    std::string bytes;
    format.Begin(texts, bytes);
    for (Row row{1}; row <= grid.RowCount() && out.Works(); ++row) {
        for (Col col{1}; col <= grid.ColCount(); ++col)
            textOf(col) = grid.CellText(row, col);
        format.AddRow(texts, bytes);
        out.Write(bytes);
        bytes.clear();
    }
    format.End(bytes);
    out.Write(bytes);
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
