#pragma once

#include "common/number/Units.h"

#include <cstdint>
#include <optional>

namespace korvane {

/// The colour dialog.
class ColourPicker {
public:
    /// What the dialog opens with: the basic colours alone, or also the part that mixes others.
    enum class Extent : std::uint8_t { Simple, Full };

    virtual ~ColourPicker() = default;
    /// Opens on `start`; nothing on a cancel.
    virtual std::optional<Colour> Choose(Colour start, Extent extent) = 0;
};

} // namespace korvane
