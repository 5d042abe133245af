#pragma once

#include "common/text/Text.h"
#include "platform/native/SystemCalls.h"

#include <filesystem>
#include <memory>
#include <optional>

namespace korvane {

/// An open folder, of which the entries are read one by one, in the order of the disk. It costs the system's
/// calls and little else, for a folder of a hundred thousand files too. Names that are hidden are left out.
class FolderReader {
public:
    enum class Reach { Anywhere, SameVolume };

    explicit FolderReader(const std::filesystem::path& folder, Reach reach = Reach::Anywhere);
    FolderReader(const FolderReader&) = delete;
    FolderReader& operator=(const FolderReader&) = delete;
    ~FolderReader();

    /// Whether the folder is on another volume than the one it hangs in, and so wasn't opened, which is told
    /// only if the reach ends there.
    bool IsElsewhere() const;
    /// Goes to the next entry, and to the first one at the start. False after the last one, and where the
    /// folder can't be read.
    bool Next();

    // Of the entry. Links are followed.

    Text Name() const;
    bool IsFolder() const;
    /// Whether the disk has to be asked for that. It needn't for most entries.
    bool MustBeAsked() const;
    /// As `system_calls::IsProgram`.
    bool IsProgram() const;

    /// Of any name in the folder.
    std::optional<system_calls::FileFacts> FactsOf(TextView name) const;

private:
    struct Opened;
    std::unique_ptr<Opened> opened_;
};

} // namespace korvane
