#pragma once

#include "common/text/CaseFold.h"
#include "platform/InstalledFonts.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace korvane {

/// Fonts that a test sets.
class MemoryFonts final : public InstalledFonts {
public:
    std::vector<Text> Names() const override { return names_; }
    bool Has(TextView name) const override {
        return std::ranges::any_of(names_,
                                   [name](const Text& have) { return ToLower(have) == ToLower(name); });
    }

    void Set(std::vector<Text> names) { names_ = std::move(names); }

private:
    std::vector<Text> names_{u"Arial", u"Cambria", u"Courier New", u"Wingdings"};
};

} // namespace korvane
