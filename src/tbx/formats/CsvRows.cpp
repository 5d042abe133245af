#include "tbx/formats/CsvRows.h"

#include <array>

namespace korvane {

namespace {

constexpr char16_t kByteOrderMark = u'\uFEFF';

std::string WithDoubledQuotes(std::string_view text) {
    std::string doubled;
    for (const char byte : text) {
        if (byte == '"') doubled += '"';
        doubled += byte;
    }
    return doubled;
}

} // namespace

void CsvRows::AddRow(std::span<const CellText> cells, Output& out) {
    if (cells.empty()) return;
    if (cells.size() == 1 && cells[0].IsEmpty()) {
        out.Write("\"\"\r\n");
        return;
    }
    for (const CellText& cell : cells) {
        if (&cell != &cells.front()) out.Write({&delimiter_, 1});
        AddField(cell, out);
    }
    out.Write("\r\n");
}

bool CsvRows::NeedsQuotes(const CellText& field) const {
    const std::array marks{u'"', u'\r', u'\n', static_cast<char16_t>(delimiter_)};
    bool needs = field.Beginning(1) == TextView(&kByteOrderMark, 1);
    field.ForEachPiece([&](TextView piece) {
        needs = needs || piece.find_first_of(marks.data(), 0, marks.size()) != TextView::npos;
    });
    return needs;
}

void CsvRows::AddField(const CellText& field, Output& out) const {
    if (!NeedsQuotes(field)) {
        field.ForEachPiece([&](TextView piece) { out.Write(ToUtf8(piece)); });
        return;
    }
    out.Write("\"");
    field.ForEachPiece([&](TextView piece) { out.Write(WithDoubledQuotes(ToUtf8(piece))); });
    out.Write("\"");
}

} // namespace korvane
