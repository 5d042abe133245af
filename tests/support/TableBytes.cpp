#include "support/TableBytes.h"

namespace korvane {

std::string TableBytes(const Text& path, const TestRow& columns, const std::vector<TestRow>& rows) {
    std::string bytes = ";\r\n; Values for colour, font type, font size, cell height, cell width\r\n;\r\n"
                        "!16777215\r\n!Calibri\r\n!12\r\n!372\r\n"
                        ";\r\n; Column names\r\n;\r\n";
    for (const std::string& column : columns)
        bytes += "!" + column + "\r\n!1920\r\n";
    bytes += ";\r\n; File data\r\n;\r\n";
    for (std::size_t row = 0; row < rows.size(); ++row) {
        bytes += "@row_" + std::to_string(row + 1) + "\r\n?0000\r\n\xA7-1\r\n\xA7-1\r\n";
        for (std::size_t col = 0; col < columns.size(); ++col) {
            bytes += "@col_" + std::to_string(col + 1) + "\r\n" + rows[row].at(col) + "\r\n";
        }
    }
    return bytes + ";\r\n; End of File: " + ToUtf8(path) + "\r\n;\r\n";
}

std::string NameTable(const Text& path, const TestRow& names) {
    std::vector<TestRow> rows;
    for (const std::string& name : names)
        rows.push_back({name});
    return TableBytes(path, {"Name"}, rows);
}

} // namespace korvane
