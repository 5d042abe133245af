#pragma once

#include "common/text/Text.h"

#include <vector>

namespace korvane {

/// One row of a list with columns: `texts` holds one text for each column.
struct ListRow {
    Text key{};
    std::vector<Text> texts{};
    bool checked = false;
    bool selected = false;
    /// A number that the window keeps with the row; nothing is shown of it.
    int tag = 0;
    /// The name of the picture in front of the row; empty for none.
    Text icon{};
};

} // namespace korvane
