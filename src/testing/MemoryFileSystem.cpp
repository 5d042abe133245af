#include "testing/MemoryFileSystem.h"

#include "common/path/FilePatterns.h"

#include <algorithm>

namespace korvane {

namespace {

constexpr TextView kNotFound = u"No such file or directory";
constexpr TextView kIsDirectory = u"Is a directory";
constexpr TextView kDenied = u"Permission denied";
constexpr TextView kReadOnlyDisk = u"Read-only file system";
constexpr TextView kDiskFull = u"No space left on device";
constexpr TextView kExists = u"File exists";
constexpr TextView kNotEmpty = u"Directory not empty";
constexpr TextView kNotDirectory = u"Not a directory";
constexpr TextView kBusy = u"Device or resource busy";
constexpr TextView kOtherVolume = u"Invalid cross-device link";
constexpr TextView kNotPermitted = u"Operation not permitted";
constexpr TextView kInvalid = u"Invalid argument";
// No name that a test would give a file.
constexpr TextView kUnfinishedCopy = u".korvane-copy";

bool IsKind(const MemoryDisk::Place& place, MemoryNode::Kind kind) {
    return place.node && place.node->kind == kind;
}

bool IsFile(const MemoryDisk::Place& place) {
    return IsKind(place, MemoryNode::Kind::File);
}

bool IsDir(const MemoryDisk::Place& place) {
    return IsKind(place, MemoryNode::Kind::Dir);
}

bool IsFileLike(const MemoryDisk::Place& place) {
    return IsFile(place) || IsKind(place, MemoryNode::Kind::Pipe);
}

bool Holds(const MemoryNode& folder, const MemoryNode* node) {
    return &folder == node || std::ranges::any_of(folder.children, [node](const auto& child) {
        return Holds(*child.second.node, node);
    });
}

/// "c: [System]", or "c:" where there is no medium's name.
Text DriveEntry(const Text& root, const VolumeInfo& info) {
    Text entry{static_cast<char16_t>(root[0] + 0x20), u':'};
    return info.name.empty() ? entry : entry + u" [" + info.name + u"]";
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

class MemoryFileSystem::HeldLock final : public FileLock {
public:
    explicit HeldLock(std::shared_ptr<MemoryNode> file) : file_(std::move(file)) { file_->locked = true; }
    HeldLock(const HeldLock&) = delete;
    HeldLock& operator=(const HeldLock&) = delete;
    ~HeldLock() override { file_->locked = false; }

private:
    std::shared_ptr<MemoryNode> file_;
};

MemoryFileSystem::MemoryFileSystem(const PathStyle& style, const Clock& clock) : disk_(style), clock_(clock) {
    SetProgramDir(style.HasDrives() ? u"C:\\Korvane" : u"/opt/korvane");
}

bool MemoryFileSystem::FileExists(TextView path) const {
    return IsFileLike(Find(path));
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
    if (IsKind(place, MemoryNode::Kind::Pipe)) return Fail(kNotPermitted);
    if (!place.node && !place.folder) return Fail(kNotFound);
    if (place.volume->readOnly) return Fail(kReadOnlyDisk);
    if (place.node && place.node->readOnly) return Fail(kDenied);
    return true;
}

bool MemoryFileSystem::WriteWhole(TextView path, std::string_view bytes, Readers readers) {
    if (Strikes(FileStep::OpenToWrite)) return false;
    const Place place = Find(path);
    if (!CanOpenToWrite(place)) return false;
    if (readers == Readers::OwnerAloneOrNone && !place.volume->knowsOwners) return Fail(kNotPermitted);
    Place unfinished{place.volume, place.folder, Text(kUnfinishedCopy), nullptr};
    const auto made = unfinished.node = disk_.Put(unfinished, MemoryNode::Kind::File);
    const bool whole = !Strikes(FileStep::Write) && Append(*made, *place.volume, bytes) &&
                       !Strikes(FileStep::Close) && !Strikes(FileStep::Rename);
    disk_.Erase(unfinished);
    if (!whole) return false;
    made->isPrivate =
        place.volume->knowsOwners && (readers != Readers::AsBefore || (place.node && place.node->isPrivate));
    disk_.PutBack(place, made);
    return Succeed();
}

bool MemoryFileSystem::CanWrite(TextView path) const {
    const Place place = Find(path);
    return IsFile(place) && !place.volume->readOnly && !place.node->readOnly;
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
    if (!IsFile(target)) return Fail(kNotPermitted);
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
    info.root = disk_.RootOf(path);
    info.freeBytes = volume->Room().value_or(info.freeBytes);
    info.totalBytes = volume->quota.value_or(info.totalBytes);
    return info;
}

std::vector<Text> MemoryFileSystem::Names(TextView folder,
                                          const std::function<bool(const Place&)>& wanted) const {
    std::vector<Text> names;
    const Place place = Find(folder);
    if (!IsDir(place)) return names;
    for (const auto& [key, child] : place.node->children) {
        const bool hidden = !Style().HasDrives() && child.name.starts_with(u'.');
        if (!hidden && wanted(Find(Style().JoinPath(folder, child.name)))) names.push_back(child.name);
    }
    SortNames(names);
    return names;
}

std::vector<Text> MemoryFileSystem::FileNames(TextView folder, TextView patterns) const {
    std::vector<Text> names = Names(folder, [](const Place& place) { return !IsDir(place); });
    std::erase_if(names, [patterns](const Text& name) { return !MatchesPatterns(name, patterns); });
    return names;
}

std::vector<Text> MemoryFileSystem::FolderNames(TextView folder) const {
    return Names(folder, [](const Place& place) { return IsDir(place); });
}

std::vector<Drive> MemoryFileSystem::Drives() const {
    std::vector<Drive> drives;
    for (const Text& root : disk_.Roots()) {
        const VolumeInfo& info = disk_.VolumeAt(root).info;
        drives.push_back({root, Style().HasDrives() ? DriveEntry(root, info) : root, info.type});
    }
    return drives;
}

bool MemoryFileSystem::CanMake(const Place& place) {
    if (place.node) return Fail(kExists);
    if (!place.folder) return Fail(kNotFound);
    if (place.volume->readOnly) return Fail(kReadOnlyDisk);
    return true;
}

bool MemoryFileSystem::MakeDir(TextView path) {
    if (Strikes(FileStep::MakeDir)) return false;
    const Place place = Find(path, LastLink::Keep);
    if (!CanMake(place)) return false;
    disk_.Put(place, MemoryNode::Kind::Dir)->modified = clock_.Now();
    return Succeed();
}

bool MemoryFileSystem::MakePrivateDir(TextView path) {
    if (!MakeDir(path)) return false;
    Find(path).node->isPrivate = true;
    return true;
}

bool MemoryFileSystem::RemoveDir(TextView path) {
    if (Strikes(FileStep::RemoveDir)) return false;
    const Place place = Find(path, LastLink::Keep);
    if (!place.node) return Fail(kNotFound);
    if (!IsDir(place)) return Fail(kNotDirectory);
    if (!place.folder) return Fail(kBusy);
    if (!place.node->children.empty()) return Fail(kNotEmpty);
    if (place.volume->readOnly) return Fail(kReadOnlyDisk);
    disk_.Erase(place);
    return Succeed();
}

bool MemoryFileSystem::Rename(TextView from, TextView to) {
    if (Strikes(FileStep::Rename)) return false;
    const Place source = Find(from, LastLink::Keep);
    const Place target = Find(to, LastLink::Keep);
    if (!source.node) return Fail(kNotFound);
    if (!source.folder) return Fail(kBusy);
    if (!CanMake(target)) return false;
    if (source.volume != target.volume) return Fail(kOtherVolume);
    if (Holds(*source.node, target.folder.get())) return Fail(kInvalid);
    disk_.Erase(source);
    disk_.PutBack(target, source.node);
    return Succeed();
}

bool MemoryFileSystem::IsSame(TextView a, TextView b) const {
    const Place placeA = Find(a);
    return placeA.node && placeA.node == Find(b).node;
}

bool MemoryFileSystem::RemoveLink(TextView path) {
    if (Strikes(FileStep::Remove)) return false;
    const Place place = Find(path, LastLink::Keep);
    if (!place.node) return Fail(kNotFound);
    if (!IsKind(place, MemoryNode::Kind::Link)) return Fail(kInvalid);
    if (place.volume->readOnly) return Fail(kReadOnlyDisk);
    disk_.Erase(place);
    return Succeed();
}

bool MemoryFileSystem::Link(TextView from, TextView to) {
    if (Strikes(FileStep::Link)) return false;
    const Place source = Find(from, LastLink::Keep);
    const Place target = Find(to, LastLink::Keep);
    if (!source.node) return Fail(kNotFound);
    if (!IsFile(source)) return Fail(kNotPermitted);
    if (!CanMake(target)) return false;
    if (source.volume != target.volume) return Fail(kOtherVolume);
    disk_.PutBack(target, source.node);
    return Succeed();
}

bool MemoryFileSystem::Flush(TextView path) {
    if (Strikes(FileStep::Flush)) return false;
    return IsFile(Find(path)) ? Succeed() : Fail(kNotFound);
}

std::unique_ptr<FileLock> MemoryFileSystem::Lock(TextView path) {
    if (!FileExists(path) && !OpenPrivate(path)) return nullptr;
    const auto node = Find(path).node;
    if (node->locked) return nullptr;
    return std::make_unique<HeldLock>(node);
}

CopyOutcome MemoryFileSystem::Copy(TextView from, TextView to, const CopyOptions& options) {
    Vanish(from);
    if (Strikes(FileStep::OpenToRead)) return CopyOutcome::Failed;
    const Place source = Find(from);
    const Place place = Find(to, LastLink::Keep);
    if (!CanCopy(source, place, Find(to)) || Strikes(FileStep::OpenToWrite)) return CopyOutcome::Failed;
    const CopyOutcome outcome = CopyBeside(source, place, options);
    if (outcome != CopyOutcome::DiskFull || !HasRoomInstead(source, place)) return outcome;
    disk_.Erase(place);
    return CopyBeside(source, {place.volume, place.folder, place.name, nullptr}, options);
}

bool MemoryFileSystem::CanCopy(const Place& source, const Place& place, const Place& target) {
    if (!source.node || !place.folder) return Fail(kNotFound);
    if (IsDir(source) || IsDir(target)) return Fail(kIsDirectory);
    if (!IsFile(source) || IsKind(target, MemoryNode::Kind::Pipe)) return Fail(kNotPermitted);
    const bool ontoItself = source.node == target.node;
    const bool overNothing = place.node && !target.node;
    if (ontoItself || overNothing) return Fail(kExists);
    if (place.volume->readOnly) return Fail(kReadOnlyDisk);
    if (target.node && target.node->readOnly) return Fail(kDenied);
    return true;
}

/// Whether the copy fits once the file in its place is gone.
bool MemoryFileSystem::HasRoomInstead(const Place& source, const Place& place) {
    if (!IsFile(place)) return false;
    const auto room = place.volume->Room().value_or(0) + static_cast<std::int64_t>(place.node->bytes.size());
    return static_cast<std::int64_t>(source.node->bytes.size()) <= room;
}

/// The place's own node is still there when the copy can't be finished.
CopyOutcome MemoryFileSystem::CopyBeside(const Place& source, const Place& place,
                                         const CopyOptions& options) {
    Place unfinished{place.volume, place.folder, Text(kUnfinishedCopy), nullptr};
    const auto copy = unfinished.node = disk_.Put(unfinished, MemoryNode::Kind::File);
    CopyOutcome outcome = FillCopy(unfinished, source, options);
    const bool flushes = outcome == CopyOutcome::Copied && options.flush;
    if (flushes && Strikes(FileStep::Flush)) outcome = CopyOutcome::Failed;
    if (outcome == CopyOutcome::Copied && (Strikes(FileStep::Close) || Strikes(FileStep::Rename)))
        outcome = CopyOutcome::Failed;
    disk_.Erase(unfinished);
    const bool nameWasTaken = !place.node && place.folder->children.contains(Style().FoldedName(place.name));
    if (outcome == CopyOutcome::Copied && nameWasTaken && !Fail(kExists)) outcome = CopyOutcome::Failed;
    if (outcome != CopyOutcome::Copied) return outcome;
    copy->modified = source.node->modified;
    copy->readOnly = source.node->readOnly;
    copy->isPrivate = source.node->isPrivate;
    disk_.PutBack(place, copy);
    Succeed();
    return outcome;
}

CopyOutcome MemoryFileSystem::FillCopy(const Place& copy, const Place& source, const CopyOptions& options) {
    std::string_view rest = source.node->bytes;
    while (!rest.empty()) {
        if (Strikes(FileStep::Write)) return CopyOutcome::Failed;
        const std::string_view step = rest.substr(0, kBytesInStep);
        if (!Append(*copy.node, *copy.volume, step)) return CopyOutcome::DiskFull;
        rest.remove_prefix(step.size());
        if (!rest.empty() && options.betweenSteps) options.betweenSteps();
    }
    return CopyOutcome::Copied;
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

void MemoryFileSystem::AddPipe(TextView path) {
    const Place place = MakePlace(path);
    if (place.folder) disk_.Put(place, MemoryNode::Kind::Pipe);
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

void MemoryFileSystem::SetQuota(std::int64_t bytes, TextView path) {
    if (MemoryVolume* volume = disk_.VolumeOf(path)) volume->quota = bytes;
}

void MemoryFileSystem::ForgetOwners(TextView path) {
    if (MemoryVolume* volume = disk_.VolumeOf(path)) volume->knowsOwners = false;
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
    return place.node && place.node->isPrivate;
}

MemoryFileSystem::Place MemoryFileSystem::Find(TextView path, LastLink lastLink) const {
    return disk_.Find(path, lastLink);
}

/// The place of a node that a test adds, in a folder that is made when it is missing.
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
    const std::int64_t taken = std::min(size, volume.Room().value_or(size));
    file.bytes += bytes.substr(0, static_cast<std::size_t>(taken));
    file.modified = clock_.Now();
    if (volume.freeBytes) *volume.freeBytes -= taken;
    return taken == size ? true : Fail(kDiskFull);
}

} // namespace korvane
