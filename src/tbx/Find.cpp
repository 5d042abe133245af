#include "grid/Grid.h"
#include "tbx/base/LoadedTable.h"
#include "tbx/formats/CellText.h"

namespace korvane {

namespace {

/// The text with line breaks as \r and \n, so that every find is one line.
std::string OnOneLine(TextView piece) {
    std::string line;
    for (const char byte : ToUtf8(piece)) {
        if (byte == '\r')
            line += "\\r";
        else if (byte == '\n')
            line += "\\n";
        else
            line += byte;
    }
    return line;
}

void WriteFind(const Grid& grid, CellPosition at, Output& out) {
    out.Write(std::to_string(at.row.Number()) + ":" + std::to_string(at.col.Number()) + ": ");
    CellText(grid, at.row, at.col).ForEachPiece([&](TextView piece) { out.Write(OnOneLine(piece)); });
    out.Write("\n");
}

} // namespace

ExitStatus RunFind(const Call& call, Environment& environment) {
    const Text part = FromUtf8(call.operands[1]);
    if (part.empty()) return Fail(environment, "the text to find is empty");
    const auto workbench = LoadTable(call, environment);
    if (!workbench) return ExitStatus::Error;
    const Grid& grid = workbench->Grid();
    bool found = false;
    for (auto at = grid.FindText(part, {Row{1}, Col{1}}); at && environment.out.Works();
         at = grid.FindText(part, {at->row, at->col + 1})) {
        WriteFind(grid, *at, environment.out);
        found = true;
    }
    ReportMessages(*workbench, environment);
    return found ? ExitStatus::Success : ExitStatus::Problem;
}

} // namespace korvane
