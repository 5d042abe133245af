#pragma once

#include "common/text/Text.h"

namespace korvane {

class App;
class FileSystem;

/// The file of the user's own settings.
Text OwnSettingsFile(const FileSystem& files);

/// The file that the settings are read from. Those that came with the program are the settings of a user who
/// has no file `own` yet.
Text SettingsToRead(const FileSystem& files, TextView own);

/// Reads `IniFilePath` into the settings, line by line; what the file doesn't hold stays as it is. Says so
/// when there is no such file, and nothing when it can't be opened.
void ReadSettings(App& app);

/// Writes all lines of the settings to `IniFilePath`, in place of the old file. Only its owner may read it,
/// because one line is a password. Where others could read it, that line is empty. Shows a message when it
/// can't be written.
void WriteSettings(App& app);

/// Protects the password, if there is one, from those who look into the program's memory.
void HoldPassword(const App& app);

} // namespace korvane
