#pragma once

#include "common/number/DateTime.h"
#include "common/path/PathStyle.h"
#include "common/text/SharedBytes.h"
#include "common/text/Text.h"
#include "platform/Volume.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

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
    /// Creates the file or empties it; nullptr when it can't be opened.
    virtual std::unique_ptr<FileWriter> OpenRaw(TextView path) = 0;
    /// The same for a file that only its owner may read, also when others could read it before. On a disk
    /// that doesn't know owners it is `OpenRaw`.
    virtual std::unique_ptr<FileWriter> OpenPrivate(TextView path) { return OpenRaw(path); }
    /// Refuses a file that can't be written. Behind a symbolic link the file that it names is emptied and the
    /// link stays, so that a save goes through the link.
    virtual bool Remove(TextView path) = 0;

    virtual std::optional<std::int64_t> Size(TextView path) const = 0;
    virtual std::optional<DateTime> Modified(TextView path) const = 0;

    /// What the path stands on: a drive ("D:\") or a mounted file system. Nothing when there is none, and on
    /// a disk that doesn't know its volumes.
    virtual std::optional<VolumeInfo> Volume(TextView /*path*/) const { return std::nullopt; }

    /// The system's words for why the last `ChangeDir`, `ReadAll`, `OpenRaw`, `OpenPrivate` or `Remove`
    /// failed, or a write since; empty when nothing did.
    virtual Text LastErrorText() const = 0;

    /// The folder of the program and of the files that ship with it.
    virtual Text ProgramDir() const = 0;
    /// The folder of the files that the program writes for itself: beside the program, or the user's own
    /// where that can't be written.
    virtual Text StateDir() const { return ProgramDir(); }
};

} // namespace korvane
