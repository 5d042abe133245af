#include "table/model/TbxWriter.h"

#include "common/number/Number.h"
#include "grid/Grid.h"
#include "table/model/TableModel.h"
#include "table/model/TbxFormat.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <string>

namespace korvane {

namespace {

/// A whole number in decimal.
class Decimal {
public:
    explicit Decimal(std::int64_t number)
        : end_(std::to_chars(digits_.data(), digits_.data() + digits_.size(), number).ptr) {}

    std::string_view View() const { return {digits_.data(), end_}; }

private:
    std::array<char, 24> digits_;
    const char* end_;
};

std::string_view WithoutFinalLineEnd(std::string_view text) {
    if (text.ends_with(tbx::kLineEnd)) text.remove_suffix(tbx::kLineEnd.size());
    return text;
}

} // namespace

TbxWriter::TbxWriter(const TableModel& table, FileWriter& file, std::size_t chunkSize, TbxContent content)
    : table_(table), grid_(table.GridStore()), output_(file, chunkSize), content_(content) {
    for (Col col{1}; col <= grid_.ColCount(); ++col)
        cellHeads_.push_back("@col_" + std::to_string(col.Number()) + "\r\n");
}

bool TbxWriter::Write() {
    PutTitle(tbx::kHeaderTitle);
    PutHeader();
    PutTitle(tbx::kColumnsTitle);
    PutColumns();
    PutTitle(tbx::kDataTitle);
    for (Row row{1}; row <= grid_.RowCount(); ++row)
        if (content_ == TbxContent::Whole || CellBytes(row, Col{1}) != tbx::kDeleteMark) PutRow(row);
    PutTitle(std::string(tbx::kEndTitle) + ToBytes(table_.TxtDbFile));
    return output_.Flush();
}

void TbxWriter::PutTitle(std::string_view title) {
    for (const std::string_view line : {tbx::kCommentLine, title, tbx::kCommentLine}) {
        output_.Put(line);
        output_.Put(tbx::kLineEnd);
    }
}

void TbxWriter::PutValue(std::string_view value) {
    output_.Put({&tbx::kValue, 1});
    output_.Put(value);
    output_.Put(tbx::kLineEnd);
}

/// A long text is converted in pieces, because it is in memory several times already.
void TbxWriter::PutText(TextView value) {
    constexpr std::size_t kPiece = 16 * 1024;
    output_.Put({&tbx::kValue, 1});
    for (; !value.empty(); value.remove_prefix(std::min(value.size(), kPiece)))
        output_.Put(ToBytes(value.substr(0, kPiece)));
    output_.Put(tbx::kLineEnd);
}

void TbxWriter::PutHeader() {
    const double height = table_.SetRowHeight.value_or(std::int16_t{0}) * tbx::kHeightScale;
    PutValue(Decimal(table_.TableBackColour.value_or(Colour{0}).value).View());
    PutText(table_.TableFontName ? TextView(*table_.TableFontName) : TextView());
    PutValue(Decimal(table_.TableFontSize.value_or(std::int16_t{0})).View());
    PutValue(ToBytes(NumberText(height)));
}

void TbxWriter::PutColumns() {
    for (Col col{1}; col <= grid_.ColCount(); ++col) {
        PutText(grid_.ColHeaderText(col));
        PutValue(Decimal(std::int64_t{grid_.ColWidth(col)} * tbx::kWidthScale).View());
    }
}

void TbxWriter::PutRow(Row row) {
    output_.Put("@row_");
    output_.Put(Decimal(row.Number()).View());
    output_.Put(tbx::kLineEnd);
    PutAttributes(row);
    PutCells(row);
}

/// The row gets the flags and colours of column 1. A check box that is neither ticked nor unticked has no
/// line, and then the flags have none either.
void TbxWriter::PutAttributes(Row row) {
    const auto flag = [&](CellFlag which, char letter) {
        return grid_.CellFontFlag(row, Col{1}, which) ? letter : '0';
    };
    const int check = grid_.CellCheck(row);
    if (check == 0 || check == 1) {
        const char line[] = {tbx::kTick,
                             static_cast<char>('0' + check),
                             flag(CellFlag::Italic, 'I'),
                             flag(CellFlag::Bold, 'B'),
                             flag(CellFlag::Strikethrough, 'X'),
                             '\r',
                             '\n'};
        output_.Put({line, sizeof line});
    }
    for (const Colour colour : {grid_.CellBackColor(row, Col{1}), grid_.CellForeColor(row, Col{1})}) {
        output_.Put({&tbx::kColour, 1});
        output_.Put(Decimal(colour.value).View());
        output_.Put(tbx::kLineEnd);
    }
}

void TbxWriter::PutCells(Row row) {
    Col col{1};
    for (const std::string& head : cellHeads_) {
        output_.Put(head);
        const std::string_view text = CellBytes(row, col);
        output_.Put(content_ == TbxContent::Whole ? text : WithoutFinalLineEnd(text));
        output_.Put(tbx::kLineEnd);
        ++col;
    }
}

/// Valid until the next call.
std::string_view TbxWriter::CellBytes(Row row, Col col) {
    if (typed_ && typed_->cell == CellPosition{row, col}) {
        converted_ = ToBytes(typed_->text);
        return converted_;
    }
    if (const auto bytes = grid_.CellBytes(row, col)) return *bytes;
    converted_ = ToBytes(grid_.CellText(row, col));
    return converted_;
}

} // namespace korvane
