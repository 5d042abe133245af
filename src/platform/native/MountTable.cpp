#include "platform/native/MountTable.h"

#include <algorithm>
#include <array>

namespace korvane {

namespace {

struct KnownType {
    std::string_view name;
    DriveType type;
};
constexpr std::array kKnownTypes{
    KnownType{"nfs", DriveType::Network},        KnownType{"nfs4", DriveType::Network},
    KnownType{"cifs", DriveType::Network},       KnownType{"smb3", DriveType::Network},
    KnownType{"fuse.sshfs", DriveType::Network}, KnownType{"fuse.gvfsd-fuse", DriveType::Network},
    KnownType{"fuse.davfs", DriveType::Network}, KnownType{"fuse.rclone", DriveType::Network},
    KnownType{"afs", DriveType::Network},        KnownType{"ceph", DriveType::Network},
    KnownType{"iso9660", DriveType::CdRom},      KnownType{"udf", DriveType::CdRom},
    KnownType{"tmpfs", DriveType::RamDisk},      KnownType{"ramfs", DriveType::RamDisk},
};

/// The folders in which desktops mount removable media.
constexpr std::array<std::string_view, 2> kMediaFolders{"/media/", "/run/media/"};

bool IsMedium(const Mount& mount) {
    return std::ranges::any_of(kMediaFolders,
                               [&mount](std::string_view folder) { return mount.point.starts_with(folder); });
}

/// Removes the text up to and including `end` from `rest`, and returns it without `end`.
std::string_view TakeUpTo(char end, std::string_view& rest) {
    const std::size_t length = std::min(rest.find(end), rest.size());
    const std::string_view taken = rest.substr(0, length);
    rest.remove_prefix(std::min(length + 1, rest.size()));
    return taken;
}

bool IsOctal(char digit) {
    return digit >= '0' && digit <= '7';
}

std::string Unescaped(std::string_view field) {
    std::string text;
    for (std::size_t i = 0; i < field.size(); ++i) {
        const std::string_view digits = field.substr(i + 1, 3);
        if (field[i] != '\\' || digits.size() < 3 || !std::ranges::all_of(digits, IsOctal)) {
            text += field[i];
            continue;
        }
        text += static_cast<char>((digits[0] - '0') * 64 + (digits[1] - '0') * 8 + (digits[2] - '0'));
        i += digits.size();
    }
    return text;
}

Mount ReadMount(std::string_view line) {
    TakeUpTo(' ', line);
    const std::string_view point = TakeUpTo(' ', line);
    return {Unescaped(point), Unescaped(TakeUpTo(' ', line))};
}

bool Holds(const std::string& point, std::string_view path) {
    if (point.empty() || !path.starts_with(point)) return false;
    return point.ends_with('/') || path.size() == point.size() || path[point.size()] == '/';
}

} // namespace

std::optional<Mount> MountOf(std::string_view mounts, std::string_view path) {
    std::optional<Mount> best;
    while (!mounts.empty()) {
        Mount mount = ReadMount(TakeUpTo('\n', mounts));
        // When two file systems are mounted at the same folder, the later one hides the other.
        const bool deeper = !best || mount.point.size() >= best->point.size();
        if (deeper && Holds(mount.point, path)) best = std::move(mount);
    }
    return best;
}

DriveType TypeOf(const Mount& mount) {
    const auto* known = std::ranges::find(kKnownTypes, mount.type, &KnownType::name);
    if (known != kKnownTypes.end()) return known->type;
    return IsMedium(mount) ? DriveType::Removable : DriveType::Fixed;
}

std::string NameOf(const Mount& mount) {
    return IsMedium(mount) ? mount.point.substr(mount.point.rfind('/') + 1) : std::string();
}

} // namespace korvane
