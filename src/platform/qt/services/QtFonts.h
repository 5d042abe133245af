#pragma once

#include "platform/InstalledFonts.h"

namespace korvane {

/// The fonts of the desktop.
class QtFonts final : public InstalledFonts {
public:
    std::vector<Text> Names() const override;
    bool Has(TextView name) const override;
};

} // namespace korvane
