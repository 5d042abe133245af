#include "platform/native/NativeFileSystem.h"

#include "common/path/FilePatterns.h"
#include "platform/native/FileCopy.h"
#include "platform/native/FolderReader.h"
#include "platform/native/NativeClock.h"
#include "platform/native/NativePath.h"
#include "platform/native/NativeVolume.h"
#include "platform/native/ReadFile.h"
#include "platform/native/ReplaceBytes.h"
#include "platform/native/SystemFile.h"

#include <algorithm>

namespace korvane {

namespace {

namespace fs = std::filesystem;

/// Whether a ".." after this path removes just its last name. After a link it would lead to the parent of the
/// link's target.
bool EndsInOwnName(const fs::path& path) {
    std::error_code error;
    return path.filename() != ".." && !fs::is_symlink(path, error);
}

/// Removes each "." and each ".." together with the name before it.
fs::path WithoutDetours(const fs::path& path) {
    fs::path plain;
    for (const fs::path& part : path) {
        if (part.empty() || part == ".") continue;
        if (part == ".." && EndsInOwnName(plain)) {
            plain = plain.parent_path();
        } else {
            plain /= part;
        }
    }
    return plain.make_preferred();
}

/// The path without a separator at its end. The standard library compares no folders with one on Windows.
fs::path WithoutLastSeparator(TextView path) {
    const fs::path native = ToNativePath(path);
    return native.has_filename() ? native : native.parent_path();
}

/// Those that are wanted, in their order.
template <class WantedT>
std::vector<Text> SortedNames(
    TextView folder, WantedT wanted, const FileSystem::ReadsOn& readsOn = [](std::size_t) { return true; }) {
    std::vector<Text> names;
    FolderReader entries(ToNativePath(folder));
    for (std::size_t read = 1; entries.Next(); ++read) {
        Text name = entries.Name();
        if (wanted(entries, name)) names.push_back(std::move(name));
        if (read % FileSystem::kEntriesInStep == 0 && !readsOn(names.size())) break;
    }
    SortNames(names);
    return names;
}

/// So many entries take no time to speak of.
constexpr int kMostEntriesRead = 1000;
constexpr std::size_t kPiece = std::size_t{256} * 1024;

std::optional<FileDetails> DetailsOf(const std::optional<system_calls::FileFacts>& facts) {
    if (!facts || facts->isFolder) return std::nullopt;
    return FileDetails{facts->size, ToLocalDateTime(facts->modified)};
}

class OpenFolder final : public FolderDetails {
public:
    explicit OpenFolder(const fs::path& folder) : folder_(folder) {}

    std::optional<FileDetails> Of(TextView name) const override { return DetailsOf(folder_.FactsOf(name)); }

private:
    FolderReader folder_;
};

} // namespace

class NativeFileSystem::Writer final : public FileWriter {
public:
    Writer(SystemFile file, std::error_code& lastError) : file_(std::move(file)), lastError_(lastError) {}

    bool Write(std::string_view bytes) override {
        std::error_code error;
        file_.Write(bytes, error);
        return Note(error);
    }

    bool Close() override {
        std::error_code error;
        file_.Close(error);
        Note(error);
        return complete_;
    }

private:
    bool Note(const std::error_code& error) {
        if (!error) return true;
        lastError_ = error;
        complete_ = false;
        return false;
    }

    SystemFile file_;
    std::error_code& lastError_;
    bool complete_ = true;
};

class NativeFileSystem::HeldLock final : public FileLock {
public:
    explicit HeldLock(SystemFile file) : file_(std::move(file)) {}

private:
    SystemFile file_;
};

PathStyle NativeFileSystem::Style() const {
    return fs::path::preferred_separator == '/' ? PathStyle::Posix : PathStyle::Windows;
}

bool NativeFileSystem::FileExists(TextView path) const {
    std::error_code error;
    const fs::file_status status = fs::status(ToNativePath(path), error);
    return fs::exists(status) && !fs::is_directory(status);
}

bool NativeFileSystem::DirExists(TextView path) const {
    std::error_code error;
    return fs::is_directory(ToNativePath(path), error);
}

Text NativeFileSystem::CurrentDir() const {
    std::error_code error;
    return FromNativePath(fs::current_path(error));
}

bool NativeFileSystem::ChangeDir(TextView path) {
    fs::current_path(ToNativePath(path), lastError_);
    return !lastError_;
}

Text NativeFileSystem::FullPath(TextView path) const {
    if (path.empty()) return {};
    std::error_code error;
    return FromNativePath(WithoutDetours(fs::absolute(ToNativePath(path), error)));
}

std::optional<SharedBytes> NativeFileSystem::ReadAll(TextView path) {
    auto bytes = ahead_ ? ahead_->Take(ToNativePath(FullPath(path))) : std::nullopt;
    return bytes ? bytes : ReadFile(ToNativePath(path), lastError_);
}

bool NativeFileSystem::ReadInPieces(TextView path, const TakePiece& take) {
    SystemFile file = SystemFile::OpenPlainToRead(ToNativePath(path), lastError_);
    if (lastError_) return false;
    std::vector<char> piece(kPiece);
    for (std::size_t read = kPiece; !lastError_ && read == kPiece;) {
        read = file.Read(piece.data(), kPiece, lastError_);
        take({piece.data(), read});
    }
    return !lastError_;
}

void NativeFileSystem::ReadAhead(TextView path) {
    ahead_ = std::make_unique<FileAhead>(ToNativePath(FullPath(path)));
}

std::unique_ptr<FileWriter> NativeFileSystem::OpenRaw(TextView path) {
    const fs::path native = ToNativePath(path);
    return OpenWith(RightsToRestore(native), native);
}

std::unique_ptr<FileWriter> NativeFileSystem::OpenPrivate(TextView path) {
    const fs::path native = ToNativePath(path);
    auto rights = RightsToRestore(native);
    if (!rights) rights = system_calls::RightsOf(native);
    return OpenWith(system_calls::OwnersAlone(rights), native);
}

std::unique_ptr<FileWriter> NativeFileSystem::OpenWith(const std::optional<system_calls::FileRights>& rights,
                                                       const fs::path& native) {
    if (fs::exists(native, lastError_) && !system_calls::IsWritable(native)) {
        lastError_ = LastSystemError();
        return nullptr;
    }
    std::error_code ignored;
    // Opening a pipe to write waits for a program that reads from it.
    if (specialFiles_ == SpecialFiles::Refused && fs::is_fifo(native, ignored)) {
        lastError_ = std::make_error_code(std::errc::operation_not_permitted);
        return nullptr;
    }
    SystemFile file = SystemFile::OpenToWrite(native, rights, lastError_);
    if (!file.IsOpen()) return nullptr;
    removed_ = {};
    return std::make_unique<Writer>(std::move(file), lastError_);
}

bool NativeFileSystem::WriteWhole(TextView path, std::string_view bytes, Readers readers) {
    const auto error = ReplaceBytes(ToNativePath(path), bytes, readers);
    if (!error) return FileSystem::WriteWhole(path, bytes, readers);
    lastError_ = *error;
    return !lastError_;
}

bool NativeFileSystem::IsTrusted(TextView path) const {
    return system_calls::IsTrusted(ToNativePath(path));
}

bool NativeFileSystem::CanWrite(TextView path) const {
    return FileExists(path) && system_calls::IsWritable(ToNativePath(path));
}

bool NativeFileSystem::Remove(TextView path) {
    const fs::path native = ToNativePath(path);
    if (!CanRemove(native)) return false;
    std::error_code ignored;
    if (fs::is_symlink(native, ignored)) return Empty(native);
    const auto rights = system_calls::RightsOf(native);
    if (!fs::remove(native, lastError_)) return false;
    removed_ = {native, rights};
    return true;
}

/// The system would remove a file that is write-protected, because it checks only the folder. This refuses
/// to.
bool NativeFileSystem::CanRemove(const fs::path& path) {
    const bool writable = system_calls::IsWritable(path);
    lastError_ = writable ? std::error_code() : LastSystemError();
    std::error_code ignored;
    const fs::file_status status = fs::status(path, ignored);
    if (fs::is_directory(status)) {
        lastError_ = std::make_error_code(std::errc::is_a_directory);
    } else if (fs::exists(status) && !fs::is_regular_file(status)) {
        // A device or a pipe can be written to, but it is never removed.
        lastError_ = std::make_error_code(std::errc::operation_not_permitted);
    }
    return !lastError_;
}

bool NativeFileSystem::Empty(const fs::path& path) {
    return SystemFile::OpenToWrite(path, std::nullopt, lastError_).IsOpen();
}

std::optional<system_calls::FileRights> NativeFileSystem::RightsToRestore(const fs::path& path) const {
    return path == removed_.path ? removed_.rights : std::nullopt;
}

std::vector<Text> NativeFileSystem::FileNames(TextView folder, TextView patterns) const {
    return FileNamesInSteps(folder, patterns, [](std::size_t) { return true; });
}

std::vector<Text> NativeFileSystem::FileNamesInSteps(TextView folder, TextView patterns,
                                                     const ReadsOn& readsOn) const {
    const bool programs = AskForPrograms(patterns);
    return SortedNames(
        folder,
        [patterns, programs](const FolderReader& entry, const Text& name) {
            return (MatchesPatterns(name, patterns) || (programs && entry.IsProgram())) && !entry.IsFolder();
        },
        readsOn);
}

std::vector<Text> NativeFileSystem::FolderNames(TextView folder) const {
    return SortedNames(folder, [](const FolderReader& entry, const Text&) { return entry.IsFolder(); });
}

bool NativeFileSystem::HasFolders(TextView folder) const {
    FolderReader entries(ToNativePath(folder));
    while (entries.Next()) {
        if (entries.IsFolder()) return true;
    }
    return false;
}

bool NativeFileSystem::MayHaveFolders(TextView folder) const {
    FolderReader entries(ToNativePath(folder), FolderReader::Reach::SameVolume);
    if (entries.IsElsewhere()) return true;
    std::vector<Text> unsure;
    for (int read = 0; entries.Next(); ++read) {
        if (read == kMostEntriesRead) return true;
        if (entries.MustBeAsked()) {
            unsure.push_back(entries.Name());
        } else if (entries.IsFolder()) {
            return true;
        }
    }
    return std::ranges::any_of(unsure, [&entries](const Text& name) {
        const auto facts = entries.FactsOf(name);
        return facts && facts->isFolder;
    });
}

std::vector<Drive> NativeFileSystem::Drives() const {
    return ListDrives();
}

bool NativeFileSystem::MakeDir(TextView path) {
    const bool made = fs::create_directory(ToNativePath(path), lastError_);
    if (!made && !lastError_) lastError_ = std::make_error_code(std::errc::file_exists);
    return made;
}

bool NativeFileSystem::MakePrivateDir(TextView path) {
    const bool made = system_calls::MakePrivateDir(ToNativePath(path));
    lastError_ = made ? std::error_code() : LastSystemError();
    return made;
}

bool NativeFileSystem::RemoveDir(TextView path) {
    const fs::path native = ToNativePath(path);
    const fs::file_status status = fs::symlink_status(native, lastError_);
    if (lastError_) return false;
    if (!fs::is_directory(status)) {
        lastError_ = std::make_error_code(std::errc::not_a_directory);
        return false;
    }
    return fs::remove(native, lastError_);
}

bool NativeFileSystem::Rename(TextView from, TextView to) {
    lastError_ = RenameToFree(ToNativePath(from), ToNativePath(to));
    return !lastError_;
}

bool NativeFileSystem::Link(TextView from, TextView to) {
    const fs::path source = ToNativePath(from);
    const fs::file_status status = fs::symlink_status(source, lastError_);
    if (lastError_) return false;
    if (fs::is_regular_file(status)) {
        fs::create_hard_link(source, ToNativePath(to), lastError_);
    } else {
        lastError_ = std::make_error_code(std::errc::operation_not_permitted);
    }
    return !lastError_;
}

bool NativeFileSystem::Flush(TextView path) {
    const bool flushed = system_calls::Flush(ToNativePath(path));
    lastError_ = flushed ? std::error_code() : LastSystemError();
    return flushed;
}

std::unique_ptr<FileLock> NativeFileSystem::Lock(TextView path) {
    SystemFile file(system_calls::OpenLocked(ToNativePath(path)));
    lastError_ = file.IsOpen() ? std::error_code() : LastSystemError();
    return file.IsOpen() ? std::make_unique<HeldLock>(std::move(file)) : nullptr;
}

bool NativeFileSystem::IsSame(TextView a, TextView b) const {
    std::error_code error;
    return fs::equivalent(WithoutLastSeparator(a), WithoutLastSeparator(b), error) && !error;
}

bool NativeFileSystem::IsLink(TextView path) const {
    std::error_code error;
    return fs::is_symlink(ToNativePath(path), error);
}

bool NativeFileSystem::RemoveLink(TextView path) {
    const fs::path native = ToNativePath(path);
    const bool isLink = fs::is_symlink(native, lastError_);
    if (!isLink && !lastError_) lastError_ = std::make_error_code(std::errc::invalid_argument);
    return isLink && fs::remove(native, lastError_);
}

CopyOutcome NativeFileSystem::Copy(TextView from, TextView to, const CopyOptions& options) {
    lastError_ = CopyPlainFile(ToNativePath(from), ToNativePath(to), options);
    if (!lastError_) return CopyOutcome::Copied;
    return IsDiskFull(lastError_) ? CopyOutcome::DiskFull : CopyOutcome::Failed;
}

std::optional<std::int64_t> NativeFileSystem::Size(TextView path) const {
    std::error_code error;
    const auto size = fs::file_size(ToNativePath(path), error);
    if (error) return std::nullopt;
    return static_cast<std::int64_t>(size);
}

std::optional<DateTime> NativeFileSystem::Modified(TextView path) const {
    const auto facts = system_calls::FactsOf(ToNativePath(path));
    if (!facts) return std::nullopt;
    return ToLocalDateTime(facts->modified);
}

std::optional<FileDetails> NativeFileSystem::Details(TextView path) const {
    return DetailsOf(system_calls::FactsOf(ToNativePath(path)));
}

std::unique_ptr<FolderDetails> NativeFileSystem::DetailsIn(TextView folder) const {
    return std::make_unique<OpenFolder>(ToNativePath(folder));
}

std::optional<VolumeInfo> NativeFileSystem::Volume(TextView path) const {
    return VolumeAt(ToNativePath(path));
}

Text NativeFileSystem::LastErrorText() const {
    return lastError_ ? FromUtf8(lastError_.message()) : Text();
}

} // namespace korvane
