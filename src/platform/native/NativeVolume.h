#pragma once

#include "platform/FileSystem.h"
#include "platform/Volume.h"

#include <filesystem>
#include <optional>
#include <vector>

namespace korvane {

/// What the path stands on; nothing when the system doesn't know.
std::optional<VolumeInfo> VolumeAt(const std::filesystem::path& path);

std::vector<Drive> ListDrives();

} // namespace korvane
