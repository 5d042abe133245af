#include "platform/native/MountTable.h"
#include "platform/native/NativePath.h"
#include "platform/native/NativeVolume.h"

#include <fstream>
#include <iterator>

namespace korvane {

namespace {

namespace fs = std::filesystem;

std::string MountTable() {
    std::ifstream file("/proc/self/mounts", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

std::optional<VolumeInfo> VolumeAt(const fs::path& path) {
    std::error_code error;
    const fs::path plain = fs::weakly_canonical(fs::absolute(path, error), error);
    // Under a changed root (chroot) the table may not name the file system of the root.
    const Mount mount = MountOf(MountTable(), plain.native()).value_or(Mount{"/", ""});
    VolumeInfo info{
        .type = TypeOf(mount), .name = FromNativePath(NameOf(mount)), .root = FromNativePath(mount.point)};
    // A folder can have less room than its volume, as where users have their shares.
    fs::space_info space = fs::space(plain, error);
    if (error) space = fs::space(mount.point, error);
    if (error) {
        info.ready = false;
        return info;
    }
    info.totalBytes = static_cast<std::int64_t>(space.capacity);
    info.freeBytes = static_cast<std::int64_t>(space.available);
    return info;
}

std::vector<Drive> ListDrives() {
    // All other disks are mounted in this one tree.
    return {{u"/", u"/", DriveType::Fixed}};
}

} // namespace korvane
