#pragma once

#include "platform/FileSystem.h"

#include <string>
#include <utility>

namespace korvane {

/// A disk that holds one file, so that a table can be read from bytes at hand and saved to bytes: what the
/// commands read and write themselves they can also report on.
class OneFileSystem final : public FileSystem {
public:
    explicit OneFileSystem(PathStyle style) : style_(style) {}

    /// Puts the file on the disk in place of the one before.
    void SetFile(TextView path, SharedBytes bytes) {
        path_ = path;
        bytes_ = std::move(bytes);
    }
    /// What was written since the last opening for writing.
    std::string TakeWritten() { return std::exchange(written_, {}); }

    PathStyle Style() const override { return style_; }
    bool FileExists(TextView path) const override { return bytes_ && path == path_; }
    bool DirExists(TextView) const override { return false; }
    Text CurrentDir() const override { return {}; }
    bool ChangeDir(TextView) override { return false; }
    Text FullPath(TextView path) const override { return Text(path); }
    std::optional<SharedBytes> ReadAll(TextView path) override;
    std::unique_ptr<FileWriter> OpenRaw(TextView path) override;
    bool Remove(TextView path) override;
    std::optional<std::int64_t> Size(TextView path) const override;
    std::optional<DateTime> Modified(TextView) const override { return std::nullopt; }
    Text LastErrorText() const override { return {}; }
    Text ProgramDir() const override { return {}; }

private:
    class Writer;

    PathStyle style_;
    Text path_;
    std::optional<SharedBytes> bytes_;
    std::string written_;
};

} // namespace korvane
