#include "platform/native/StateFolder.h"

#include "platform/native/SystemCalls.h"

namespace korvane {

namespace {

namespace fs = std::filesystem;

constexpr auto kSettingsName = "Korvane.ini";
constexpr auto kConfigName = "korvane";

bool KeepsState(const fs::path& folder) {
    std::error_code error;
    return fs::exists(folder / kSettingsName, error) || system_calls::IsWritable(folder);
}

/// The user's folder for settings, or an empty path when there is none. A relative path in the environment is
/// ignored.
fs::path ConfigHome(const Surroundings& surroundings) {
    if (surroundings.configHome.is_absolute()) return surroundings.configHome;
    return surroundings.home.is_absolute() ? surroundings.home / ".config" : fs::path();
}

bool MakePrivateDirs(const fs::path& path) {
    std::error_code error;
    if (fs::is_directory(path, error)) return true;
    return MakePrivateDirs(path.parent_path()) && system_calls::MakePrivateDir(path);
}

} // namespace

Surroundings OwnSurroundings() {
    const system_calls::UserFolders folders = system_calls::OwnUserFolders();
    return {system_calls::ExecutablePath(), folders.settings, folders.home};
}

fs::path FindStateFolder(const Surroundings& surroundings) {
    fs::path beside = surroundings.executable.parent_path();
    if (KeepsState(beside)) return beside;
    const fs::path configHome = ConfigHome(surroundings);
    if (configHome.empty()) return beside;
    const fs::path folder = configHome / kConfigName;
    return MakePrivateDirs(folder) ? folder : beside;
}

} // namespace korvane
