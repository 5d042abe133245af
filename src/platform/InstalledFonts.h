#pragma once

#include "common/text/Text.h"

#include <vector>

namespace korvane {

/// The fonts that the system has.
class InstalledFonts {
public:
    virtual ~InstalledFonts() = default;
    /// The names, sorted, each once. None of the fonts is loaded.
    virtual std::vector<Text> Names() const = 0;
    /// Case is ignored.
    virtual bool Has(TextView name) const = 0;
};

} // namespace korvane
