#pragma once

#include "common/text/Text.h"

namespace korvane {

class App;
class FileSystem;

// Paths from lists and settings, on the disk that is in use. The two forms of a path and their exchange are
// described in common/path/DriveForms.h.

Text MapDrivePath(const FileSystem& files, TextView path);
Text SwapDriveForm(const FileSystem& files, TextView path);

/// The folder, or its other form when it isn't there, becomes `CurrentFolderHint`. When neither is there, a
/// beep and a box say so and the hint stays. A blank path or one that starts with "-" is left alone.
Text MapFolderPath(App& app, TextView path);

} // namespace korvane
