#pragma once

#include "tbx/RowFormat.h"

namespace korvane {

/// CSV (RFC 4180). The headers are the first record, and every record ends in CR LF. A field is put in quotes
/// when it wouldn't be read back otherwise; so is the empty field of a one-column table, which would be an
/// empty line. A table without columns gives nothing.
class CsvRows final : public RowFormat {
public:
    explicit CsvRows(char delimiter = ',') : delimiter_(delimiter) {}

    void Begin(const std::vector<Text>& headers, std::string& out) override { AddRow(headers, out); }
    void AddRow(const std::vector<Text>& cells, std::string& out) override;
    void End(std::string&) override {}

private:
    bool NeedsQuotes(std::string_view field) const;
    void AddField(std::string_view field, std::string& out) const;

    char delimiter_;
};

} // namespace korvane
