#pragma once

#include "tbx/base/Environment.h"

#include <span>
#include <string>

namespace korvane {

/// Runs the command that the arguments name; they don't include the program's own name. The outputs aren't
/// flushed.
ExitStatus RunTbx(std::span<const std::string> arguments, Environment& environment);

} // namespace korvane
