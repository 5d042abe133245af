#pragma once

#include "controls/FontSpec.h"

#include <optional>

namespace korvane {

/// The desktop's own font dialog, which knows all faces of a font.
class SystemFontDialog {
public:
    virtual ~SystemFontDialog() = default;
    /// Opens on `present`; nothing on a cancel.
    virtual std::optional<FontSpec> Choose(const FontSpec& present) = 0;
};

} // namespace korvane
