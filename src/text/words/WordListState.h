#pragma once

#include "common/text/Text.h"

#include <cstdint>

namespace korvane {

/// What stays of the word list while its window is closed, until the program ends.
struct WordListState {
    /// The words, each ended by CR.
    Text WordListBuffer;
    /// 1 after the file was read. It is read only once.
    std::int16_t WordListLoaded = 0;
    /// 1 saves the list when its window closes.
    std::int16_t WordListAutoSave = 0;
    /// The current row when words were taken last, counted from 1.
    int WordListIndex = 0;
    /// An empty name and size 0 leave the list its own font.
    Text WordListFontName;
    int WordListFontSize = 0;
    /// What the user took from the list.
    Text WordListResult;
    /// Nothing could be read of the file, so only a save that the user asks for writes it.
    bool fileUnread = false;
};

} // namespace korvane
