#include "platform/native/user/Trash.h"

#include "platform/native/FileCopy.h"
#include "platform/native/SystemFile.h"
#include "platform/native/user/StateFolder.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>

namespace korvane {

namespace {

namespace fs = std::filesystem;

constexpr mode_t kPrivate = 0700;
constexpr mode_t kPrivateFile = 0600;
constexpr std::string_view kNoteEnd = ".trashinfo";
/// A name has to leave room on the disk for its number and for the end of the note's name.
constexpr std::size_t kLongestName = 230;
constexpr int kMostOfOneName = 100'000;

/// The trash of the user or of a volume.
struct Trash {
    fs::path folder;
    /// The paths in its notes start here; they are whole when this is empty.
    fs::path base{};
};

std::optional<struct stat> StatusOf(const fs::path& path) {
    struct stat status {};
    if (lstat(path.c_str(), &status) != 0) return std::nullopt;
    return status;
}

bool IsOwnFolder(const fs::path& path) {
    const auto status = StatusOf(path);
    return status && S_ISDIR(status->st_mode) && status->st_uid == geteuid();
}

/// Makes the folder unless it is there. Somebody else's, or a link, would give the file away.
bool MakeOwnFolder(const fs::path& path) {
    mkdir(path.c_str(), kPrivate);
    return IsOwnFolder(path);
}

std::optional<Trash> HomeTrash(const fs::path& dataHome, dev_t device) {
    const fs::path folder = dataHome / "Trash";
    struct stat status {};
    const bool isThere = dataHome.is_absolute() && MakePrivateDirs(folder) &&
                         stat(folder.c_str(), &status) == 0 && status.st_dev == device;
    return isThere ? std::optional(Trash{folder}) : std::nullopt;
}

/// The topmost folder on the volume above the path.
fs::path TopOf(const fs::path& path, dev_t device) {
    fs::path top = path.parent_path();
    for (fs::path above = top.parent_path(); above != top; above = top.parent_path()) {
        const auto status = StatusOf(above);
        if (!status || status->st_dev != device) break;
        top = above;
    }
    return top;
}

/// The administrator can set up one trash for all users, in which nobody may remove what others put there.
bool IsForAllUsers(const fs::path& folder) {
    const auto status = StatusOf(folder);
    return status && S_ISDIR(status->st_mode) && (status->st_mode & S_ISVTX) != 0;
}

std::optional<Trash> VolumeTrash(const fs::path& path, dev_t device) {
    const fs::path top = TopOf(path, device);
    const std::string user = std::to_string(geteuid());
    const fs::path shared = top / ".Trash";
    if (IsForAllUsers(shared) && MakeOwnFolder(shared / user)) return Trash{shared / user, top};
    const fs::path own = top / (".Trash-" + user);
    return MakeOwnFolder(own) ? std::optional(Trash{own, top}) : std::nullopt;
}

bool IsPlain(char byte) {
    constexpr std::string_view kMarks = "/-_.!~*'()";
    const auto isIn = [byte](char first, char last) { return byte >= first && byte <= last; };
    return isIn('a', 'z') || isIn('A', 'Z') || isIn('0', '9') || kMarks.find(byte) != std::string_view::npos;
}

std::string PercentEncoded(const std::string& bytes) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string encoded;
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        if (IsPlain(byte)) {
            encoded += byte;
        } else {
            (encoded += '%') += kDigits[value / 16];
            encoded += kDigits[value % 16];
        }
    }
    return encoded;
}

std::string NoteOf(const fs::path& path, const Trash& trash, std::time_t now) {
    const fs::path noted = trash.base.empty() ? path : path.lexically_relative(trash.base);
    const std::tm time = system_calls::LocalTime(now);
    std::array<char, 32> date{};
    std::strftime(date.data(), date.size(), "%Y-%m-%dT%H:%M:%S", &time);
    return "[Trash Info]\nPath=" + PercentEncoded(noted.native()) + "\nDeletionDate=" + date.data() + "\n";
}

/// One name in a trash: the file that is moved there, and the note that tells where it came from.
class Entry {
public:
    Entry(const Trash& trash, const std::string& name)
        : file_(trash.folder / "files" / name),
          note_(trash.folder / "info" / (name + std::string(kNoteEnd))) {}

    /// The note comes first and keeps the name for this entry. The reason of a failure is `file_exists` when
    /// the name is taken.
    std::error_code Fill(const fs::path& path, const std::string& note) const {
        std::error_code error;
        SystemFile file(open(note_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kPrivateFile));
        if (!file.IsOpen()) return LastSystemError();
        file.Write(note, error);
        std::error_code closing;
        file.Close(closing);
        if (!error) error = closing ? closing : RenameToFree(path, file_);
        if (error) unlink(note_.c_str());
        return error;
    }

private:
    fs::path file_;
    fs::path note_;
};

bool MoveInto(const Trash& trash, const fs::path& path, std::time_t now) {
    if (!MakeOwnFolder(trash.folder / "files") || !MakeOwnFolder(trash.folder / "info")) return false;
    const std::string name = path.filename().native().substr(0, kLongestName);
    const std::string note = NoteOf(path, trash, now);
    for (int number = 1; number <= kMostOfOneName; ++number) {
        const Entry entry(trash, number == 1 ? name : name + "." + std::to_string(number));
        const std::error_code error = entry.Fill(path, note);
        if (error != std::errc::file_exists) return !error;
    }
    return false;
}

/// The whole path without links on the way; empty for what can't be moved.
fs::path PlainPath(fs::path path) {
    std::error_code error;
    if (!path.has_filename()) path = path.parent_path();
    const fs::path name = path.filename();
    if (name.empty() || name == "." || name == "..") return {};
    const fs::path folder = fs::canonical(fs::absolute(path, error).parent_path(), error);
    return error ? fs::path() : folder / name;
}

} // namespace

bool MoveToTrash(const fs::path& path, const fs::path& dataHome, std::time_t now) {
    const fs::path plain = PlainPath(path);
    const auto status = plain.empty() ? std::nullopt : StatusOf(plain);
    if (!status) return false;
    std::optional<Trash> trash = HomeTrash(dataHome, status->st_dev);
    if (!trash) trash = VolumeTrash(plain, status->st_dev);
    return trash && MoveInto(*trash, plain, now);
}

bool MoveToTrash(const fs::path& path) {
    const system_calls::UserFolders folders = system_calls::OwnUserFolders();
    const fs::path dataHome = folders.data.is_absolute() ? folders.data : folders.home / ".local/share";
    return MoveToTrash(path, dataHome, std::time(nullptr));
}

} // namespace korvane
