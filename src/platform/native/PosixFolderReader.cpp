#include "platform/native/FolderReader.h"
#include "platform/native/NativePath.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#ifdef __linux__
#include <linux/openat2.h>
#include <sys/syscall.h>
#endif

#include <cerrno>
#include <string>

namespace korvane {

namespace {

constexpr int kNoFile = system_calls::kNoFile;
constexpr int kFolder = O_RDONLY | O_DIRECTORY | O_CLOEXEC;

/// Opens a folder unless a volume is mounted there, which may hang or spin up a disk. errno is EXDEV then.
int OpenOnSameVolume(const std::filesystem::path& folder) {
#ifdef SYS_openat2
    if (!folder.has_filename()) return open(folder.c_str(), kFolder);
    const int above = open(folder.parent_path().c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    if (above == kNoFile) return kNoFile;
    open_how how{};
    how.flags = kFolder;
    how.resolve = RESOLVE_NO_XDEV;
    const auto opened =
        static_cast<int>(syscall(SYS_openat2, above, folder.filename().c_str(), &how, sizeof how));
    const int error = errno;
    close(above);
    errno = error;
    if (opened != kNoFile || error != ENOSYS) return opened;
#endif
    return open(folder.c_str(), kFolder);
}

DIR* ReadFrom(int file) {
    if (file == kNoFile) return nullptr;
    DIR* const entries = fdopendir(file);
    if (entries == nullptr) close(file);
    return entries;
}

} // namespace

struct FolderReader::Opened {
    DIR* entries = nullptr;
    const dirent* entry = nullptr;
    bool isElsewhere = false;

    bool ReadStatus(const char* name, struct stat& status) const {
        return entries != nullptr && fstatat(dirfd(entries), name, &status, 0) == 0;
    }
};

FolderReader::FolderReader(const std::filesystem::path& folder, Reach reach)
    : opened_(std::make_unique<Opened>()) {
    errno = 0;
    opened_->entries =
        ReadFrom(reach == Reach::SameVolume ? OpenOnSameVolume(folder) : open(folder.c_str(), kFolder));
    opened_->isElsewhere = opened_->entries == nullptr && errno == EXDEV;
}

FolderReader::~FolderReader() {
    if (opened_->entries != nullptr) closedir(opened_->entries);
}

bool FolderReader::IsElsewhere() const {
    return opened_->isElsewhere;
}

bool FolderReader::Next() {
    if (opened_->entries == nullptr) return false;
    // Names that begin with a dot are hidden, and "." and ".." are two of them.
    do {
        opened_->entry = readdir(opened_->entries);
    } while (opened_->entry != nullptr && opened_->entry->d_name[0] == '.');
    return opened_->entry != nullptr;
}

Text FolderReader::Name() const {
    return FromNative(opened_->entry->d_name);
}

bool FolderReader::MustBeAsked() const {
    const unsigned char type = opened_->entry->d_type;
    return type == DT_LNK || type == DT_UNKNOWN;
}

bool FolderReader::IsFolder() const {
    if (!MustBeAsked()) return opened_->entry->d_type == DT_DIR;
    struct stat status;
    return opened_->ReadStatus(opened_->entry->d_name, status) && S_ISDIR(status.st_mode);
}

bool FolderReader::IsProgram() const {
    const char* const name = opened_->entry->d_name;
    struct stat status;
    return opened_->ReadStatus(name, status) && S_ISREG(status.st_mode) &&
           faccessat(dirfd(opened_->entries), name, X_OK, 0) == 0;
}

std::optional<system_calls::FileFacts> FolderReader::FactsOf(TextView name) const {
    struct stat status;
    if (!opened_->ReadStatus(ToNative(name).c_str(), status)) return std::nullopt;
    return system_calls::FileFacts{status.st_size, status.st_mtime, S_ISDIR(status.st_mode)};
}

} // namespace korvane
