#include "tbx/CsvRows.h"

#include "tbx/CsvReader.h"

namespace korvane {

void CsvRows::AddRow(const std::vector<Text>& cells, std::string& out) {
    if (cells.empty()) return;
    if (cells.size() == 1 && cells[0].empty()) {
        out += "\"\"\r\n";
        return;
    }
    for (const Text& cell : cells) {
        AddField(ToUtf8(cell), out);
        out += delimiter_;
    }
    out.pop_back();
    out += "\r\n";
}

bool CsvRows::NeedsQuotes(std::string_view field) const {
    return field.find_first_of("\"\r\n") != field.npos || field.find(delimiter_) != field.npos ||
           field.starts_with(kUtf8Mark);
}

void CsvRows::AddField(std::string_view field, std::string& out) const {
    if (!NeedsQuotes(field)) {
        out += field;
        return;
    }
    out += '"';
    for (const char byte : field) {
        if (byte == '"') out += '"';
        out += byte;
    }
    out += '"';
}

} // namespace korvane
