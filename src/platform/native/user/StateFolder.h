#pragma once

#include <filesystem>

namespace korvane {

/// The facts that decide where the program keeps its state. A path is empty when its environment variable
/// isn't set.
struct Surroundings {
    std::filesystem::path executable;
    std::filesystem::path configHome;  ///< XDG_CONFIG_HOME, or APPDATA on Windows
    std::filesystem::path home;        ///< HOME, or empty on Windows
    std::filesystem::path stateHome{}; ///< XDG_STATE_HOME, or LOCALAPPDATA on Windows
};

/// Makes the folder and those above it that are missing. Only the user may enter them.
bool MakePrivateDirs(const std::filesystem::path& path);

/// The surroundings of the running process.
Surroundings OwnSurroundings();

/// The folder of the executable if it can be written, so that a copy on a removable disk keeps its state
/// beside it. Otherwise the user's configuration folder, which is made if necessary and is private. If it
/// can't be made, the folder of the executable after all.
std::filesystem::path FindStateFolder(const Surroundings& surroundings);

/// The user's folder for what the program keeps of tables, or an empty path when there is no place for it. It
/// isn't made.
std::filesystem::path FindKeptFolder(const Surroundings& surroundings);

} // namespace korvane
