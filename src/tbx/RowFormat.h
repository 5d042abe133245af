#pragma once

#include "common/text/Text.h"

#include <string>
#include <vector>

namespace korvane {

/// A format in which the rows of a table are written. Each call appends its bytes, UTF-8, to `out`: `Begin`
/// once, then `AddRow` for each row with one text per header, then `End`.
class RowFormat {
public:
    virtual ~RowFormat() = default;
    virtual void Begin(const std::vector<Text>& headers, std::string& out) = 0;
    virtual void AddRow(const std::vector<Text>& cells, std::string& out) = 0;
    virtual void End(std::string& out) = 0;
};

} // namespace korvane
