#pragma once

#include "common/number/Units.h"
#include "common/text/Text.h"
#include "grid/FieldText.h"

#include <cstdint>
#include <optional>

namespace korvane {

/// What the table's routines ask of the tab that shows the table.
class TableHost {
public:
    virtual ~TableHost() = default;
    /// Sets the slider and the box of the row height.
    virtual void ShowRowHeight(std::int16_t height) = 0;
    virtual Text TabCaption() const = 0;
    virtual void SetTabCaption(TextView caption) = 0;
    /// How wide the grid is on the screen; 0 where none is shown.
    virtual Twips GridWidth() const { return {}; }
    /// Whether something was typed into the field of a cell that isn't committed yet.
    virtual bool Types() const { return false; }
    /// What the field of the cell has then.
    virtual std::optional<FieldText> Typed() const { return std::nullopt; }
    /// Clears the `Dirty` flag of the tab's slot.
    virtual void ClearDirty() = 0;
};

} // namespace korvane
