#include "document/model/Edit.h"

#include <algorithm>
#include <iterator>

namespace korvane::doc {

namespace {

std::map<Index, std::optional<Table>> ExchangeTables(Document& document,
                                                     std::map<Index, std::optional<Table>> tables) {
    for (auto& [number, table] : tables) {
        std::optional<Table> before;
        if (const auto found = document.tables.find(number); found != document.tables.end())
            before = std::move(found->second);
        if (table)
            document.tables[number] = std::move(*table);
        else
            document.tables.erase(number);
        table = std::move(before);
    }
    return tables;
}

/// The paragraphs whose place in a table the test accepts, which follow each other.
template <class Test>
std::pair<std::size_t, std::size_t> ParagraphsWhere(const Document& document, const Test& test) {
    const auto& paragraphs = document.paragraphs;
    const auto first = std::ranges::find_if(paragraphs, test, &Paragraph::cell);
    const auto end = std::find_if_not(first, paragraphs.end(),
                                      [&](const Paragraph& paragraph) { return test(paragraph.cell); });
    return {static_cast<std::size_t>(first - paragraphs.begin()),
            static_cast<std::size_t>(end - paragraphs.begin())};
}

/// Changes the runs between two places of a paragraph.
void ChangeRuns(Paragraph& paragraph, std::size_t from, std::size_t to,
                const std::function<Run(const Run&)>& change) {
    Runs runs = RunsOf(paragraph, 0, from);
    for (const Run& run : RunsOf(paragraph, from, to))
        AddRun(runs, change(run));
    for (const Run& run : RunsOf(paragraph, to, paragraph.text.size()))
        AddRun(runs, run);
    paragraph.runs = std::move(runs);
}

Patch CopyOf(const Document& document, const Range& range) {
    const auto begin = document.paragraphs.begin() + static_cast<std::ptrdiff_t>(range.from.paragraph);
    const auto end = document.paragraphs.begin() + static_cast<std::ptrdiff_t>(range.to.paragraph) + 1;
    return {range.from.paragraph, static_cast<std::size_t>(end - begin), {begin, end}};
}

} // namespace

Patch Apply(Document& document, Patch patch) {
    const auto begin = document.paragraphs.begin() + static_cast<std::ptrdiff_t>(patch.first);
    Patch inverse{patch.first, patch.paragraphs.size()};
    inverse.paragraphs.assign(std::move_iterator(begin),
                              std::move_iterator(begin + static_cast<std::ptrdiff_t>(patch.count)));
    inverse.tables = ExchangeTables(document, std::move(patch.tables));
    const std::size_t common = std::min(patch.count, patch.paragraphs.size());
    const auto split = patch.paragraphs.begin() + static_cast<std::ptrdiff_t>(common);
    const auto rest = std::move(patch.paragraphs.begin(), split, begin);
    document.paragraphs.erase(rest, rest + static_cast<std::ptrdiff_t>(patch.count - common));
    document.paragraphs.insert(document.paragraphs.begin() +
                                   static_cast<std::ptrdiff_t>(patch.first + common),
                               std::move_iterator(split), std::move_iterator(patch.paragraphs.end()));
    return inverse;
}

void Places::GoTo(std::size_t paragraph) {
    if (paragraph < paragraph_ / 2) paragraph_ = start_ = 0;
    while (paragraph_ < paragraph)
        start_ += Width(paragraph_++);
    while (paragraph_ > paragraph)
        start_ -= Width(--paragraph_);
}

Place Places::At(Pos position) {
    if (position < start_ / 2) GoTo(0);
    while (position < start_)
        GoTo(paragraph_ - 1);
    while (paragraph_ + 1 < document_.paragraphs.size() && position >= start_ + Width(paragraph_))
        GoTo(paragraph_ + 1);
    return {paragraph_, std::min(position - start_, document_.paragraphs[paragraph_].text.size())};
}

Pos Places::StartOf(std::size_t paragraph) {
    GoTo(paragraph);
    return start_;
}

Pos Places::Of(const Place& place) {
    return StartOf(place.paragraph) + place.offset;
}

void Places::Forget(std::size_t paragraph) {
    if (paragraph_ > paragraph) GoTo(paragraph);
}

Runs RunsOf(const Paragraph& paragraph, std::size_t from, std::size_t to) {
    Runs runs;
    std::size_t start = 0;
    for (const Run& run : paragraph.runs) {
        if (start >= to) break;
        const std::size_t end = start + run.length;
        const std::size_t begin = std::max(start, from);
        const std::size_t stop = std::min(end, to);
        if (begin < stop) {
            runs.push_back(run);
            runs.back().length = static_cast<Index>(stop - begin);
        }
        start = end;
    }
    return runs;
}

Patch FormatPatch(Document& document, const Range& range, const std::function<Run(const Run&)>& change) {
    Patch patch = CopyOf(document, range);
    for (std::size_t i = 0; i < patch.count; ++i) {
        Paragraph& paragraph = patch.paragraphs[i];
        const std::size_t from = i == 0 ? range.from.offset : 0;
        const std::size_t to = i + 1 == patch.count ? range.to.offset : paragraph.text.size();
        ChangeRuns(paragraph, from, to, change);
        if (paragraph.text.empty() && !range.Empty())
            paragraph.emptyFormat = change({1, paragraph.emptyFormat}).format;
    }
    return patch;
}

Patch FormatParasPatch(Document& document, const Range& range,
                       const std::function<void(ParaFormat&)>& change) {
    Patch patch = CopyOf(document, range);
    for (Paragraph& paragraph : patch.paragraphs) {
        ParaFormat format = document.FormatOf(paragraph);
        change(format);
        paragraph.format = document.paras.Add(format);
    }
    return patch;
}

std::pair<std::size_t, std::size_t> ParagraphsOfTable(const Document& document, Index table) {
    return ParagraphsWhere(document, [table](const CellPlace& cell) { return cell.table == table; });
}

std::pair<std::size_t, std::size_t> ParagraphsOfCell(const Document& document, const CellPlace& cell) {
    return ParagraphsWhere(document, [&cell](const CellPlace& other) { return other == cell; });
}

std::optional<std::pair<Patch, Index>> InsertTablePatch(const Document& document, const Place& place,
                                                        std::size_t rows, std::size_t columns) {
    const Paragraph& target = document.paragraphs[place.paragraph];
    if (target.cell.table != 0 || rows == 0 || columns == 0) return std::nullopt;
    const Index number = document.tables.empty() ? 1 : document.tables.rbegin()->first + 1;
    Patch patch{place.paragraph, 1};
    Paragraph head = target;
    head.text.resize(place.offset);
    head.runs = RunsOf(target, 0, place.offset);
    if (place.offset > 0) patch.paragraphs.push_back(std::move(head));
    for (Index row = 0; row < rows; ++row) {
        for (Index column = 0; column < columns; ++column)
            patch.paragraphs.push_back({{}, {}, target.format, target.emptyFormat, {number, row, column}});
    }
    Paragraph tail = target;
    tail.text.erase(0, place.offset);
    tail.runs = RunsOf(target, place.offset, target.text.size());
    patch.paragraphs.push_back(std::move(tail));
    patch.tables[number] = Table{std::vector<TableRow>(rows, TableRow{std::vector<CellFormat>(columns)})};
    return std::pair{std::move(patch), number};
}

CharFormat Changed(Document& document, CharFormat format, const CharDelta& delta) {
    if (delta.font) format.font = document.FontNumber(*delta.font);
    TakeLooks(format, delta);
    if (delta.baseLine) format.script = Script::Normal;
    return format;
}

} // namespace korvane::doc
