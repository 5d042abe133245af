#pragma once

#include "tbx/formats/RowFormat.h"

#include <vector>

namespace korvane {

/// Tab-separated values. The headers are the first line, and every line ends in LF. Inside a field a tab is
/// written as \t, LF as \n, CR as \r and a backslash as \\, so that a row is always one line. A table without
/// columns gives nothing.
class TsvRows final : public RowFormat {
public:
    void Begin(std::span<const TextView> headers, Output& out) override {
        AddRow(std::vector<CellText>(headers.begin(), headers.end()), out);
    }
    void AddRow(std::span<const CellText> cells, Output& out) override;
    void End(Output&) override {}
};

} // namespace korvane
