#pragma once

#include "common/number/DateTime.h"
#include "common/text/Text.h"
#include "kept/KeptFiles.h"

#include <cstddef>
#include <cstdint>
#include <set>
#include <vector>

namespace korvane {

class FileSystem;

/// The versions of tables that saves replaced. Each table has a folder of its own, which is called by a sum
/// of the table's path.
class KeptVersions {
public:
    /// How much is kept of whole files.
    struct Limits {
        std::size_t ofATable = 10;
        int days = 30;
        std::int64_t bytes = std::int64_t{500} * 1000 * 1000;
    };

    /// `root` is the folder of all that is kept.
    KeptVersions(FileSystem& files, TextView root);

    /// Keeps the file, which is about to be replaced: by a second name where the disk allows it, or else by a
    /// copy. Returns the version's name below the folder of versions; empty when it can't be kept.
    Text Keep(const Text& path, const DateTime& today);
    /// The file of a version, by the name that `Keep` returned; empty for a name that can't be a version's.
    Text FileOf(TextView version) const;
    /// When the version and the file have the same bytes on the disk, gives the version its own, since the
    /// file is about to be overwritten. False when that fails.
    bool PartFrom(const Text& path, TextView version);
    void Drop(TextView version);

    /// The paths of all tables that have versions.
    std::vector<Text> Tables() const;
    /// The oldest first.
    std::vector<KeptFile> Of(TextView path) const;

    /// Drops what is too old or too much. `needed` are the versions of files that may not be whole, and
    /// `otherBytes` is what is kept besides versions.
    void Prune(const DateTime& today, const std::set<Text>& needed, std::int64_t otherBytes,
               const Limits& limits);
    void Prune(const DateTime& today, const std::set<Text>& needed, std::int64_t otherBytes) {
        Prune(today, needed, otherBytes, Limits());
    }

private:
    struct Version;

    Text FolderOf(TextView path) const;
    Text TryToKeep(const Text& path, const DateTime& today);
    bool PrepareFolder(TextView folder, const Text& path);
    std::vector<Version> All() const;

    FileSystem& files_;
    Text folder_;
};

} // namespace korvane
