#include "platform/native/NativePath.h"
#include "platform/native/NativeVolume.h"

#include <windows.h>

#include <array>
#include <string>

namespace korvane {

namespace {

namespace fs = std::filesystem;

using Buffer = std::array<wchar_t, MAX_PATH + 1>;

/// Stops Windows from asking the user to insert a medium.
class NoQuestions {
public:
    NoQuestions() { SetThreadErrorMode(SEM_FAILCRITICALERRORS, &before_); }
    NoQuestions(const NoQuestions&) = delete;
    NoQuestions& operator=(const NoQuestions&) = delete;
    ~NoQuestions() { SetThreadErrorMode(before_, nullptr); }

private:
    DWORD before_ = 0;
};

std::wstring RootOf(const fs::path& path) {
    std::error_code error;
    const fs::path full = fs::absolute(path, error);
    Buffer root{};
    if (GetVolumePathNameW(full.c_str(), root.data(), static_cast<DWORD>(root.size())) != 0)
        return root.data();
    return full.root_path().wstring();
}

DriveType TypeOf(UINT driveType) {
    switch (driveType) {
    case DRIVE_REMOVABLE:
        return DriveType::Removable;
    case DRIVE_FIXED:
        return DriveType::Fixed;
    case DRIVE_REMOTE:
        return DriveType::Network;
    case DRIVE_CDROM:
        return DriveType::CdRom;
    case DRIVE_RAMDISK:
        return DriveType::RamDisk;
    default:
        return DriveType::Unknown;
    }
}

} // namespace

std::optional<VolumeInfo> VolumeAt(const fs::path& path) {
    const NoQuestions noQuestions;
    const std::wstring root = RootOf(path);
    const UINT driveType = GetDriveTypeW(root.c_str());
    if (driveType == DRIVE_NO_ROOT_DIR) return std::nullopt;
    Buffer name{};
    const auto size = static_cast<DWORD>(name.size());
    VolumeInfo info{.type = TypeOf(driveType), .root = FromNativePath(root)};
    info.ready =
        GetVolumeInformationW(root.c_str(), name.data(), size, nullptr, nullptr, nullptr, nullptr, 0) != 0;
    info.name = FromNativePath(name.data());
    ULARGE_INTEGER available{};
    ULARGE_INTEGER total{};
    GetDiskFreeSpaceExW(root.c_str(), &available, &total, nullptr);
    info.totalBytes = static_cast<std::int64_t>(total.QuadPart);
    info.freeBytes = static_cast<std::int64_t>(available.QuadPart);
    return info;
}

std::vector<Drive> ListDrives() {
    std::vector<Drive> drives;
    const DWORD letters = GetLogicalDrives();
    for (int index = 0; index < 26; ++index) {
        if ((letters & (DWORD{1} << index)) == 0) continue;
        const auto letter = static_cast<char16_t>(u'a' + index);
        const Text root{static_cast<char16_t>(u'A' + index), u':', u'\\'};
        // Only fixed disks are asked for their names. Another drive would have to start up first.
        const DriveType type = TypeOf(GetDriveTypeW(ToNativePath(root).c_str()));
        const Text name = type == DriveType::Fixed ? VolumeAt(ToNativePath(root))->name : Text();
        const Text entry = Text{letter, u':'} + (name.empty() ? Text() : u" [" + name + u"]");
        drives.push_back({root, entry, type});
    }
    return drives;
}

} // namespace korvane
