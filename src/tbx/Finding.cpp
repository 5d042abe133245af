#include "tbx/Finding.h"

namespace korvane {

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

} // namespace korvane
