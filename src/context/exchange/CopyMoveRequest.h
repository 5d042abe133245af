#pragma once

#include "common/text/Text.h"

#include <cstdint>
#include <vector>

namespace korvane {

/// What is to be copied or moved, as the lister tells the window that does it.
struct CopyMoveRequest {
    /// 1 copy, 2 move.
    std::int16_t CopyMoveKind = 0;
    Text CopySourceFolder;
    /// The names of the files in this folder.
    std::vector<Text> lstMarkedFiles;
    /// Where the last job copied to: kept as long as the program runs.
    Text LastCopyTarget;
};

} // namespace korvane
