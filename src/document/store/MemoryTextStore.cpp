#include "document/store/MemoryTextStore.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

namespace korvane::doc {

namespace {

/// The text of the paragraphs with CR LF between them.
Text Joined(const std::vector<Paragraph>& paragraphs, std::size_t first, std::size_t count) {
    Text text;
    for (std::size_t i = first; i < first + count; ++i) {
        if (i > first) text += kCrLf;
        text += paragraphs[i].text;
    }
    return text;
}

} // namespace

void MemoryTextStore::Reset(Document document) {
    places_.StartOf(0);
    document_ = std::move(document);
    all_ = PlainText(document_);
    step_.clear();
    undo_.clear();
    redo_.clear();
    TellAll();
}

void MemoryTextStore::SetPageSetup(const Page& page) {
    document_.page = page;
    TellAll();
}

void MemoryTextStore::TellAll() const {
    if (listener_ != nullptr) listener_->AllChanged();
}

Range MemoryTextStore::RangeOf(Pos from, Pos to) const {
    const bool splitsEnd = to > from && to < all_.size() && all_[to] == u'\n' && all_[to - 1] == u'\r';
    const Place begin = places_.At(from);
    return {begin, std::max(begin, places_.At(splitsEnd ? to + 1 : to))};
}

Document MemoryTextStore::Slice(Pos from, Pos to) const {
    return doc::Slice(document_, RangeOf(from, to));
}

Patch MemoryTextStore::Carry(Patch patch) {
    const std::size_t first = patch.first;
    const std::size_t removed = patch.count;
    const std::size_t added = patch.paragraphs.size();
    const bool tables = !patch.tables.empty();
    // The start of the first paragraph stays as it is, so the place that is remembered stays right.
    const Pos start = places_.StartOf(first);
    const std::size_t before = Joined(document_.paragraphs, first, patch.count).size();
    Patch inverse = Apply(document_, std::move(patch));
    all_.replace(start, before, Joined(document_.paragraphs, first, added));
    if (tables)
        TellAll();
    else if (listener_ != nullptr)
        listener_->ParagraphsChanged(first, removed, added);
    return inverse;
}

void MemoryTextStore::Edit(Patch patch) {
    BeginStep();
    step_.push_back(Carry(std::move(patch)));
    redo_.clear();
    EndStep();
}

void MemoryTextStore::EndStep() {
    if (--depth_ > 0 || step_.empty()) return;
    if (std::exchange(joins_, false) && !undo_.empty())
        std::ranges::move(step_, std::back_inserter(undo_.back()));
    else
        undo_.push_back(std::move(step_));
    step_.clear();
}

bool MemoryTextStore::Move(Steps& from, Steps& to) {
    joins_ = false;
    if (from.empty()) return false;
    std::vector<Patch> step = std::move(from.back());
    from.pop_back();
    std::vector<Patch>& taken = to.emplace_back();
    for (auto patch = step.rbegin(); patch != step.rend(); ++patch)
        taken.push_back(Carry(std::move(*patch)));
    return true;
}

bool MemoryTextStore::Undo() {
    return Move(undo_, redo_);
}

bool MemoryTextStore::Redo() {
    return Move(redo_, undo_);
}

Pos MemoryTextStore::Replace(Pos from, Pos to, const Document& piece) {
    Replacement made = ReplacePatch(document_, RangeOf(from, to), piece);
    Edit(std::move(made.patch));
    return places_.Of(made.end);
}

Look MemoryTextStore::LookOf(Index format, Index field) const {
    const CharFormat& look = document_.chars[format];
    return {look, document_.fonts[look.font], field};
}

void MemoryTextStore::Runs(Pos from, Pos to,
                           const std::function<void(Pos, std::size_t, const Look&)>& show) const {
    const Range range = RangeOf(from, to);
    for (std::size_t i = range.from.paragraph; i <= range.to.paragraph; ++i) {
        const Paragraph& paragraph = document_.paragraphs[i];
        const std::size_t begin = i == range.from.paragraph ? range.from.offset : 0;
        const std::size_t end = i == range.to.paragraph ? range.to.offset : paragraph.text.size();
        Pos at = places_.Of({i, begin});
        for (const Run& run : RunsOf(paragraph, begin, end)) {
            show(at, run.length, LookOf(run.format, run.field));
            at += run.length;
        }
    }
}

Look MemoryTextStore::LookAt(Pos position) const {
    const Place place = places_.At(position);
    const Paragraph& paragraph = document_.paragraphs[place.paragraph];
    if (paragraph.text.empty()) return LookOf(paragraph.emptyFormat, 0);
    const std::size_t at = place.offset > 0 ? place.offset - 1 : 0;
    const Run run = RunsOf(paragraph, at, at + 1).front();
    return LookOf(run.format, run.field);
}

void MemoryTextStore::Format(Pos from, Pos to, const CharDelta& delta) {
    std::map<Index, Index> changed;
    Edit(FormatPatch(document_, RangeOf(from, to), [&](Run run) {
        const auto [found, added] = changed.try_emplace(run.format);
        if (added)
            found->second = document_.chars.Add(Changed(document_, document_.chars[run.format], delta));
        run.format = found->second;
        run.field = delta.field.value_or(run.field);
        return run;
    }));
}

ParaFormat MemoryTextStore::ParaAt(Pos position) const {
    return document_.FormatOf(document_.paragraphs[places_.At(position).paragraph]);
}

void MemoryTextStore::FormatParas(Pos from, Pos to, const std::function<void(ParaFormat&)>& change) {
    Edit(FormatParasPatch(document_, RangeOf(from, to), change));
}

std::optional<CellPlace> MemoryTextStore::TableAt(Pos position) const {
    const CellPlace& cell = document_.paragraphs[places_.At(position).paragraph].cell;
    return cell.table == 0 ? std::nullopt : std::optional(cell);
}

std::optional<std::pair<Pos, Pos>> MemoryTextStore::CellRange(const CellPlace& cell) const {
    const auto [first, end] = ParagraphsOfCell(document_, cell);
    if (cell.table == 0 || first == end) return std::nullopt;
    const Pos start = places_.StartOf(first);
    return std::pair{start, places_.Of({end - 1, document_.paragraphs[end - 1].text.size()})};
}

TableSize MemoryTextStore::SizeOf(Index table) const {
    const auto found = document_.tables.find(table);
    if (found == document_.tables.end()) return {};
    const std::vector<TableRow>& rows = found->second.rows;
    return {rows.size(), rows.empty() ? 0 : rows.front().cells.size()};
}

std::optional<CellFormat> MemoryTextStore::CellAt(const CellPlace& cell) const {
    const auto found = document_.tables.find(cell.table);
    if (found == document_.tables.end() || cell.row >= found->second.rows.size()) return std::nullopt;
    const std::vector<CellFormat>& cells = found->second.rows[cell.row].cells;
    return cell.column < cells.size() ? std::optional(cells[cell.column]) : std::nullopt;
}

std::optional<Index> MemoryTextStore::InsertTable(Pos position, std::size_t rows, std::size_t columns) {
    auto inserted = InsertTablePatch(document_, places_.At(position), rows, columns);
    if (!inserted) return std::nullopt;
    Edit(std::move(inserted->first));
    return inserted->second;
}

void MemoryTextStore::FormatCells(Index table,
                                  const std::function<void(const CellPlace&, CellFormat&)>& change) {
    const auto found = document_.tables.find(table);
    if (found == document_.tables.end()) return;
    Table changed = found->second;
    for (Index row = 0; row < changed.rows.size(); ++row) {
        for (Index column = 0; column < changed.rows[row].cells.size(); ++column)
            change({table, row, column}, changed.rows[row].cells[column]);
    }
    Patch patch;
    patch.tables[table] = std::move(changed);
    Edit(std::move(patch));
}

} // namespace korvane::doc
