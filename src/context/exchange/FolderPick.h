#pragma once

#include "common/text/Text.h"

#include <cstdint>
#include <vector>

namespace korvane {

/// What those who want a folder and the windows that list folders tell each other.
struct FolderPick {
    /// Who asks for a favourite: 11 the lister of directories, 1 the copy window, 0 nobody.
    std::int16_t FavouritePickMode = 0;
    /// The folder of the work session that was picked.
    Text FolderPicked;
    /// The folders that the user noted since the program started, in their order.
    std::vector<Text> TodaysFolders;
    /// The line of the list of this session's folders that was current when it was closed, counted from 0.
    std::int16_t FoldersListIndex = 0;
};

} // namespace korvane
