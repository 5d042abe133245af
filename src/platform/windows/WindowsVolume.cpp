#include "platform/native/NativePath.h"
#include "platform/native/NativeVolume.h"

#include <windows.h>

#include <array>
#include <string>

namespace korvane {

namespace {

namespace fs = std::filesystem;

using Buffer = std::array<wchar_t, MAX_PATH + 1>;

/// Keeps the system from asking the user for a medium.
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
    VolumeInfo info{.type = TypeOf(driveType)};
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

} // namespace korvane
