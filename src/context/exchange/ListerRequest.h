#pragma once

#include "common/text/Text.h"

#include <cstdint>
#include <vector>

namespace korvane {

/// The request block of the file chooser: what the caller asks, and the result.
struct ListerRequest {
    /// 0 load, 1 save; 2 and 77 pick a file to append to and a folder, which nobody asks for.
    std::int16_t ListerMode = 0;
    /// Patterns such as "*.tbx", separated by semicolons.
    Text FileDialogFilter;
    Text FileDialogCaption;
    Text FileDialogDefaultName;

    /// The folder in which the next save starts; empty for none.
    Text CurrentFolderHint;

    /// The folder that the chooser shows.
    Text ListerFolder;

    /// Empty when nothing was chosen. Callers clear it beforehand.
    Text ChosenFilePath;
    /// Index from 1; entry 0 is never used.
    std::vector<Text> ChosenFiles{2};
    /// 0 when the chosen file was only viewed.
    std::int16_t ChosenFileCount = 0;
    // The file that was taken last: its folder with a separator at its end, its full path and its name.
    Text ChosenFileFolder;
    Text ChosenFileFull;
    Text ChosenFileName;
};

} // namespace korvane
