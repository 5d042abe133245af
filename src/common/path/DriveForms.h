#pragma once

#include "common/path/PathStyle.h"
#include "common/text/Text.h"

#include <functional>

namespace korvane {

// A disk may be seen as a drive, "G:\Data\x", and as a folder that mirrors it, "C:\Drive_G\Data\x". A stored
// path may be in either form. When it isn't found, its other form is tried once. The mirror form is read by
// place: character 10 is the letter of the drive and the rest starts with character 11, whatever comes before
// them. A path that is in no Windows form has no other form; on a system without drives it comes back as it
// is.

/// Whether there is a file of that path, or a folder where the function says so.
using PathQuestion = std::function<bool(TextView path)>;

/// Whether the path is in one of the two forms: it is "X:\..." or contains ":\Drive_".
bool HasWindowsForm(TextView path);

/// The path itself when it is empty or there is a file of that name, otherwise its other form, which isn't
/// tested.
Text MapDrivePath(const PathStyle& style, TextView path, const PathQuestion& fileExists);

/// The other form of a folder that wasn't found; the folder as it is when it has none. This is stricter than
/// `MapDrivePath`: the name of the mirror has to start at character 4.
Text OtherFolderForm(const PathStyle& style, TextView folder);

/// The path's other form when there is a file of that name, otherwise the path. A mirror is looked for on all
/// drives.
Text SwapDriveForm(const PathStyle& style, TextView path, const PathQuestion& fileExists);

/// The first of "C" to "Z" before `tail` that names a file; the one with "Z" when none does.
Text FirstDriveWithPath(TextView tail, const PathQuestion& fileExists);

/// The other form of a program of the user's list; the program itself when it has none. A mirror gives its
/// drive. For a path on a drive it is the first of that drive's own mirrors of "C" to "Z" that is a file, and
/// the one of "Z" when none is. Kept for compatibility: mirrors-of-own-drive.
Text OtherProgramForm(const PathStyle& style, TextView program, const PathQuestion& fileExists);

/// Moves a path in "C:\Program Files\" to "C:\Program Files (x86)\". Any other path is moved back when
/// `programFilesDir`, the system's folder of programs, contains "C:\Program Files (x86)\"; the path itself
/// isn't tested for that.
Text Check3264Dirs(TextView path, TextView programFilesDir);

} // namespace korvane
