#include "dbops/rules/CellsText.h"

#include "common/text/CodePage.h"

#include <utility>

namespace korvane {

CellsText::CellsText(const Grid& grid, std::size_t expectedLength) : grid_(grid) {
    text_.reserve(expectedLength);
    bytes_.reserve(kPiece);
}

void CellsText::AppendCell(Row row, Col col) {
    if (const auto bytes = grid_.CellBytes(row, col)) {
        AppendBytes(*bytes);
    } else {
        AppendWide(grid_.CellText(row, col));
    }
}

CellsText::Separator CellsText::SeparatorOf(TextView text) const {
    Separator separator{Text(text), std::nullopt};
    if (grid_.Page().Holds(text)) grid_.Page().AppendBytes(text, separator.bytes.emplace());
    return separator;
}

void CellsText::Append(const Separator& separator) {
    if (separator.bytes) {
        AppendBytes(*separator.bytes);
    } else {
        AppendWide(separator.text);
    }
}

bool CellsText::EndsInCrLf() {
    // The CR may be the last decoded character, and the LF the first byte that isn't decoded yet.
    if (bytes_.size() < kCrLf.size()) Decode();
    return bytes_.empty() ? text_.ends_with(kCrLf) : bytes_.ends_with("\r\n");
}

Text CellsText::Take() && {
    Decode();
    return std::move(text_);
}

void CellsText::AppendBytes(std::string_view bytes) {
    if (bytes_.size() + bytes.size() > kPiece) Decode();
    bytes_.append(bytes);
}

void CellsText::AppendWide(TextView text) {
    Decode();
    text_.append(text);
}

void CellsText::Decode() {
    grid_.Page().AppendText(bytes_, text_);
    bytes_.clear();
}

} // namespace korvane
