#pragma once

#include <filesystem>

namespace korvane {

/// What decides where the program keeps its state. A variable that the environment lacks is empty.
struct Surroundings {
    std::filesystem::path executable;
    std::filesystem::path configHome; ///< XDG_CONFIG_HOME; on Windows APPDATA
    std::filesystem::path home;       ///< HOME; on Windows none
};

/// The surroundings of the running process.
Surroundings OwnSurroundings();

/// The folder of the executable if it holds Korvane.ini or can be written, so that a copy carried about keeps
/// its state beside it. Otherwise the user's configuration folder, which is made for the user alone; the
/// executable's folder all the same when that can't be.
std::filesystem::path FindStateFolder(const Surroundings& surroundings);

} // namespace korvane
