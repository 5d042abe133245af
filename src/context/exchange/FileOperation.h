#pragma once

#include "common/text/Text.h"

namespace korvane {

/// The file at hand, for windows that work on one file.
struct FileOperation {
    Text FileOpName;
};

} // namespace korvane
