#pragma once

#include "common/text/Text.h"

#include <cstdint>

namespace korvane {

class App;
class FileSystem;

/// Tells that a file can't be loaded, and which directory is the current one.
void ShowCannotLoad(App& app, TextView file);

/// Tells that a program or file isn't there. An empty name becomes "( Filename empty! )" for the caller too
/// (kept for compatibility: cannot-locate-names-empty), so a caller with a setting passes a copy. The mouse
/// pointer goes back to the default, because callers often show the hourglass.
void ShowCannotLocate(App& app, Text& file);

enum class FileAccess : std::uint8_t { Save, Delete };

/// Tells that a file can't be written or deleted, with the words of the file system's last failure.
void ShowCannotAccess(App& app, TextView file, FileAccess access = FileAccess::Save);
/// The same with the words of an earlier failure.
void ShowCannotAccess(App& app, TextView file, FileAccess access, TextView reason);

/// Tells how to paste a text that was put in the clipboard.
void ShowPasteHint(App& app);

/// Deletes the file if it is there. A failure has no consequence.
void DeleteFileQuietly(App& app, TextView file);
void DeleteFileQuietly(FileSystem& files, TextView file);

} // namespace korvane
