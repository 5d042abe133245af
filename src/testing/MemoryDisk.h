#pragma once

#include "common/number/DateTime.h"
#include "common/path/PathStyle.h"
#include "common/text/Text.h"
#include "platform/Volume.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace korvane {

/// A file, folder or symbolic link of a disk in memory, or a pipe, which stands for all that must not be
/// opened.
struct MemoryNode {
    enum class Kind : std::uint8_t { File, Dir, Link, Pipe };

    /// A node's place in a folder.
    struct Entry {
        /// As it was written when the node was put there.
        Text name;
        std::shared_ptr<MemoryNode> node;
    };

    Kind kind = Kind::Dir;
    DateTime modified;
    bool readOnly = false;
    /// Only its owner may read it, or enter it.
    bool isPrivate = false;
    bool locked = false;
    /// The contents of a file.
    std::string bytes;
    /// The path that a link names; a relative one starts at the link's folder.
    Text target;
    /// The nodes in a folder, by their names as the disk compares them.
    std::map<Text, Entry> children;
};

/// A drive on Windows, the whole tree elsewhere.
struct MemoryVolume {
    std::shared_ptr<MemoryNode> root = std::make_shared<MemoryNode>();
    /// Where relative paths on this volume start.
    std::vector<Text> currentDir;
    VolumeInfo info{.type = DriveType::Fixed};
    bool readOnly = false;
    /// Whether it keeps who may read a file.
    bool knowsOwners = true;
    /// How many more bytes the volume takes; nothing for no limit.
    std::optional<std::int64_t> freeBytes;
    /// How many bytes its files may hold together; without limit when nothing is given.
    std::optional<std::int64_t> quota;

    /// How many bytes more the volume takes; nothing when there is no limit.
    std::optional<std::int64_t> Room() const;
};

enum class LastLink : std::uint8_t { Follow, Keep };

/// Folders and files in memory, and their paths in one style.
class MemoryDisk {
public:
    /// Starts with drive C or the root folder, and nothing in it.
    explicit MemoryDisk(const PathStyle& style);

    /// What a path leads to.
    struct Place {
        MemoryVolume* volume = nullptr;
        /// The folder of the node, or the one where it would be; null when there is no such folder, and for a
        /// root.
        std::shared_ptr<MemoryNode> folder;
        /// The node's name in this folder.
        Text name;
        /// Null when there is no such node.
        std::shared_ptr<MemoryNode> node;
    };
    Place Find(TextView path, LastLink lastLink = LastLink::Follow);

    Text FullPath(TextView path) const;
    Text CurrentDir() const;
    /// Makes the folder current, and its drive.
    bool ChangeDir(TextView path);

    /// Puts a node in the place, and replaces one that is there.
    std::shared_ptr<MemoryNode> Put(const Place& place, MemoryNode::Kind kind);
    /// Puts a node that was taken out of its place into this one, under its name.
    void PutBack(const Place& place, std::shared_ptr<MemoryNode> node);
    void Erase(const Place& place);
    /// Makes the folder and those above it that are missing.
    void MakeDirs(TextView path);

    void AddDrive(char16_t letter);
    /// The topmost folders of the volumes.
    std::vector<Text> Roots() const;
    /// That of the volume that the path is on.
    Text RootOf(TextView path) const { return Split(path).root; }
    /// The volume that a path is on; null for a drive that isn't there.
    MemoryVolume* VolumeOf(TextView path);
    const MemoryVolume& VolumeAt(const Text& root) const { return volumes_.at(root); }

    const PathStyle& Style() const { return style_; }

private:
    struct SplitPath {
        Text root;
        std::vector<Text> names;
        bool namesFolder = false;
    };
    SplitPath Split(TextView path) const;
    SplitPath SplitWindows(TextView path) const;
    SplitPath SplitPosix(TextView path) const;
    const std::vector<Text>& CurrentDirOf(const Text& root) const;
    Text Join(const Text& root, const std::vector<Text>& names) const;
    Place Walk(const SplitPath& path, LastLink lastLink);

    PathStyle style_;
    Text currentRoot_;
    std::map<Text, MemoryVolume> volumes_;
};

} // namespace korvane
