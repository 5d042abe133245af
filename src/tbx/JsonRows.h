#pragma once

#include "tbx/RowFormat.h"

#include <string>
#include <vector>

namespace korvane {

/// A JSON array with one object for each row, one to a line, whose keys are the headers in their order. Since
/// the keys of an object have to differ, an empty header becomes "column N" with the number of its column,
/// and a repeated header gets the first free number from 2 on after it: "Name", "Name 2".
class JsonRows final : public RowFormat {
public:
    void Begin(std::span<const CellText> headers, Output& out) override;
    void AddRow(std::span<const CellText> cells, Output& out) override;
    void End(Output& out) override;

private:
    /// Each key as JSON, followed by the colon.
    std::vector<std::string> keys_;
    bool first_ = true;
};

/// One key for each header, all different.
std::vector<Text> DistinctKeys(const std::vector<Text>& headers);

} // namespace korvane
