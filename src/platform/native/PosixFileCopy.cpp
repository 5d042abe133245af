#include "platform/native/FileCopy.h"
#include "platform/native/SystemFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <string>

namespace korvane {

namespace {

namespace fs = std::filesystem;

/// The number of bytes that are copied at once. Even a slow memory stick writes them in about a second, so
/// the user doesn't wait long for an answer.
constexpr std::size_t kStep = std::size_t{4} << 20;
/// Up to this size reading and writing is faster than asking the system to copy.
constexpr std::int64_t kSmallFile = 64 * 1024;
constexpr std::size_t kBuffer = 256 * 1024;
/// The folder in which the system shows a program its open files.
constexpr const char* kOpenFiles = "/proc/self/fd/";
constexpr mode_t kRightsBits = 0777;
constexpr mode_t kAllModeBits = 07777;
constexpr mode_t kGroupBits = 0070;
constexpr mode_t kOthersBits = 0007;

std::error_code Error(std::errc error) {
    return std::make_error_code(error);
}

/// The error of a call that returns 0 when it succeeds.
std::error_code ErrorOf(int result) {
    return result == 0 ? std::error_code() : LastSystemError();
}

/// Copies the rest of one open file to another, step by step.
class Pump {
public:
    Pump(int from, int to, bool small) : from_(from), to_(to), kernelCopies_(!small) {}

    /// Returns the number of bytes copied, 0 at the end, or -1 with the reason in `errno`.
    std::ptrdiff_t Step() {
        for (;;) {
            const std::ptrdiff_t count = kernelCopies_ ? KernelStep() : BufferStep();
            if (count >= 0 || errno != EINTR) return count;
        }
    }

private:
    std::ptrdiff_t KernelStep() {
        const std::ptrdiff_t count = copy_file_range(from_, nullptr, to_, nullptr, kStep, 0);
        // The system can't copy between these two disks, or the file has no size and looks empty to this
        // call.
        if (count == 0 || (count < 0 && IsRefusal(errno))) {
            kernelCopies_ = false;
            return BufferStep();
        }
        return count;
    }

    static bool IsRefusal(int error) {
        return error == EXDEV || error == EINVAL || error == ENOSYS || error == EOPNOTSUPP ||
               error == EPERM || error == EBADF;
    }

    std::ptrdiff_t BufferStep() {
        if (!buffer_) buffer_ = std::make_unique_for_overwrite<char[]>(kBuffer);
        const std::ptrdiff_t count = read(from_, buffer_.get(), kBuffer);
        for (std::ptrdiff_t done = 0; done < count;) {
            const std::ptrdiff_t written =
                write(to_, buffer_.get() + done, static_cast<std::size_t>(count - done));
            if (written < 0 && errno == EINTR) continue;
            if (written < 0) return -1;
            done += written;
        }
        return count;
    }

    int from_;
    int to_;
    bool kernelCopies_;
    std::unique_ptr<char[]> buffer_;
};

/// If the copy has another group than the source, its group gets only the permissions that everybody has.
mode_t RightsForCopy(const struct stat& source, const struct stat& copy) {
    const mode_t mode = source.st_mode & kRightsBits;
    if (source.st_gid == copy.st_gid) return mode;
    const mode_t everybody = mode & kOthersBits;
    return (mode & ~kGroupBits) | (mode & (everybody << 3));
}

std::error_code FlushFolder(const fs::path& folder) {
    const SystemFile file(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!file.IsOpen()) return LastSystemError();
    // Some disks can't flush a folder.
    return fsync(file.Number()) == 0 || errno == EINVAL ? std::error_code() : LastSystemError();
}

/// The state of one copy while it is made.
class PlainFileCopy {
public:
    PlainFileCopy(const fs::path& from, const fs::path& to, const CopyOptions& options)
        : from_(from),
          to_(to),
          folder_(to.has_parent_path() ? to.parent_path() : fs::path(".")),
          options_(options) {}

    std::error_code Run() {
        std::error_code error = OpenSource();
        if (!error) error = LookAtTarget();
        if (error) return error;
        error = HasRoomBeside() ? CopyBeside() : Error(std::errc::no_space_on_device);
        return IsDiskFull(error) && HasRoomInstead() ? CopyInstead() : error;
    }

private:
    std::error_code OpenSource() {
        // This is checked before the file is opened, because opening a pipe waits for a program that writes
        // into it.
        if (stat(from_.c_str(), &source_) != 0) return LastSystemError();
        if (!S_ISREG(source_.st_mode))
            return Error(S_ISDIR(source_.st_mode) ? std::errc::is_a_directory
                                                  : std::errc::operation_not_permitted);
        sourceFile_ = SystemFile(open(from_.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
        return sourceFile_.IsOpen() ? std::error_code() : LastSystemError();
    }

    std::error_code LookAtTarget() {
        struct stat own {};
        isThere_ = lstat(to_.c_str(), &own) == 0;
        if (!isThere_) return errno == ENOENT ? std::error_code() : LastSystemError();
        isLink_ = S_ISLNK(own.st_mode);
        // If the target is a link to a file that doesn't exist, that file isn't created.
        if (stat(to_.c_str(), &target_) != 0) return Error(std::errc::file_exists);
        if (S_ISDIR(target_.st_mode)) return Error(std::errc::is_a_directory);
        if (!S_ISREG(target_.st_mode)) return Error(std::errc::operation_not_permitted);
        if (target_.st_dev == source_.st_dev && target_.st_ino == source_.st_ino)
            return Error(std::errc::file_exists);
        return system_calls::IsWritable(to_) ? std::error_code() : LastSystemError();
    }

    std::int64_t Room() const {
        struct statvfs space {};
        const bool known = statvfs(folder_.c_str(), &space) == 0 && space.f_blocks != 0;
        if (!known) return source_.st_size;
        return static_cast<std::int64_t>(space.f_bavail) * static_cast<std::int64_t>(space.f_frsize);
    }

    /// This is checked only when there is a target. A copy to a new name just fails when the disk is full.
    bool HasRoomBeside() const { return !isThere_ || source_.st_size <= Room(); }

    /// Whether the copy fits after the target is removed. A link frees no room. A file with other names frees
    /// none either.
    bool HasRoomInstead() const {
        constexpr int kBlock = 512;
        if (!isThere_ || isLink_ || target_.st_nlink != 1) return false;
        return source_.st_size <= Room() + static_cast<std::int64_t>(target_.st_blocks) * kBlock;
    }

    std::error_code CopyBeside() {
        const std::error_code error = OpenNameless() ? Complete() : Error(std::errc::not_supported);
        if (error != std::errc::not_supported) return error;
        lseek(sourceFile_.Number(), 0, SEEK_SET);
        return MakeUnfinished() ? Complete() : LastSystemError();
    }

    /// Opens a file that gets its name when the copy is complete. It goes by itself if the program ends
    /// before, and it costs one change of the folder instead of two. Not every disk has such files.
    bool OpenNameless() {
        static const bool canBeNamed = access(kOpenFiles, X_OK) == 0;
        if (isThere_ || !canBeNamed) return false;
        // Nobody else can open it without a name, so it has the rights of the source from the start.
        const mode_t rights = source_.st_mode & kRightsBits;
        copyFile_ = SystemFile(open(folder_.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, rights));
        return copyFile_.IsOpen();
    }

    /// Creates the file that holds the copy until it is complete. Only the user can read it.
    bool MakeUnfinished() {
        std::string name = (folder_ / ".korvane-XXXXXX").native();
        copyFile_ = SystemFile(mkostemp(name.data(), O_CLOEXEC));
        copy_ = name;
        return copyFile_.IsOpen();
    }

    /// The target itself is renamed and then becomes the unfinished copy, so that there is never half a file
    /// under the target's name.
    std::error_code CopyInstead() {
        if (!MakeUnfinished()) return LastSystemError();
        if (rename(to_.c_str(), copy_.c_str()) != 0) return GiveUp(LastSystemError());
        isThere_ = false;
        copyFile_ = SystemFile(open(copy_.c_str(), O_WRONLY | O_TRUNC | O_NOFOLLOW | O_CLOEXEC));
        if (!copyFile_.IsOpen()) return GiveUp(LastSystemError());
        lseek(sourceFile_.Number(), 0, SEEK_SET);
        return Complete();
    }

    std::error_code Complete() {
        std::error_code error = Fill();
        if (!error) error = Finish();
        return error ? GiveUp(error) : error;
    }

    std::error_code GiveUp(const std::error_code& error) {
        // While the file is open its room on the disk isn't freed.
        copyFile_ = SystemFile();
        if (!copy_.empty()) unlink(copy_.c_str());
        return error;
    }

    std::error_code Fill() {
        Pump pump(sourceFile_.Number(), copyFile_.Number(), source_.st_size <= kSmallFile);
        std::int64_t copied = 0;
        for (;;) {
            const std::ptrdiff_t count = pump.Step();
            if (count < 0) return LastSystemError();
            if (count == 0) return {};
            copied += count;
            if (copied < source_.st_size && options_.betweenSteps) options_.betweenSteps();
        }
    }

    std::error_code Finish() {
        KeepRightsAndTimes();
        // The copy is flushed first, because the old target disappears when the copy takes its name, and the
        // source may be removed next.
        const bool flush = options_.flush || isThere_;
        std::error_code error = flush ? ErrorOf(fsync(copyFile_.Number())) : std::error_code();
        if (!error) error = copy_.empty() ? NameNameless() : RenameUnfinished();
        return error || !options_.flush ? error : FlushFolder(folder_);
    }

    std::error_code RenameUnfinished() {
        std::error_code error;
        copyFile_.Close(error);
        if (error) return error;
        return isThere_ ? ErrorOf(rename(copy_.c_str(), to_.c_str())) : RenameToFree(copy_, to_);
    }

    std::error_code NameNameless() const {
        // Some disks tell only at a close that a write failed. Closing a second handle asks them before the
        // copy has its name.
        const int second = dup(copyFile_.Number());
        if (second < 0 || close(second) != 0) return LastSystemError();
        const std::string open = kOpenFiles + std::to_string(copyFile_.Number());
        const std::error_code error =
            ErrorOf(linkat(AT_FDCWD, open.c_str(), AT_FDCWD, to_.c_str(), AT_SYMLINK_FOLLOW));
        const bool final = !error || error == std::errc::file_exists || IsDiskFull(error);
        return final ? error : Error(std::errc::not_supported);
    }

    /// Keeps the permissions and times as far as the disk supports them.
    void KeepRightsAndTimes() const {
        struct stat copy {};
        const std::array times{source_.st_atim, source_.st_mtim};
        futimens(copyFile_.Number(), times.data());
        if (fstat(copyFile_.Number(), &copy) != 0) return;
        const mode_t rights = RightsForCopy(source_, copy);
        if ((copy.st_mode & kAllModeBits) == rights) return;
        [[maybe_unused]] const int result = fchmod(copyFile_.Number(), rights);
    }

    const fs::path& from_;
    const fs::path& to_;
    fs::path folder_;
    const CopyOptions& options_;
    struct stat source_ {};
    struct stat target_ {};
    /// Whether there is a target to replace, and whether it is a link.
    bool isThere_ = false;
    bool isLink_ = false;
    /// The name of the unfinished copy; empty while it has none.
    fs::path copy_;
    SystemFile sourceFile_;
    SystemFile copyFile_;
};

} // namespace

std::error_code CopyPlainFile(const fs::path& from, const fs::path& to, const CopyOptions& options) {
    return PlainFileCopy(from, to, options).Run();
}

bool IsDiskFull(const std::error_code& error) {
    return error == std::errc::no_space_on_device ||
           error == std::error_code(EDQUOT, std::generic_category());
}

std::error_code RenameToFree(const fs::path& from, const fs::path& to) {
#ifdef RENAME_NOREPLACE
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return {};
    if (errno != EINVAL && errno != ENOSYS) return LastSystemError();
#endif
    // This is for disks that can't check and rename in one step. Moving a folder into itself is refused here
    // too.
    struct stat status {};
    if (lstat(to.c_str(), &status) == 0) return Error(std::errc::file_exists);
    return ErrorOf(rename(from.c_str(), to.c_str()));
}

} // namespace korvane
