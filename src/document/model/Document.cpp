#include "document/model/Document.h"

#include <algorithm>
#include <string_view>

namespace korvane::doc {

namespace {

/// Compares formats of two documents by what they mean.
class Comparison {
public:
    Comparison(const Document& a, const Document& b) : a_(a), b_(b) {}

    bool Same() const {
        return a_.page == b_.page && a_.defaultTab == b_.defaultTab &&
               std::ranges::equal(
                   a_.paragraphs, b_.paragraphs,
                   [this](const Paragraph& a, const Paragraph& b) { return SamePara(a, b); }) &&
               SameTables();
    }

private:
    bool SamePara(const Paragraph& a, const Paragraph& b) const {
        return a.text == b.text && a_.FormatOf(a) == b_.FormatOf(b) &&
               SameLook(a.emptyFormat, b.emptyFormat) && a.cell.row == b.cell.row &&
               a.cell.column == b.cell.column && (a.cell.table == 0) == (b.cell.table == 0) &&
               std::ranges::equal(a.runs, b.runs,
                                  [this](const Run& x, const Run& y) { return SameRun(x, y); });
    }

    bool SameRun(const Run& a, const Run& b) const {
        return a.length == b.length && SameLook(a.format, b.format) && SameField(a.field, b.field) &&
               SameImage(a.image, b.image);
    }

    bool SameLook(Index a, Index b) const {
        CharFormat left = a_.chars[a];
        CharFormat right = b_.chars[b];
        if (a_.fonts[left.font] != b_.fonts[right.font]) return false;
        left.font = right.font = 0;
        return left == right;
    }

    bool SameField(Index a, Index b) const {
        if ((a == 0) != (b == 0)) return false;
        return a == 0 || DataOf(a_, a) == DataOf(b_, b);
    }

    static Field DataOf(const Document& document, Index field) {
        const auto found = document.fields.find(field);
        return found == document.fields.end() ? Field{} : found->second;
    }

    bool SameImage(Index a, Index b) const {
        if (a == 0 || b == 0) return a == b;
        const Image& left = a_.images[a - 1];
        const Image& right = b_.images[b - 1];
        return left.kind == right.kind && left.bytes.View() == right.bytes.View() &&
               left.width == right.width && left.height == right.height;
    }

    /// The tables in the order in which the text has them.
    static std::vector<const Table*> TablesInOrder(const Document& document) {
        std::vector<const Table*> tables;
        Index last = 0;
        for (const Paragraph& paragraph : document.paragraphs) {
            if (paragraph.cell.table != 0 && paragraph.cell.table != last)
                tables.push_back(&document.tables.at(paragraph.cell.table));
            last = paragraph.cell.table;
        }
        return tables;
    }

    bool SameTables() const {
        return std::ranges::equal(TablesInOrder(a_), TablesInOrder(b_),
                                  [](const Table* a, const Table* b) { return *a == *b; });
    }

    const Document& a_;
    const Document& b_;
};

bool RunsFit(const Document& document, const Paragraph& paragraph) {
    std::size_t length = 0;
    for (const Run& run : paragraph.runs) {
        const bool known = run.format < document.chars.Size() && run.image <= document.images.size();
        if (run.length == 0 || !known || (run.image != 0 && run.length != 1)) return false;
        length += run.length;
    }
    return length == paragraph.text.size() && paragraph.format < document.paras.Size() &&
           (paragraph.emptyFormat == 0 || paragraph.text.empty());
}

bool FontsFit(const Document& document) {
    for (Index i = 0; i < document.chars.Size(); ++i) {
        if (document.chars[i].font >= document.fonts.size()) return false;
    }
    return true;
}

/// Follows the cells from paragraph to paragraph.
class CellWalk {
public:
    explicit CellWalk(const Document& document) : document_(document) {}

    bool Follows(const CellPlace& cell) {
        if (cell == last_) return true;
        const bool fits = cell.table == last_.table ? IsNext(cell) : Leaves() && Enters(cell);
        last_ = cell;
        return fits;
    }
    bool Leaves() const { return last_.table == 0 || IsLast(); }
    std::size_t Tables() const { return tables_; }

private:
    const Table& TableOf(Index table) const { return document_.tables.at(table); }

    bool Enters(const CellPlace& cell) {
        if (cell.table == 0) return true;
        ++tables_;
        return document_.tables.contains(cell.table) && cell.row == 0 && cell.column == 0 &&
               !TableOf(cell.table).rows.empty() && !TableOf(cell.table).rows[0].cells.empty();
    }
    bool IsNext(const CellPlace& cell) const {
        const Table& table = TableOf(cell.table);
        const bool endsRow = last_.column + 1 == table.rows[last_.row].cells.size();
        return endsRow ? cell.row == last_.row + 1 && cell.column == 0 && cell.row < table.rows.size() &&
                             !table.rows[cell.row].cells.empty()
                       : cell.row == last_.row && cell.column == last_.column + 1;
    }
    bool IsLast() const {
        const Table& table = TableOf(last_.table);
        return last_.row + 1 == table.rows.size() && last_.column + 1 == table.rows.back().cells.size();
    }

    const Document& document_;
    CellPlace last_{};
    std::size_t tables_ = 0;
};

std::size_t LengthOf(const Document& document) {
    std::size_t length = (document.paragraphs.size() - 1) * kCrLf.size();
    for (const Paragraph& paragraph : document.paragraphs)
        length += paragraph.text.size();
    return length;
}

} // namespace

std::uint16_t Document::FontNumber(TextView name) {
    const auto found = std::ranges::find(fonts, name);
    if (found != fonts.end()) return static_cast<std::uint16_t>(found - fonts.begin());
    if (fonts.size() >= kMostFonts) return 0;
    fonts.emplace_back(name);
    return static_cast<std::uint16_t>(fonts.size() - 1);
}

Text PlainText(const Document& document) {
    Text text;
    text.reserve(LengthOf(document));
    for (const Paragraph& paragraph : document.paragraphs) {
        if (&paragraph != &document.paragraphs.front()) text += kCrLf;
        text += paragraph.text;
    }
    return text;
}

Document FromPlainText(TextView text) {
    Document document;
    document.paragraphs.clear();
    while (true) {
        const std::size_t end = text.find_first_of(kCrLf);
        Paragraph& paragraph = document.paragraphs.emplace_back();
        paragraph.text = text.substr(0, end);
        if (!paragraph.text.empty()) paragraph.runs.push_back({static_cast<Index>(paragraph.text.size())});
        if (end == TextView::npos) return document;
        text.remove_prefix(end + (text.substr(end).starts_with(kCrLf) ? 2 : 1));
    }
}

void AddRun(Runs& runs, const Run& run) {
    if (run.length == 0) return;
    if (!runs.empty() && runs.back().LooksLike(run))
        runs.back().length += run.length;
    else
        runs.push_back(run);
}

bool SameContent(const Document& a, const Document& b) {
    return Comparison(a, b).Same();
}

bool IsSound(const Document& document) {
    CellWalk walk(document);
    const bool fits = !document.paragraphs.empty() && FontsFit(document) &&
                      std::ranges::all_of(document.paragraphs, [&](const Paragraph& paragraph) {
                          return RunsFit(document, paragraph) && walk.Follows(paragraph.cell);
                      });
    return fits && document.paragraphs.back().cell.table == 0 && walk.Tables() == document.tables.size();
}

} // namespace korvane::doc
