#pragma once

#include "platform/FileSystem.h"
#include "platform/native/FileAhead.h"
#include "platform/native/SystemCalls.h"

#include <filesystem>
#include <optional>
#include <system_error>

namespace korvane {

/// The real disk. The current directory is the one of the process.
class NativeFileSystem final : public FileSystem {
public:
    /// Whether pipes are written to, which can take for ever. Pipes, devices and sockets are never read.
    enum class SpecialFiles : std::uint8_t { Refused, Written };

    explicit NativeFileSystem(TextView programDir) : NativeFileSystem(programDir, programDir) {}
    NativeFileSystem(TextView programDir, TextView stateDir,
                     SpecialFiles specialFiles = SpecialFiles::Refused)
        : programDir_(programDir), stateDir_(stateDir), specialFiles_(specialFiles) {}

    PathStyle Style() const override;
    bool FileExists(TextView path) const override;
    bool DirExists(TextView path) const override;
    Text CurrentDir() const override;
    bool ChangeDir(TextView path) override;
    /// Links are not followed, because the user knows the path with the links.
    Text FullPath(TextView path) const override;
    std::optional<SharedBytes> ReadAll(TextView path) override;
    bool ReadInPieces(TextView path, const TakePiece& take) override;
    /// Begins to read a large file in a thread, because `ReadAll` will soon be asked for it. What was read is
    /// kept until then, or until `DropAhead`.
    void ReadAhead(TextView path);
    void DropAhead() { ahead_.reset(); }
    /// Creating the file that `Remove` removed last gives it its permissions again.
    std::unique_ptr<FileWriter> OpenRaw(TextView path) override;
    /// A file that exists, or that `Remove` removed last, keeps its owner's permissions and loses all others.
    std::unique_ptr<FileWriter> OpenPrivate(TextView path) override;
    bool WriteWhole(TextView path, std::string_view bytes, Readers readers = Readers::AsBefore) override;
    bool IsTrusted(TextView path) const override;
    bool CanWrite(TextView path) const override;
    bool Remove(TextView path) override;
    std::vector<Text> FileNames(TextView folder, TextView patterns) const override;
    std::vector<Text> FileNamesInSteps(TextView folder, TextView patterns,
                                       const ReadsOn& readsOn) const override;
    std::vector<Text> FolderNames(TextView folder) const override;
    bool HasFolders(TextView folder) const override;
    /// A folder without any among its first thousand entries isn't read to its end.
    bool MayHaveFolders(TextView folder) const override;
    std::vector<Drive> Drives() const override;
    bool MakeDir(TextView path) override;
    bool MakePrivateDir(TextView path) override;
    bool RemoveDir(TextView path) override;
    bool Rename(TextView from, TextView to) override;
    bool Link(TextView from, TextView to) override;
    bool Flush(TextView path) override;
    std::unique_ptr<FileLock> Lock(TextView path) override;
    bool IsSame(TextView a, TextView b) const override;
    bool IsLink(TextView path) const override;
    bool RemoveLink(TextView path) override;
    CopyOutcome Copy(TextView from, TextView to, const CopyOptions& options = {}) override;
    std::optional<std::int64_t> Size(TextView path) const override;
    std::optional<DateTime> Modified(TextView path) const override;
    std::optional<FileDetails> Details(TextView path) const override;
    std::unique_ptr<FolderDetails> DetailsIn(TextView folder) const override;
    std::optional<VolumeInfo> Volume(TextView path) const override;
    Text LastErrorText() const override;
    Text ProgramDir() const override { return programDir_; }
    Text StateDir() const override { return stateDir_; }

private:
    class Writer;
    class HeldLock;
    struct Removed {
        std::filesystem::path path;
        std::optional<system_calls::FileRights> rights;
    };

    std::unique_ptr<FileWriter> OpenWith(const std::optional<system_calls::FileRights>& rights,
                                         const std::filesystem::path& path);
    bool CanRemove(const std::filesystem::path& path);
    bool Empty(const std::filesystem::path& path);
    std::optional<system_calls::FileRights> RightsToRestore(const std::filesystem::path& path) const;

    Text programDir_;
    Text stateDir_;
    SpecialFiles specialFiles_;
    std::error_code lastError_;
    Removed removed_;
    std::unique_ptr<FileAhead> ahead_;
};

} // namespace korvane
