#include "platform/xls/Workbook.h"

#include <algorithm>

namespace korvane::xls {

namespace {

bool IsHighSurrogate(char16_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}

/// A text is never cut between the two units of one character.
TextView CutToLimit(TextView text) {
    if (text.size() <= SharedStrings::kMaxLength) return text;
    text = text.substr(0, SharedStrings::kMaxLength);
    if (IsHighSurrogate(text.back())) text.remove_suffix(1);
    return text;
}

/// `text` itself when it has no line end; otherwise `changed`, which gets the changed text.
TextView WithLineFeeds(TextView text, Text& changed) {
    std::size_t end = text.find(kCrLf);
    if (end == TextView::npos) return text;
    changed.clear();
    while (end != TextView::npos) {
        changed.append(text.substr(0, end)).push_back(u'\n');
        text.remove_prefix(end + kCrLf.size());
        end = text.find(kCrLf);
    }
    return changed.append(text);
}

auto FirstAtOrBehind(std::vector<Cell>& cells, U16 col) {
    return std::ranges::lower_bound(cells, col, {}, &Cell::col);
}

} // namespace

void Workbook::SetText(CellPlace place, TextView text) {
    if (text.empty()) return EmptyCell(place);
    const TextView stored = CutToLimit(WithLineFeeds(text, changed_));
    Cell& cell = CellAt(place);
    cell.text = strings_.Add(stored);
    const auto lines = static_cast<U16>(std::ranges::count(stored, u'\n') + 1);
    SetWraps(cell, lines > 1);
    SheetRow& row = rows_[place.row];
    row.lines = std::max(row.lines, lines);
}

void Workbook::SetFill(CellPlace place, U8 colour) {
    Cell& cell = CellAt(place);
    CellFormat format = formats_.At(cell.format);
    format.fill = colour;
    cell.format = formats_.NumberOf(format);
}

void Workbook::SetWraps(Cell& cell, bool wraps) {
    CellFormat format = formats_.At(cell.format);
    if (format.wraps == wraps) return;
    format.wraps = wraps;
    cell.format = formats_.NumberOf(format);
}

void Workbook::EmptyCell(CellPlace place) {
    Cell* const cell = FindCell(place);
    if (cell == nullptr) return;
    cell->text = Cell::kNoText;
    SetWraps(*cell, false);
}

Cell* Workbook::FindCell(CellPlace place) {
    if (place.row >= rows_.size()) return nullptr;
    std::vector<Cell>& cells = rows_[place.row].cells;
    const auto found = FirstAtOrBehind(cells, place.col);
    return found != cells.end() && found->col == place.col ? &*found : nullptr;
}

Cell& Workbook::CellAt(CellPlace place) {
    if (place.row >= rows_.size()) rows_.resize(std::size_t{place.row} + 1);
    std::vector<Cell>& cells = rows_[place.row].cells;
    // Most cells come in their order.
    if (cells.empty() || cells.back().col < place.col) return cells.emplace_back(Cell{.col = place.col});
    const auto found = FirstAtOrBehind(cells, place.col);
    return found->col == place.col ? *found : *cells.insert(found, Cell{.col = place.col});
}

} // namespace korvane::xls
