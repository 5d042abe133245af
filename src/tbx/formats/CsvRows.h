#pragma once

#include "tbx/formats/RowFormat.h"

#include <vector>

namespace korvane {

/// CSV (RFC 4180). The headers are the first record, and every record ends in CR LF. A field is put in quotes
/// when it wouldn't be read back otherwise; so is the empty field of a one-column table, which would be an
/// empty line. A table without columns gives nothing.
class CsvRows final : public RowFormat {
public:
    explicit CsvRows(char delimiter = ',') : delimiter_(delimiter) {}

    void Begin(std::span<const TextView> headers, Output& out) override {
        AddRow(std::vector<CellText>(headers.begin(), headers.end()), out);
    }
    void AddRow(std::span<const CellText> cells, Output& out) override;
    void End(Output&) override {}

private:
    bool NeedsQuotes(const CellText& field) const;
    void AddField(const CellText& field, Output& out) const;

    char delimiter_;
};

} // namespace korvane
