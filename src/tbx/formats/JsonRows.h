#pragma once

#include "tbx/formats/RowFormat.h"

#include <string>
#include <vector>

namespace korvane {

/// A key in two parts: a header, which may be long, and what is added to it.
struct JsonKey {
    TextView header;
    Text addition{};

    bool operator==(const JsonKey& other) const;
};

/// A JSON array with one object for each row, one to a line, whose keys are the headers in their order. Since
/// the keys of an object have to differ, an empty header becomes "column N" with the number of its column,
/// and a repeated header gets the first free number from 2 on after it: "Name", "Name 2".
class JsonRows final : public RowFormat {
public:
    void Begin(std::span<const TextView> headers, Output& out) override;
    void AddRow(std::span<const CellText> cells, Output& out) override;
    void End(Output& out) override;

private:
    void AddKey(std::size_t column, Output& out) const;

    std::vector<JsonKey> keys_;
    /// Each key as JSON, followed by the colon; empty for a long one.
    std::vector<std::string> shortKeys_;
    bool first_ = true;
};

/// One key for each header, all different.
std::vector<JsonKey> DistinctKeys(std::span<const TextView> headers);

} // namespace korvane
