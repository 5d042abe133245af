#include "files/tree/FolderTree.h"

#include "common/text/CaseFold.h"
#include "common/text/ScopedValue.h"
#include "controls/Timer.h"
#include "controls/UpdateScope.h"
#include "controls/lists/TreeView.h"
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

FolderTree::FolderTree(FileSystem& files, TreeView& tree, Timer& timer)
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
    ++journey_;
    folder_ = folder;
    if (!moving_ && FolderChanged) FolderChanged();
}

void FolderTree::Expand(const Text& key) {
    // On the way to a folder all is read already.
    if (!moving_ && tree_.Children(key).empty() && !ReadFolders(key)) return;
    GoTo(key);
    const auto children = tree_.Children(key);
    if (moving_ || children.empty()) return;
    tree_.EnsureVisible(Text(children.back()->key));
    tree_.EnsureVisible(key);
}

/// Nothing when it was given up, or when the user went elsewhere meanwhile.
template <class AnswerT, class QuestionT>
std::optional<AnswerT> FolderTree::AnswerOf(QuestionT question) {
    const int journey = ++journey_;
    const auto ask = [&](const DiskQuestion& asked) {
        if (Asks) return Asks(asked, [&] { return journey == journey_; });
        asked(files_, [] { return true; });
        return true;
    };
    auto answer = AnswerTo<AnswerT>(
        ask, [question](const FileSystem& files, const StillWaits&) { return question(files); });
    return journey == journey_ ? std::move(answer) : std::nullopt;
}

bool FolderTree::ReadFolders(const Text& folder) {
    const auto names =
        AnswerOf<Names>([folder](const FileSystem& files) { return files.FolderNames(folder); });
    if (names)
        AddFolders(folder, *names);
    else
        tree_.SetExpanded(folder, false);
    return names.has_value();
}

void FolderTree::AddFolders(const Text& folder, const Names& names) {
    for (const Text& name : names)
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
    Names asked = TakeUnasked();
    const auto answers = AskAbout(asked);
    std::size_t known = 0;
    for (; known < asked.size() && answers[known]; ++known)
        tree_.SetExpandable(asked[known], *answers[known]);
    asked.erase(asked.begin(), asked.begin() + static_cast<std::ptrdiff_t>(known));
    if (!asked.empty()) LeaveUnasked(asked);
    timer_.Enabled = !unasked_.empty();
}

/// One that was opened meanwhile has been read.
bool FolderTree::IsUnread(const Text& folder) const {
    const TreeNode* node = tree_.Node(folder);
    return node != nullptr && !node->expanded && node->children.empty();
}

/// The next folders to ask about.
FolderTree::Names FolderTree::TakeUnasked() {
    Names folders;
    for (std::size_t taken = 0; taken < kAskedAtOnce && !unasked_.empty(); ++taken) {
        if (IsUnread(unasked_.front())) folders.push_back(std::move(unasked_.front()));
        unasked_.pop_front();
    }
    return folders;
}

std::vector<std::optional<bool>> FolderTree::AskAbout(const Names& folders) {
    const DiskAsker direct = [this](const DiskQuestion& question) {
        question(files_, [] { return true; });
        return true;
    };
    return AnswersSoFar(AsksUnseen ? AsksUnseen : direct, folders,
                        [](const FileSystem& files, const Text& path) { return files.MayHaveFolders(path); });
}

/// The disk doesn't answer for the first of these. What is in the same folder as that one isn't asked about
/// any more, since each would cost the user a moment: it may have folders.
void FolderTree::LeaveUnasked(const Names& folders) {
    unasked_.insert(unasked_.begin(), folders.begin(), folders.end());
    const PathStyle style = files_.Style();
    const Text silent(style.FolderPart(folders.front()));
    std::erase_if(unasked_, [&](const Text& folder) {
        if (style.FolderPart(folder) != silent) return false;
        if (IsUnread(folder)) tree_.SetExpandable(folder, true);
        return true;
    });
}

/// Whether a folder is there, and the names in each folder on the way to it and in itself.
struct FolderTree::Found {
    bool exists = false;
    std::vector<Names> names;
};

/// The root, each folder on the way, and the last one.
std::vector<Text> FolderTree::WayTo(const Text& root, const Names& names) const {
    std::vector<Text> way{root};
    for (const Text& name : names)
        way.push_back(files_.Style().JoinPath(way.back(), name));
    return way;
}

std::optional<FolderTree::Found> FolderTree::LookFor(const Text& folder, const std::vector<Text>& way) {
    std::vector<bool> read;
    read.reserve(way.size());
    for (const Text& key : way)
        read.push_back(tree_.Node(key) != nullptr && !tree_.Children(key).empty());
    return AnswerOf<Found>([folder, way, read](const FileSystem& files) {
        Found found{files.DirExists(folder), {}};
        for (std::size_t level = 0; found.exists && level < way.size(); ++level)
            found.names.push_back(read[level] ? Names() : files.FolderNames(way[level]));
        return found;
    });
}

bool FolderTree::SetTreePath(TextView path) {
    const Text full = files_.FullPath(path);
    const Text root = Root(full);
    const Names names = NamesBelow(root, full);
    if (names.size() >= kMostLevels) return false;
    const auto found = LookFor(full, WayTo(root, names));
    if (!found || !found->exists) return false;
    tree_.Select(OpenWay(root, names, found->names));
    return true;
}

/// Expands the root and the folders on the way, and returns the key of the last one.
Text FolderTree::OpenWay(Text node, const Names& way, const std::vector<Names>& folders) {
    const ScopedValue moving(moving_, true);
    if (tree_.Node(node) == nullptr) tree_.Add({}, node, node);
    for (std::size_t level = 0;; ++level) {
        if (tree_.Children(node).empty()) AddFolders(node, folders[level]);
        tree_.SetExpanded(node, true);
        if (level == way.size()) return node;
        node = NodeBelow(node, way[level]);
    }
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

FolderTree::Names FolderTree::NamesBelow(TextView root, TextView fullPath) const {
    Names names;
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
