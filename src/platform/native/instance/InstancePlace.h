#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>

namespace korvane {

/// The files through which several starts of one executable by one user find each other.
struct InstancePlace {
    std::filesystem::path socket;
    /// A program locks this file while it looks for the running copy or becomes it.
    std::filesystem::path lock;
};

/// The facts that decide where the place is.
struct InstanceSurroundings {
    std::string runtimeDir; ///< XDG_RUNTIME_DIR, or empty when it isn't set
    std::filesystem::path tempDir;
    std::filesystem::path executable;
};

/// The surroundings of the running process.
InstanceSurroundings OwnInstanceSurroundings();

/// A place that no other user can reach: in the user's runtime folder, or in a folder below the temporary
/// folder that is made for it. The result is nothing when neither folder is private. Then no start finds
/// another one.
std::optional<InstancePlace> FindInstancePlace(const InstanceSurroundings& surroundings);

/// Locks a file. Other programs that want the lock wait for some time. The system releases it when the
/// process ends.
class StartLock {
public:
    static constexpr std::chrono::milliseconds kPatience{5'000};

    explicit StartLock(const std::filesystem::path& path, std::chrono::milliseconds patience = kPatience);
    StartLock(const StartLock&) = delete;
    StartLock& operator=(const StartLock&) = delete;
    ~StartLock();

    bool Held() const { return file_ >= 0; }

private:
    int file_;
};

/// Whether the process at the other end of a connected local socket belongs to the same user.
bool IsOwnPeer(int socket);

} // namespace korvane
