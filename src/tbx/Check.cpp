#include "tbx/Check.h"

#include "tbx/FileCheck.h"
#include "tbx/TableCheck.h"
#include "tbx/Verb.h"
#include "tbx/base/Files.h"
#include "tbx/base/Workbench.h"

#include <algorithm>

namespace korvane {

namespace {

bool Is(std::string_view text, std::string_view begin, std::string_view rest) {
    return text.size() == begin.size() + rest.size() && text.starts_with(begin) && text.ends_with(rest);
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
    if (finding.cellLine > 0) text += "line " + std::to_string(finding.cellLine) + " of the cell ";
    text += finding.what;
    if (finding.times > 1) text += " (" + std::to_string(finding.times) + " times)";
    return text;
}

void FindingStream::Add(CellPosition cell, std::size_t line, std::string_view what, std::string_view rest,
                        std::size_t cellLine) {
    Enter(cell);
    const auto again =
        std::ranges::find_if(found_, [=](const Finding& finding) { return Is(finding.what, what, rest); });
    if (again == found_.end())
        found_.push_back({cell, line, std::string(what).append(rest), 1, cellLine});
    else
        ++again->times;
}

void FindingStream::AddEach(CellPosition cell, std::size_t line, std::string what) {
    Enter(cell);
    found_.push_back({cell, line, std::move(what)});
}

void FindingStream::Enter(CellPosition cell) {
    if (!found_.empty() && found_.front().cell != cell) Finish();
    isEmpty_ = false;
}

void FindingStream::Finish() {
    std::ranges::for_each(found_, take_);
    found_.clear();
}

ExitStatus RunCheck(const Call& call, Environment& environment) {
    const std::string& name = call.operands.front();
    const auto bytes = ReadInput(name, environment);
    if (!bytes) return ExitStatus::Error;
    FindingStream findings(
        [&](const Finding& finding) { environment.out.Write(FindingText(finding) + "\n"); });
    // The first findings are about the load, those of the table about a save after it.
    CheckFile(bytes->View(), call.page, findings);
    Workbench workbench(call.page);
    workbench.Load(PathOfArgument(name, environment), *bytes);
    CheckTable(workbench.Grid(), findings);
    return findings.IsEmpty() ? ExitStatus::Success : ExitStatus::Problem;
}

} // namespace korvane
