#include "testing/MemoryDisk.h"

#include <algorithm>
#include <set>

namespace korvane {

namespace {

/// More links than this on one path are taken for a circle, as systems do.
constexpr int kMostLinks = 40;

Text DriveRoot(char16_t letter) {
    const bool small = letter >= u'a' && letter <= u'z';
    return {static_cast<char16_t>(small ? letter - 0x20 : letter), u':', u'\\'};
}

/// Appends the names between the separators, without "." and empty names.
void AppendNames(std::vector<Text>& names, TextView path, char16_t separator) {
    while (!path.empty()) {
        const std::size_t length = std::min(path.find(separator), path.size());
        const TextView name = path.substr(0, length);
        if (!name.empty() && name != u".") names.emplace_back(name);
        path.remove_prefix(std::min(length + 1, path.size()));
    }
}

/// Takes out each ".." together with the name before it.
std::vector<Text> WithoutSteppingUp(const std::vector<Text>& names) {
    std::vector<Text> plain;
    for (const Text& name : names) {
        if (name != u"..") {
            plain.push_back(name);
        } else if (!plain.empty()) {
            plain.pop_back();
        }
    }
    return plain;
}

/// A file with several names takes its room once, so the nodes that were counted are noted.
std::int64_t BytesBelow(const MemoryNode& node, std::set<const MemoryNode*>& counted) {
    if (!counted.insert(&node).second) return 0;
    auto bytes = static_cast<std::int64_t>(node.bytes.size());
    for (const auto& [key, child] : node.children)
        bytes += BytesBelow(*child.node, counted);
    return bytes;
}

} // namespace

std::optional<std::int64_t> MemoryVolume::Room() const {
    if (!quota) return freeBytes;
    std::set<const MemoryNode*> counted;
    const std::int64_t left = std::max<std::int64_t>(*quota - BytesBelow(*root, counted), 0);
    return std::min(left, freeBytes.value_or(left));
}

MemoryDisk::MemoryDisk(const PathStyle& style)
    : style_(style), currentRoot_(style.HasDrives() ? DriveRoot(u'C') : Text(u"/")) {
    volumes_[currentRoot_];
}

MemoryDisk::Place MemoryDisk::Find(TextView path, LastLink lastLink) {
    if (path.empty()) return {};
    const SplitPath split = Split(path);
    Place place = Walk(split, lastLink);
    if (split.namesFolder && place.node && place.node->kind != MemoryNode::Kind::Dir) return {};
    return place;
}

MemoryDisk::Place MemoryDisk::Walk(const SplitPath& path, LastLink lastLink) {
    const auto volume = volumes_.find(path.root);
    if (volume == volumes_.end()) return {};
    std::vector<std::shared_ptr<MemoryNode>> trail{volume->second.root};
    std::vector<Text> pending(path.names.rbegin(), path.names.rend());
    int links = 0;
    while (!pending.empty()) {
        const Text name = pending.back();
        pending.pop_back();
        if (name == u"..") {
            if (trail.size() > 1) trail.pop_back();
            continue;
        }
        const auto folder = trail.back();
        const auto found = folder->children.find(style_.FoldedName(name));
        const auto node = found == folder->children.end() ? nullptr : found->second.node;
        const bool last = pending.empty();
        if (node && node->kind == MemoryNode::Kind::Link && (!last || lastLink == LastLink::Follow)) {
            if (++links > kMostLinks) return {};
            std::vector<Text> target;
            AppendNames(target, node->target, style_.Separator());
            pending.insert(pending.end(), target.rbegin(), target.rend());
            if (node->target.starts_with(style_.Separator())) trail.resize(1);
            continue;
        }
        if (last) return {&volume->second, folder, name, node};
        if (!node || node->kind != MemoryNode::Kind::Dir) return {};
        trail.push_back(node);
    }
    return {&volume->second, nullptr, {}, trail.back()};
}

Text MemoryDisk::FullPath(TextView path) const {
    if (path.empty()) return {};
    const SplitPath split = Split(path);
    return Join(split.root, WithoutSteppingUp(split.names));
}

Text MemoryDisk::CurrentDir() const {
    return Join(currentRoot_, CurrentDirOf(currentRoot_));
}

bool MemoryDisk::ChangeDir(TextView path) {
    const Place place = Find(path);
    if (!place.node || place.node->kind != MemoryNode::Kind::Dir) return false;
    const SplitPath split = Split(path);
    place.volume->currentDir = WithoutSteppingUp(split.names);
    currentRoot_ = split.root;
    return true;
}

std::shared_ptr<MemoryNode> MemoryDisk::Put(const Place& place, MemoryNode::Kind kind) {
    auto node = std::make_shared<MemoryNode>();
    node->kind = kind;
    PutBack(place, node);
    return node;
}

void MemoryDisk::PutBack(const Place& place, std::shared_ptr<MemoryNode> node) {
    place.folder->children[style_.FoldedName(place.name)] = {place.name, std::move(node)};
}

void MemoryDisk::Erase(const Place& place) {
    place.folder->children.erase(style_.FoldedName(place.name));
}

void MemoryDisk::MakeDirs(TextView path) {
    const SplitPath split = Split(path);
    SplitPath part{split.root, {}};
    for (const Text& name : split.names) {
        part.names.push_back(name);
        const Place place = Walk(part, LastLink::Follow);
        if (place.folder && !place.node) Put(place, MemoryNode::Kind::Dir);
    }
}

void MemoryDisk::AddDrive(char16_t letter) {
    volumes_[DriveRoot(letter)];
}

std::vector<Text> MemoryDisk::Roots() const {
    std::vector<Text> roots;
    for (const auto& [root, volume] : volumes_)
        roots.push_back(root);
    return roots;
}

MemoryVolume* MemoryDisk::VolumeOf(TextView path) {
    const auto volume = volumes_.find(path.empty() ? currentRoot_ : Split(path).root);
    return volume == volumes_.end() ? nullptr : &volume->second;
}

MemoryDisk::SplitPath MemoryDisk::Split(TextView path) const {
    return style_.HasDrives() ? SplitWindows(path) : SplitPosix(path);
}

MemoryDisk::SplitPath MemoryDisk::SplitWindows(TextView path) const {
    Text plain(path);
    std::replace(plain.begin(), plain.end(), u'/', u'\\');
    TextView rest = plain;
    SplitPath split{currentRoot_, {}, rest.ends_with(u'\\')};
    if (rest.size() >= 2 && rest[1] == u':') {
        split.root = DriveRoot(rest[0]);
        rest.remove_prefix(2);
    }
    if (!rest.starts_with(u'\\')) split.names = CurrentDirOf(split.root);
    AppendNames(split.names, rest, u'\\');
    // Windows takes ".." out of a path before it looks at the disk.
    split.names = WithoutSteppingUp(split.names);
    return split;
}

MemoryDisk::SplitPath MemoryDisk::SplitPosix(TextView path) const {
    SplitPath split{currentRoot_, {}, path.ends_with(u'/')};
    if (!path.starts_with(u'/')) split.names = CurrentDirOf(currentRoot_);
    AppendNames(split.names, path, u'/');
    return split;
}

const std::vector<Text>& MemoryDisk::CurrentDirOf(const Text& root) const {
    static const std::vector<Text> kTop;
    const auto volume = volumes_.find(root);
    return volume == volumes_.end() ? kTop : volume->second.currentDir;
}

Text MemoryDisk::Join(const Text& root, const std::vector<Text>& names) const {
    Text path = root;
    for (const Text& name : names) {
        if (path.size() > root.size()) path += style_.Separator();
        path += name;
    }
    return path;
}

} // namespace korvane
