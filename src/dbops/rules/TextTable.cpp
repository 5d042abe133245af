#include "dbops/rules/TextTable.h"

#include "common/text/CodePage.h"
#include "dbops/rules/DeleteMark.h"
#include "document/model/Builder.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace korvane {

namespace {

constexpr int kFontSize = 10;
constexpr int kHalfPoints = 2;
/// A column's width in the grid becomes so many twips for each of its units.
constexpr int kWidthFactor = 6;
constexpr int kWidthOfNone = 1800;
/// A cell has so many paragraphs. The lines after them are parts of the last one, because a paragraph takes
/// much memory.
constexpr std::size_t kParagraphsInCell = 1000;
constexpr std::size_t kPieceOfCell = std::size_t{16} << 10;

/// The text without one line end at its end.
template <class Char>
std::basic_string_view<Char> WithoutLineEnd(std::basic_string_view<Char> text) {
    for (const char lineEnd : {'\n', '\r'})
        if (text.ends_with(static_cast<Char>(lineEnd))) text.remove_suffix(1);
    return text;
}

class TextTable {
public:
    TextTable(const Grid& grid, const TextTableLook& look, const doc::Limits& limits)
        : grid_(grid), look_(look), builder_(limits) {
        text_.halfPoints = kFontSize * kHalfPoints;
    }

    /// Adds a row. `putCell(Col)` puts the text of a cell, by as many calls of `Put` as it likes.
    template <class PutCell>
    void AddRow(const PutCell& putCell) {
        ++row_;
        std::vector<doc::CellFormat> cells;
        for (Col col{1}; col <= grid_.ColCount(); ++col) {
            BeginCell();
            putCell(col);
            builder_.EndCell({});
            cells.push_back(Format(col));
        }
        builder_.EndRow(std::move(cells));
    }

    void Put(TextView piece) {
        if (std::exchange(afterCr_, false) && piece.starts_with(u'\n')) piece.remove_prefix(1);
        while (true) {
            const std::size_t end = piece.find_first_of(kCrLf);
            builder_.Add(piece.substr(0, end));
            if (end == TextView::npos) return;
            EndLine();
            const bool both = piece.substr(end).starts_with(kCrLf);
            afterCr_ = piece[end] == u'\r' && end + 1 == piece.size();
            piece.remove_prefix(end + (both ? 2 : 1));
        }
    }

    /// Puts what a cell of the grid has, without one line end at its end. A long text is never copied as a
    /// whole.
    void PutCellOfGrid(Row row, Col col) {
        const auto bytes = grid_.CellBytes(row, col);
        if (!bytes) return Put(WithoutLineEnd(TextView(grid_.CellValue(row, col))));
        const CodePage& page = grid_.Page();
        for (std::string_view rest = WithoutLineEnd(*bytes); !rest.empty();) {
            rest_ = rest.size();
            Put(page.ToText(rest.substr(0, kPieceOfCell)));
            rest.remove_prefix(std::min(kPieceOfCell, rest.size()));
        }
    }

    std::optional<doc::Document> Finish() {
        return builder_.Full() ? std::nullopt : std::optional(builder_.Finish({}));
    }

private:
    bool First() const { return row_ == 1 && look_.firstRowColoured; }

    void BeginCell() {
        doc::CharFormat format = text_;
        if (First()) format.fore = look_.firstRowText;
        builder_.SetFormat(format);
        builder_.OpenCell();
        paragraphs_ = 1;
        rest_ = 0;
        afterCr_ = false;
    }

    void EndLine() {
        ++paragraphs_;
        if (paragraphs_ <= kParagraphsInCell) return builder_.EndParagraph({});
        if (paragraphs_ == kParagraphsInCell + 1) builder_.Expect(rest_);
        builder_.Add(doc::kLineBreak);
    }

    doc::CellFormat Format(Col col) const {
        const int width = grid_.ColWidth(col);
        doc::CellFormat cell;
        cell.left = Left(col);
        cell.width = width > 0 ? width * kWidthFactor : kWidthOfNone;
        cell.gapLeft = cell.gapRight = look_.gap;
        cell.border.fill(look_.border);
        cell.back = Back();
        return cell;
    }

    int Left(Col col) const {
        int left = look_.leftMargin;
        for (Col before{1}; before < col; ++before)
            left += grid_.ColWidth(before);
        return left;
    }

    Colour Back() const {
        if (First()) return look_.firstRowBack;
        const bool alternate = (row_ + (look_.firstRowColoured ? 1 : 0)) % 2 == 0;
        return look_.alternateRowsColoured && alternate ? look_.alternateBack : kNoColour;
    }

    const Grid& grid_;
    const TextTableLook& look_;
    doc::Builder builder_;
    doc::CharFormat text_{};
    int row_ = 0;
    // Of the cell at hand.
    std::size_t paragraphs_ = 0;
    /// How many bytes aren't put yet, at most.
    std::size_t rest_ = 0;
    bool afterCr_ = false;
};

} // namespace

std::optional<doc::Document> MakeTextTable(const Grid& grid, const std::vector<Text>& titles,
                                           const std::function<bool(Row)>& takes, const TextTableLook& look,
                                           const doc::Limits& limits) {
    TextTable table(grid, look, limits);
    if (look.titles) {
        table.AddRow([&](Col col) {
            const auto place = static_cast<std::size_t>(col.Number()) - 1;
            if (place < titles.size()) table.Put(titles[place]);
        });
    }
    for (Row row{1}; row <= grid.RowCount(); ++row) {
        const bool first = row == Row{1} && look.titles;
        if (!first && !takes(row)) continue;
        const bool marked = IsMarkedForDeletion(grid, row);
        table.AddRow([&](Col col) {
            if (!marked) table.PutCellOfGrid(row, col);
        });
    }
    return table.Finish();
}

} // namespace korvane
