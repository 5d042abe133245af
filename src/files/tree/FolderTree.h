#pragma once

#include "common/text/Text.h"

#include <chrono>
#include <deque>
#include <functional>
#include <vector>

namespace korvane {

class FileSystem;
class Timer;
class TreeView;

/// The folders of the disk in a tree. A folder's key is its full path. What is below it is read when it is
/// opened. Whether there is anything below it is asked a little later, some folders at a time, so that a tree
/// of many folders on a slow disk is seen at once.
class FolderTree {
public:
    /// All outlive the object, which answers the events of the tree and the timer from now on.
    FolderTree(const FileSystem& files, TreeView& tree, Timer& timer);
    FolderTree(const FolderTree&) = delete;
    FolderTree& operator=(const FolderTree&) = delete;
    ~FolderTree();

    /// The current folder; empty until there is one.
    const Text& Folder() const { return folder_; }
    /// The user or the program went to a folder, maybe the same one.
    std::function<void()> FolderChanged;

    /// Shows the drives alone, with nothing of them read.
    void Fill();
    /// Opens the tree down to the folder and goes there. Nothing happens, and the result is false, when there
    /// is no such folder or when it lies deeper than `kMostLevels`.
    bool SetTreePath(TextView path);
    /// Takes the folder, which has gone from the disk, out of the tree.
    void Remove(TextView folder);

    /// The root counts as one. Kept for compatibility: tree-of-21-levels.
    static constexpr std::size_t kMostLevels = 21;
    /// How many folders the disk is asked about at each tick, and the time between two ticks, in which the
    /// window is painted and the user gets his turn.
    static constexpr std::size_t kAskedAtOnce = 64;
    static constexpr std::chrono::milliseconds kBetween{50};

private:
    void GoTo(const Text& folder);
    void Expand(const Text& key);
    void ReadFolders(const Text& folder);
    void AskSome();
    void Ask(const Text& folder);
    /// The key of the new node.
    Text AddFolder(const Text& parent, const Text& name);
    Text Root(TextView fullPath) const;
    std::vector<Text> NamesBelow(TextView root, TextView fullPath) const;
    Text NodeBelow(const Text& parent, const Text& name);

    const FileSystem& files_;
    TreeView& tree_;
    Timer& timer_;
    /// The folders of which nobody has asked yet whether there are folders in them.
    std::deque<Text> unasked_;
    Text folder_;
    /// While the program moves in the tree, the steps in between aren't told.
    bool moving_ = false;
};

} // namespace korvane
