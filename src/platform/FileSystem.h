#pragma once

#include "common/number/DateTime.h"
#include "common/path/PathStyle.h"
#include "common/text/SharedBytes.h"
#include "common/text/Text.h"
#include "platform/Volume.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace korvane {

/// A file open for raw writing. Destroying it closes it.
class FileWriter {
public:
    virtual ~FileWriter() = default;
    /// False when not all bytes reached the file.
    virtual bool Write(std::string_view bytes) = 0;
    /// False when something written before didn't reach the disk.
    virtual bool Close() = 0;
};

/// A lock on a file, held until the object or the process ends.
class FileLock {
public:
    virtual ~FileLock() = default;
};

/// A drive, or the one root on a disk without drives.
struct Drive {
    /// Its topmost folder: "C:\\", "/".
    Text root;
    /// As a list of drives shows it: "c: [System]", "/".
    Text entry;
    DriveType type = DriveType::Unknown;

    bool operator==(const Drive&) const = default;
};

/// What a list of files shows of one.
struct FileDetails {
    std::int64_t size = 0;
    DateTime modified;

    bool operator==(const FileDetails&) const = default;
};

/// A folder of which many files are asked for their details.
class FolderDetails {
public:
    virtual ~FolderDetails() = default;
    /// As `FileSystem::Details` of the file of this name.
    virtual std::optional<FileDetails> Of(TextView name) const = 0;
};

/// Who may read a file that is written whole. A disk that doesn't know owners can't keep others from it. Then
/// `OwnerAloneOrNone` fails, and `OwnerAlone` doesn't.
enum class Readers : std::uint8_t { AsBefore, OwnerAlone, OwnerAloneOrNone };

enum class CopyOutcome : std::uint8_t { Copied, DiskFull, Failed };

struct CopyOptions {
    /// Whether the copy has to be safe on the disk before it takes its name, since its source goes next.
    bool flush = false;
    /// Runs between the steps of a long copy.
    std::function<void()> betweenSteps{};
};

/// The disk. Paths are text in the style of `Style()`; relative ones start at the current directory.
/// Operations report failure by their result, and `LastErrorText` tells why the last one failed.
class FileSystem {
public:
    virtual ~FileSystem() = default;

    virtual PathStyle Style() const = 0;
    virtual bool FileExists(TextView path) const = 0;
    virtual bool DirExists(TextView path) const = 0;
    virtual Text CurrentDir() const = 0;
    /// Changes drive and directory; false and no change when there is no such directory.
    virtual bool ChangeDir(TextView path) = 0;
    /// The absolute form of a path.
    virtual Text FullPath(TextView path) const = 0;

    virtual std::optional<SharedBytes> ReadAll(TextView path) = 0;
    /// Hands over the bytes of a file from its beginning to its end in pieces, so that a large one takes
    /// little memory. False when it can't be read to its end.
    using TakePiece = std::function<void(std::string_view bytes)>;
    virtual bool ReadInPieces(TextView path, const TakePiece& take);
    /// Creates the file or empties it; nullptr when it can't be opened.
    virtual std::unique_ptr<FileWriter> OpenRaw(TextView path) = 0;
    /// The same for a file that only its owner may read, also when others could read it before. On a disk
    /// that doesn't know owners it is `OpenRaw`.
    virtual std::unique_ptr<FileWriter> OpenPrivate(TextView path) { return OpenRaw(path); }
    /// Gives the file these bytes, or makes it. They are safe under another name before they take the file's,
    /// so that a failure leaves the file as it was, and it keeps its rights. A link is followed. Only where
    /// no other file can be made in the folder, or the file is none that can be replaced, are the bytes
    /// written into the file itself.
    virtual bool WriteWhole(TextView path, std::string_view bytes, Readers readers = Readers::AsBefore) {
        const auto file = readers == Readers::AsBefore ? OpenRaw(path) : OpenPrivate(path);
        return file && file->Write(bytes) && file->Close();
    }
    /// Whether no other user of the computer can have put the file there: it belongs to the user or to the
    /// administrator, or it is missing.
    virtual bool IsTrusted(TextView /*path*/) const { return true; }
    /// Whether the file is there and may be written.
    virtual bool CanWrite(TextView path) const { return FileExists(path); }
    /// Removes a file; one that can't be written is refused. For a symbolic link, the file that it names is
    /// emptied and the link stays, so that a save goes through the link.
    virtual bool Remove(TextView path) = 0;

    // Folders and whole files. A disk that only reads and writes files has none of this.

    /// The names of a folder's files that match the patterns, sorted by name, case ignored. "*.exe" stands
    /// for programs, also where the right to start a file makes one. Names that start with a point are left
    /// out where that hides them. None for a folder that can't be read.
    virtual std::vector<Text> FileNames(TextView /*folder*/, TextView /*patterns*/) const { return {}; }
    /// How many entries of a folder are read in one step, and what is asked after each step: whether the
    /// reading goes on, with so many names found.
    static constexpr std::size_t kEntriesInStep = 1000;
    using ReadsOn = std::function<bool(std::size_t found)>;
    /// The same of a folder of any number of files. Where the reading doesn't go on, those that were found.
    virtual std::vector<Text> FileNamesInSteps(TextView folder, TextView patterns,
                                               const ReadsOn& readsOn) const;
    /// The names of its folders and of links to folders.
    virtual std::vector<Text> FolderNames(TextView /*folder*/) const { return {}; }
    /// Whether there are any: the disk is asked for the first only.
    virtual bool HasFolders(TextView /*folder*/) const { return false; }
    /// Whether it is worth opening the folder for folders. That costs little for a folder of very many files
    /// too, and another volume isn't waited for: where the disk can't tell at once, there may be some.
    virtual bool MayHaveFolders(TextView folder) const { return HasFolders(folder); }
    virtual std::vector<Drive> Drives() const { return {}; }
    virtual bool MakeDir(TextView /*path*/) { return false; }
    /// Makes a folder that only the user may enter. On a disk that doesn't know owners it is `MakeDir`.
    virtual bool MakePrivateDir(TextView path) { return MakeDir(path); }
    /// Takes away a folder in which nothing is.
    virtual bool RemoveDir(TextView /*path*/) { return false; }
    /// Gives a file, folder or link another name, in another folder too. Nothing is replaced, and nothing
    /// goes to another volume.
    virtual bool Rename(TextView /*from*/, TextView /*to*/) { return false; }
    /// Gives a plain file a second name on the same volume. The file stays as long as it has one of them.
    virtual bool Link(TextView /*from*/, TextView /*to*/) { return false; }
    /// Returns when what was written to the file is safe on the disk; false when it isn't.
    virtual bool Flush(TextView /*path*/) { return false; }
    /// Locks a file, which is made for its owner alone when it is missing. nullptr while anybody has it
    /// locked.
    virtual std::unique_ptr<FileLock> Lock(TextView /*path*/) { return nullptr; }
    /// Whether both paths lead to one file or folder that is there.
    virtual bool IsSame(TextView /*a*/, TextView /*b*/) const { return false; }
    virtual bool IsLink(TextView /*path*/) const { return false; }
    /// Takes away a symbolic link and leaves what it names.
    virtual bool RemoveLink(TextView /*path*/) { return false; }
    /// Copies a file with its modified time and its rights, over one that is there unless that can't be
    /// written. The copy takes the target's name when it is whole, so that a failure leaves the target as it
    /// was: only where the disk hasn't room for both does the old target go first. A link in the target's
    /// place is replaced, not followed. A file isn't copied onto itself, and what isn't a plain file is
    /// neither opened nor replaced.
    virtual CopyOutcome Copy(TextView /*from*/, TextView /*to*/, const CopyOptions& /*options*/ = {}) {
        return CopyOutcome::Failed;
    }

    virtual std::optional<std::int64_t> Size(TextView path) const = 0;
    virtual std::optional<DateTime> Modified(TextView path) const = 0;

    /// Size and modified time together, which costs less than each alone for a folder of many files. Nothing
    /// when there is no such file; a folder is none.
    virtual std::optional<FileDetails> Details(TextView path) const {
        if (!FileExists(path)) return std::nullopt;
        return FileDetails{Size(path).value_or(0), Modified(path).value_or(DateTime())};
    }

    /// The same for many files of one folder, which costs less than their paths would. The disk outlives it.
    virtual std::unique_ptr<FolderDetails> DetailsIn(TextView folder) const;

    /// The volume of the path: a drive ("D:\") or a mounted file system. Nothing when there is none, and on a
    /// disk that doesn't know its volumes.
    virtual std::optional<VolumeInfo> Volume(TextView /*path*/) const { return std::nullopt; }

    /// The system's words for why the last step that can fail, or a write after it, failed; empty when
    /// nothing failed.
    virtual Text LastErrorText() const = 0;

    /// The folder of the program and of the files that ship with it.
    virtual Text ProgramDir() const = 0;
    /// The folder of the files that the program writes for itself: beside the program, or the user's own
    /// where that can't be written.
    virtual Text StateDir() const { return ProgramDir(); }
};

} // namespace korvane
