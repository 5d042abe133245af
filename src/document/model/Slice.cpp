#include "document/model/Edit.h"
#include "document/model/Import.h"

#include <algorithm>

namespace korvane::doc {

namespace {

/// Takes one stretch out of a document.
class Slicer {
public:
    Slicer(const Document& from, const Range& range) : from_(from), range_(range), import_(to_, from) {}

    Document Take() {
        to_.paragraphs.clear();
        to_.page = from_.page;
        to_.defaultTab = from_.defaultTab;
        for (std::size_t i = range_.from.paragraph; i <= range_.to.paragraph;)
            i = TakeFrom(i);
        if (to_.paragraphs.empty() || to_.paragraphs.back().cell.table != 0) to_.paragraphs.emplace_back();
        TakeFields();
        return std::move(to_);
    }

private:
    const Paragraph& At(std::size_t i) const { return from_.paragraphs[i]; }

    /// Takes a paragraph, or all that the range has of a table. The result is what comes next.
    std::size_t TakeFrom(std::size_t i) {
        const Index table = At(i).cell.table;
        std::size_t end = i;
        while (table != 0 && end < range_.to.paragraph && At(end + 1).cell.table == table)
            ++end;
        if (table != 0) {
            if (const auto [first, last] = RowsIn(i, end); first < last) {
                TakeRows(table, i, first, last);
                // The end of the range is at the start of a row that isn't taken.
                if (At(end).cell.row >= last) to_.paragraphs.push_back(Plain(end));
                return end + 1;
            }
        }
        for (std::size_t plain = i; plain <= end; ++plain)
            to_.paragraphs.push_back(Plain(plain));
        return end + 1;
    }

    /// The rows that come as rows: the first one and the one after the last.
    std::pair<Index, Index> RowsIn(std::size_t first, std::size_t last) const {
        const bool beginsBefore = first > range_.from.paragraph;
        const bool endsAfter = last < range_.to.paragraph;
        Index row = At(first).cell.row;
        Index end = At(last).cell.row + 1;
        if (!endsAfter && range_.to.offset == 0 && StartsRow(last) && (last > first || beginsBefore)) --end;
        if (!beginsBefore && range_.from.offset == At(first).text.size() && EndsTable(first) && endsAfter)
            ++row;
        const bool alone = !beginsBefore && !endsAfter && end - row < 2;
        return alone || row >= end ? std::pair<Index, Index>{0, 0} : std::pair{row, end};
    }

    bool StartsRow(std::size_t i) const {
        return At(i).cell.column == 0 && (i == 0 || At(i - 1).cell != At(i).cell);
    }
    bool EndsTable(std::size_t i) const { return At(i + 1).cell.table != At(i).cell.table; }

    void TakeRows(Index table, std::size_t i, Index first, Index last) {
        const Index number = ++tables_;
        const std::vector<TableRow>& rows = from_.tables.at(table).rows;
        to_.tables[number].rows.assign(rows.begin() + first, rows.begin() + last);
        for (Index row = first; row < last; ++row) {
            for (Index column = 0; column < rows[row].cells.size(); ++column) {
                const CellPlace cell{table, row, column};
                const CellPlace place{number, row - first, column};
                if (i > range_.to.paragraph || At(i).cell != cell) to_.paragraphs.emplace_back().cell = place;
                for (; i <= range_.to.paragraph && At(i).cell == cell; ++i) {
                    to_.paragraphs.push_back(Plain(i));
                    to_.paragraphs.back().cell = place;
                }
            }
        }
    }

    /// The part of a paragraph that the range has, in no table.
    Paragraph Plain(std::size_t i) {
        const Paragraph& paragraph = At(i);
        const std::size_t begin = i == range_.from.paragraph ? range_.from.offset : 0;
        const std::size_t end = i == range_.to.paragraph ? range_.to.offset : paragraph.text.size();
        Paragraph part{paragraph.text.substr(begin, end - begin), RunsOf(paragraph, begin, end),
                       paragraph.format, paragraph.emptyFormat};
        return import_.Take(part);
    }

    void TakeFields() {
        for (const Paragraph& paragraph : to_.paragraphs) {
            for (const Run& run : paragraph.runs) {
                if (const auto found = from_.fields.find(run.field); found != from_.fields.end())
                    to_.fields.insert(*found);
            }
        }
    }

    const Document& from_;
    Range range_;
    Document to_;
    Import import_;
    Index tables_ = 0;
};

} // namespace

Document Slice(const Document& document, const Range& range) {
    return Slicer(document, range).Take();
}

} // namespace korvane::doc
