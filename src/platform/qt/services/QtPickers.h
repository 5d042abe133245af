#pragma once

#include "context/ports/ColourPicker.h"
#include "context/ports/FontPicker.h"

namespace korvane {

/// The font dialog of the toolkit.
class QtFontPicker final : public FontPicker {
public:
    std::optional<FontSpec> Choose(const FontSpec& present) override;
};

/// The colour dialog of the desktop, which mixes colours whatever is asked for.
class QtColourPicker final : public ColourPicker {
public:
    std::optional<Colour> Choose(Colour start, Extent extent) override;
};

} // namespace korvane
