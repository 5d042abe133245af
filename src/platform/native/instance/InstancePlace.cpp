#include "platform/native/instance/InstancePlace.h"

#include "platform/native/SystemCalls.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <thread>

namespace korvane {

namespace {

namespace fs = std::filesystem;

constexpr mode_t kOthersRights = 0077;
constexpr mode_t kOwnersFile = 0600;

/// In the socket's address the path ends with a null.
constexpr std::size_t kLongestSocketPath = sizeof(sockaddr_un::sun_path) - 1;

/// Whether the path is a folder (and not a link to one) that only this user may enter.
bool IsPrivateDir(const fs::path& path) {
    struct stat status {};
    return lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == geteuid() &&
           (status.st_mode & kOthersRights) == 0;
}

/// Gives the same digits for the same path in every build of the program (FNV-1a, 64 bits).
std::string Fingerprint(const std::string& bytes) {
    std::uint64_t hash = 0xCBF29CE484222325u;
    for (const char byte : bytes)
        hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001B3u;
    std::string digits;
    for (int shift = 60; shift >= 0; shift -= 4)
        digits += "0123456789abcdef"[(hash >> shift) & 0xF];
    return digits;
}

InstancePlace PlaceIn(const fs::path& folder, const fs::path& executable) {
    const std::string name = "korvane-" + Fingerprint(executable.string());
    return {folder / (name + ".socket"), folder / (name + ".lock")};
}

std::optional<InstancePlace> PrivatePlaceIn(const fs::path& folder, const fs::path& executable) {
    InstancePlace place = PlaceIn(folder, executable);
    const bool usable = IsPrivateDir(folder) && place.socket.native().size() <= kLongestSocketPath;
    return usable ? std::optional(std::move(place)) : std::nullopt;
}

/// Tries again and again, because the system has no call that waits for a lock for some time.
bool Lock(int file, std::chrono::milliseconds patience) {
    constexpr std::chrono::milliseconds kPause{10};
    const auto end = std::chrono::steady_clock::now() + patience;
    while (flock(file, LOCK_EX | LOCK_NB) != 0) {
        const bool held = errno == EWOULDBLOCK || errno == EINTR;
        if (!held || std::chrono::steady_clock::now() >= end) return false;
        std::this_thread::sleep_for(kPause);
    }
    return true;
}

int OpenLocked(const fs::path& path, std::chrono::milliseconds patience) {
    const int file = open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, kOwnersFile);
    if (file < 0 || Lock(file, patience)) return file;
    close(file);
    return -1;
}

} // namespace

InstanceSurroundings OwnInstanceSurroundings() {
    const char* runtimeDir = std::getenv("XDG_RUNTIME_DIR");
    std::error_code error;
    return {runtimeDir ? runtimeDir : "", fs::temp_directory_path(error), system_calls::ExecutablePath()};
}

std::optional<InstancePlace> FindInstancePlace(const InstanceSurroundings& surroundings) {
    const fs::path runtimeDir = surroundings.runtimeDir;
    if (runtimeDir.is_absolute()) {
        if (auto place = PrivatePlaceIn(runtimeDir, surroundings.executable)) return place;
    }
    const fs::path own = surroundings.tempDir / ("korvane-" + std::to_string(geteuid()));
    system_calls::MakePrivateDir(own);
    return PrivatePlaceIn(own, surroundings.executable);
}

StartLock::StartLock(const fs::path& path, std::chrono::milliseconds patience)
    : file_(OpenLocked(path, patience)) {}

StartLock::~StartLock() {
    if (Held()) close(file_);
}

bool IsOwnPeer(int socket) {
    ucred peer{};
    socklen_t size = sizeof peer;
    return getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == geteuid();
}

} // namespace korvane
