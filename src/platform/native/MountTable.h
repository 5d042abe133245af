#pragma once

#include "platform/Volume.h"

#include <optional>
#include <string>
#include <string_view>

namespace korvane {

/// One mounted file system.
struct Mount {
    /// The folder that it stands in.
    std::string point;
    /// The system's word for its kind, such as "ext4".
    std::string type;

    bool operator==(const Mount&) const = default;
};

/// The mount that an absolute path without links is on, by the system's table of mounts: a line each, of
/// device, folder, kind and more, with blanks in them as "\040".
std::optional<Mount> MountOf(std::string_view mounts, std::string_view path);

DriveType TypeOf(const Mount& mount);
/// A medium is mounted under its own name; any other mount has none.
std::string NameOf(const Mount& mount);

} // namespace korvane
