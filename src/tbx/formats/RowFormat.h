#pragma once

#include "tbx/base/Output.h"
#include "tbx/formats/CellText.h"

#include <span>

namespace korvane {

/// A format in which the rows of a table are written, in UTF-8: `Begin` is called once, then `AddRow` for
/// each row with one text per header, then `End`.
class RowFormat {
public:
    virtual ~RowFormat() = default;
    /// The headers stay as they are until the end, so that a long one needn't be copied.
    virtual void Begin(std::span<const TextView> headers, Output& out) = 0;
    virtual void AddRow(std::span<const CellText> cells, Output& out) = 0;
    virtual void End(Output& out) = 0;
};

} // namespace korvane
