#pragma once

#include "common/number/Units.h"

#include <optional>

namespace korvane {

/// The colours of a text and of its background.
struct ColourPair {
    Colour fore;
    Colour back;
    bool operator==(const ColourPair&) const = default;
};

/// The window in which both are chosen together.
class ColourPairPicker {
public:
    virtual ~ColourPairPicker() = default;
    /// Opens on `present`; nothing on a cancel.
    virtual std::optional<ColourPair> Choose(const ColourPair& present) = 0;
};

} // namespace korvane
