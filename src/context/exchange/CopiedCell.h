#pragma once

#include "common/text/Text.h"

namespace korvane {

/// The cell that was copied to the clipboard last.
struct CopiedCell {
    Text text;
};

} // namespace korvane
