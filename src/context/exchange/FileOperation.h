#pragma once

#include "common/text/Text.h"

namespace korvane {

/// The file or folder at hand, for windows that work on one, and what they made of it.
struct FileOperation {
    Text FileOpFolder;
    /// May be a full path.
    Text FileOpName;
    /// The folder that was made last, and the one that was made or renamed last.
    Text NewFolderPath;
    Text NewFolderResult;
    /// The name that a file was given last.
    Text FileNewName;
};

} // namespace korvane
