#include "dbops/rules/TextTable.h"

#include "dbops/rules/DeleteMark.h"
#include "document/model/Builder.h"

#include <algorithm>

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

class TextTable {
public:
    TextTable(const Grid& grid, const TextTableLook& look, const doc::Limits& limits)
        : grid_(grid), look_(look), builder_(limits) {
        text_.halfPoints = kFontSize * kHalfPoints;
    }

    /// Adds a row of the texts that `textOf(Col)` gives.
    template <class TextOf>
    void AddRow(const TextOf& textOf) {
        ++row_;
        std::vector<doc::CellFormat> cells;
        for (Col col{1}; col <= grid_.ColCount(); ++col) {
            AddCell(textOf(col));
            cells.push_back(Format(col));
        }
        builder_.EndRow(std::move(cells));
    }

    std::optional<doc::Document> Finish() {
        return builder_.Full() ? std::nullopt : std::optional(builder_.Finish({}));
    }

private:
    bool First() const { return row_ == 1 && look_.firstRowColoured; }

    void AddCell(TextView text) {
        doc::CharFormat format = text_;
        if (First()) format.fore = look_.firstRowText;
        builder_.SetFormat(format);
        builder_.OpenCell();
        AddLines(text);
        builder_.EndCell({});
    }

    void AddLines(TextView text) {
        std::size_t paragraphs = 1;
        while (true) {
            const std::size_t end = text.find_first_of(kCrLf);
            builder_.Add(text.substr(0, end));
            if (end == TextView::npos) return;
            if (paragraphs++ < kParagraphsInCell)
                builder_.EndParagraph({});
            else
                builder_.Add(doc::kLineBreak);
            text.remove_prefix(end + (text.substr(end).starts_with(kCrLf) ? 2 : 1));
        }
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
};

/// The text without one line end at its end.
TextView WithoutLineEnd(TextView text) {
    if (text.ends_with(u'\n')) text.remove_suffix(1);
    if (text.ends_with(u'\r')) text.remove_suffix(1);
    return text;
}

} // namespace

std::optional<doc::Document> MakeTextTable(const Grid& grid, const std::vector<Text>& titles,
                                           const std::function<bool(Row)>& takes, const TextTableLook& look,
                                           const doc::Limits& limits) {
    TextTable table(grid, look, limits);
    if (look.titles) {
        table.AddRow([&titles](Col col) {
            const auto place = static_cast<std::size_t>(col.Number()) - 1;
            return place < titles.size() ? TextView(titles[place]) : TextView();
        });
    }
    for (Row row{1}; row <= grid.RowCount(); ++row) {
        const bool first = row == Row{1} && look.titles;
        if (!first && !takes(row)) continue;
        const bool marked = IsMarkedForDeletion(grid, row);
        Text value;
        table.AddRow([&](Col col) {
            value = marked ? Text() : grid.CellValue(row, col);
            return WithoutLineEnd(value);
        });
    }
    return table.Finish();
}

} // namespace korvane
