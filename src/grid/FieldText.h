#pragma once

#include "common/text/Text.h"
#include "grid/Grid.h"

namespace korvane {

/// A text that the user is typing into a cell, and that the table doesn't have yet.
struct FieldText {
    CellPosition cell;
    Text text;
};

} // namespace korvane
