#include "unit/tbx/TbxHarness.h"

namespace korvane {

std::string TbxFile(const std::vector<std::string>& dataLines) {
    std::vector<std::string> lines{";",
                                   "; Values for colour, font type, font size, cell height, cell width",
                                   ";",
                                   "!16777215",
                                   "!Calibri",
                                   "!12",
                                   "!372",
                                   ";",
                                   "; Column names",
                                   ";",
                                   "!Name",
                                   "!1920",
                                   "!Note",
                                   "!1920",
                                   ";",
                                   "; File data",
                                   ";"};
    lines.insert(lines.end(), dataLines.begin(), dataLines.end());
    lines.insert(lines.end(), {";", "; End of File: /data/people.tbx", ";"});
    std::string bytes;
    for (const std::string& line : lines)
        bytes += line + "\r\n";
    return bytes;
}

std::vector<std::string> RowLines(int number, const std::vector<std::string>& cells) {
    std::vector<std::string> lines{"@row_" + std::to_string(number), "?0000", "\xA7-1", "\xA7-1"};
    for (std::size_t i = 0; i < cells.size(); ++i) {
        lines.push_back("@col_" + std::to_string(i + 1));
        lines.push_back(cells[i]);
    }
    return lines;
}

} // namespace korvane
