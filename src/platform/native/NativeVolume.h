#pragma once

#include "platform/FileSystem.h"
#include "platform/Volume.h"

#include <filesystem>
#include <optional>
#include <vector>

namespace korvane {

/// The volume that holds the path, or nothing when the system doesn't know it.
std::optional<VolumeInfo> VolumeAt(const std::filesystem::path& path);

std::vector<Drive> ListDrives();

} // namespace korvane
