#pragma once

#include "common/text/Text.h"

#include <optional>
#include <vector>

namespace korvane {

/// The command line with which Windows starts a program, quoted so that the program gets each argument
/// unchanged. A batch file with arguments is run by the command interpreter, whose path is `interpreter`, and
/// its arguments are quoted so that none of them can become a command. The result is nothing when no quoting
/// would be safe: the program's name contains a quote or a null, an argument contains a null, or an argument
/// of a batch file contains a quote or a line end.
std::optional<Text> ProcessCommandLine(TextView program, const std::vector<Text>& arguments,
                                       TextView interpreter);

/// What the user typed after the program's name, with all blanks and quotes.
TextView WithoutProgramName(TextView commandLine);

} // namespace korvane
