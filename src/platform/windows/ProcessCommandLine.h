#pragma once

#include "common/text/Text.h"

#include <optional>
#include <vector>

namespace korvane {

/// The one text with which Windows starts a program, quoted so that the program finds each argument as it
/// stands. Nothing when no quoting makes it safe: a batch file with arguments is read by a command
/// interpreter, and no program's name has a quote or a null in it.
std::optional<Text> ProcessCommandLine(TextView program, const std::vector<Text>& arguments);

/// What the user typed behind the program's name in the command line of a process, blanks and quotes and all.
TextView WithoutProgramName(TextView commandLine);

} // namespace korvane
