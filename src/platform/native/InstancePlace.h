#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace korvane {

/// Where the starts of one executable by one user meet.
struct InstancePlace {
    std::filesystem::path socket;
    /// Whoever looks for the running copy, or becomes it, holds this file meanwhile.
    std::filesystem::path lock;
};

/// What decides about the place.
struct InstanceSurroundings {
    std::string runtimeDir; ///< XDG_RUNTIME_DIR; empty when it isn't set
    std::filesystem::path tempDir;
    std::filesystem::path executable;
};

/// The surroundings of the running process.
InstanceSurroundings OwnInstanceSurroundings();

/// A place that no other user reaches: in the user's runtime folder, or in a folder made for it among the
/// temporary ones. Nothing when neither is the user's alone; then every start is a first one.
std::optional<InstancePlace> FindInstancePlace(const InstanceSurroundings& surroundings);

/// Holds a lock file; others that want it wait. The end of the process lets it go in any case.
class StartLock {
public:
    explicit StartLock(const std::filesystem::path& path);
    StartLock(const StartLock&) = delete;
    StartLock& operator=(const StartLock&) = delete;
    ~StartLock();

    bool Held() const { return file_ >= 0; }

private:
    int file_;
};

/// Whether the process at the other end of a connected local socket is the same user's.
bool IsOwnPeer(int socket);

} // namespace korvane
