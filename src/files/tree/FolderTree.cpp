#include "files/tree/FolderTree.h"

#include "common/text/CaseFold.h"
#include "controls/Timer.h"
#include "controls/TreeView.h"
#include "controls/UpdateScope.h"
#include "platform/FileSystem.h"

#include <algorithm>

namespace korvane {

namespace {

/// Drive B is shown as any other one. Kept for compatibility: drive-b-without-label.
Text DriveText(const Drive& drive) {
    const Text entry = ToUpper(drive.entry);
    return entry.starts_with(u"A:") ? u"A:[ Floppy Disk ]" : entry;
}

TextView DriveIcon(DriveType type) {
    if (type == DriveType::Removable) return u"driveRemovable";
    // A drive that doesn't tell its kind looks like a fixed one.
    return type == DriveType::Fixed || type == DriveType::Unknown ? u"driveFixed" : u"driveOther";
}

} // namespace

FolderTree::FolderTree(const FileSystem& files, TreeView& tree, Timer& timer)
    : files_(files), tree_(tree), timer_(timer) {
    timer_.Enabled = false;
    timer_.Tick = [this] { AskSome(); };
    tree_.NodeClick = [this] { GoTo(tree_.Selected()); };
    tree_.Expand = [this](TextView key) { Expand(Text(key)); };
}

FolderTree::~FolderTree() {
    tree_.NodeClick = nullptr;
    tree_.Expand = nullptr;
    timer_.Tick = nullptr;
}

void FolderTree::Fill() {
    const UpdateScope update(tree_);
    tree_.Clear();
    unasked_.clear();
    for (const Drive& drive : files_.Drives()) {
        tree_.Add({}, drive.root, files_.Style().HasDrives() ? DriveText(drive) : drive.entry);
        tree_.SetNodeIcon(drive.root, DriveIcon(drive.type));
        tree_.SetExpandable(drive.root, true);
    }
}

void FolderTree::GoTo(const Text& folder) {
    folder_ = folder;
    if (!moving_ && FolderChanged) FolderChanged();
}

void FolderTree::Expand(const Text& key) {
    if (tree_.Children(key).empty()) ReadFolders(key);
    GoTo(key);
    const auto children = tree_.Children(key);
    if (moving_ || children.empty()) return;
    tree_.EnsureVisible(Text(children.back()->key));
    tree_.EnsureVisible(key);
}

void FolderTree::ReadFolders(const Text& folder) {
    for (const Text& name : files_.FolderNames(folder))
        AddFolder(folder, name);
    tree_.SetExpandable(folder, false);
}

Text FolderTree::AddFolder(const Text& parent, const Text& name) {
    const Text path = files_.Style().JoinPath(parent, name);
    tree_.Add(parent, path, name);
    unasked_.push_back(path);
    timer_.Enabled = true;
    return path;
}

void FolderTree::AskSome() {
    const UpdateScope update(tree_);
    for (std::size_t asked = 0; asked < kAskedAtOnce && !unasked_.empty(); ++asked) {
        Ask(unasked_.front());
        unasked_.pop_front();
    }
    timer_.Enabled = !unasked_.empty();
}

void FolderTree::Ask(const Text& folder) {
    const TreeNode* node = tree_.Node(folder);
    // One that was opened meanwhile has been read.
    if (node == nullptr || node->expanded || !node->children.empty()) return;
    tree_.SetExpandable(folder, files_.MayHaveFolders(folder));
}

bool FolderTree::SetTreePath(TextView path) {
    const Text full = files_.FullPath(path);
    if (!files_.DirExists(full)) return false;
    Text node = Root(full);
    const std::vector<Text> names = NamesBelow(node, full);
    if (names.size() >= kMostLevels) return false;
    moving_ = true;
    if (tree_.Node(node) == nullptr) tree_.Add({}, node, node);
    tree_.SetExpanded(node, true);
    for (const Text& name : names) {
        node = NodeBelow(node, name);
        tree_.SetExpanded(node, true);
    }
    moving_ = false;
    tree_.Select(node);
    return true;
}

void FolderTree::Remove(TextView folder) {
    tree_.Remove(folder);
}

/// A drive, a share of another machine, or the one root.
Text FolderTree::Root(TextView fullPath) const {
    if (!files_.Style().HasDrives()) return u"/";
    if (!fullPath.starts_with(u"\\\\")) return ToUpper(fullPath.substr(0, 3));
    const std::size_t endOfMachine = std::min(fullPath.find(u'\\', 2), fullPath.size());
    return Text(fullPath.substr(0, fullPath.find(u'\\', endOfMachine + 1)));
}

std::vector<Text> FolderTree::NamesBelow(TextView root, TextView fullPath) const {
    std::vector<Text> names;
    TextView rest = fullPath.substr(std::min(root.size(), fullPath.size()));
    while (!rest.empty()) {
        const std::size_t length = std::min(rest.find(files_.Style().Separator()), rest.size());
        if (length > 0) names.emplace_back(rest.substr(0, length));
        rest.remove_prefix(std::min(length + 1, rest.size()));
    }
    return names;
}

/// The key of the node. A folder that isn't listed, or not yet, is there all the same.
Text FolderTree::NodeBelow(const Text& parent, const Text& name) {
    for (const TreeNode* child : tree_.Children(parent))
        if (files_.Style().SameName(child->text, name)) return child->key;
    return AddFolder(parent, name);
}

} // namespace korvane
