#pragma once

#include "common/text/Text.h"

namespace korvane {

class App;

/// Fills `DriveTypeText` and `DriveLabel` for a drive: its letter with or without ":\", or any path on it
/// where there are no letters. A drive that isn't there leaves them as they were. A blank label becomes "no
/// label".
void ReadDriveInfo(App& app, TextView drive);

} // namespace korvane
