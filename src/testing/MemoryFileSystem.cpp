#include "testing/MemoryFileSystem.h"

#include <algorithm>

namespace korvane {

namespace {

constexpr TextView kNotFound = u"No such file or directory";
constexpr TextView kIsDirectory = u"Is a directory";
constexpr TextView kDenied = u"Permission denied";
constexpr TextView kReadOnlyDisk = u"Read-only file system";
constexpr TextView kDiskFull = u"No space left on device";

bool IsKind(const MemoryDisk::Place& place, MemoryNode::Kind kind) {
    return place.node && place.node->kind == kind;
}

bool IsFile(const MemoryDisk::Place& place) {
    return IsKind(place, MemoryNode::Kind::File);
}

bool IsDir(const MemoryDisk::Place& place) {
    return IsKind(place, MemoryNode::Kind::Dir);
}

SharedBytes Share(std::string_view bytes) {
    auto data = std::make_unique_for_overwrite<char[]>(bytes.size());
    std::copy(bytes.begin(), bytes.end(), data.get());
    return {std::move(data), bytes.size()};
}

} // namespace

class MemoryFileSystem::Writer final : public FileWriter {
public:
    Writer(MemoryFileSystem& files, const Place& place)
        : files_(files), volume_(*place.volume), file_(place.node) {}
    ~Writer() override {
        if (open_) Close();
    }

    bool Write(std::string_view bytes) override {
        const bool written = !files_.Strikes(FileStep::Write) && files_.Append(*file_, volume_, bytes);
        complete_ = complete_ && written;
        return written;
    }

    bool Close() override {
        open_ = false;
        if (files_.Strikes(FileStep::Close)) complete_ = false;
        return complete_;
    }

private:
    MemoryFileSystem& files_;
    MemoryVolume& volume_;
    std::shared_ptr<MemoryNode> file_;
    bool open_ = true;
    bool complete_ = true;
};

MemoryFileSystem::MemoryFileSystem(const PathStyle& style, const Clock& clock) : disk_(style), clock_(clock) {
    SetProgramDir(style.HasDrives() ? u"C:\\Korvane" : u"/opt/korvane");
}

bool MemoryFileSystem::FileExists(TextView path) const {
    return IsFile(Find(path));
}

bool MemoryFileSystem::DirExists(TextView path) const {
    return IsDir(Find(path));
}

bool MemoryFileSystem::ChangeDir(TextView path) {
    return disk_.ChangeDir(path) ? Succeed() : Fail(kNotFound);
}

std::optional<SharedBytes> MemoryFileSystem::ReadAll(TextView path) {
    Vanish(path);
    if (Strikes(FileStep::OpenToRead)) return std::nullopt;
    const Place place = Find(path);
    if (!IsFile(place)) {
        Fail(IsDir(place) ? kIsDirectory : kNotFound);
        return std::nullopt;
    }
    Succeed();
    return Share(place.node->bytes);
}

std::unique_ptr<FileWriter> MemoryFileSystem::OpenRaw(TextView path) {
    return Open(path, false);
}

std::unique_ptr<FileWriter> MemoryFileSystem::OpenPrivate(TextView path) {
    return Open(path, true);
}

std::unique_ptr<FileWriter> MemoryFileSystem::Open(TextView path, bool makePrivate) {
    Vanish(path);
    if (Strikes(FileStep::OpenToWrite)) return nullptr;
    Place place = Find(path);
    if (!CanOpenToWrite(place)) return nullptr;
    if (!place.node) place.node = disk_.Put(place, MemoryNode::Kind::File);
    place.node->bytes.clear();
    place.node->modified = clock_.Now();
    if (makePrivate) place.node->isPrivate = true;
    Succeed();
    return std::make_unique<Writer>(*this, place);
}

bool MemoryFileSystem::CanOpenToWrite(const Place& place) {
    if (IsDir(place)) return Fail(kIsDirectory);
    if (!place.node && !place.folder) return Fail(kNotFound);
    if (place.volume->readOnly) return Fail(kReadOnlyDisk);
    if (place.node && place.node->readOnly) return Fail(kDenied);
    return true;
}

bool MemoryFileSystem::Remove(TextView path) {
    if (Strikes(FileStep::Remove)) return false;
    const Place place = Find(path, LastLink::Keep);
    const Place target = Find(path);
    if (!CanRemove(place, target)) return false;
    if (place.node == target.node) {
        disk_.Erase(place);
    } else {
        target.node->bytes.clear();
        target.node->modified = clock_.Now();
    }
    return Succeed();
}

bool MemoryFileSystem::CanRemove(const Place& place, const Place& target) {
    if (!place.node || !target.node) return Fail(kNotFound);
    if (IsDir(target)) return Fail(kIsDirectory);
    if (target.volume->readOnly) return Fail(kReadOnlyDisk);
    if (target.node->readOnly) return Fail(kDenied);
    return true;
}

std::optional<std::int64_t> MemoryFileSystem::Size(TextView path) const {
    const Place place = Find(path);
    if (!IsFile(place)) return std::nullopt;
    return static_cast<std::int64_t>(place.node->bytes.size());
}

std::optional<DateTime> MemoryFileSystem::Modified(TextView path) const {
    const Place place = Find(path);
    if (!place.node) return std::nullopt;
    return place.node->modified;
}

std::optional<VolumeInfo> MemoryFileSystem::Volume(TextView path) const {
    const MemoryVolume* volume = disk_.VolumeOf(path);
    if (volume == nullptr) return std::nullopt;
    VolumeInfo info = volume->info;
    info.freeBytes = volume->freeBytes.value_or(info.freeBytes);
    return info;
}

void MemoryFileSystem::AddFile(TextView path, std::string_view bytes) {
    Place place = MakePlace(path);
    if (!place.folder) return;
    const auto file = disk_.Put(place, MemoryNode::Kind::File);
    file->bytes = bytes;
    file->modified = clock_.Now();
}

void MemoryFileSystem::AddLink(TextView path, TextView target) {
    const Place place = MakePlace(path);
    if (place.folder) disk_.Put(place, MemoryNode::Kind::Link)->target = target;
}

void MemoryFileSystem::SetFileReadOnly(TextView path, bool readOnly) {
    const Place place = Find(path);
    if (place.node) place.node->readOnly = readOnly;
}

void MemoryFileSystem::SetVolume(TextView path, const VolumeInfo& info) {
    if (MemoryVolume* volume = disk_.VolumeOf(path)) volume->info = info;
}

void MemoryFileSystem::SetModified(TextView path, const DateTime& time) {
    const Place place = Find(path);
    if (place.node) place.node->modified = time;
}

void MemoryFileSystem::SetProgramDir(TextView path) {
    AddDir(path);
    programDir_ = path;
}

void MemoryFileSystem::SetStateDir(TextView path) {
    AddDir(path);
    stateDir_ = path;
}

void MemoryFileSystem::Erase(TextView path) {
    const Place place = Find(path, LastLink::Keep);
    if (place.node && place.folder) disk_.Erase(place);
}

void MemoryFileSystem::SetFreeBytes(std::int64_t bytes, TextView path) {
    if (MemoryVolume* volume = disk_.VolumeOf(path)) volume->freeBytes = bytes;
}

void MemoryFileSystem::SetDiskReadOnly(bool readOnly, TextView path) {
    if (MemoryVolume* volume = disk_.VolumeOf(path)) volume->readOnly = readOnly;
}

std::optional<std::string> MemoryFileSystem::Contents(TextView path) const {
    const Place place = Find(path);
    if (!IsFile(place)) return std::nullopt;
    return place.node->bytes;
}

bool MemoryFileSystem::IsLink(TextView path) const {
    return IsKind(Find(path, LastLink::Keep), MemoryNode::Kind::Link);
}

bool MemoryFileSystem::IsPrivate(TextView path) const {
    const Place place = Find(path);
    return IsFile(place) && place.node->isPrivate;
}

MemoryFileSystem::Place MemoryFileSystem::Find(TextView path, LastLink lastLink) const {
    return disk_.Find(path, lastLink);
}

/// The place of a node that is about to be put on the stage, in a folder that is made if need be.
MemoryFileSystem::Place MemoryFileSystem::MakePlace(TextView path) {
    const Text full = disk_.FullPath(path);
    const std::size_t end = full.rfind(Style().Separator());
    if (end != Text::npos) disk_.MakeDirs(TextView(full).substr(0, end + 1));
    return Find(full, LastLink::Keep);
}

bool MemoryFileSystem::Fail(TextView errorText) {
    lastErrorText_ = errorText;
    return false;
}

bool MemoryFileSystem::Succeed() {
    lastErrorText_.clear();
    return true;
}

bool MemoryFileSystem::Strikes(FileStep step) {
    const auto errorText = faults_.Strike(step);
    if (errorText) Fail(*errorText);
    return errorText.has_value();
}

void MemoryFileSystem::Vanish(TextView path) {
    if (vanishing_.empty() || FullPath(path) != vanishing_) return;
    Erase(vanishing_);
    vanishing_.clear();
}

/// Writes as much as the volume takes.
bool MemoryFileSystem::Append(MemoryNode& file, MemoryVolume& volume, std::string_view bytes) {
    const auto size = static_cast<std::int64_t>(bytes.size());
    const std::int64_t taken = std::min(size, volume.freeBytes.value_or(size));
    file.bytes += bytes.substr(0, static_cast<std::size_t>(taken));
    file.modified = clock_.Now();
    if (volume.freeBytes) *volume.freeBytes -= taken;
    return taken == size ? true : Fail(kDiskFull);
}

} // namespace korvane
