#include "tbx/Check.h"

#include "tbx/FileCheck.h"
#include "tbx/Files.h"
#include "tbx/TableCheck.h"
#include "tbx/Verb.h"
#include "tbx/Workbench.h"

namespace korvane {

namespace {

void WriteFindings(const std::vector<Finding>& findings, Output& out) {
    for (const Finding& finding : findings)
        out.Write(FindingText(finding) + "\n");
}

} // namespace

std::string FindingText(const Finding& finding) {
    std::string text;
    if (finding.cell.row > Row{0}) {
        text += std::to_string(finding.cell.row.Number()) + ":";
        if (finding.cell.col > Col{0}) text += std::to_string(finding.cell.col.Number()) + ":";
        text += " ";
    }
    if (finding.line > 0) text += "line " + std::to_string(finding.line) + ": ";
    return text + finding.what;
}

ExitStatus RunCheck(const Call& call, Environment& environment) {
    const std::string& name = call.operands.front();
    const auto bytes = ReadInput(name, environment);
    if (!bytes) return ExitStatus::Error;
    Workbench workbench(call.page);
    workbench.Load(PathOfArgument(name, environment), *bytes);
    // The first list is about the load, the second about a save after it.
    const auto inFile = CheckFile(bytes->View(), call.page);
    const auto inTable = CheckTable(workbench.Grid());
    WriteFindings(inFile, environment.out);
    WriteFindings(inTable, environment.out);
    return inFile.empty() && inTable.empty() ? ExitStatus::Success : ExitStatus::Problem;
}

} // namespace korvane
