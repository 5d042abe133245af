#pragma once

#include "common/text/Text.h"
#include "platform/PatientDisk.h"

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
    FolderTree(FileSystem& files, TreeView& tree, Timer& timer);
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
    /// is no such folder, when it lies deeper than `kMostLevels`, and when the disk doesn't answer before
    /// the user gives it up or goes elsewhere.
    bool SetTreePath(TextView path);
    /// Asks the disk about folders, of which each may be on one that doesn't answer. Without it the disk is
    /// asked directly.
    std::function<bool(const DiskQuestion&, const std::function<bool()>& wanted)> Asks;
    /// The same for what the user hasn't asked for: it waits for a moment only, and shows nothing.
    DiskAsker AsksUnseen;
    /// Ends what is asked at the time, since the window goes.
    void Abandon() { ++journey_; }

    /// Takes the folder, which has gone from the disk, out of the tree.
    void Remove(TextView folder);

    /// The root counts as one. Kept for compatibility: tree-of-21-levels.
    static constexpr std::size_t kMostLevels = 21;
    /// How many folders the disk is asked about at each tick, and the time between two ticks, in which the
    /// window is painted and the user gets a turn.
    static constexpr std::size_t kAskedAtOnce = 64;
    static constexpr std::chrono::milliseconds kBetween{50};

private:
    using Names = std::vector<Text>;
    struct Found;

    void GoTo(const Text& folder);
    void Expand(const Text& key);
    /// False without an answer.
    bool ReadFolders(const Text& folder);
    void AddFolders(const Text& folder, const Names& names);
    template <class AnswerT, class QuestionT>
    std::optional<AnswerT> AnswerOf(QuestionT question);
    std::vector<Text> WayTo(const Text& root, const Names& names) const;
    std::optional<Found> LookFor(const Text& folder, const std::vector<Text>& way);
    Text OpenWay(Text node, const Names& way, const std::vector<Names>& folders);
    void AskSome();
    bool IsUnread(const Text& folder) const;
    Names TakeUnasked();
    std::vector<std::optional<bool>> AskAbout(const Names& folders);
    void LeaveUnasked(const Names& folders);
    /// The key of the new node.
    Text AddFolder(const Text& parent, const Text& name);
    Text Root(TextView fullPath) const;
    Names NamesBelow(TextView root, TextView fullPath) const;
    Text NodeBelow(const Text& parent, const Text& name);

    FileSystem& files_;
    TreeView& tree_;
    Timer& timer_;
    /// The folders of which nobody has asked yet whether there are folders in them.
    std::deque<Text> unasked_;
    Text folder_;
    /// Where the user or the program goes at the time; another number than before when that has changed.
    int journey_ = 0;
    /// While the program moves in the tree, the steps in between aren't told.
    bool moving_ = false;
};

} // namespace korvane
