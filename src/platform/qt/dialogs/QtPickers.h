#pragma once

#include "context/ports/ColourPicker.h"
#include "context/ports/SystemFontDialog.h"

namespace korvane {

/// Qt's font dialog.
class QtFontDialog final : public SystemFontDialog {
public:
    std::optional<FontSpec> Choose(const FontSpec& present) override;
};

/// The desktop's colour dialog. It always lets the user mix colours, whatever the extent that is asked for.
class QtColourPicker final : public ColourPicker {
public:
    std::optional<Colour> Choose(Colour start, Extent extent) override;
};

} // namespace korvane
