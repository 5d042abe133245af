#pragma once

#include "common/Text.h"

namespace korvane {

class App;

/// Fills `DriveTypeText` and `DriveLabel` for a drive: its letter with or without ":\", or any path on it
/// where there are no letters. The type of a drive that isn't there leaves `DriveTypeText` as it was.
void ReadDriveInfo(App& app, TextView drive);

} // namespace korvane
