#pragma once

#include "common/path/PathStyle.h"
#include "common/text/Text.h"

#include <functional>

namespace korvane {

// A disk may be seen as a drive, "G:\Data\x", and as a folder that mirrors it, "C:\Drive_G\Data\x". A stored
// path may be in either form, and gets one exchange of form before it is given up. The mirror form is read by
// place: character 10 is the drive's letter, character 11 starts the rest, whatever stands in front. A path
// that is in no Windows form has no other form; on a system without drives it comes back as it is.

/// Whether there is a file, or a folder where it is said, of that path.
using PathQuestion = std::function<bool(TextView path)>;

/// Whether the path is in one of the two forms: "X:\..." or holding ":\Drive_".
bool HasWindowsForm(TextView path);

/// The path itself when it is empty or there is a file of that name, otherwise its other form, which nobody
/// tests.
Text MapDrivePath(const PathStyle& style, TextView path, const PathQuestion& fileExists);

/// The other form of a folder that wasn't found; the folder as it is when it has none. Stricter than
/// `MapDrivePath`: the mirror's name has to stand at character 4.
Text OtherFolderForm(const PathStyle& style, TextView folder);

/// The path's other form when there is a file of that name, otherwise the path. A mirror is looked for on all
/// drives.
Text SwapDriveForm(const PathStyle& style, TextView path, const PathQuestion& fileExists);

/// The first of "C" to "Z" before `tail` that names a file; the one with "Z" when none does.
Text FirstDriveWithPath(TextView tail, const PathQuestion& fileExists);

/// A path in "C:\Program Files\" moved to "C:\Program Files (x86)\". Any other moves the other way when
/// `programFilesDir`, the system's folder of programs, holds "C:\Program Files (x86)\"; what the path itself
/// holds isn't asked then.
Text Check3264Dirs(TextView path, TextView programFilesDir);

} // namespace korvane
