#pragma once

#include "common/text/Text.h"

namespace korvane {

/// The drive that `ReadDriveInfo` looked at last.
struct DriveReport {
    Text DriveTypeText;
    Text DriveLabel;
};

} // namespace korvane
