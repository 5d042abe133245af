#pragma once

#include "common/text/Text.h"

#include <vector>

namespace korvane {

/// What a job copies or moves.
struct CopyTask {
    bool move = false;
    Text sourceFolder;
    /// The files' names.
    std::vector<Text> items;
    Text targetFolder;
    /// Another name for the target of a single file; blank for the same one.
    Text targetName{};
};

} // namespace korvane
