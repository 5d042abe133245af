#pragma once

#include "common/number/Units.h"

#include <cstdint>
#include <optional>

namespace korvane {

/// The colour dialog.
class ColourPicker {
public:
    /// What the dialog opens with: the ready colours alone, or what mixes others as well.
    enum class Extent : std::uint8_t { Simple, Full };

    virtual ~ColourPicker() = default;
    /// Opens on `start`; nothing on a cancel.
    virtual std::optional<Colour> Choose(Colour start, Extent extent) = 0;
};

} // namespace korvane
