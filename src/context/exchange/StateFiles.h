#pragma once

#include "common/text/Text.h"

namespace korvane {

/// The files of the program itself, each with its full path.
struct StateFiles {
    Text HelpFilePath;
    Text IniFilePath;
    Text RecFilePath;
};

} // namespace korvane
