#pragma once

#include "common/text/Text.h"

#include <string_view>
#include <vector>

namespace korvane {

struct HelpSection {
    Text heading;
    Text text;
};

/// The sections of the help text, from its rich-text file. Texts before the first heading are left out.
std::vector<HelpSection> HelpSections(std::string_view rtf);

} // namespace korvane
