#include "platform/native/SystemCalls.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>
#ifdef __linux__
#include <sys/prctl.h>
#endif
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>

namespace korvane::system_calls {

namespace {

constexpr uid_t kAdministrator = 0;

namespace fs = std::filesystem;

constexpr mode_t kRightsBits = 0777;
constexpr mode_t kGroupBits = 0070;
constexpr mode_t kOthersBits = 0007;
constexpr mode_t kOwnersBits = 0700;
constexpr mode_t kAnybodyMayWrite = 0222;
constexpr mode_t kNewFile = 0666;
constexpr mode_t kOwnersFile = 0600;
constexpr mode_t kOwnersDir = 0700;
constexpr uid_t kSameUser = static_cast<uid_t>(-1);
constexpr gid_t kSameGroup = static_cast<gid_t>(-1);

/// Used when the group of the old file can't be kept: the new file's group gets only the permissions that
/// everybody has.
mode_t WithoutGroup(mode_t mode) {
    const mode_t everybody = mode & kOthersBits;
    return (mode & ~kGroupBits) | (mode & (everybody << 3));
}

bool IsPlainFile(int file) {
    struct stat status {};
    return fstat(file, &status) == 0 && S_ISREG(status.st_mode);
}

void GiveRights(int file, const FileRights& rights) {
    // The owner is set first, because changing the owner removes permissions.
    const bool groupKept =
        fchown(file, rights.user, rights.group) == 0 || fchown(file, kSameUser, rights.group) == 0;
    const mode_t mode = rights.mode & kRightsBits;
    // Some disks keep no rights, and then others can read the file. `IsForOwnerAlone` tells.
    [[maybe_unused]] const int result = fchmod(file, groupKept ? mode : WithoutGroup(mode));
}

fs::path EnvironmentPath(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

} // namespace

int OpenToRead(const fs::path& path) {
    return open(path.c_str(), O_RDONLY | O_CLOEXEC);
}

int OpenToWrite(const fs::path& path, const std::optional<FileRights>& rights) {
    const int file =
        open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, rights ? kOwnersFile : kNewFile);
    if (file != kNoFile && rights && IsPlainFile(file)) GiveRights(file, *rights);
    return file;
}

int CreateNew(const fs::path& path, const std::optional<FileRights>& rights) {
    const int file =
        open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, rights ? kOwnersFile : kNewFile);
    if (file != kNoFile && rights) GiveRights(file, *rights);
    return file;
}

int OpenPlainToRead(const fs::path& path) {
    const int file = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (file == kNoFile) return kNoFile;
    struct stat status {};
    const bool known = fstat(file, &status) == 0;
    if (known && S_ISREG(status.st_mode)) return file;
    close(file);
    errno = known && S_ISDIR(status.st_mode) ? EISDIR : EPERM;
    return kNoFile;
}

std::ptrdiff_t ReadSome(int file, char* buffer, std::size_t size) {
    return read(file, buffer, size);
}

std::ptrdiff_t WriteSome(int file, const char* bytes, std::size_t size) {
    return write(file, bytes, size);
}

bool Close(int file) {
    return close(file) == 0;
}

std::size_t SizeOf(int file) {
    struct stat status {};
    if (fstat(file, &status) != 0 || !S_ISREG(status.st_mode)) return 0;
    return static_cast<std::size_t>(status.st_size);
}

bool IsWritable(const fs::path& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) return false;
    if ((status.st_mode & kAnybodyMayWrite) == 0) {
        errno = EACCES;
        return false;
    }
    return faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
}

std::optional<FileRights> RightsOf(const fs::path& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) return std::nullopt;
    return FileRights{status.st_mode, status.st_uid, status.st_gid};
}

std::optional<FileRights> OwnersAlone(const std::optional<FileRights>& rights) {
    if (!rights) return FileRights{kOwnersFile, kSameUser, kSameGroup};
    return FileRights{rights->mode & kOwnersBits, rights->user, rights->group};
}

bool IsForOwnerAlone(int file) {
    struct stat status {};
    return fstat(file, &status) == 0 && (status.st_mode & (kGroupBits | kOthersBits)) == 0;
}

void AllowMemoryDump([[maybe_unused]] bool allow) {
#ifdef PR_SET_DUMPABLE
    prctl(PR_SET_DUMPABLE, allow ? 1 : 0, 0, 0, 0);
#endif
}

bool IsAdministrator() {
    return geteuid() == kAdministrator;
}

bool IsTrusted(const fs::path& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) return true;
    return status.st_uid == geteuid() || status.st_uid == kAdministrator;
}

bool IsProgram(const fs::path& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) && access(path.c_str(), X_OK) == 0;
}

std::optional<FileFacts> FactsOf(const fs::path& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) return std::nullopt;
    return FileFacts{status.st_size, status.st_mtime, S_ISDIR(status.st_mode)};
}

bool Flush(const fs::path& path) {
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file == kNoFile) return false;
    const bool flushed = fsync(file) == 0;
    const int error = errno;
    close(file);
    errno = error;
    return flushed;
}

int OpenLocked(const fs::path& path) {
    const int file = open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, kOwnersFile);
    if (file == kNoFile || flock(file, LOCK_EX | LOCK_NB) == 0) return file;
    const int error = errno;
    close(file);
    errno = error;
    return kNoFile;
}

bool MakePrivateDir(const fs::path& path) {
    return mkdir(path.c_str(), kOwnersDir) == 0;
}

UserFolders OwnUserFolders() {
    return {EnvironmentPath("XDG_CONFIG_HOME"), EnvironmentPath("HOME"), EnvironmentPath("XDG_STATE_HOME"),
            EnvironmentPath("XDG_DATA_HOME")};
}

void PreferLargePages([[maybe_unused]] void* block, [[maybe_unused]] std::size_t size) {
#ifdef MADV_HUGEPAGE
    // The rest after the last whole page stays in small pages. A large page would use up to 2 MB too much for
    // it.
    madvise(block, size - size % kLargePage, MADV_HUGEPAGE);
#endif
}

std::tm LocalTime(std::time_t time) {
    std::tm local{};
    localtime_r(&time, &local);
    return local;
}

int AnsiCodePage() {
    return 0;
}

void PrepareStandardStreams() {
    std::signal(SIGPIPE, SIG_IGN);
}

fs::path ExecutablePath() {
    std::error_code error;
    return fs::read_symlink("/proc/self/exe", error);
}

} // namespace korvane::system_calls
