#pragma once

#include "common/text/Text.h"

namespace korvane {

/// What those who open a file with a program of the user's tell the list of programs, and what it answers.
struct OpenWithRequest {
    /// The full path of the file.
    Text ViewWithFile;
    /// The full path of the program, or a whole command.
    Text ViewWithProgram;
};

} // namespace korvane
