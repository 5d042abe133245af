#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

/// Some programs write this at the beginning of a UTF-8 file.
inline constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

enum class CsvFault { UnclosedQuote, TextAfterQuote, TooManyFields };

/// Reads the bytes of a CSV file (RFC 4180), record by record. A record ends at CR LF, a lone LF or a lone
/// CR, or at the end of the file; a field in quotes may hold line breaks, delimiters and doubled quotes, all
/// of which stay as they are, but for doubled quotes, which become one. A quote inside a field that doesn't
/// begin with one is an ordinary character. A UTF-8 byte-order mark at the beginning is skipped.
class CsvReader {
public:
    static constexpr std::size_t kNoLimit = static_cast<std::size_t>(-1);

    /// The bytes have to live as long as the reader. The delimiter is neither a quote nor CR or LF.
    explicit CsvReader(std::string_view bytes, char delimiter = ',');

    using Record = std::vector<std::string_view>;
    /// Puts the fields of the next record in `fields`, where they are valid until the next call; an empty
    /// line is a record of one empty field. False at the end of the bytes, and at a fault, after which
    /// nothing more is read. A record of more than `most` fields is a fault, and the rest of it isn't looked
    /// at.
    bool ReadRecord(Record& fields, std::size_t most = kNoLimit);

    /// The line, counted from 1, on which the last record began.
    std::size_t RecordLine() const { return recordLine_; }
    std::optional<CsvFault> Fault() const { return fault_; }
    /// The line of the fault, which is that of the quote.
    std::size_t FaultLine() const { return faultLine_; }

private:
    bool AtEnd() const { return at_ == bytes_.size(); }
    bool AtFieldEnd() const;
    bool Take(char byte);
    void TakeLineEnd();
    std::string_view ReadField();
    std::string_view ReadQuotedField();
    void CountLines(std::string_view piece);
    void Stop(CsvFault fault, std::size_t line);

    std::string_view bytes_;
    char delimiter_;
    std::size_t at_ = 0;
    std::size_t line_ = 1;
    std::size_t recordLine_ = 0;
    std::optional<CsvFault> fault_;
    std::size_t faultLine_ = 0;
    /// The fields of the record in which quotes were doubled. They don't move when one is added.
    std::deque<std::string> unquoted_;
};

} // namespace korvane
