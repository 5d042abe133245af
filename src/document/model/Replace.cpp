#include "document/model/Edit.h"
#include "document/model/Import.h"

namespace korvane::doc {

namespace {

/// Puts a piece in place of a range.
class Replacing {
public:
    Replacing(Document& document, const Range& range, const Document& piece)
        : document_(document), range_(range), piece_(piece), import_(document, piece) {}

    Replacement Make() {
        FindRemovedTables();
        patch_.first = First();
        patch_.count = Last() - First() + 1;
        const std::size_t end = EndOfGroup(First());
        PutPiece(end == Last());
        for (std::size_t group = end; group < Last(); group = EndOfGroup(group + 1))
            PutEmptied(group + 1);
        for (Paragraph& paragraph : patch_.paragraphs) {
            if (!paragraph.text.empty()) paragraph.emptyFormat = 0;
        }
        return {std::move(patch_), end_};
    }

private:
    std::size_t First() const { return range_.from.paragraph; }
    std::size_t Last() const { return range_.to.paragraph; }
    const Paragraph& At(std::size_t i) const { return document_.paragraphs[i]; }

    void FindRemovedTables() {
        for (std::size_t i = First(); i <= Last(); ++i) {
            const Index table = At(i).cell.table;
            if (table == 0 || (i > First() && At(i - 1).cell.table == table)) continue;
            if (Removes(table, i)) patch_.tables[table] = std::nullopt;
        }
    }

    /// Whether the range has all of the table, whose first paragraph in the range this is, and more.
    bool Removes(Index table, std::size_t first) const {
        std::size_t last = first;
        while (last < Last() && At(last + 1).cell.table == table)
            ++last;
        const bool fromStart = first > First() || (StartsTable(first) && range_.from.offset == 0);
        const bool toEnd = last < Last() || (EndsTable(last) && range_.to.offset == At(last).text.size());
        return fromStart && toEnd && (first > First() || last < Last());
    }
    bool StartsTable(std::size_t i) const { return i == 0 || At(i - 1).cell.table != At(i).cell.table; }
    bool EndsTable(std::size_t i) const { return At(i + 1).cell.table != At(i).cell.table; }

    /// The cell that the paragraph keeps: none if its table goes.
    CellPlace CellOf(std::size_t i) const {
        const CellPlace& cell = At(i).cell;
        return patch_.tables.contains(cell.table) ? CellPlace{} : cell;
    }

    /// The last of the paragraphs that become one because the range has their ends.
    std::size_t EndOfGroup(std::size_t i) const {
        const CellPlace cell = CellOf(i);
        while (i < Last() && CellOf(i + 1) == cell)
            ++i;
        return i;
    }

    Paragraph Part(std::size_t i, std::size_t from, std::size_t to) const {
        const Paragraph& whole = At(i);
        return {whole.text.substr(from, to - from), RunsOf(whole, from, to), whole.format, LookOf(whole),
                CellOf(i)};
    }

    /// The look that a paragraph has when its text goes.
    static Index LookOf(const Paragraph& paragraph) {
        return paragraph.runs.empty() ? paragraph.emptyFormat : paragraph.runs.front().format;
    }

    static void Join(Paragraph& to, const Paragraph& added) {
        to.text += added.text;
        for (const Run& run : added.runs)
            AddRun(to.runs, run);
    }

    Paragraph& Put(Paragraph paragraph) { return patch_.paragraphs.emplace_back(std::move(paragraph)); }

    /// Notes that the piece ends here in the last paragraph.
    void NoteEnd(std::size_t offset) { end_ = {First() + patch_.paragraphs.size() - 1, offset}; }

    void PutPiece(bool withTail) {
        const Paragraph head = Part(First(), 0, range_.from.offset);
        const std::size_t tailFrom = withTail ? Last() : First();
        const std::size_t tailOffset = withTail ? range_.to.offset : At(First()).text.size();
        const Paragraph tail = Part(tailFrom, tailOffset, At(tailFrom).text.size());
        if (piece_.paragraphs.size() == 1)
            PutLine(head, tail);
        else
            PutParagraphs(head, tail);
    }

    /// The piece is a part of one paragraph, or nothing.
    void PutLine(const Paragraph& head, const Paragraph& tail) {
        const Paragraph line = import_.Take(piece_.paragraphs[0]);
        Paragraph& joined = Put(head);
        Join(joined, line);
        const std::size_t end = joined.text.size();
        Join(joined, tail);
        if (head.text.empty() && !tail.text.empty()) joined.format = tail.format;
        if (head.text.empty() && tail.text.empty() && !line.text.empty()) joined.format = line.format;
        NoteEnd(end);
    }

    void PutParagraphs(const Paragraph& head, const Paragraph& tail) {
        const bool flat = head.cell.table != 0;
        const bool tableFirst = !flat && piece_.paragraphs[0].cell.table != 0;
        if (!tableFirst || !head.text.empty()) Put(head);
        for (std::size_t i = 0; i < piece_.paragraphs.size(); ++i) {
            Paragraph taken = import_.Take(piece_.paragraphs[i]);
            taken.cell = flat ? head.cell : NewCell(taken.cell);
            if (i > 0 || tableFirst)
                Put(std::move(taken));
            else
                JoinFirst(patch_.paragraphs.back(), taken);
        }
        Paragraph& last = patch_.paragraphs.back();
        const std::size_t end = last.text.size();
        Join(last, tail);
        if (!tail.text.empty()) last.format = tail.format;
        last.cell = head.cell;
        NoteEnd(end);
    }

    static void JoinFirst(Paragraph& head, const Paragraph& first) {
        if (head.text.empty()) {
            head.format = first.format;
            head.emptyFormat = first.emptyFormat;
        }
        Join(head, first);
    }

    /// The cell of a table of the piece, which gets a number of its own.
    CellPlace NewCell(CellPlace cell) {
        if (cell.table == 0) return cell;
        const auto [found, added] = newTables_.try_emplace(cell.table, 0);
        if (added) {
            const Index above = document_.tables.empty() ? 0 : document_.tables.rbegin()->first;
            found->second = above + static_cast<Index>(newTables_.size());
            patch_.tables[found->second] = piece_.tables.at(cell.table);
        }
        cell.table = found->second;
        return cell;
    }

    /// The paragraphs of another cell, or between two tables, of which the range has the text.
    void PutEmptied(std::size_t first) {
        const std::size_t last = EndOfGroup(first);
        const std::size_t offset = last == Last() ? range_.to.offset : At(last).text.size();
        Put(Part(last, offset, At(last).text.size()));
    }

    Document& document_;
    Range range_;
    const Document& piece_;
    Import import_;
    Patch patch_;
    Place end_{};
    std::map<Index, Index> newTables_;
};

} // namespace

Replacement ReplacePatch(Document& document, const Range& range, const Document& piece) {
    return Replacing(document, range, piece).Make();
}

} // namespace korvane::doc
