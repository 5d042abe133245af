#pragma once

#include "controls/FontSpec.h"

#include <optional>

namespace korvane {

/// The font dialog of the program.
class FontPicker {
public:
    virtual ~FontPicker() = default;
    /// The chosen font; what the user didn't choose is as in `present`. Nothing on a cancel.
    virtual std::optional<FontSpec> Choose(const FontSpec& present) = 0;
};

} // namespace korvane
