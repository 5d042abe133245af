#pragma once

#include "platform/Volume.h"

#include <optional>
#include <string>
#include <string_view>

namespace korvane {

/// One mounted file system.
struct Mount {
    /// The folder where it is mounted.
    std::string point;
    /// The system's name for its kind, such as "ext4".
    std::string type;

    bool operator==(const Mount&) const = default;
};

/// Finds the mount of an absolute path without links in the system's table of mounts. Each line of the table
/// has the device, the folder, the kind and more, and a blank in one of them is written as "\040".
std::optional<Mount> MountOf(std::string_view mounts, std::string_view path);

DriveType TypeOf(const Mount& mount);
/// The name of a removable medium, which is mounted under it. Any other mount has no name.
std::string NameOf(const Mount& mount);

} // namespace korvane
