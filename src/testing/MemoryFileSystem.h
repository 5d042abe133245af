#pragma once

#include "platform/Clock.h"
#include "platform/FileSystem.h"
#include "testing/FileFaults.h"
#include "testing/MemoryDisk.h"

#include <string>

namespace korvane {

/// A disk in memory, in either path style, with failures that a test orders. On Windows it has drive C and
/// names are compared without case; elsewhere it is one tree. The program folder is `C:\Korvane` or
/// `/opt/korvane` until another one is set, and the state is there too until it gets a folder of its own.
class MemoryFileSystem final : public FileSystem {
public:
    /// The clock gives the modified times and has to live as long as the disk.
    MemoryFileSystem(const PathStyle& style, const Clock& clock);

    PathStyle Style() const override { return disk_.Style(); }
    bool FileExists(TextView path) const override;
    bool DirExists(TextView path) const override;
    Text CurrentDir() const override { return disk_.CurrentDir(); }
    bool ChangeDir(TextView path) override;
    Text FullPath(TextView path) const override { return disk_.FullPath(path); }
    std::optional<SharedBytes> ReadAll(TextView path) override;
    /// The disk has to outlive the writer.
    std::unique_ptr<FileWriter> OpenRaw(TextView path) override;
    std::unique_ptr<FileWriter> OpenPrivate(TextView path) override;
    bool WriteWhole(TextView path, std::string_view bytes, Readers readers = Readers::AsBefore) override;
    bool IsTrusted(TextView path) const override { return FullPath(path) != foreign_; }
    bool CanWrite(TextView path) const override;
    bool Remove(TextView path) override;
    std::vector<Text> FileNames(TextView folder, TextView patterns) const override;
    std::vector<Text> FolderNames(TextView folder) const override;
    bool HasFolders(TextView folder) const override { return !FolderNames(folder).empty(); }
    std::vector<Drive> Drives() const override;
    bool MakeDir(TextView path) override;
    bool RemoveDir(TextView path) override;
    bool Rename(TextView from, TextView to) override;
    bool MakePrivateDir(TextView path) override;
    bool Link(TextView from, TextView to) override;
    bool Flush(TextView path) override;
    std::unique_ptr<FileLock> Lock(TextView path) override;
    bool IsSame(TextView a, TextView b) const override;
    bool IsLink(TextView path) const override;
    bool RemoveLink(TextView path) override;
    /// Takes a step for each `kBytesInStep` of the file.
    CopyOutcome Copy(TextView from, TextView to, const CopyOptions& options = {}) override;
    std::optional<std::int64_t> Size(TextView path) const override;
    std::optional<DateTime> Modified(TextView path) const override;
    std::optional<VolumeInfo> Volume(TextView path) const override;
    Text LastErrorText() const override { return lastErrorText_; }
    Text ProgramDir() const override { return programDir_; }
    Text StateDir() const override { return stateDir_.empty() ? programDir_ : stateDir_; }

    // These prepare the disk for a test. They never fail and need no permission, and missing folders are
    // made.

    void AddDrive(char16_t letter) { disk_.AddDrive(letter); }
    /// Sets the facts of the drive that the path is on. It is a fixed one without a name until then.
    void SetVolume(TextView path, const VolumeInfo& info);
    void AddDir(TextView path) { disk_.MakeDirs(path); }
    /// What a copy takes at once.
    static constexpr std::size_t kBytesInStep = 1024;

    /// Makes the file or replaces it.
    void AddFile(TextView path, std::string_view bytes = {});
    void AddLink(TextView path, TextView target);
    /// Puts there what must not be opened: a pipe, a socket. Opening it fails.
    void AddPipe(TextView path);
    /// From now on the file at this path belongs to another user.
    void SetForeign(TextView path) { foreign_ = FullPath(path); }
    /// From now on everybody may read all files of the disk of the path (the current one when it is empty).
    void ForgetOwners(TextView path = {});
    void SetFileReadOnly(TextView path, bool readOnly = true);
    void SetModified(TextView path, const DateTime& time);
    void SetProgramDir(TextView path);
    void SetStateDir(TextView path);
    /// Removes a file, a link, or a folder with all that is in it.
    void Erase(TextView path);

    // These order failures.

    FileFaults& Faults() { return faults_; }
    /// The disk of the path (the current one when it is empty) takes this many more bytes and then is full.
    void SetFreeBytes(std::int64_t bytes, TextView path = {});
    /// The files on the disk of the path (the current one when it is empty) may hold so many bytes together.
    void SetQuota(std::int64_t bytes, TextView path = {});
    /// Nothing on the disk of the path (the current one when it is empty) can be written or removed.
    void SetDiskReadOnly(bool readOnly = true, TextView path = {});
    /// The file goes away just before it is opened the next time, so that an earlier test for it is wrong.
    void VanishBeforeOpen(TextView path) { vanishing_ = FullPath(path); }

    // These show the outcome.

    /// The bytes of the file, also through a link; nothing when there is no file.
    std::optional<std::string> Contents(TextView path) const;
    /// Whether only its owner may read the file, or enter the folder.
    bool IsPrivate(TextView path) const;

private:
    class Writer;
    class HeldLock;
    using Place = MemoryDisk::Place;

    Place Find(TextView path, LastLink lastLink = LastLink::Follow) const;
    Place MakePlace(TextView path);
    bool Fail(TextView errorText);
    bool Succeed();
    bool Strikes(FileStep step);
    void Vanish(TextView path);
    std::unique_ptr<FileWriter> Open(TextView path, bool makePrivate);
    bool CanOpenToWrite(const Place& place);
    bool CanRemove(const Place& place, const Place& target);
    std::vector<Text> Names(TextView folder, const std::function<bool(const Place&)>& wanted) const;
    bool CanMake(const Place& place);
    bool CanCopy(const Place& source, const Place& place, const Place& target);
    static bool HasRoomInstead(const Place& source, const Place& place);
    CopyOutcome FillCopy(const Place& copy, const Place& source, const CopyOptions& options);
    CopyOutcome CopyBeside(const Place& source, const Place& place, const CopyOptions& options);
    bool Append(MemoryNode& file, MemoryVolume& volume, std::string_view bytes);

    // A look-up changes nothing, but its result can be changed.
    mutable MemoryDisk disk_;
    const Clock& clock_;
    FileFaults faults_;
    Text vanishing_;
    Text foreign_;
    Text lastErrorText_;
    Text programDir_;
    Text stateDir_;
};

} // namespace korvane
