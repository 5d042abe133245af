#pragma once

#include "tbx/Verb.h"

#include <string>

namespace korvane {

/// The texts that the command prints about itself. Each ends in a line break.
std::string GeneralHelp();
std::string VerbHelp(const Verb& verb);
std::string VersionText();

/// "tbx find [-p NUMBER] FILE TEXT", without a line break.
std::string UsageLine(const Verb& verb);

} // namespace korvane
