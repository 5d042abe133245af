#include "tbx/formats/CsvTable.h"

#include "common/number/Number.h"
#include "common/number/Units.h"
#include "grid/Grid.h"
#include "tbx/formats/CsvReader.h"

#include <algorithm>
#include <optional>

namespace korvane {

namespace {

std::string AtLine(std::size_t line, std::string_view what) {
    return "line " + std::to_string(line) + ": " + std::string(what);
}

template <class Number>
std::string NoMoreThan(std::string_view what, Number most) {
    return "there are more " + std::string(what) + " than the " + std::to_string(most) + " that there can be";
}

/// Fills the grid from the records, up to the first fault.
class TableMaker {
public:
    TableMaker(Grid& grid, std::string_view bytes, char delimiter)
        : grid_(grid), utf8_(IsUtf8(bytes)), reader_(bytes, delimiter) {}

    std::string Make() {
        if (!reader_.ReadRecord(record_, kMostColumns) && !reader_.Fault())
            return "there is no row of column names";
        if (reader_.Fault()) return FaultText(NoMoreThan("columns", kMostColumns));
        width_ = record_.size();
        for (const std::string_view field : record_)
            AddColumn(field);
        while (reader_.ReadRecord(record_, width_))
            if (!IsEmptyLine() && !AddRow())
                return AtLine(reader_.RecordLine(), "a table holds no more than 32767 rows");
        return reader_.Fault() ? FaultText(NoMoreThan("fields", width_)) : std::string();
    }

private:
    static constexpr auto kMostColumns = static_cast<std::size_t>(MaxColumns.Number());

    std::string FaultText(std::string_view tooMany) const {
        const std::size_t line = reader_.FaultLine();
        switch (*reader_.Fault()) {
        case CsvFault::UnclosedQuote:
            return AtLine(line, "the quoted field that begins here doesn't end");
        case CsvFault::TextAfterQuote:
            return AtLine(line, "there is text after the closing quote of a field");
        default:
            return AtLine(line, tooMany);
        }
    }

    bool IsEmptyLine() const { return width_ > 1 && record_.size() == 1 && record_[0].empty(); }

    void AddColumn(std::string_view field) {
        const Col col = grid_.ColCount() + 1;
        const Text header = WithLineBreaks(Decode(field), u" ");
        grid_.AddCol(NumberText(col.Number()) + u"no", header);
    }

    bool AddRow() {
        const Row row = grid_.RowCount() + 1;
        if (row > kMaxRows) return false;
        grid_.SetRowCount(row);
        Col col;
        for (const std::string_view field : record_)
            SetCell(row, ++col, field);
        return true;
    }

    void SetCell(Row row, Col col, std::string_view field) {
        if (const auto bytes = InPage(field))
            grid_.SetCellBytes(row, col, *bytes);
        else
            grid_.SetCellValue(row, col, WithLineBreaks(Decode(field), kCrLf));
    }

    /// The cell as bytes of the code page, made piece by piece, because a long text of characters would need
    /// several times the memory. Nothing when the page lacks a character.
    std::optional<std::string> InPage(std::string_view field) const {
        std::string bytes;
        bytes.reserve(field.size() + LineBreaks(field));
        while (!field.empty()) {
            const std::string_view piece = field.substr(0, PieceSize(field));
            const Text text = WithLineBreaks(Decode(piece), kCrLf);
            if (!grid_.Page().Holds(text)) return std::nullopt;
            grid_.Page().AppendBytes(text, bytes);
            field.remove_prefix(piece.size());
        }
        return bytes;
    }

    static std::size_t LineBreaks(std::string_view field) {
        return static_cast<std::size_t>(
            std::ranges::count_if(field, [](char byte) { return byte == '\r' || byte == '\n'; }));
    }

    /// A piece ends neither inside a character nor inside a line break.
    static std::size_t PieceSize(std::string_view field) {
        std::size_t size = std::min(field.size(), kPiece);
        const auto parts = [field](std::size_t at) {
            return (field[at] & 0xC0) == 0x80 || (field[at] == '\n' && field[at - 1] == '\r');
        };
        while (size < field.size() && size < kPiece + 4 && parts(size))
            ++size;
        return size;
    }

    Text Decode(std::string_view field) const { return utf8_ ? FromUtf8(field) : grid_.Page().ToText(field); }

    static constexpr std::size_t kPiece = 16 * 1024;

    Grid& grid_;
    bool utf8_;
    CsvReader reader_;
    CsvReader::Record record_;
    std::size_t width_ = 0;
};

} // namespace

std::string FillFromCsv(Grid& grid, std::string_view bytes, char delimiter) {
    const bool utf16 = bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF");
    if (utf16) return "it is in UTF-16: save it as UTF-8";
    return TableMaker(grid, bytes, delimiter).Make();
}

Text WithLineBreaks(TextView text, TextView lineBreak) {
    Text result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != u'\r' && text[at] != u'\n') {
            result += text[at];
            continue;
        }
        if (text.substr(at, 2) == kCrLf) ++at;
        result += lineBreak;
    }
    return result;
}

} // namespace korvane
