#pragma once

namespace korvane {

class App;

/// Reads `IniFilePath` into the settings, line by line; what the file doesn't hold stays as it is. Says so
/// when there is no such file, and nothing when it can't be opened.
void ReadSettings(App& app);

/// Writes all lines of the settings to `IniFilePath`, in place of the old file, for its owner's eyes only:
/// one is a password. Says so when it can't.
void WriteSettings(App& app);

} // namespace korvane
