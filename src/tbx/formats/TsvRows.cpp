#include "tbx/formats/TsvRows.h"

namespace korvane {

namespace {

void AddPiece(TextView piece, Output& out) {
    constexpr std::string_view kEscaped = "\t\n\r\\";
    constexpr std::string_view kLetters = "tnr\\";
    std::string field;
    for (const char byte : ToUtf8(piece)) {
        const std::size_t at = kEscaped.find(byte);
        if (at != kEscaped.npos) field += '\\';
        field += at == kEscaped.npos ? byte : kLetters[at];
    }
    out.Write(field);
}

} // namespace

void TsvRows::AddRow(std::span<const CellText> cells, Output& out) {
    if (cells.empty()) return;
    for (const CellText& cell : cells) {
        if (&cell != &cells.front()) out.Write("\t");
        cell.ForEachPiece([&](TextView piece) { AddPiece(piece, out); });
    }
    out.Write("\n");
}

} // namespace korvane
