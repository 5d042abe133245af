#pragma once

#include "platform/Volume.h"

#include <filesystem>
#include <optional>

namespace korvane {

/// What the path stands on; nothing when the system doesn't know.
std::optional<VolumeInfo> VolumeAt(const std::filesystem::path& path);

} // namespace korvane
