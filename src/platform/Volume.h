#pragma once

#include "common/text/Text.h"

#include <cstdint>

namespace korvane {

/// The kinds of drives under the numbers that the system gives them.
enum class DriveType : std::uint8_t { Unknown, Removable, Fixed, Network, CdRom, RamDisk };

/// What is known of a drive, or of a mounted file system where there are no drives.
struct VolumeInfo {
    DriveType type = DriveType::Unknown;
    /// False for a drive without a medium.
    bool ready = true;
    /// The name of the medium; empty for none.
    Text name{};
    /// The name as a search of the directory finds it: with a dot after the eighth character when it is
    /// longer. Empty when such a search finds none.
    Text labelEntry{};
    /// Its topmost folder: "D:\\", or where it is mounted.
    Text root{};
    std::int64_t totalBytes = 0;
    std::int64_t freeBytes = 0;

    bool operator==(const VolumeInfo&) const = default;
};

} // namespace korvane
