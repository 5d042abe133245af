#pragma once

#include "common/text/Text.h"

namespace korvane {

/// The font of a control; an empty name and size 0 leave the system's own.
struct FontSpec {
    Text name;
    int size = 0;
    bool bold = false;
    bool operator==(const FontSpec&) const = default;
};

} // namespace korvane
