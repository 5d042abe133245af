#include "tbx/TsvRows.h"

namespace korvane {

namespace {

void AddField(std::string_view field, std::string& out) {
    constexpr std::string_view kEscaped = "\t\n\r\\";
    constexpr std::string_view kLetters = "tnr\\";
    for (const char byte : field) {
        const std::size_t at = kEscaped.find(byte);
        if (at == kEscaped.npos) {
            out += byte;
        } else {
            out += '\\';
            out += kLetters[at];
        }
    }
}

} // namespace

void TsvRows::AddRow(const std::vector<Text>& cells, std::string& out) {
    if (cells.empty()) return;
    for (const Text& cell : cells) {
        AddField(ToUtf8(cell), out);
        out += '\t';
    }
    out.back() = '\n';
}

} // namespace korvane
