#include "platform/native/user/StateFolder.h"

#include "platform/native/SystemCalls.h"

namespace korvane {

namespace {

namespace fs = std::filesystem;

constexpr auto kKeptFolder = fs::path::preferred_separator == '/' ? "korvane/kept" : "Korvane/kept";
constexpr auto kConfigName = "korvane";

/// The folder that the environment names, or else the usual one below the home folder, or an empty path when
/// there is none. A relative path in the environment is ignored.
fs::path UserFolder(const fs::path& named, const fs::path& home, const char* usual) {
    if (named.is_absolute()) return named;
    return home.is_absolute() ? home / usual : fs::path();
}

} // namespace

bool MakePrivateDirs(const fs::path& path) {
    std::error_code error;
    if (fs::is_directory(path, error)) return true;
    return MakePrivateDirs(path.parent_path()) && system_calls::MakePrivateDir(path);
}

Surroundings OwnSurroundings() {
    const system_calls::UserFolders folders = system_calls::OwnUserFolders();
    return {system_calls::ExecutablePath(), folders.settings, folders.home, folders.state};
}

fs::path FindStateFolder(const Surroundings& surroundings) {
    fs::path beside = surroundings.executable.parent_path();
    if (system_calls::IsWritable(beside)) return beside;
    const fs::path configHome = UserFolder(surroundings.configHome, surroundings.home, ".config");
    if (configHome.empty()) return beside;
    const fs::path folder = configHome / kConfigName;
    return MakePrivateDirs(folder) ? folder : beside;
}

fs::path FindKeptFolder(const Surroundings& surroundings) {
    const fs::path stateHome = UserFolder(surroundings.stateHome, surroundings.home, ".local/state");
    return stateHome.empty() ? fs::path() : (stateHome / kKeptFolder).make_preferred();
}

} // namespace korvane
