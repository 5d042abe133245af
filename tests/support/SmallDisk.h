#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>

namespace korvane {

/// Runs `test` in a process of its own, in which an empty disk of this size is mounted in a folder that it
/// gets. What fails there fails here. False when nobody may mount a disk here.
bool RunOnSmallDisk(std::int64_t bytes, const std::function<void(const std::filesystem::path&)>& test);

} // namespace korvane
