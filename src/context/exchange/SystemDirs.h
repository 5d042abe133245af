#pragma once

#include "common/text/Text.h"

namespace korvane {

/// The system's folders, each with a separator at its end; empty where there is none.
struct SystemDirs {
    Text ProgramFilesDir;
    Text WindowsDir;
    Text SystemDir;
    Text FontsDir;
    Text DocumentsDir;
};

} // namespace korvane
