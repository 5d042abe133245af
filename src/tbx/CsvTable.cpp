#include "tbx/CsvTable.h"

#include "tbx/CsvReader.h"

namespace korvane {

namespace {

std::string AtLine(std::size_t line, std::string_view what) {
    return "line " + std::to_string(line) + ": " + std::string(what);
}

std::string FaultText(const CsvReader& reader) {
    const bool unclosed = reader.Fault() == CsvFault::UnclosedQuote;
    return AtLine(reader.FaultLine(), unclosed ? "the quoted field that begins here doesn't end"
                                               : "there is text after the closing quote of a field");
}

/// Fills the table from the records, up to the first fault.
class TableMaker {
public:
    TableMaker(std::string_view bytes, char delimiter, const CodePage& page)
        : page_(page), utf8_(IsUtf8(bytes)), reader_(bytes, delimiter) {}

    CsvTable Make() {
        if (!reader_.ReadRecord(record_))
            table_.fault = "there is no row of column names";
        else
            TakeHeaders();
        while (table_.fault.empty() && reader_.ReadRecord(record_))
            TakeRow();
        if (reader_.Fault()) table_.fault = FaultText(reader_);
        return std::move(table_);
    }

private:
    void TakeHeaders() {
        if (record_.size() > static_cast<std::size_t>(MaxColumns.Number())) {
            table_.fault = Size(record_.size(), "columns", MaxColumns.Number());
            return;
        }
        for (const std::string& field : record_)
            table_.headers.push_back(WithLineBreaks(Decode(field), u" "));
    }

    void TakeRow() {
        const std::size_t width = table_.headers.size();
        if (width > 1 && record_.size() == 1 && record_[0].empty()) return;
        if (record_.size() > width) {
            table_.fault = AtLine(reader_.RecordLine(), Size(record_.size(), "fields", width));
        } else if (table_.rows.size() == static_cast<std::size_t>(kMaxRows.Number())) {
            table_.fault = AtLine(reader_.RecordLine(), "a table holds no more than 32767 rows");
        } else {
            AddRow(width);
        }
    }

    void AddRow(std::size_t width) {
        std::vector<Text> cells;
        cells.reserve(width);
        for (const std::string& field : record_)
            cells.push_back(WithLineBreaks(Decode(field), kCrLf));
        cells.resize(width);
        table_.rows.push_back(std::move(cells));
    }

    template <class Number>
    static std::string Size(std::size_t size, std::string_view what, Number most) {
        return std::to_string(size) + " " + std::string(what) + " where there can be no more than " +
               std::to_string(most);
    }

    Text Decode(const std::string& field) const { return utf8_ ? FromUtf8(field) : page_.ToText(field); }

    CodePage page_;
    bool utf8_;
    CsvReader reader_;
    std::vector<std::string> record_;
    CsvTable table_;
};

} // namespace

CsvTable ReadCsvTable(std::string_view bytes, char delimiter, const CodePage& page) {
    const bool utf16 = bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF");
    if (utf16) return {{}, {}, "it is in UTF-16: save it as UTF-8"};
    return TableMaker(bytes, delimiter, page).Make();
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
