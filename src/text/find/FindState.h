#pragma once

#include "common/text/Text.h"

namespace korvane {

/// What stays of the search while its window is closed, until the program ends.
struct FindState {
    /// What was searched, each ended by CR.
    Text FindHistory;
    Text LastFindText;
};

} // namespace korvane
