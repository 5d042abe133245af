#include "tbx/formats/CsvReader.h"

namespace korvane {

CsvReader::CsvReader(std::string_view bytes, char delimiter) : bytes_(bytes), delimiter_(delimiter) {
    if (bytes_.starts_with(kUtf8Mark)) bytes_.remove_prefix(kUtf8Mark.size());
}

bool CsvReader::ReadRecord(Record& fields, std::size_t most) {
    fields.clear();
    unquoted_.clear();
    if (fault_ || AtEnd()) return false;
    recordLine_ = line_;
    do {
        if (fields.size() == most)
            Stop(CsvFault::TooManyFields, recordLine_);
        else
            fields.push_back(ReadField());
    } while (!fault_ && Take(delimiter_));
    TakeLineEnd();
    return !fault_;
}

bool CsvReader::AtFieldEnd() const {
    return AtEnd() || bytes_[at_] == delimiter_ || bytes_[at_] == '\r' || bytes_[at_] == '\n';
}

bool CsvReader::Take(char byte) {
    if (AtEnd() || bytes_[at_] != byte) return false;
    ++at_;
    return true;
}

void CsvReader::TakeLineEnd() {
    const bool cr = Take('\r');
    const bool lf = Take('\n');
    if (cr || lf) ++line_;
}

std::string_view CsvReader::ReadField() {
    if (Take('"')) return ReadQuotedField();
    const std::size_t start = at_;
    while (!AtFieldEnd())
        ++at_;
    return bytes_.substr(start, at_ - start);
}

/// The field is a part of the bytes unless quotes are doubled in it.
std::string_view CsvReader::ReadQuotedField() {
    const std::size_t openLine = line_;
    std::string_view field;
    std::string* joined = nullptr;
    for (bool open = true; open;) {
        const std::size_t quote = bytes_.find('"', at_);
        if (quote == bytes_.npos) {
            Stop(CsvFault::UnclosedQuote, openLine);
            return {};
        }
        field = bytes_.substr(at_, quote - at_);
        CountLines(field);
        at_ = quote + 1;
        open = Take('"');
        if (open && joined == nullptr) joined = &unquoted_.emplace_back();
        if (joined != nullptr) joined->append(field).append(open ? "\"" : "");
    }
    if (!AtFieldEnd()) Stop(CsvFault::TextAfterQuote, line_);
    return joined == nullptr ? field : std::string_view(*joined);
}

void CsvReader::CountLines(std::string_view piece) {
    for (std::size_t at = 0; at < piece.size(); ++at) {
        const bool crOfCrLf = piece[at] == '\r' && at + 1 < piece.size() && piece[at + 1] == '\n';
        if ((piece[at] == '\r' && !crOfCrLf) || piece[at] == '\n') ++line_;
    }
}

void CsvReader::Stop(CsvFault fault, std::size_t line) {
    fault_ = fault;
    faultLine_ = line;
}

} // namespace korvane
