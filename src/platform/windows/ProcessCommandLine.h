#pragma once

#include "common/text/Text.h"

#include <optional>
#include <vector>

namespace korvane {

/// The one text with which Windows starts a program, quoted so that the program finds each argument as it
/// stands. A batch file with arguments is read by the command interpreter, whose path is given: its arguments
/// are quoted so that none can be more than an argument there.
/// Nothing when no quoting makes it safe: no program's name has a quote or a null in it, no argument a null,
/// and none of a batch file's a quote or a line end.
std::optional<Text> ProcessCommandLine(TextView program, const std::vector<Text>& arguments,
                                       TextView interpreter);

/// What the user typed behind the program's name in the command line of a process, blanks and quotes and all.
TextView WithoutProgramName(TextView commandLine);

} // namespace korvane
