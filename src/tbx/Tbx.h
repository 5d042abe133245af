#pragma once

#include "tbx/Environment.h"

#include <span>
#include <string>

namespace korvane {

/// Does what the arguments, without the program's own name, ask for. The outputs aren't flushed.
ExitStatus RunTbx(std::span<const std::string> arguments, Environment& environment);

} // namespace korvane
